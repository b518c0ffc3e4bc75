/* zfvec spectrum: the averaged spectrum of every record of a file, in decibels,
 * and its strongest peaks. The road of one spectrum measurement: a windowed,
 * single-sided transform per record (dsph_fft), power averaged over the records
 * (dsph_avg), decibels with the library's floors (dspi_db), and the window's
 * gain taken out (dsp_window2_scale) so that a sine of amplitude A reads
 * 20 log10(A). */
#include "zfvec.h"

#include <math.h>
#include <stdlib.h>
#include <string.h>

/* dsph_fft flags and dsph_avg modes used here. */
#define FFT_TWO_SIDED 2
#define AVG_MEAN 1
#define AVG_MAX 2
#define AVG_MIN 3
#define AVG_LIMIT 16
#define AVG_MAGSQ 32

typedef struct peak {
    double freq, level;
} peak;

/* Amplitude correction of the window: the mean of the window as dsph_fft applies
 * it (mean normalisation, spanning width samples) is scale times the mean of the
 * same window at peak 1; dividing by it makes a tone read its amplitude. */
static int window_gain(int kind, int width, double *gain) {
    dsp_vector w, mean;
    double scale;
    int status;
    dsp_init(&w);
    dsp_init(&mean);
    w.points = width;
    status = dsp_window2_scale(&scale, kind, DSP_WINFLAG_WIDTH, width, width) != 0 || dspc_line(&w, 0.0, 1.0) != 0 ||
             dspi_window2(&w, kind, DSP_WINFLAG_WIDTH | DSP_WINFLAG_NORM_PEAK | DSP_WINFLAG_NO_ROTATE, width) != 0 ||
             dsps_mean(&w, &mean) != 0;
    if (status == 0) *gain = scale * mean.data[0];
    dsp_destroy(&w);
    dsp_destroy(&mean);
    return status == 0 && *gain > 0 ? 0 : -1;
}

static int by_level(const void *a, const void *b) {
    const double x = ((const peak *)a)->level, y = ((const peak *)b)->level;
    return x < y ? 1 : x > y ? -1 : 0;
}

/* Local maxima of the level, strongest first, each at least `guard` bins from a
 * stronger one; the frequency from a parabola through the three levels. */
static int find_peaks(const dsp_vector *db, int guard, double first_freq, peak *out, int want) {
    const double *y = db->data;
    int n = db->points, k, j, count = 0, found = 0;
    peak *all = (peak *)malloc(sizeof *all * (size_t)(n > 0 ? n : 1));
    int *bin = (int *)malloc(sizeof *bin * (size_t)(n > 0 ? n : 1));
    if (!all || !bin) { free(all); free(bin); return -1; }
    for (k = 0; k < n; ++k) {
        const double left = k > 0 ? y[k - 1] : -HUGE_VAL, right = k + 1 < n ? y[k + 1] : -HUGE_VAL;
        if (y[k] > left && y[k] >= right) {
            double shift = 0, den = (k > 0 && k + 1 < n) ? left - 2 * y[k] + right : 0;
            if (den < 0) shift = 0.5 * (left - right) / den;
            all[count].freq = first_freq + (k + shift) * db->delta;
            all[count].level = y[k];
            ++count;
        }
    }
    qsort(all, (size_t)count, sizeof *all, by_level);
    for (k = 0; k < count && found < want; ++k) {
        const int b = (int)floor((all[k].freq - first_freq) / db->delta + 0.5);
        for (j = 0; j < found; ++j)
            if (abs(bin[j] - b) <= guard) break;
        if (j < found) continue;
        bin[found] = b;
        out[found++] = all[k];
    }
    free(all);
    free(bin);
    return found;
}

static int parse_avg(const char *text, int *mode, double *limit) {
    if (strcmp(text, "mean") == 0) *mode = AVG_MEAN;
    else if (strcmp(text, "max") == 0) *mode = AVG_MAX;
    else if (strcmp(text, "min") == 0) *mode = AVG_MIN;
    else if (strncmp(text, "exp", 3) == 0 && (text[3] == '\0' || text[3] == ':')) {
        *mode = AVG_MEAN | AVG_LIMIT;
        *limit = 4;
        if (text[3] == ':' && (parse_double("spectrum", "--avg exp:K", text + 4, limit) || *limit < 1))
            return fail(2, "spectrum: --avg exp:K needs K >= 1");
    } else {
        return fail(2, "spectrum: --avg: unknown mode '%s' (mean, max, min, exp[:K])", text);
    }
    return 0;
}

