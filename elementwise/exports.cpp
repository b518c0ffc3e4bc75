// C entry points of the element-wise operations: one line each, double then
// float, in header order.
#include "elementwise/rearrange.hpp"

extern "C" {

// ---- in-place arithmetic and conversions

// ---- binary operations

// ---- rearrangement, editing and calculus
ZF_API int ZF_CALL dspi_rev (dsp_vector*  v) noexcept { return zf::rev<double>(v); }
ZF_API int ZF_CALL dspfi_rev(dspf_vector* v) noexcept { return zf::rev<float>(v); }
ZF_API int ZF_CALL dspi_shift (dsp_vector*  v, int n) noexcept { return zf::shift<double>(v, n); }
ZF_API int ZF_CALL dspfi_shift(dspf_vector* v, int n) noexcept { return zf::shift<float>(v, n); }
ZF_API int ZF_CALL dspi_shuffle (dsp_vector*  v) noexcept { return zf::shuffle<double>(v); }
ZF_API int ZF_CALL dspfi_shuffle(dspf_vector* v) noexcept { return zf::shuffle<float>(v); }
ZF_API int ZF_CALL dspi_sort (dsp_vector*  v) noexcept { return zf::sort<double>(v); }
ZF_API int ZF_CALL dspfi_sort(dspf_vector* v) noexcept { return zf::sort<float>(v); }
ZF_API int ZF_CALL dspi_swap_halves (dsp_vector*  v) noexcept { return zf::swap_halves<double>(v); }
ZF_API int ZF_CALL dspfi_swap_halves(dspf_vector* v) noexcept { return zf::swap_halves<float>(v); }
ZF_API int ZF_CALL dspi_swap_halves2 (dsp_vector*  v) noexcept { return zf::swap_halves2<double>(v); }
ZF_API int ZF_CALL dspfi_swap_halves2(dspf_vector* v) noexcept { return zf::swap_halves2<float>(v); }
ZF_API int ZF_CALL dspi_zero (dsp_vector*  v) noexcept { return zf::zero<double>(v); }
ZF_API int ZF_CALL dspfi_zero(dspf_vector* v) noexcept { return zf::zero<float>(v); }
ZF_API int ZF_CALL dspi_zpad (dsp_vector*  v, int n) noexcept { return zf::zpad<double>(v, n); }
ZF_API int ZF_CALL dspfi_zpad(dspf_vector* v, int n) noexcept { return zf::zpad<float>(v, n); }

// ---- special functions

}  // extern "C"
