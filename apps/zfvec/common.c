/* zfvec: option parsing, file opening and the error lines shared by the commands. */
#include "zfvec.h"

#include <errno.h>
#include <limits.h>
#include <math.h>
#include <stdarg.h>
#include <stdlib.h>
#include <string.h>

int fail(int status, const char *format, ...) {
    va_list ap;
    fputs("zfvec: ", stderr);
    va_start(ap, format);
    vfprintf(stderr, format, ap);
    va_end(ap);
    fputc('\n', stderr);
    return status;
}

int parse_double(const char *cmd, const char *option, const char *text, double *out) {
    char *end;
    double x;
    errno = 0;
    x = strtod(text, &end);
    if (end == text || *end != '\0' || errno == ERANGE || !isfinite(x)) {
        fail(2, "%s: %s: not a number: '%s'", cmd, option, text);
        return -1;
    }
    *out = x;
    return 0;
}

int parse_int(const char *cmd, const char *option, const char *text, int lo, int hi, int *out) {
    char *end;
    long x;
    errno = 0;
    x = strtol(text, &end, 10);
    if (end == text || *end != '\0' || errno == ERANGE) {
        fail(2, "%s: %s: not a whole number: '%s'", cmd, option, text);
        return -1;
    }
    if (x < lo || x > hi) {
        fail(2, "%s: %s: %ld is outside %d .. %d", cmd, option, x, lo, hi);
        return -1;
    }
    *out = (int)x;
    return 0;
}

const char *option_value(const char *cmd, int argc, char **argv, int *i) {
    if (*i + 1 >= argc) {
        fail(2, "%s: %s needs a value", cmd, argv[*i]);
        return NULL;
    }
    return argv[++*i];
}

FILE *open_input(const char *name) {
    FILE *f = dspf_fopen(name, "rb");
    if (!f) fail(1, "%s: cannot open: %s", name, strerror(errno));
    return f;
}

FILE *open_output(const char *name, const char *mode) {
    FILE *f = dspf_fopen(name, mode);
    if (!f) fail(1, "%s: cannot create: %s", name, strerror(errno));
    return f;
}

/* Whether the next vector of f is in the binary form (its first byte starts a
 * magic in either byte order); the byte stays in the stream. */
int next_is_binary(FILE *f) {
    int c = getc(f);
    if (c == EOF) return 0;
    ungetc(c, f);
    return c == 0xBE || c == 0xEB;
}

/* The one line that tells why vector `index` of `name` could not be read;
 * `kept` is the number of samples the reader kept. */
int read_failure(const char *name, FILE *f, int index, int binary, int kept) {
    if (strcmp(name, "-") == 0) name = "standard input";
    if (ferror(f))
        return fail(1, "%s: read error in vector %d: %s", name, index, strerror(errno));
    if (binary)
        return fail(1, "%s: vector %d: unknown binary header or truncated samples (%d read)", name, index, kept);
    if (index == 1 && kept == 0)
        return fail(1, "%s: not a vector file (neither a binary header nor ASCII numbers)", name);
    return fail(1, "%s: vector %d: bad number, or fewer samples than its header says (%d read)", name, index,
                kept);
}

int write_failure(const char *name) { return fail(1, "%s: write error: %s", name, strerror(errno)); }

/* Standard output flushed and checked, so a full disk is not a success. */
int finish_stdout(void) {
    if (fflush(stdout) != 0 || ferror(stdout)) return write_failure("standard output");
    return 0;
}

int close_output(FILE *f, const char *name, int status) {
    if (strcmp(name, "-") == 0) return finish_stdout() ? 1 : status;
    if (dspf_fclose(f) != 0 && status == 0) status = write_failure(name);
    if (status != 0) remove(name);
    return status;
}

void free_all(dsp_vector *vs, int count) {
    int k;
    for (k = 0; k < count; ++k) dsp_destroy(&vs[k]);
    free(vs);
}

int read_all(const char *name, dsp_vector **vs, int *count) {
    FILE *f = open_input(name);
    dsp_vector *all = NULL;
    int n = 0, cap = 0, r, status = 0;
    if (!f) return 1;
    for (;;) {
        const int binary = next_is_binary(f);
        if (n == cap) {
            dsp_vector *grown = (dsp_vector *)realloc(all, sizeof *all * (size_t)(cap = cap ? 2 * cap : 8));
            if (!grown) { status = fail(1, "out of memory"); break; }
            all = grown;
        }
        dsp_init(&all[n]);
        if ((r = dspf_fread(&all[n], f)) == 0) { dsp_destroy(&all[n]); break; }
        ++n;
        if (r < 0) { status = read_failure(name, f, n, binary, all[n - 1].points); break; }
    }
    dspf_fclose(f);
    if (status != 0) { free_all(all, n); return status; }
    if (n == 0) { free(all); return fail(1, "%s: no vectors", name); }
    *vs = all;
    *count = n;
    return 0;
}
