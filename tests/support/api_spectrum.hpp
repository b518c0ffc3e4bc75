// Test-side overloads of the spectra, averaging and correlation, picked by record type.
#pragma once
#include <zifaif/dsp.h>

namespace api {
inline int avg(const dsp_vector* in, dsp_vector* acc, dsp_vector* s, int fl, int c, int n, double w, double l) { return dsph_avg(in, acc, s, fl, c, n, w, l); }
inline int avg(const dspf_vector* in, dspf_vector* acc, dspf_vector* s, int fl, int c, int n, float w, float l) { return dspfh_avg(in, acc, s, fl, c, n, w, l); }
inline int corr(const dsp_vector* a, const dsp_vector* b, dsp_vector* o, dsp_vector* s, int len, int h) { return s ? dsph_corr(a, b, o, s, len, h) : dspb_corr(a, b, o, len, h); }
inline int corr(const dspf_vector* a, const dspf_vector* b, dspf_vector* o, dspf_vector* s, int len, int h) { return s ? dspfh_corr(a, b, o, s, len, h) : dspfb_corr(a, b, o, len, h); }
}  // namespace api
