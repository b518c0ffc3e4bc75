// Test-side overloads of the generators, spectra, averaging and correlation, picked by record type.
#pragma once
#include <zifaif/dsp.h>

namespace api {
// op 0: dspc_cos, 1: dspc_cexp, 2: dspi_addcos with amplitude a.
inline int sine(int op, dsp_vector* v, int fl, double a, double f, double p) { return op == 0 ? dspc_cos(v, f, p) : op == 1 ? dspc_cexp(v, f, p) : dspi_addcos(v, fl, a, f, p); }
inline int sine(int op, dspf_vector* v, int fl, float a, float f, float p) { return op == 0 ? dspfc_cos(v, f, p) : op == 1 ? dspfc_cexp(v, f, p) : dspfi_addcos(v, fl, a, f, p); }
inline int line(dsp_vector* v, double s, double o) { return dspc_line(v, s, o); }
inline int line(dspf_vector* v, float s, float o) { return dspfc_line(v, s, o); }
inline int rand(dsp_vector* v, int kind) { return dspc_rand(v, kind); }
inline int rand(dspf_vector* v, int kind) { return dspfc_rand(v, kind); }
// dsph_dft (dft set) or dsph_fft.
inline int spectrum(bool dft, const dsp_vector* in, dsp_vector* out, int p, double f, int k, int fl) { return dft ? dsph_dft(in, out, k, fl) : dsph_fft(in, out, p, f, k, fl); }
inline int spectrum(bool dft, const dspf_vector* in, dspf_vector* out, int p, float f, int k, int fl) { return dft ? dspfh_dft(in, out, k, fl) : dspfh_fft(in, out, p, f, k, fl); }
inline int window2(dsp_vector* v, int k, int fl, double w) { return dspi_window2(v, k, fl, w); }
inline int window2(dspf_vector* v, int k, int fl, float w) { return dspfi_window2(v, k, fl, w); }
inline int avg(const dsp_vector* in, dsp_vector* acc, dsp_vector* s, int fl, int c, int n, double w, double l) { return dsph_avg(in, acc, s, fl, c, n, w, l); }
inline int avg(const dspf_vector* in, dspf_vector* acc, dspf_vector* s, int fl, int c, int n, float w, float l) { return dspfh_avg(in, acc, s, fl, c, n, w, l); }
inline int corr(const dsp_vector* a, const dsp_vector* b, dsp_vector* o, dsp_vector* s, int len, int h) { return s ? dsph_corr(a, b, o, s, len, h) : dspb_corr(a, b, o, len, h); }
inline int corr(const dspf_vector* a, const dspf_vector* b, dspf_vector* o, dspf_vector* s, int len, int h) { return s ? dspfh_corr(a, b, o, s, len, h) : dspfb_corr(a, b, o, len, h); }
}  // namespace api
