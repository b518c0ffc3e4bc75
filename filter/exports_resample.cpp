// C entry points of decimation and resampling: one line each, double then
// float, in header order.
#include "filter/resample.hpp"

extern "C" {

ZF_API int ZF_CALL dspd_deci (const dsp_vector*  in, dsp_vector*  out, int factor, dsp_vector*  phase) noexcept { return zf::deci<double>(in, out, factor, phase); }
ZF_API int ZF_CALL dspfd_deci(const dspf_vector* in, dspf_vector* out, int factor, dspf_vector* phase) noexcept { return zf::deci<float>(in, out, factor, phase); }
ZF_API int ZF_CALL dspc_rsmp (dsp_vector*  kernel, int which) noexcept { return zf::rsmp_table<double>(kernel, which); }
ZF_API int ZF_CALL dspfc_rsmp(dspf_vector* kernel, int which) noexcept { return zf::rsmp_table<float>(kernel, which); }
ZF_API int ZF_CALL dspc_rsmp_cos (dsp_vector*  kernel, const dsp_vector*  series) noexcept { return zf::rsmp_cos<double>(kernel, series); }
ZF_API int ZF_CALL dspfc_rsmp_cos(dspf_vector* kernel, const dspf_vector* series) noexcept { return zf::rsmp_cos<float>(kernel, series); }
ZF_API int ZF_CALL dspc_rsmp_pcos (dsp_vector*  kernel, const dsp_vector*  series) noexcept { return zf::rsmp_pcos<double>(kernel, series); }
ZF_API int ZF_CALL dspfc_rsmp_pcos(dspf_vector* kernel, const dspf_vector* series) noexcept { return zf::rsmp_pcos<float>(kernel, series); }
ZF_API int ZF_CALL dspd_rsmp (const dsp_vector*  in, dsp_vector*  out, int mode, const dsp_vector*  kernel, double ratio, dsp_vector*  history) noexcept { return zf::rsmp<double>(in, out, mode, kernel, ratio, history); }
ZF_API int ZF_CALL dspfd_rsmp(const dspf_vector* in, dspf_vector* out, int mode, const dspf_vector* kernel, float  ratio, dspf_vector* history) noexcept { return zf::rsmp<float>(in, out, mode, kernel, ratio, history); }
ZF_API int ZF_CALL dspd_rsmp2 (const dsp_vector*  in, dsp_vector*  out, int mode, int which, double ratio, dsp_vector*  history) noexcept { return zf::rsmp2<double>(in, out, mode, which, ratio, history); }
ZF_API int ZF_CALL dspfd_rsmp2(const dspf_vector* in, dspf_vector* out, int mode, int which, float  ratio, dspf_vector* history) noexcept { return zf::rsmp2<float>(in, out, mode, which, ratio, history); }

ZF_API int ZF_CALL dsph_rsmp_coef_init (dsph_rsmp_coef*  coef) noexcept { return zf::rsmp_coef_init<double>(coef); }
ZF_API int ZF_CALL dspfh_rsmp_coef_init(dspfh_rsmp_coef* coef) noexcept { return zf::rsmp_coef_init<float>(coef); }
ZF_API int ZF_CALL dsph_rsmp_coef_destroy (dsph_rsmp_coef*  coef) noexcept { return zf::rsmp_coef_destroy<double>(coef); }
ZF_API int ZF_CALL dspfh_rsmp_coef_destroy(dspfh_rsmp_coef* coef) noexcept { return zf::rsmp_coef_destroy<float>(coef); }
ZF_API int ZF_CALL dsph_rsmp_coef_alloc (dsph_rsmp_coef*  coef, void* reserved) noexcept { return zf::rsmp_coef_alloc<double>(coef, reserved); }
ZF_API int ZF_CALL dspfh_rsmp_coef_alloc(dspfh_rsmp_coef* coef, void* reserved) noexcept { return zf::rsmp_coef_alloc<float>(coef, reserved); }
ZF_API int ZF_CALL dsph_rsmp_coef_setup (dsph_rsmp_coef*  coef, double ratio, int force, void* reserved) noexcept { return zf::rsmp_coef_setup<double>(coef, ratio, force, reserved); }
ZF_API int ZF_CALL dspfh_rsmp_coef_setup(dspfh_rsmp_coef* coef, float  ratio, int force, void* reserved) noexcept { return zf::rsmp_coef_setup<float>(coef, ratio, force, reserved); }
ZF_API int ZF_CALL dsph_rsmp_state_init (dsph_rsmp_state*  state) noexcept { return zf::rsmp_state_init<double>(state); }
ZF_API int ZF_CALL dspfh_rsmp_state_init(dspfh_rsmp_state* state) noexcept { return zf::rsmp_state_init<float>(state); }
ZF_API int ZF_CALL dsph_rsmp_state_destroy (dsph_rsmp_state*  state) noexcept { return zf::rsmp_state_destroy<double>(state); }
ZF_API int ZF_CALL dspfh_rsmp_state_destroy(dspfh_rsmp_state* state) noexcept { return zf::rsmp_state_destroy<float>(state); }
ZF_API int ZF_CALL dsph_rsmp_state_alloc (const dsph_rsmp_coef*  coef, dsph_rsmp_state*  state, int complex) noexcept { return zf::rsmp_state_alloc<double>(coef, state, complex); }
ZF_API int ZF_CALL dspfh_rsmp_state_alloc(const dspfh_rsmp_coef* coef, dspfh_rsmp_state* state, int complex) noexcept { return zf::rsmp_state_alloc<float>(coef, state, complex); }
ZF_API int ZF_CALL dsph_rsmp_state_reset (const dsph_rsmp_coef*  coef, dsph_rsmp_state*  state) noexcept { return zf::rsmp_state_reset<double>(coef, state); }
ZF_API int ZF_CALL dspfh_rsmp_state_reset(const dspfh_rsmp_coef* coef, dspfh_rsmp_state* state) noexcept { return zf::rsmp_state_reset<float>(coef, state); }
ZF_API int ZF_CALL dsph_rsmp (const dsp_vector*  in, dsp_vector*  out, dsp_vector*  scratch, const dsph_rsmp_coef*  coef, dsph_rsmp_state*  state) noexcept { return zf::hrsmp<double>(in, out, scratch, coef, state); }
ZF_API int ZF_CALL dspfh_rsmp(const dspf_vector* in, dspf_vector* out, dspf_vector* scratch, const dspfh_rsmp_coef* coef, dspfh_rsmp_state* state) noexcept { return zf::hrsmp<float>(in, out, scratch, coef, state); }

}  // extern "C"
