/* zfvec plot: every vector of a file as an SVG line plot, one panel each,
 * with labelled axes. Long vectors are reduced per pixel column to the
 * column's smallest and largest value, so narrow peaks stay visible. */
#include "zfvec.h"

#include <math.h>
#include <stdlib.h>
#include <string.h>

enum { WIDTH = 960, PANEL = 320, LEFT = 84, RIGHT = 24, TOP = 36, BOTTOM = 52 };
#define COLUMNS (WIDTH - LEFT - RIGHT)
#define ROWS (PANEL - TOP - BOTTOM)

/* The value drawn for sample k: the real value or the magnitude, in decibels with db. */
static double value(const dsp_vector *v, int k, int db) {
    double y = v->complex ? hypot(v->data[2 * k], v->data[2 * k + 1]) : v->data[k];
    if (db) y = 20.0 * log10(fmax(fabs(y), 1e-300));
    return y;
}

static void xml_text(FILE *f, const char *s) {
    for (; *s; ++s) {
        if (*s == '<') fputs("&lt;", f);
        else if (*s == '>') fputs("&gt;", f);
        else if (*s == '&') fputs("&amp;", f);
        else if (*s == '"') fputs("&quot;", f);
        else fputc(*s, f);
    }
}

/* A tick spacing of 1, 2 or 5 times a power of ten giving about five ticks. */
static double tick_step(double span) {
    double raw = span / 5, p = pow(10.0, floor(log10(raw))), m = raw / p;
    return (m < 1.5 ? 1 : m < 3.5 ? 2 : m < 7.5 ? 5 : 10) * p;
}

/* Ticks and labels of both axes of a panel at vertical offset top. */
static void axes(FILE *f, int top, double x0, double x1, double y0, double y1, const char *xlabel,
                 const char *ylabel) {
    double step, t;
    fprintf(f, "<rect x=\"%d\" y=\"%d\" width=\"%d\" height=\"%d\" fill=\"none\" stroke=\"#444\"/>\n", LEFT, top,
            COLUMNS, ROWS);
    step = tick_step(x1 - x0);
    for (t = ceil(x0 / step) * step; t <= x1 + step * 1e-9; t += step) {
        double px = LEFT + (t - x0) / (x1 - x0) * COLUMNS;
        fprintf(f, "<line x1=\"%.1f\" y1=\"%d\" x2=\"%.1f\" y2=\"%d\" stroke=\"#ddd\"/>", px, top, px, top + ROWS);
        fprintf(f, "<text x=\"%.1f\" y=\"%d\" text-anchor=\"middle\">%.6g</text>\n", px, top + ROWS + 16,
                fabs(t) < step * 1e-9 ? 0.0 : t);
    }
    step = tick_step(y1 - y0);
    for (t = ceil(y0 / step) * step; t <= y1 + step * 1e-9; t += step) {
        double py = top + ROWS - (t - y0) / (y1 - y0) * ROWS;
        fprintf(f, "<line x1=\"%d\" y1=\"%.1f\" x2=\"%d\" y2=\"%.1f\" stroke=\"#ddd\"/>", LEFT, py, LEFT + COLUMNS,
                py);
        fprintf(f, "<text x=\"%d\" y=\"%.1f\" text-anchor=\"end\">%.6g</text>\n", LEFT - 6, py + 4,
                fabs(t) < step * 1e-9 ? 0.0 : t);
    }
    fprintf(f, "<text x=\"%d\" y=\"%d\" text-anchor=\"middle\">%s</text>\n", LEFT + COLUMNS / 2, top + ROWS + 38,
            xlabel);
    fprintf(f, "<text transform=\"translate(18 %d) rotate(-90)\" text-anchor=\"middle\">%s</text>\n",
            top + ROWS / 2, ylabel);
}

