// Test-side overloads of the FIR design and filtering entry points.
#pragma once
#include <zifaif/dsp.h>

namespace api {
inline int fir(dsp_vector* v, int k, double a, double b) { return dspc_fir(v, k, a, b); }
inline int fir(dspf_vector* v, int k, double a, double b) { return dspfc_fir(v, k, float(a), float(b)); }
inline int fir2(dsp_vector* v, int w) { return dspc_fir2(v, w); }
inline int fir2(dspf_vector* v, int w) { return dspfc_fir2(v, w); }
inline int fir(const dsp_vector* i, dsp_vector* o, const dsp_vector* h, dsp_vector* s) { return dspd_fir(i, o, h, s); }
inline int fir(const dspf_vector* i, dspf_vector* o, const dspf_vector* h, dspf_vector* s) { return dspfd_fir(i, o, h, s); }
inline int sfir(const dsp_vector* i, dsp_vector* o, const dsp_vector* h, int odd, int neg, dsp_vector* s) { return dspd_sfir(i, o, h, odd, neg, s); }
inline int sfir(const dspf_vector* i, dspf_vector* o, const dspf_vector* h, int odd, int neg, dspf_vector* s) { return dspfd_sfir(i, o, h, odd, neg, s); }
inline int hwfilt(const dsp_vector* i, dsp_vector* o, int k, dsp_vector* s) { return dspd_hwfilt(i, o, k, s); }
inline int hwfilt(const dspf_vector* i, dspf_vector* o, int k, dspf_vector* s) { return dspfd_hwfilt(i, o, k, s); }
inline int hwfilt(dsp_vector* v, int k) { return dspi_hwfilt(v, k); }
inline int hwfilt(dspf_vector* v, int k) { return dspfi_hwfilt(v, k); }
}  // namespace api
