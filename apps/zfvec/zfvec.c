/* zfvec: prints, inspects and converts vector files, and writes an example.
 * Built on the public header only. Exit status: 0 success, 1 unreadable or
 * malformed input or a failed write, 2 a usage error. */
#include <errno.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <zifaif/dsp.h>

#define FORM_BINARY 0
#define FORM_ASCII 1
#define FORM_SUMMARY 2

static const char usage_text[] =
    "usage: zfvec print FILE...      one summary line per vector\n"
    "       zfvec info FILE          points, form, spacing, minimum, maximum and mean per vector\n"
    "       zfvec convert [--ascii|--binary] [--float|--double] IN OUT\n"
    "                                rewrite every vector (default: binary, double)\n"
    "       zfvec example OUT        write a small example file (a real sine, a complex\n"
    "                                vector and a float vector)\n"
    "A file name \"-\" is standard input or standard output.\n";

static int usage_error(const char *what) {
    if (what) fprintf(stderr, "zfvec: %s\n", what);
    fputs(usage_text, stderr);
    return 2;
}

static FILE *open_input(const char *name) {
    FILE *f = dspf_fopen(name, "rb");
    if (!f) fprintf(stderr, "zfvec: %s: cannot open: %s\n", name, strerror(errno));
    return f;
}

/* Whether the next vector of f is in the binary form (its first byte starts a
 * magic in either byte order); the byte stays in the stream. */
static int next_is_binary(FILE *f) {
    int c = getc(f);
    if (c == EOF) return 0;
    ungetc(c, f);
    return c == 0xBE || c == 0xEB;
}

/* The one line that tells why vector `index` of `name` could not be read;
 * `kept` is the number of samples the reader kept. */
static int read_failure(const char *name, FILE *f, int index, int binary, int kept) {
    if (strcmp(name, "-") == 0) name = "standard input";
    if (ferror(f))
        fprintf(stderr, "zfvec: %s: read error in vector %d: %s\n", name, index, strerror(errno));
    else if (binary)
        fprintf(stderr, "zfvec: %s: vector %d: unknown binary header or truncated samples (%d read)\n",
                name, index, kept);
    else if (index == 1 && kept == 0)
        fprintf(stderr, "zfvec: %s: not a vector file (neither a binary header nor ASCII numbers)\n", name);
    else
        fprintf(stderr, "zfvec: %s: vector %d: bad number, or fewer samples than its header says (%d read)\n",
                name, index, kept);
    return 1;
}

static int write_failure(const char *name) {
    fprintf(stderr, "zfvec: %s: write error: %s\n", name, strerror(errno));
    return 1;
}

/* Standard output flushed and checked, so a full disk is not a success. */
static int finish_stdout(void) {
    if (fflush(stdout) != 0 || ferror(stdout)) return write_failure("standard output");
    return 0;
}

static int cmd_print(int argc, char **argv) {
    int status = 0, i;
    dsp_vector v;
    dsp_init(&v);
    for (i = 0; i < argc; ++i) {
        FILE *f = open_input(argv[i]);
        int index = 0, r;
        if (!f) { status = 1; continue; }
        if (argc > 1) printf("%s:\n", argv[i]);
        for (;;) {
            const int binary = next_is_binary(f);
            if ((r = dspf_fread(&v, f)) == 0) break;
            ++index;
            if (r < 0) { status = read_failure(argv[i], f, index, binary, v.points); break; }
            if (dspf_fwrite2(&v, stdout, FORM_SUMMARY) != 0) { status = write_failure("standard output"); break; }
        }
        dspf_fclose(f);
    }
    dsp_destroy(&v);
    return finish_stdout() ? 1 : status;
}

/* One line of statistics: real vectors over their values, complex vectors
 * over the magnitudes for the extremes and over both parts for the mean. */
static void print_info(const dsp_vector *v, int index) {
    double lo = 0, hi = 0, mean_re = 0, mean_im = 0;
    int k;
    printf("vector %d: %d points, %s, delta %.6g", index, v->points, v->complex ? "complex" : "real", v->delta);
    if (v->points == 0) { printf("\n"); return; }
    for (k = 0; k < v->points; ++k) {
        double x;
        if (v->complex) {
            x = hypot(v->data[2 * k], v->data[2 * k + 1]);
            mean_re += v->data[2 * k];
            mean_im += v->data[2 * k + 1];
        } else {
            x = v->data[k];
            mean_re += x;
        }
        if (k == 0 || x < lo) lo = x;
        if (k == 0 || x > hi) hi = x;
    }
    mean_re /= v->points;
    mean_im /= v->points;
    if (v->complex)
        printf(", min |x| %.6g, max |x| %.6g, mean %.6g,%.6g\n", lo, hi, mean_re, mean_im);
    else
        printf(", min %.6g, max %.6g, mean %.6g\n", lo, hi, mean_re);
}

static int cmd_info(const char *name) {
    int status = 0, index = 0, r;
    dsp_vector v;
    FILE *f = open_input(name);
    if (!f) return 1;
    dsp_init(&v);
    for (;;) {
        const int binary = next_is_binary(f);
        if ((r = dspf_fread(&v, f)) == 0) break;
        ++index;
        if (r < 0) { status = read_failure(name, f, index, binary, v.points); break; }
        print_info(&v, index);
    }
    if (status == 0 && index == 0) printf("%s: no vectors\n", name);
    dspf_fclose(f);
    dsp_destroy(&v);
    return finish_stdout() ? 1 : status;
}

