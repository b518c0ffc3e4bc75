// Test-side overloads of the signal generators, picked by record type.
#pragma once
#include <zifaif/dsp.h>

namespace api {
inline int cos(dsp_vector* v, double f, double p) { return dspc_cos(v, f, p); }
inline int cos(dspf_vector* v, float f, float p) { return dspfc_cos(v, f, p); }
inline int cexp(dsp_vector* v, double f, double p) { return dspc_cexp(v, f, p); }
inline int cexp(dspf_vector* v, float f, float p) { return dspfc_cexp(v, f, p); }
inline int line(dsp_vector* v, double s, double o) { return dspc_line(v, s, o); }
inline int line(dspf_vector* v, float s, float o) { return dspfc_line(v, s, o); }
inline int rand(dsp_vector* v, int kind) { return dspc_rand(v, kind); }
inline int rand(dspf_vector* v, int kind) { return dspfc_rand(v, kind); }
inline int addcos(dsp_vector* v, int fl, double a, double f, double p) { return dspi_addcos(v, fl, a, f, p); }
inline int addcos(dspf_vector* v, int fl, float a, float f, float p) { return dspfi_addcos(v, fl, a, f, p); }
}  // namespace api
