// C entry points of the filters: one line each, double then float, in header
// order.
#include "filter/fir.hpp"

extern "C" {

// ---- FIR design and filtering
ZF_API int ZF_CALL dspc_fir (dsp_vector*  v, int kind, double f1, double f2) noexcept { return zf::fir<double>(v, kind, f1, f2); }
ZF_API int ZF_CALL dspfc_fir(dspf_vector* v, int kind, float  f1, float  f2) noexcept { return zf::fir<float>(v, kind, f1, f2); }
ZF_API int ZF_CALL dspc_fir2 (dsp_vector*  v, int which) noexcept { return zf::fir2<double>(v, which); }
ZF_API int ZF_CALL dspfc_fir2(dspf_vector* v, int which) noexcept { return zf::fir2<float>(v, which); }
ZF_API int ZF_CALL dspd_fir (const dsp_vector*  in, dsp_vector*  out, const dsp_vector*  h, dsp_vector*  state) noexcept { return zf::fir<double>(in, out, h, state); }
ZF_API int ZF_CALL dspfd_fir(const dspf_vector* in, dspf_vector* out, const dspf_vector* h, dspf_vector* state) noexcept { return zf::fir<float>(in, out, h, state); }
ZF_API int ZF_CALL dspd_sfir (const dsp_vector*  in, dsp_vector*  out, const dsp_vector*  half, int odd, int negate, dsp_vector*  state) noexcept { return zf::sfir<double>(in, out, half, odd, negate, state); }
ZF_API int ZF_CALL dspfd_sfir(const dspf_vector* in, dspf_vector* out, const dspf_vector* half, int odd, int negate, dspf_vector* state) noexcept { return zf::sfir<float>(in, out, half, odd, negate, state); }
ZF_API int ZF_CALL dspd_hwfilt (const dsp_vector*  in, dsp_vector*  out, int kind, dsp_vector*  state) noexcept { return zf::hwfilt<double>(in, out, kind, state); }
ZF_API int ZF_CALL dspfd_hwfilt(const dspf_vector* in, dspf_vector* out, int kind, dspf_vector* state) noexcept { return zf::hwfilt<float>(in, out, kind, state); }
ZF_API int ZF_CALL dspi_hwfilt (dsp_vector*  v, int kind) noexcept { return zf::hwfilt<double>(v, kind); }
ZF_API int ZF_CALL dspfi_hwfilt(dspf_vector* v, int kind) noexcept { return zf::hwfilt<float>(v, kind); }

}  // extern "C"
