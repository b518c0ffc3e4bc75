/* zfvec filter and resample: FIR filtering and rate conversion of every record
 * of a file, each as one stream, so consecutive records join without a seam. */
#include "zfvec.h"

#include <math.h>
#include <stdlib.h>
#include <string.h>

/* Gain of the taps at f cycles per sample about the centre tap (odd length). */
static double gain_at(const dsp_vector *h, double f) {
    const int c = h->points / 2;
    double g = 0;
    int k;
    for (k = 0; k < h->points; ++k) g += h->data[k] * cos(2 * 3.14159265358979323846 * f * (k - c));
    return g;
}

/* Designs the taps: the library's design kind, multiplied by the window at
 * peak 1 (centred on the middle tap), scaled to gain 1 in the pass band. */
static int design(dsp_vector *h, int kind, double f1, double f2, int window, double *unit) {
    h->points = h->points | 1;
    if (dspc_fir(h, kind, f1, f2) != 0) return -1;
    if (window != 0 && dspi_window(h, window, DSP_WINFLAG_NORM_PEAK | DSP_WINFLAG_NO_ROTATE) != 0) return -1;
    *unit = kind == DSP_FIR_LOWPASS ? 0.0 : kind == DSP_FIR_HIGHPASS ? 0.5 : f1;
    return dspi_scale(h, 1.0 / gain_at(h, *unit));
}

static int split_band(const char *text, double *f1, double *f2, int two) {
    char buf[128], *colon;
    if (strlen(text) >= sizeof buf) return fail(2, "filter: band too long: '%s'", text);
    strcpy(buf, text);
    colon = strchr(buf, ':');
    if ((colon != NULL) != two) return fail(2, "filter: expected %s, got '%s'", two ? "F1:F2" : "F", text);
    if (colon) *colon = '\0';
    if (parse_double("filter", "frequency", buf, f1) || (colon && parse_double("filter", "frequency", colon + 1, f2)))
        return 2;
    return 0;
}

int cmd_filter(int argc, char **argv) {
    const char *names[2], *window = "Kaiser90", *band = NULL;
    int named = 0, i, taps = 63, kind = -1, wkind, count, status, r;
    double f1 = 0, f2 = 0, unit = 0;
    dsp_vector *recs, h, state, out;
    FILE *f;
    for (i = 0; i < argc; ++i) {
        const char *a = argv[i], *val;
        if (strcmp(a, "--lowpass") == 0 || strcmp(a, "--highpass") == 0 || strcmp(a, "--bandpass") == 0) {
            if (!(band = option_value("filter", argc, argv, &i))) return 2;
            kind = a[2] == 'l' ? DSP_FIR_LOWPASS : a[2] == 'h' ? DSP_FIR_HIGHPASS : DSP_FIR_BANDPASS;
        } else if (strcmp(a, "--taps") == 0) {
            if (!(val = option_value("filter", argc, argv, &i)) || parse_int("filter", a, val, 1, 1 << 20, &taps))
                return 2;
        } else if (strcmp(a, "--window") == 0) {
            if (!(window = option_value("filter", argc, argv, &i))) return 2;
        } else if (a[0] == '-' && a[1] != '\0') {
            return fail(ZFVEC_USAGE, "filter: unknown option '%s'", a);
        } else if (named < 2) {
            names[named++] = a;
        } else {
            return fail(ZFVEC_USAGE, "filter: too many file names");
        }
    }
    if (kind < 0) return fail(ZFVEC_USAGE, "filter: needs --lowpass, --highpass or --bandpass");
    if (named != 2) return fail(ZFVEC_USAGE, "filter: needs an input and an output file");
    if (dsp_window_from_str(window, &wkind) != 0) return fail(2, "filter: unknown window '%s'", window);
    if (split_band(band, &f1, &f2, kind == DSP_FIR_BANDPASS)) return 2;
    if ((status = read_all(names[0], &recs, &count)) != 0) return status;
    /* Edges in hertz of the first record's spacing; the band-pass design takes centre and width. */
    f1 *= recs[0].delta;
    f2 *= recs[0].delta;
    if (kind == DSP_FIR_BANDPASS) {
        const double lo = f1 < f2 ? f1 : f2, hi = f1 < f2 ? f2 : f1;
        f1 = 0.5 * (lo + hi);
        f2 = hi - lo;
    }
    if (f1 <= 0 || f1 >= 0.5 || (kind == DSP_FIR_BANDPASS && (f2 <= 0 || f1 + f2 / 2 >= 0.5))) {
        free_all(recs, count);
        return fail(2, "filter: the band must lie between 0 and half the sample rate (%g Hz)", 0.5 / recs[0].delta);
    }
    dsp_init(&h);
    dsp_init(&state);
    dsp_init(&out);
    h.points = taps;
    if (design(&h, kind, f1, f2, wkind, &unit) != 0) status = fail(1, "filter: the design failed");
    if (status == 0 && !(f = open_output(names[1], "wb"))) status = 1;
    if (status == 0) {
        for (r = 0; r < count && status == 0; ++r)
            if (dspd_fir(&recs[r], &out, &h, &state) != 0 || dspf_fwrite(&out, f) != 0)
                status = fail(1, "%s: record %d cannot be filtered or written", names[1], r + 1);
        status = close_output(f, names[1], status);
    }
    if (status == 0 && strcmp(names[1], "-") != 0)
        printf("%d taps (%s window, gain 1 at %g Hz), %d record%s filtered into %s\n", h.points, window,
               unit / recs[0].delta, count, count == 1 ? "" : "s", names[1]);
    free_all(recs, count);
    dsp_destroy(&h);
    dsp_destroy(&state);
    dsp_destroy(&out);
    return status == 0 && strcmp(names[1], "-") != 0 ? finish_stdout() : status;
}