/* Copies every vector of `in` to `out` in the chosen form and precision. */
static int copy_vectors(FILE *in, const char *in_name, FILE *out, const char *out_name, int form, int single) {
    int status = 0, index = 0, r;
    dsp_vector d;
    dspf_vector s;
    dsp_init(&d);
    dspf_init(&s);
    for (;;) {
        const int binary = next_is_binary(in);
        if ((r = single ? dspff_fread(&s, in) : dspf_fread(&d, in)) == 0) break;
        ++index;
        if (r < 0) {
            status = read_failure(in_name, in, index, binary, single ? s.points : d.points);
            break;
        }
        if ((single ? dspff_fwrite2(&s, out, form) : dspf_fwrite2(&d, out, form)) != 0) {
            status = write_failure(out_name);
            break;
        }
    }
    dsp_destroy(&d);
    dspf_destroy(&s);
    return status;
}

static int cmd_convert(int argc, char **argv) {
    int form = FORM_BINARY, single = 0, status, i;
    const char *names[2];
    int named = 0;
    FILE *in, *out;
    int to_stdout;
    for (i = 0; i < argc; ++i) {
        const char *a = argv[i];
        if (strcmp(a, "--ascii") == 0) form = FORM_ASCII;
        else if (strcmp(a, "--binary") == 0) form = FORM_BINARY;
        else if (strcmp(a, "--float") == 0) single = 1;
        else if (strcmp(a, "--double") == 0) single = 0;
        else if (a[0] == '-' && a[1] == '-') return usage_error("convert: unknown option");
        else if (named < 2) names[named++] = a;
        else return usage_error("convert: too many file names");
    }
    if (named != 2) return usage_error("convert: needs an input and an output file");
    to_stdout = strcmp(names[1], "-") == 0;
    if (!to_stdout && strcmp(names[0], names[1]) == 0) {
        fprintf(stderr, "zfvec: %s: input and output are the same file\n", names[0]);
        return 1;
    }
    in = open_input(names[0]);
    if (!in) return 1;
    out = dspf_fopen(names[1], form == FORM_ASCII ? "w" : "wb");
    if (!out) {
        fprintf(stderr, "zfvec: %s: cannot create: %s\n", names[1], strerror(errno));
        dspf_fclose(in);
        return 1;
    }
    status = copy_vectors(in, names[0], out, to_stdout ? "standard output" : names[1], form, single);
    dspf_fclose(in);
    if (to_stdout) {
        if (finish_stdout()) status = 1;
    } else {
        if (dspf_fclose(out) != 0 && status == 0) status = write_failure(names[1]);
        if (status != 0) remove(names[1]);  /* no half-written output is left behind */
    }
    return status;
}

/* A real 62.5 Hz sine sampled at 1 kHz, a complex exponential, and a float
 * decaying exponential long enough for the summary to end in " ...". */
static int cmd_example(const char *name) {
    const double pi = 3.14159265358979323846;
    dsp_vector sine, phasor;
    dspf_vector decay;
    FILE *f;
    int k, status = 0;
    dsp_init(&sine);
    dsp_init(&phasor);
    dspf_init(&decay);
    sine.points = 64;
    sine.delta = 0.001;
    phasor.points = 16;
    phasor.complex = 1;
    phasor.delta = 0.5;
    decay.points = 40;
    decay.delta = 0.01f;
    if (dsp_alloc(&sine) != 0 || dsp_alloc(&phasor) != 0 || dspf_alloc(&decay) != 0) {
        fprintf(stderr, "zfvec: out of memory\n");
        status = 1;
    } else {
        for (k = 0; k < sine.points; ++k) sine.data[k] = sin(2 * pi * 62.5 * k * sine.delta);
        for (k = 0; k < phasor.points; ++k) {
            phasor.data[2 * k] = 0.5 * cos(2 * pi * k / phasor.points);
            phasor.data[2 * k + 1] = 0.5 * sin(2 * pi * k / phasor.points);
        }
        for (k = 0; k < decay.points; ++k) decay.data[k] = (float)exp(-k / 10.0);
        f = dspf_fopen(name, "wb");
        if (!f) {
            fprintf(stderr, "zfvec: %s: cannot create: %s\n", name, strerror(errno));
            status = 1;
        } else {
            if (dspf_fwrite(&sine, f) != 0 || dspf_fwrite(&phasor, f) != 0 || dspff_fwrite(&decay, f) != 0)
                status = write_failure(name);
            if (strcmp(name, "-") == 0) {
                if (finish_stdout()) status = 1;
            } else if (dspf_fclose(f) != 0 && status == 0) {
                status = write_failure(name);
            }
        }
    }
    dsp_destroy(&sine);
    dsp_destroy(&phasor);
    dspf_destroy(&decay);
    return status;
}

int main(int argc, char **argv) {
    const char *cmd = argc > 1 ? argv[1] : NULL;
    if (!cmd) return usage_error(NULL);
    if (strcmp(cmd, "-h") == 0 || strcmp(cmd, "--help") == 0 || strcmp(cmd, "help") == 0) {
        fputs(usage_text, stdout);
        return 0;
    }
    if (strcmp(cmd, "print") == 0) {
        if (argc < 3) return usage_error("print: needs at least one file");
        return cmd_print(argc - 2, argv + 2);
    }
    if (strcmp(cmd, "info") == 0) {
        if (argc != 3) return usage_error("info: needs exactly one file");
        return cmd_info(argv[2]);
    }
    if (strcmp(cmd, "convert") == 0) return cmd_convert(argc - 2, argv + 2);
    if (strcmp(cmd, "example") == 0) {
        if (argc != 3) return usage_error("example: needs exactly one output file");
        return cmd_example(argv[2]);
    }
    fprintf(stderr, "zfvec: unknown command '%s'\n", cmd);
    fputs(usage_text, stderr);
    return 2;
}
