// Test-side overloads of decimation and resampling, picked by record type, so
// one typed test reaches both C twins through the real interface.
#pragma once
#include "filter/resample.hpp"
#include "support/api_core.hpp"

namespace api {
ZT_TWIN(deci, dspd_deci, dspfd_deci)
ZT_TWIN(rsmp_table, dspc_rsmp, dspfc_rsmp)
ZT_TWIN(rsmp_cos, dspc_rsmp_cos, dspfc_rsmp_cos)
ZT_TWIN(rsmp_pcos, dspc_rsmp_pcos, dspfc_rsmp_pcos)
ZT_TWIN(rsmp, dspd_rsmp, dspfd_rsmp)
ZT_TWIN(rsmp2, dspd_rsmp2, dspfd_rsmp2)
// The streaming resampler's records, and the records set up for one ratio in
// the documented order and released on scope exit.
ZT_TWIN(coef_init, dsph_rsmp_coef_init, dspfh_rsmp_coef_init)
ZT_TWIN(coef_alloc, dsph_rsmp_coef_alloc, dspfh_rsmp_coef_alloc)
ZT_TWIN(coef_setup, dsph_rsmp_coef_setup, dspfh_rsmp_coef_setup)
ZT_TWIN(coef_destroy, dsph_rsmp_coef_destroy, dspfh_rsmp_coef_destroy)
ZT_TWIN(state_init, dsph_rsmp_state_init, dspfh_rsmp_state_init)
ZT_TWIN(state_alloc, dsph_rsmp_state_alloc, dspfh_rsmp_state_alloc)
ZT_TWIN(state_reset, dsph_rsmp_state_reset, dspfh_rsmp_state_reset)
ZT_TWIN(state_destroy, dsph_rsmp_state_destroy, dspfh_rsmp_state_destroy)
ZT_TWIN(hrsmp, dsph_rsmp, dspfh_rsmp)
template <class T> struct Resampler {
    zf::RsmpCoef<T> c;
    zf::RsmpState<T> s;
    int status;
    explicit Resampler(T ratio, int force = 0, int complex = 0)
        : status(coef_init(&c) || state_init(&s) || coef_alloc(&c, nullptr) || coef_setup(&c, ratio, force, nullptr) ||
                 state_alloc(&c, &s, complex) || state_reset(&c, &s) ? -1 : 0) {}
    ~Resampler() { state_destroy(&s), coef_destroy(&c); }
    int run(const zf::Vec<T>* i, zf::Vec<T>* o, zf::Vec<T>* sc = nullptr) { return hrsmp(i, o, sc, &c, &s); }
};
}  // namespace api
