/* zfvec: shared helpers of the commands. Built on the public header only. */
#ifndef ZFVEC_H
#define ZFVEC_H

#include <stdio.h>

#include <zifaif/dsp.h>

#define FORM_BINARY 0
#define FORM_ASCII 1
#define FORM_SUMMARY 2

/* A command: its name, its usage lines and its body (arguments after the name). */
typedef struct zfvec_command {
    const char *name;
    const char *usage;
    int (*run)(int argc, char **argv);
} zfvec_command;

/* A command's result asking for its usage text on standard error (exit status 2):
 * the arguments are wrong in number or form. Bad values give one line and 2. */
#define ZFVEC_USAGE (-2)
/* Prints "zfvec: ..." on standard error (printf format); returns status. */
int fail(int status, const char *format, ...);

/* Option values: whole text must be a number in [lo, hi]; 0 or -1 (message printed). */
int parse_int(const char *cmd, const char *option, const char *text, int lo, int hi, int *out);
int parse_double(const char *cmd, const char *option, const char *text, double *out);
/* The value of an option at argv[*i + 1]; advances *i. NULL (message printed) when missing. */
const char *option_value(const char *cmd, int argc, char **argv, int *i);

FILE *open_input(const char *name);
FILE *open_output(const char *name, const char *mode);
int next_is_binary(FILE *f);
int read_failure(const char *name, FILE *f, int index, int binary, int kept);
int write_failure(const char *name);
int finish_stdout(void);
/* Closes an output stream: flushes standard output, or closes a file and
 * removes it when status is non-zero (no half-written output). */
int close_output(FILE *f, const char *name, int status);

/* Reads every vector of a file (double precision); *vs is malloc'ed, *count
 * set. 0, or 1 with a message (nothing to free then). */
int read_all(const char *name, dsp_vector **vs, int *count);
void free_all(dsp_vector *vs, int count);

int cmd_print(int argc, char **argv);
int cmd_info(int argc, char **argv);
int cmd_convert(int argc, char **argv);
int cmd_example(int argc, char **argv);
int cmd_plot(int argc, char **argv);
int cmd_generate(int argc, char **argv);
int cmd_spectrum(int argc, char **argv);
int cmd_filter(int argc, char **argv);
int cmd_resample(int argc, char **argv);

#endif
