/* zfvec print, info, convert and example: reading, summarising and rewriting vector files. */
#include "zfvec.h"

#include <math.h>
#include <stdlib.h>
#include <string.h>

int cmd_print(int argc, char **argv) {
    int status = 0, i;
    dsp_vector v;
    if (argc < 1) return fail(ZFVEC_USAGE, "print: needs at least one file");
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

/* The strongest peak of a real vector, between samples, at its abscissa. */
static void print_peak(const dsp_vector *v) {
    dsp_vector peak;
    dsp_init(&peak);
    if (!v->complex && dsps_peak(v, &peak) == 0)
        printf("  peak at %.9g (sample %.4f): %.9g\n", peak.data[0] * v->delta, peak.data[0], peak.data[1]);
    dsp_destroy(&peak);
}

int cmd_info(int argc, char **argv) {
    int status = 0, index = 0, r, peak = argc == 2 && strcmp(argv[0], "--peak") == 0;
    dsp_vector v;
    FILE *f;
    if (peak) ++argv, --argc;
    if (argc != 1 || (argv[0][0] == '-' && argv[0][1] == '-')) return fail(ZFVEC_USAGE, "info: needs exactly one file");
    if (!(f = open_input(argv[0]))) return 1;
    dsp_init(&v);
    for (;;) {
        const int binary = next_is_binary(f);
        if ((r = dspf_fread(&v, f)) == 0) break;
        ++index;
        if (r < 0) { status = read_failure(argv[0], f, index, binary, v.points); break; }
        print_info(&v, index);
        if (peak) print_peak(&v);
    }
    if (status == 0 && index == 0) printf("%s: no vectors\n", argv[0]);
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

int cmd_convert(int argc, char **argv) {
    int form = FORM_BINARY, single = 0, status, i, named = 0;
    const char *names[2];
    FILE *in, *out;
    for (i = 0; i < argc; ++i) {
        const char *a = argv[i];
        if (strcmp(a, "--ascii") == 0) form = FORM_ASCII;
        else if (strcmp(a, "--binary") == 0) form = FORM_BINARY;
        else if (strcmp(a, "--float") == 0) single = 1;
        else if (strcmp(a, "--double") == 0) single = 0;
        else if (a[0] == '-' && a[1] == '-') return fail(ZFVEC_USAGE, "convert: unknown option '%s'", a);
        else if (named < 2) names[named++] = a;
        else return fail(ZFVEC_USAGE, "convert: too many file names");
    }
    if (named != 2) return fail(ZFVEC_USAGE, "convert: needs an input and an output file");
    if (strcmp(names[1], "-") != 0 && strcmp(names[0], names[1]) == 0)
        return fail(1, "%s: input and output are the same file", names[0]);
    if (!(in = open_input(names[0]))) return 1;
    if (!(out = open_output(names[1], form == FORM_ASCII ? "w" : "wb"))) {
        dspf_fclose(in);
        return 1;
    }
    status = copy_vectors(in, names[0], out, strcmp(names[1], "-") == 0 ? "standard output" : names[1], form,
                          single);
    dspf_fclose(in);
    return close_output(out, names[1], status);
}

/* A real 62.5 Hz sine sampled at 1 kHz, a complex exponential, and a float
 * decaying exponential long enough for the summary to end in " ...". */
int cmd_example(int argc, char **argv) {
    const double pi = 3.14159265358979323846;
    dsp_vector sine, phasor;
    dspf_vector decay;
    FILE *f;
    int k, status = 0;
    if (argc != 1) return fail(ZFVEC_USAGE, "example: needs exactly one output file");
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
        status = fail(1, "out of memory");
    } else {
        /* Sine and cosine from the library, not the C runtime: the file holds
         * the same bytes on every platform. */
        for (k = 0; k < sine.points; ++k) sine.data[k] = 2 * pi * 62.5 * k * sine.delta;
        for (k = 0; k < phasor.points; ++k) {
            phasor.data[2 * k] = 0.5;
            phasor.data[2 * k + 1] = 2 * pi * k / phasor.points;
        }
        for (k = 0; k < decay.points; ++k) decay.data[k] = (float)exp(-k / 10.0);
        if (dspi_sin(&sine) != 0 || dspi_ptor(&phasor) != 0) {
            status = fail(1, "out of memory");
        } else if (!(f = open_output(argv[0], "wb"))) {
            status = 1;
        } else {
            if (dspf_fwrite(&sine, f) != 0 || dspf_fwrite(&phasor, f) != 0 || dspff_fwrite(&decay, f) != 0)
                status = write_failure(argv[0]);
            status = close_output(f, argv[0], status);
        }
    }
    dsp_destroy(&sine);
    dsp_destroy(&phasor);
    dspf_destroy(&decay);
    return status;
}
