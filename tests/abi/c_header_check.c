/* The public headers are strict C99: this file is compiled with -Wall -Werror -pedantic. */
#include <zifaif/dsp.h>
#include <zifaif/instrument.h>

int zf_c_header_check(void);
int zf_c_header_check(void) {
    dsp_vector v;
    dspf_vector f;
    dsph_rsmp_coef c;
    dspfh_rsmp_state s;
    v.complex = 0;
    f.points = 0;
    c.octaves = DSP_WINDOW_HANN + DSP_WINFLAG_NO_ROTATE + DSP_FIR_RAMP;
    s.stages = 0;
    return v.complex + f.points + c.octaves + s.stages;
}
