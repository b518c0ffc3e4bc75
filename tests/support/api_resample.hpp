// Test-side overloads of decimation and resampling, picked by record type, so
// one typed test reaches both C twins through the real interface.
#pragma once
#include <zifaif/dsp.h>

#include "filter/resample.hpp"

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

// The streaming resampler: overloads by record type, and its two records set
// up for one ratio and released on scope exit.
inline int start(dsph_rsmp_coef* c, dsph_rsmp_state* s) { return dsph_rsmp_coef_init(c) || dsph_rsmp_state_init(s) || dsph_rsmp_coef_alloc(c, nullptr) ? -1 : 0; }
inline int start(dspfh_rsmp_coef* c, dspfh_rsmp_state* s) { return dspfh_rsmp_coef_init(c) || dspfh_rsmp_state_init(s) || dspfh_rsmp_coef_alloc(c, nullptr) ? -1 : 0; }
inline int coef_setup(dsph_rsmp_coef* c, double r, int f, void* p) { return dsph_rsmp_coef_setup(c, r, f, p); }
inline int coef_setup(dspfh_rsmp_coef* c, float r, int f, void* p) { return dspfh_rsmp_coef_setup(c, r, f, p); }
inline int state_start(dsph_rsmp_coef* c, dsph_rsmp_state* s, int cx) { return dsph_rsmp_state_alloc(c, s, cx) || dsph_rsmp_state_reset(c, s) ? -1 : 0; }
inline int state_start(dspfh_rsmp_coef* c, dspfh_rsmp_state* s, int cx) { return dspfh_rsmp_state_alloc(c, s, cx) || dspfh_rsmp_state_reset(c, s) ? -1 : 0; }
inline void release(dsph_rsmp_coef* c, dsph_rsmp_state* s) { dsph_rsmp_state_destroy(s), dsph_rsmp_coef_destroy(c); }
inline void release(dspfh_rsmp_coef* c, dspfh_rsmp_state* s) { dspfh_rsmp_state_destroy(s), dspfh_rsmp_coef_destroy(c); }
inline int hrsmp(const dsp_vector* i, dsp_vector* o, dsp_vector* sc, dsph_rsmp_coef* c, dsph_rsmp_state* s) { return dsph_rsmp(i, o, sc, c, s); }
inline int hrsmp(const dspf_vector* i, dspf_vector* o, dspf_vector* sc, dspfh_rsmp_coef* c, dspfh_rsmp_state* s) { return dspfh_rsmp(i, o, sc, c, s); }
template <class T> struct Resampler {
    zf::RsmpCoef<T> c;
    zf::RsmpState<T> s;
    int status;
    explicit Resampler(T ratio, int force = 0, int complex = 0)
        : status(start(&c, &s) || coef_setup(&c, ratio, force, nullptr) || state_start(&c, &s, complex) ? -1 : 0) {}
    ~Resampler() { release(&c, &s); }
    int run(const zf::Vec<T>* i, zf::Vec<T>* o, zf::Vec<T>* sc = nullptr) { return hrsmp(i, o, sc, &c, &s); }
};
}  // namespace api
