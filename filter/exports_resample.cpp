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

}  // extern "C"
