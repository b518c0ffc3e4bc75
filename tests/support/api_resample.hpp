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

// The streaming resampler's records of a precision, set up for one ratio and
// released on scope exit.
namespace api {
template <class T> struct Resampler;
template <> struct Resampler<double> {
    dsph_rsmp_coef c;
    dsph_rsmp_state s;
    int status;
    explicit Resampler(double ratio, int force = 0, int complex = 0) {
        dsph_rsmp_coef_init(&c);
        dsph_rsmp_state_init(&s);
        status = dsph_rsmp_coef_alloc(&c, nullptr) | dsph_rsmp_coef_setup(&c, ratio, force, nullptr) |
                 dsph_rsmp_state_alloc(&c, &s, complex) | dsph_rsmp_state_reset(&c, &s);
    }
    ~Resampler() { dsph_rsmp_state_destroy(&s); dsph_rsmp_coef_destroy(&c); }
    int run(const dsp_vector* i, dsp_vector* o, dsp_vector* sc = nullptr) { return dsph_rsmp(i, o, sc, &c, &s); }
    int lone(const dsp_vector* i, dsp_vector* o) { return dsph_rsmp(i, o, nullptr, &c, nullptr); }
};
template <> struct Resampler<float> {
    dspfh_rsmp_coef c;
    dspfh_rsmp_state s;
    int status;
    explicit Resampler(float ratio, int force = 0, int complex = 0) {
        dspfh_rsmp_coef_init(&c);
        dspfh_rsmp_state_init(&s);
        status = dspfh_rsmp_coef_alloc(&c, nullptr) | dspfh_rsmp_coef_setup(&c, ratio, force, nullptr) |
                 dspfh_rsmp_state_alloc(&c, &s, complex) | dspfh_rsmp_state_reset(&c, &s);
    }
    ~Resampler() { dspfh_rsmp_state_destroy(&s); dspfh_rsmp_coef_destroy(&c); }
    int run(const dspf_vector* i, dspf_vector* o, dspf_vector* sc = nullptr) { return dspfh_rsmp(i, o, sc, &c, &s); }
    int lone(const dspf_vector* i, dspf_vector* o) { return dspfh_rsmp(i, o, nullptr, &c, nullptr); }
};
inline int coef_setup(dsph_rsmp_coef* c, double r, int f, void* p) { return dsph_rsmp_coef_setup(c, r, f, p); }
inline int coef_setup(dspfh_rsmp_coef* c, float r, int f, void* p) { return dspfh_rsmp_coef_setup(c, r, f, p); }
}  // namespace api