int cmd_spectrum(int argc, char **argv) {
    const char *names[2], *window = "Flattop", *avg = "mean";
    int named = 0, i, kind, points = 0, two_sided = 0, want = 5, mode = AVG_MEAN, status = 0, count = 0, r;
    int width = 0, found, guard;
    double limit = 0, gain = 1, enbw = 1, first = 0;
    dsp_vector *recs, bins, acc, scratch;
    peak peaks[64];
    FILE *f;
    char label[64];
    for (i = 0; i < argc; ++i) {
        const char *a = argv[i], *val;
        if (strcmp(a, "--two-sided") == 0) {
            two_sided = 1;
        } else if (strcmp(a, "--window") == 0 || strcmp(a, "--points") == 0 || strcmp(a, "--avg") == 0 ||
                   strcmp(a, "--peaks") == 0) {
            if (!(val = option_value("spectrum", argc, argv, &i))) return 2;
            if (strcmp(a, "--window") == 0) window = val;
            else if (strcmp(a, "--avg") == 0) avg = val;
            else if (strcmp(a, "--points") == 0) { if (parse_int("spectrum", a, val, 1, 1 << 26, &points)) return 2; }
            else if (parse_int("spectrum", a, val, 0, 64, &want)) return 2;
        } else if (a[0] == '-' && a[1] != '\0') {
            return fail(ZFVEC_USAGE, "spectrum: unknown option '%s'", a);
        } else if (named < 2) {
            names[named++] = a;
        } else {
            return fail(ZFVEC_USAGE, "spectrum: too many file names");
        }
    }
    if (named != 2) return fail(ZFVEC_USAGE, "spectrum: needs an input and an output file");
    if (dsp_window_from_str(window, &kind) != 0) return fail(2, "spectrum: unknown window '%s'", window);
    if (parse_avg(avg, &mode, &limit)) return 2;
    if ((status = read_all(names[0], &recs, &count)) != 0) return status;
    dsp_init(&bins);
    dsp_init(&acc);
    dsp_init(&scratch);
    for (r = 0; r < count && status == 0; ++r) {
        if (dsph_fft(&recs[r], &bins, points, 1.0, kind, two_sided ? FFT_TWO_SIDED : 0) != 0 ||
            dsph_avg(&bins, &acc, &scratch, mode | AVG_MAGSQ, r + 1, 0, -1.0, limit) != 0)
            status = fail(1, "%s: record %d (%d points) cannot be transformed", names[0], r + 1, recs[r].points);
        else if (r == 0)
            width = points > 0 && points < recs[0].points ? points : recs[0].points;
    }
    /* Decibels of power, and the window's amplitude gain taken out. */
    if (status == 0 && (dspi_db(&acc, 10.0) != 0 || (kind != 0 && window_gain(kind, width, &gain) != 0) ||
                        dspi_offset(&acc, -20.0 * log10(gain)) != 0 || dsp_window_enbw(&enbw, kind, width) != 0))
        status = fail(1, "spectrum: the %s window cannot be applied to %d points", window, width);
    if (status == 0) {
        if (two_sided) first = -(acc.points / 2) * acc.delta;
        if (!(f = open_output(names[1], "wb"))) {
            status = 1;
        } else {
            if (dspf_fwrite(&acc, f) != 0) status = write_failure(names[1]);
            status = close_output(f, names[1], status);
        }
    }
    if (status == 0 && want > 0) {
        /* Peaks closer than three noise bandwidths (in bins of the padded transform) are one. */
        guard = (int)ceil(3 * enbw * (double)(two_sided ? acc.points : 2 * (acc.points - 1)) / width);
        if ((found = find_peaks(&acc, guard, first, peaks, want)) < 0) {
            status = fail(1, "out of memory");
        } else {
            dsp_window_to_str(kind, label, (int)sizeof label);
            printf("%d record%s, %s window, %s average, %d bins of %.6g Hz\n", count, count == 1 ? "" : "s", label,
                   avg, acc.points, acc.delta);
            printf("%16s %12s\n", "frequency (Hz)", "level (dB)");
            for (i = 0; i < found; ++i) printf("%16.3f %12.2f\n", peaks[i].freq, peaks[i].level);
        }
    }
    free_all(recs, count);
    dsp_destroy(&bins);
    dsp_destroy(&acc);
    dsp_destroy(&scratch);
    return status == 0 ? finish_stdout() : status;
}
