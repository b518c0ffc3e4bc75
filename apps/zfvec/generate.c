/* zfvec generate: time records of tones in noise, made with the library's generators. */
#include "zfvec.h"

#include <math.h>
#include <stdlib.h>
#include <string.h>

#define MAX_TONES 32

typedef struct tone {
    double freq, ampl, phase;
} tone;

static const char *const noise_names[] = {"uniform", "gauss", "exponential", "laplace"};

/* FREQ:AMPL[:PHASE] with every part a number. */
static int parse_tone(const char *text, tone *t) {
    char buf[256], *parts[3], *p;
    int n = 0, k;
    if (strlen(text) >= sizeof buf) return fail(2, "generate: --tone: too long: '%s'", text);
    strcpy(buf, text);
    for (p = buf; n < 3; ++n) {
        parts[n] = p;
        if (!(p = strchr(p, ':'))) { ++n; break; }
        *p++ = '\0';
    }
    if (n < 2 || p) return fail(2, "generate: --tone: expected FREQ:AMPL[:PHASE], got '%s'", text);
    t->phase = 0;
    for (k = 0; k < n; ++k)
        if (parse_double("generate", "--tone", parts[k], k == 0 ? &t->freq : k == 1 ? &t->ampl : &t->phase))
            return 2;
    return 0;
}

/* KIND:LEVEL, KIND one of the noise names (or its number 0 .. 3). */
static int parse_noise(const char *text, int *kind, double *level) {
    const char *colon = strchr(text, ':');
    size_t len = colon ? (size_t)(colon - text) : 0;
    int k;
    if (!colon) return fail(2, "generate: --noise: expected KIND:LEVEL, got '%s'", text);
    for (k = 0; k < 4; ++k)
        if ((strlen(noise_names[k]) == len && strncmp(text, noise_names[k], len) == 0) ||
            (len == 1 && text[0] == '0' + k))
            break;
    if (k == 4) return fail(2, "generate: --noise: unknown kind '%.*s' (uniform, gauss, exponential, laplace)",
                            (int)len, text);
    *kind = k;
    return parse_double("generate", "--noise", colon + 1, level) ? 2 : 0;
}

int cmd_generate(int argc, char **argv) {
    tone tones[MAX_TONES];
    int points = 1024, records = 1, ntones = 0, noise_kind = -1, i, r, t, status = 0;
    double rate = 1.0, level = 0;
    const char *out = NULL;
    dsp_vector v, noise;
    FILE *f;
    for (i = 0; i < argc; ++i) {
        const char *a = argv[i], *val;
        if (strcmp(a, "--points") == 0 || strcmp(a, "--rate") == 0 || strcmp(a, "--tone") == 0 ||
            strcmp(a, "--noise") == 0 || strcmp(a, "--records") == 0) {
            if (!(val = option_value("generate", argc, argv, &i))) return 2;
            if (strcmp(a, "--points") == 0) {
                if (parse_int("generate", a, val, 1, 1 << 26, &points)) return 2;
            } else if (strcmp(a, "--records") == 0) {
                if (parse_int("generate", a, val, 1, 1 << 20, &records)) return 2;
            } else if (strcmp(a, "--rate") == 0) {
                if (parse_double("generate", a, val, &rate)) return 2;
                if (rate <= 0) return fail(2, "generate: --rate must be positive");
            } else if (strcmp(a, "--tone") == 0) {
                if (ntones == MAX_TONES) return fail(2, "generate: at most %d tones", MAX_TONES);
                if (parse_tone(val, &tones[ntones++])) return 2;
            } else if (parse_noise(val, &noise_kind, &level)) {
                return 2;
            }
        } else if (a[0] == '-' && a[1] != '\0') {
            return fail(ZFVEC_USAGE, "generate: unknown option '%s'", a);
        } else if (!out) {
            out = a;
        } else {
            return fail(ZFVEC_USAGE, "generate: one output file only");
        }
    }
    if (!out) return fail(ZFVEC_USAGE, "generate: needs an output file");
    if (!(f = open_output(out, "wb"))) return 1;
    dsp_init(&v);
    dsp_init(&noise);
    for (r = 0; r < records && status == 0; ++r) {
        v.points = points;
        v.delta = 1.0 / rate;
        if (dspc_line(&v, 0.0, 0.0) != 0) { status = fail(1, "out of memory"); break; }
        /* Consecutive records continue one signal: each tone's phase runs on. */
        for (t = 0; t < ntones && status == 0; ++t) {
            const double cycles = fmod(tones[t].freq * (double)r * points / rate, 1.0);
            const double phase = fmod(tones[t].phase + 2 * 3.14159265358979323846 * cycles, 2 * 3.14159265358979323846);
            if (dspi_addcos(&v, 0, tones[t].ampl, tones[t].freq, phase) != 0)
                status = fail(1, "generate: tone %g:%g cannot be generated", tones[t].freq, tones[t].ampl);
        }
        if (status == 0 && noise_kind >= 0) {
            noise.points = points;
            noise.delta = v.delta;
            if (dspc_rand(&noise, noise_kind) != 0 || dspi_scale(&noise, level) != 0 || dspb_add(&v, &noise, &v) != 0)
                status = fail(1, "generate: noise cannot be generated");
            v.delta = 1.0 / rate;
        }
        if (status == 0 && dspf_fwrite(&v, f) != 0) status = write_failure(out);
    }
    dsp_destroy(&v);
    dsp_destroy(&noise);
    status = close_output(f, out, status);
    if (status == 0 && strcmp(out, "-") != 0)
        printf("wrote %d record%s of %d points at %g Hz to %s\n", records, records == 1 ? "" : "s", points, rate, out);
    return status == 0 && strcmp(out, "-") != 0 ? finish_stdout() : status;
}
