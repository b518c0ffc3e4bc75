// C entry points of the element-wise operations: one line each, double then
// float, in header order.
#include "elementwise/binary.hpp"
#include "elementwise/rearrange.hpp"

extern "C" {

// ---- in-place arithmetic and conversions

// ---- binary operations
ZF_API int ZF_CALL dspb_add (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  o) noexcept { return zf::add<double>(a, b, o); }
ZF_API int ZF_CALL dspfb_add(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) noexcept { return zf::add<float>(a, b, o); }
ZF_API int ZF_CALL dspb_sub (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  o) noexcept { return zf::sub<double>(a, b, o); }
ZF_API int ZF_CALL dspfb_sub(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) noexcept { return zf::sub<float>(a, b, o); }
ZF_API int ZF_CALL dspb_mul (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  o) noexcept { return zf::mul<double>(a, b, o); }
ZF_API int ZF_CALL dspfb_mul(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) noexcept { return zf::mul<float>(a, b, o); }
ZF_API int ZF_CALL dspb_div (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  o) noexcept { return zf::div<double>(a, b, o); }
ZF_API int ZF_CALL dspfb_div(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) noexcept { return zf::div<float>(a, b, o); }
ZF_API int ZF_CALL dspb_conj_mul (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  o) noexcept { return zf::conj_mul<double>(a, b, o); }
ZF_API int ZF_CALL dspfb_conj_mul(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) noexcept { return zf::conj_mul<float>(a, b, o); }
ZF_API int ZF_CALL dspb_avg_add (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  o, double w) noexcept { return zf::avg_add<double>(a, b, o, w); }
ZF_API int ZF_CALL dspfb_avg_add(const dspf_vector* a, const dspf_vector* b, dspf_vector* o, float  w) noexcept { return zf::avg_add<float>(a, b, o, w); }
ZF_API int ZF_CALL dspb_min (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  o) noexcept { return zf::min<double>(a, b, o); }
ZF_API int ZF_CALL dspfb_min(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) noexcept { return zf::min<float>(a, b, o); }
ZF_API int ZF_CALL dspb_max (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  o) noexcept { return zf::max<double>(a, b, o); }
ZF_API int ZF_CALL dspfb_max(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) noexcept { return zf::max<float>(a, b, o); }
ZF_API int ZF_CALL dspb_inter (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  o) noexcept { return zf::inter<double>(a, b, o); }
ZF_API int ZF_CALL dspfb_inter(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) noexcept { return zf::inter<float>(a, b, o); }
ZF_API int ZF_CALL dspb_ritoc (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  o) noexcept { return zf::ritoc<double>(a, b, o); }
ZF_API int ZF_CALL dspfb_ritoc(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) noexcept { return zf::ritoc<float>(a, b, o); }
ZF_API int ZF_CALL dspb_pmul (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  o) noexcept { return zf::pmul<double>(a, b, o); }
ZF_API int ZF_CALL dspfb_pmul(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) noexcept { return zf::pmul<float>(a, b, o); }
ZF_API int ZF_CALL dspbs_dot (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  o) noexcept { return zf::dot<double>(a, b, o); }
ZF_API int ZF_CALL dspfbs_dot(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) noexcept { return zf::dot<float>(a, b, o); }

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
ZF_API int ZF_CALL dspi_zpad2 (dsp_vector*  v, int n, int flags) noexcept { return zf::zpad2<double>(v, n, flags); }
ZF_API int ZF_CALL dspfi_zpad2(dspf_vector* v, int n, int flags) noexcept { return zf::zpad2<float>(v, n, flags); }
ZF_API int ZF_CALL dspi_unzpad (dsp_vector*  v, int n, int flags) noexcept { return zf::unzpad<double>(v, n, flags); }
ZF_API int ZF_CALL dspfi_unzpad(dspf_vector* v, int n, int flags) noexcept { return zf::unzpad<float>(v, n, flags); }
ZF_API int ZF_CALL dspi_differ (dsp_vector*  v) noexcept { return zf::differ<double>(v); }
ZF_API int ZF_CALL dspfi_differ(dspf_vector* v) noexcept { return zf::differ<float>(v); }
ZF_API int ZF_CALL dspi_pdiffer (dsp_vector*  v) noexcept { return zf::pdiffer<double>(v); }
ZF_API int ZF_CALL dspfi_pdiffer(dspf_vector* v) noexcept { return zf::pdiffer<float>(v); }
ZF_API int ZF_CALL dspi_integ (dsp_vector*  v) noexcept { return zf::integ<double>(v); }
ZF_API int ZF_CALL dspfi_integ(dspf_vector* v) noexcept { return zf::integ<float>(v); }
ZF_API int ZF_CALL dspi_edge (dsp_vector*  v, int mode, double level) noexcept { return zf::edge<double>(v, mode, level); }
ZF_API int ZF_CALL dspfi_edge(dspf_vector* v, int mode, float  level) noexcept { return zf::edge<float>(v, mode, level); }
ZF_API int ZF_CALL dspi_unwrap (dsp_vector*  v) noexcept { return zf::unwrap<double>(v); }
ZF_API int ZF_CALL dspfi_unwrap(dspf_vector* v) noexcept { return zf::unwrap<float>(v); }
ZF_API int ZF_CALL dspi_unwrap_wnd (dsp_vector*  v, int w) noexcept { return zf::unwrap_wnd<double>(v, w); }
ZF_API int ZF_CALL dspfi_unwrap_wnd(dspf_vector* v, int w) noexcept { return zf::unwrap_wnd<float>(v, w); }

// ---- special functions

}  // extern "C"