/* One panel: frame, axes, title and the trace as one path. */
static void panel(FILE *f, const dsp_vector *v, int index, int top, int db, const char *title, const char *xlabel,
                  const char *ylabel) {
    const int n = v->points;
    const double x1 = n > 1 ? (n - 1) * v->delta : 1.0;
    double y0 = HUGE_VAL, y1 = -HUGE_VAL, pad;
    int k, c, first = 1;
    for (k = 0; k < n; ++k) {
        const double y = value(v, k, db);
        if (isfinite(y)) { y0 = fmin(y0, y); y1 = fmax(y1, y); }
    }
    if (y0 > y1) { y0 = -1; y1 = 1; }
    pad = y1 > y0 ? 0.05 * (y1 - y0) : 1.0;
    y0 -= pad;
    y1 += pad;
    fprintf(f, "<text x=\"%d\" y=\"%d\" text-anchor=\"middle\" font-size=\"15\">", WIDTH / 2, top - 12);
    xml_text(f, title);
    if (index > 0) fprintf(f, " (vector %d)", index);
    fputs("</text>\n", f);
    if (!ylabel) ylabel = db ? "level (dB)" : v->complex ? "magnitude" : "value";
    axes(f, top, 0.0, x1 > 0 ? x1 : 1.0, y0, y1, xlabel, ylabel);
    fputs("<path fill=\"none\" stroke=\"#1f5fbf\" stroke-width=\"1\" d=\"", f);
#define VERTEX(px, y)                                                                                  \
    do {                                                                                               \
        fprintf(f, "%s%.2f %.2f", first ? "M" : " L", (px), top + ROWS - ((y) - y0) / (y1 - y0) * ROWS); \
        first = 0;                                                                                     \
    } while (0)
    if (n <= COLUMNS) {
        for (k = 0; k < n; ++k) {
            const double y = value(v, k, db);
            if (isfinite(y)) VERTEX(LEFT + (n > 1 ? (double)k / (n - 1) * COLUMNS : 0.0), y);
        }
    } else {
        /* Per pixel column its smallest and largest value, in the order they occur. */
        for (c = 0; c < COLUMNS; ++c) {
            const int from = (int)((long long)n * c / COLUMNS), to = (int)((long long)n * (c + 1) / COLUMNS);
            double lo = HUGE_VAL, hi = -HUGE_VAL;
            int klo = -1, khi = -1;
            for (k = from; k < to; ++k) {
                const double y = value(v, k, db);
                if (!isfinite(y)) continue;
                if (y < lo) { lo = y; klo = k; }
                if (y > hi) { hi = y; khi = k; }
            }
            if (klo < 0) continue;
            VERTEX(LEFT + c + 0.5, klo <= khi ? lo : hi);
            VERTEX(LEFT + c + 0.5, klo <= khi ? hi : lo);
        }
    }
#undef VERTEX
    fputs("\"/>\n", f);
}

int cmd_plot(int argc, char **argv) {
    const char *in = NULL, *out = NULL, *title = NULL, *xlabel = "time (s)", *ylabel = NULL;
    char *made = NULL;
    int db = 0, i, count = 0, status;
    dsp_vector *vs;
    FILE *f;
    for (i = 0; i < argc; ++i) {
        if (strcmp(argv[i], "-o") == 0 || strcmp(argv[i], "--output") == 0) {
            if (!(out = option_value("plot", argc, argv, &i))) return 2;
        } else if (strcmp(argv[i], "--title") == 0) {
            if (!(title = option_value("plot", argc, argv, &i))) return 2;
        } else if (strcmp(argv[i], "--ylabel") == 0) {
            if (!(ylabel = option_value("plot", argc, argv, &i))) return 2;
        } else if (strcmp(argv[i], "--freq") == 0) {
            xlabel = "frequency (Hz)";
        } else if (strcmp(argv[i], "--db") == 0) {
            db = 1;
        } else if (argv[i][0] == '-' && argv[i][1] != '\0') {
            return fail(ZFVEC_USAGE, "plot: unknown option '%s'", argv[i]);
        } else if (!in) {
            in = argv[i];
        } else {
            return fail(ZFVEC_USAGE, "plot: one input file only");
        }
    }
    if (!in) return fail(ZFVEC_USAGE, "plot: needs an input file");
    if (!out) {
        /* IN.svg beside the input, its extension replaced; standard output for "-". */
        const char *dot = strrchr(in, '.'), *slash = strrchr(in, '/');
        size_t stem = dot && (!slash || dot > slash) ? (size_t)(dot - in) : strlen(in);
        if (strcmp(in, "-") == 0) {
            out = "-";
        } else {
            if (!(made = (char *)malloc(stem + 5))) return fail(1, "out of memory");
            memcpy(made, in, stem);
            strcpy(made + stem, ".svg");
            out = made;
        }
    }
    if ((status = read_all(in, &vs, &count)) != 0) {
        free(made);
        return status;
    }
    if (!(f = open_output(out, "w"))) {
        free_all(vs, count);
        free(made);
        return 1;
    }
    fprintf(f, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%d\" height=\"%d\" viewBox=\"0 0 %d %d\" "
               "font-family=\"sans-serif\" font-size=\"12\">\n<rect width=\"100%%\" height=\"100%%\" fill=\"white\"/>\n",
            WIDTH, PANEL * count, WIDTH, PANEL * count);
    for (i = 0; i < count; ++i)
        panel(f, &vs[i], count > 1 ? i + 1 : 0, i * PANEL + TOP, db, title ? title : strcmp(in, "-") ? in : "stdin",
              xlabel, ylabel);
    fputs("</svg>\n", f);
    status = ferror(f) ? write_failure(out) : 0;
    status = close_output(f, out, status);
    if (status == 0 && strcmp(out, "-") != 0) {
        printf("wrote %s\n", out);
        status = finish_stdout();
    }
    free_all(vs, count);
    free(made);
    return status;
}