int cmd_resample(int argc, char **argv) {
    const char *names[2];
    int named = 0, i, count, status, r, by_rate = -1, produced = 0;
    double value = 0, ratio, consumed = 0;
    dsp_vector *recs, out, scratch;
    dsph_rsmp_coef coef;
    dsph_rsmp_state state;
    FILE *f;
    for (i = 0; i < argc; ++i) {
        const char *a = argv[i], *val;
        if (strcmp(a, "--ratio") == 0 || strcmp(a, "--rate") == 0) {
            if (!(val = option_value("resample", argc, argv, &i)) || parse_double("resample", a, val, &value)) return 2;
            if (value <= 0) return fail(2, "resample: %s must be positive", a);
            by_rate = a[2] == 'r' && a[3] == 'a' && a[4] == 't' && a[5] == 'e';
        } else if (a[0] == '-' && a[1] != '\0') {
            return fail(ZFVEC_USAGE, "resample: unknown option '%s'", a);
        } else if (named < 2) {
            names[named++] = a;
        } else {
            return fail(ZFVEC_USAGE, "resample: too many file names");
        }
    }
    if (by_rate < 0) return fail(ZFVEC_USAGE, "resample: needs --ratio R or --rate HZ");
    if (named != 2) return fail(ZFVEC_USAGE, "resample: needs an input and an output file");
    if ((status = read_all(names[0], &recs, &count)) != 0) return status;
    /* The ratio is output spacing over input spacing: above 1 gives fewer samples. */
    ratio = by_rate ? 1.0 / (value * recs[0].delta) : value;
    dsph_rsmp_coef_init(&coef);
    dsph_rsmp_state_init(&state);
    dsp_init(&out);
    dsp_init(&scratch);
    if (dsph_rsmp_coef_alloc(&coef, NULL) != 0 || dsph_rsmp_coef_setup(&coef, ratio, 0, NULL) != 0 ||
        dsph_rsmp_state_alloc(&coef, &state, recs[0].complex) != 0 || dsph_rsmp_state_reset(&coef, &state) != 0)
        status = fail(1, "resample: ratio %g cannot be set up", ratio);
    if (status == 0 && !(f = open_output(names[1], "wb"))) status = 1;
    if (status == 0) {
        for (r = 0; r < count && status == 0; ++r) {
            /* Each record's share of the one stream's output. */
            consumed += recs[r].points;
            out.points = (int)floor(consumed / ratio) - produced;
            if (out.points < 0) out.points = 0;
            if (dsph_rsmp(&recs[r], &out, &scratch, &coef, &state) != 0 || dspf_fwrite(&out, f) != 0)
                status = fail(1, "%s: record %d cannot be resampled or written", names[1], r + 1);
            produced += out.points;
        }
        status = close_output(f, names[1], status);
    }
    if (status == 0 && strcmp(names[1], "-") != 0)
        printf("ratio %.9g: %.0f samples in, %d out, spacing %g, into %s\n", ratio, consumed, produced, out.delta,
               names[1]);
    free_all(recs, count);
    dsp_destroy(&out);
    dsp_destroy(&scratch);
    dsph_rsmp_coef_destroy(&coef);
    dsph_rsmp_state_destroy(&state);
    return status == 0 && strcmp(names[1], "-") != 0 ? finish_stdout() : status;
}
