// C entry points of the filters, resamplers and generators: one line each,
// double then float, in header order.
#include "filter/fir.hpp"
#include "filter/generate.hpp"

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

// ---- signal generators
ZF_API int ZF_CALL dspc_cos (dsp_vector*  v, double freq, double phase) noexcept { return zf::cos<double>(v, freq, phase); }
ZF_API int ZF_CALL dspfc_cos(dspf_vector* v, float  freq, float  phase) noexcept { return zf::cos<float>(v, freq, phase); }
ZF_API int ZF_CALL dspc_cexp (dsp_vector*  v, double freq, double phase) noexcept { return zf::cexp<double>(v, freq, phase); }
ZF_API int ZF_CALL dspfc_cexp(dspf_vector* v, float  freq, float  phase) noexcept { return zf::cexp<float>(v, freq, phase); }
ZF_API int ZF_CALL dspc_line (dsp_vector*  v, double slope, double offset) noexcept { return zf::line<double>(v, slope, offset); }
ZF_API int ZF_CALL dspfc_line(dspf_vector* v, float  slope, float  offset) noexcept { return zf::line<float>(v, slope, offset); }
ZF_API int ZF_CALL dspc_rand (dsp_vector*  v, int kind) noexcept { return zf::rand<double>(v, kind); }
ZF_API int ZF_CALL dspfc_rand(dspf_vector* v, int kind) noexcept { return zf::rand<float>(v, kind); }
ZF_API int ZF_CALL dspi_addcos (dsp_vector*  v, int flags, double amp, double freq, double phase) noexcept { return zf::addcos<double>(v, flags, amp, freq, phase); }
ZF_API int ZF_CALL dspfi_addcos(dspf_vector* v, int flags, float  amp, float  freq, float  phase) noexcept { return zf::addcos<float>(v, flags, amp, freq, phase); }

}  // extern "C"
