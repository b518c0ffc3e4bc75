/* The public headers are strict C99: this file is compiled with -Wall -Wextra -Werror -pedantic. */
#include <zifaif/dsp.h>
#include <zifaif/instrument.h>

/* The resampler handle records are complete C types (a negative array size would not compile). */
typedef char zf_handles_are_complete[sizeof(dsph_rsmp_coef) > 0 && sizeof(dspfh_rsmp_state) > 0 ? 1 : -1];
