/* zfvec: prints, inspects, converts, generates, analyses and plots vector
 * files. Built on the public header only. Exit status: 0 success, 1 unreadable
 * or malformed input or a failed write, 2 a usage error. */
#include <stdio.h>
#include <string.h>

#include "zfvec.h"

static const zfvec_command commands[] = {
    {"print", "usage: zfvec print FILE...\n"
              "  one summary line per vector\n", cmd_print},
    {"info", "usage: zfvec info [--peak] FILE\n"
             "  points, form, spacing, minimum, maximum and mean per vector; --peak adds\n"
             "  the strongest peak of each real vector, interpolated between samples\n", cmd_info},
    {"convert", "usage: zfvec convert [--ascii|--binary] [--float|--double] IN OUT\n"
                "  rewrite every vector (default: binary, double)\n", cmd_convert},
    {"example", "usage: zfvec example OUT\n"
                "  write a small example file (a real sine, a complex vector and a float vector)\n",
     cmd_example},
    {"generate", "usage: zfvec generate [--points N] [--rate HZ] [--tone FREQ:AMPL[:PHASE]]...\n"
                 "                      [--noise KIND:LEVEL] [--records K] OUT\n"
                 "  K records of N points (default 1 of 1024) sampled at HZ (default 1): the sum of\n"
                 "  the tones (PHASE in radians) and noise scaled by LEVEL (KIND uniform, gauss,\n"
                 "  exponential or laplace); consecutive records continue one signal\n", cmd_generate},
    {"spectrum", "usage: zfvec spectrum [--window NAME] [--points N] [--avg MODE] [--two-sided] [--peaks K] IN OUT\n"
                 "  the spectrum of every record of IN (window NAME, default Flattop; N points,\n"
                 "  default the record's length, padded to a power of two), power averaged over\n"
                 "  the records (MODE mean, max, min or exp[:K], exponential of time constant K\n"
                 "  records), in dB with the window's gain taken out so that a sine of amplitude\n"
                 "  A reads 20 log10(A); writes it to OUT and prints the K strongest peaks (5)\n", cmd_spectrum},
    {"filter", "usage: zfvec filter --lowpass|--highpass|--bandpass F1[:F2] [--taps N] [--window NAME] IN OUT\n"
               "  FIR filtering of every record of IN as one stream (one history, no seams):\n"
               "  edges in Hz (band-pass F1:F2), N taps (63; made odd), designed by the\n"
               "  library and shaped by the window NAME (Kaiser90), gain 1 in the pass band\n", cmd_filter},
    {"resample", "usage: zfvec resample --ratio R | --rate HZ IN OUT\n"
                 "  rate conversion of every record of IN as one stream by the streaming\n"
                 "  resampler: R is the output spacing over the input's (above 1 gives fewer\n"
                 "  samples), or HZ the new sample rate\n", cmd_resample},
    {"plot", "usage: zfvec plot IN [-o OUT.svg] [--db] [--title T] [--freq] [--ylabel T]\n"
             "  draw every vector of IN as an SVG line plot (default OUT: IN with .svg), one\n"
             "  panel each; complex vectors as magnitudes; --db draws 20 log10 |x|; --freq\n"
             "  labels the axis of delta in hertz (spectra) instead of seconds\n", cmd_plot},
};
#define NCOMMANDS (int)(sizeof commands / sizeof commands[0])

static int usage(FILE *to) {
    int k;
    fputs("usage: zfvec COMMAND [OPTIONS] ARGS   (zfvec COMMAND --help for one command)\n", to);
    for (k = 0; k < NCOMMANDS; ++k) fputs(commands[k].usage, to);
    fputs("A file name \"-\" is standard input or standard output.\n", to);
    return to == stdout ? 0 : 2;
}

int main(int argc, char **argv) {
    const char *name = argc > 1 ? argv[1] : NULL;
    int k, i;
    if (!name) return usage(stderr);
    if (strcmp(name, "-h") == 0 || strcmp(name, "--help") == 0 || strcmp(name, "help") == 0) return usage(stdout);
    for (k = 0; k < NCOMMANDS; ++k) {
        const zfvec_command *cmd = &commands[k];
        int status;
        if (strcmp(name, cmd->name) != 0) continue;
        for (i = 2; i < argc; ++i)
            if (strcmp(argv[i], "--help") == 0 || strcmp(argv[i], "-h") == 0) {
                fputs(cmd->usage, stdout);
                return 0;
            }
        status = cmd->run(argc - 2, argv + 2);
        if (status != ZFVEC_USAGE) return status;
        fputs(cmd->usage, stderr);
        return 2;
    }
    fprintf(stderr, "zfvec: unknown command '%s'\n", name);
    return usage(stderr);
}
