// C entry points of the filters, resamplers and generators: one line each,
// double then float, in header order.
#include "filter/generate.hpp"

extern "C" {

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
