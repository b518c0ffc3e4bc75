// Test-side overloads of the generators, spectra, averaging and correlation, picked by record type.
#pragma once
#include "support/api_core.hpp"
#include "support/window_ref.hpp"   // api::window2

namespace api {
// op 0: dspc_cos, 1: dspc_cexp, 2: dspi_addcos with amplitude a.
inline int sine(int op, dsp_vector* v, int fl, double a, double f, double p) { return op == 0 ? dspc_cos(v, f, p) : op == 1 ? dspc_cexp(v, f, p) : dspi_addcos(v, fl, a, f, p); }
inline int sine(int op, dspf_vector* v, int fl, float a, float f, float p) { return op == 0 ? dspfc_cos(v, f, p) : op == 1 ? dspfc_cexp(v, f, p) : dspfi_addcos(v, fl, a, f, p); }
ZT_TWIN(line, dspc_line, dspfc_line)
ZT_TWIN(rand, dspc_rand, dspfc_rand)
ZT_TWIN(avg, dsph_avg, dspfh_avg)
// dsph_dft (dft set) or dsph_fft.
inline int spectrum(bool dft, const dsp_vector* in, dsp_vector* out, int p, double f, int k, int fl) { return dft ? dsph_dft(in, out, k, fl) : dsph_fft(in, out, p, f, k, fl); }
inline int spectrum(bool dft, const dspf_vector* in, dspf_vector* out, int p, float f, int k, int fl) { return dft ? dspfh_dft(in, out, k, fl) : dspfh_fft(in, out, p, f, k, fl); }
inline int corr(const dsp_vector* a, const dsp_vector* b, dsp_vector* o, dsp_vector* s, int len, int h) { return s ? dsph_corr(a, b, o, s, len, h) : dspb_corr(a, b, o, len, h); }
inline int corr(const dspf_vector* a, const dspf_vector* b, dspf_vector* o, dspf_vector* s, int len, int h) { return s ? dspfh_corr(a, b, o, s, len, h) : dspfb_corr(a, b, o, len, h); }
}  // namespace api
