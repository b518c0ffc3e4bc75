// Test-side overloads of decimation and resampling, picked by record type, so
// one typed test reaches both C twins through the real interface.
#pragma once
#include <zifaif/dsp.h>

namespace api {
inline int deci(const dsp_vector* i, dsp_vector* o, int f, dsp_vector* p) { return dspd_deci(i, o, f, p); }
inline int deci(const dspf_vector* i, dspf_vector* o, int f, dspf_vector* p) { return dspfd_deci(i, o, f, p); }
inline int rsmp_table(dsp_vector* k, int w) { return dspc_rsmp(k, w); }
inline int rsmp_table(dspf_vector* k, int w) { return dspfc_rsmp(k, w); }
inline int rsmp_cos(dsp_vector* k, const dsp_vector* s) { return dspc_rsmp_cos(k, s); }
inline int rsmp_cos(dspf_vector* k, const dspf_vector* s) { return dspfc_rsmp_cos(k, s); }
inline int rsmp_pcos(dsp_vector* k, const dsp_vector* s) { return dspc_rsmp_pcos(k, s); }
inline int rsmp_pcos(dspf_vector* k, const dspf_vector* s) { return dspfc_rsmp_pcos(k, s); }
inline int rsmp(const dsp_vector* i, dsp_vector* o, int m, const dsp_vector* k, double r, dsp_vector* h) { return dspd_rsmp(i, o, m, k, r, h); }
inline int rsmp(const dspf_vector* i, dspf_vector* o, int m, const dspf_vector* k, float r, dspf_vector* h) { return dspfd_rsmp(i, o, m, k, r, h); }
inline int rsmp2(const dsp_vector* i, dsp_vector* o, int m, int w, double r, dsp_vector* h) { return dspd_rsmp2(i, o, m, w, r, h); }
inline int rsmp2(const dspf_vector* i, dspf_vector* o, int m, int w, float r, dspf_vector* h) { return dspfd_rsmp2(i, o, m, w, r, h); }
}  // namespace api
