// C entry points of the element-wise operations: one line each, double then
// float, in header order.
#include "elementwise/binary.hpp"
#include "elementwise/rearrange.hpp"

#include "elementwise/arith.hpp"
#include "elementwise/convert.hpp"
#include "elementwise/logexp.hpp"
#include "elementwise/bessel.hpp"
#include "elementwise/trig.hpp"

extern "C" {

// ---- in-place arithmetic and conversions
ZF_API int ZF_CALL dspi_abs (dsp_vector*  v) noexcept { return zf::abs<double>(v); }
ZF_API int ZF_CALL dspfi_abs(dspf_vector* v) noexcept { return zf::abs<float>(v); }
ZF_API int ZF_CALL dspi_neg (dsp_vector*  v) noexcept { return zf::neg<double>(v); }
ZF_API int ZF_CALL dspfi_neg(dspf_vector* v) noexcept { return zf::neg<float>(v); }
ZF_API int ZF_CALL dspi_scale (dsp_vector*  v, double factor) noexcept { return zf::scale<double>(v, factor); }
ZF_API int ZF_CALL dspfi_scale(dspf_vector* v, float  factor) noexcept { return zf::scale<float>(v, factor); }
ZF_API int ZF_CALL dspi_cscale (dsp_vector*  v, double re, double im) noexcept { return zf::cscale<double>(v, re, im); }
ZF_API int ZF_CALL dspfi_cscale(dspf_vector* v, float  re, float  im) noexcept { return zf::cscale<float>(v, re, im); }
ZF_API int ZF_CALL dspi_offset (dsp_vector*  v, double offset) noexcept { return zf::offset<double>(v, offset); }
ZF_API int ZF_CALL dspfi_offset(dspf_vector* v, float  offset) noexcept { return zf::offset<float>(v, offset); }
ZF_API int ZF_CALL dspi_recip (dsp_vector*  v) noexcept { return zf::recip<double>(v); }
ZF_API int ZF_CALL dspfi_recip(dspf_vector* v) noexcept { return zf::recip<float>(v); }
ZF_API int ZF_CALL dspi_square (dsp_vector*  v) noexcept { return zf::square<double>(v); }
ZF_API int ZF_CALL dspfi_square(dspf_vector* v) noexcept { return zf::square<float>(v); }
ZF_API int ZF_CALL dspi_sqrt (dsp_vector*  v) noexcept { return zf::sqrt<double>(v); }
ZF_API int ZF_CALL dspfi_sqrt(dspf_vector* v) noexcept { return zf::sqrt<float>(v); }
ZF_API int ZF_CALL dspi_exp (dsp_vector*  v) noexcept { return zf::exp<double>(v); }
ZF_API int ZF_CALL dspfi_exp(dspf_vector* v) noexcept { return zf::exp<float>(v); }
ZF_API int ZF_CALL dspi_exp10 (dsp_vector*  v) noexcept { return zf::exp10<double>(v); }
ZF_API int ZF_CALL dspfi_exp10(dspf_vector* v) noexcept { return zf::exp10<float>(v); }
ZF_API int ZF_CALL dspi_log (dsp_vector*  v) noexcept { return zf::log<double>(v); }
ZF_API int ZF_CALL dspfi_log(dspf_vector* v) noexcept { return zf::log<float>(v); }
ZF_API int ZF_CALL dspi_log10 (dsp_vector*  v) noexcept { return zf::log10<double>(v); }
ZF_API int ZF_CALL dspfi_log10(dspf_vector* v) noexcept { return zf::log10<float>(v); }
ZF_API int ZF_CALL dspi_db (dsp_vector*  v, double factor) noexcept { return zf::db<double>(v, factor); }
ZF_API int ZF_CALL dspfi_db(dspf_vector* v, float  factor) noexcept { return zf::db<float>(v, factor); }
ZF_API int ZF_CALL dspi_mag (dsp_vector*  v) noexcept { return zf::mag<double>(v); }
ZF_API int ZF_CALL dspfi_mag(dspf_vector* v) noexcept { return zf::mag<float>(v); }
ZF_API int ZF_CALL dspi_magsq (dsp_vector*  v) noexcept { return zf::magsq<double>(v); }
ZF_API int ZF_CALL dspfi_magsq(dspf_vector* v) noexcept { return zf::magsq<float>(v); }
ZF_API int ZF_CALL dspi_phase (dsp_vector*  v) noexcept { return zf::phase<double>(v); }
ZF_API int ZF_CALL dspfi_phase(dspf_vector* v) noexcept { return zf::phase<float>(v); }
ZF_API int ZF_CALL dspi_rtoc (dsp_vector*  v) noexcept { return zf::rtoc<double>(v); }
ZF_API int ZF_CALL dspfi_rtoc(dspf_vector* v) noexcept { return zf::rtoc<float>(v); }
ZF_API int ZF_CALL dspi_rtop (dsp_vector*  v) noexcept { return zf::rtop<double>(v); }
ZF_API int ZF_CALL dspfi_rtop(dspf_vector* v) noexcept { return zf::rtop<float>(v); }
ZF_API int ZF_CALL dspi_ptor (dsp_vector*  v) noexcept { return zf::ptor<double>(v); }
ZF_API int ZF_CALL dspfi_ptor(dspf_vector* v) noexcept { return zf::ptor<float>(v); }
ZF_API int ZF_CALL dspi_conj (dsp_vector*  v) noexcept { return zf::conj<double>(v); }
ZF_API int ZF_CALL dspfi_conj(dspf_vector* v) noexcept { return zf::conj<float>(v); }
ZF_API int ZF_CALL dspi_real (dsp_vector*  v) noexcept { return zf::real<double>(v); }
ZF_API int ZF_CALL dspfi_real(dspf_vector* v) noexcept { return zf::real<float>(v); }
ZF_API int ZF_CALL dspi_imag (dsp_vector*  v) noexcept { return zf::imag<double>(v); }
ZF_API int ZF_CALL dspfi_imag(dspf_vector* v) noexcept { return zf::imag<float>(v); }
ZF_API int ZF_CALL dspi_timesi (dsp_vector*  v) noexcept { return zf::timesi<double>(v); }
ZF_API int ZF_CALL dspfi_timesi(dspf_vector* v) noexcept { return zf::timesi<float>(v); }
ZF_API int ZF_CALL dspi_limit (dsp_vector*  v, int reserved, double a, double b, int *clipped) noexcept { return zf::limit<double>(v, reserved, a, b, clipped); }
ZF_API int ZF_CALL dspfi_limit(dspf_vector* v, int reserved, float  a, float  b, int *clipped) noexcept { return zf::limit<float>(v, reserved, a, b, clipped); }
ZF_API int ZF_CALL dspi_cos (dsp_vector*  v) noexcept { return zf::cos<double>(v); }
ZF_API int ZF_CALL dspfi_cos(dspf_vector* v) noexcept { return zf::cos<float>(v); }
ZF_API int ZF_CALL dspi_sin (dsp_vector*  v) noexcept { return zf::sin<double>(v); }
ZF_API int ZF_CALL dspfi_sin(dspf_vector* v) noexcept { return zf::sin<float>(v); }
ZF_API int ZF_CALL dspi_tan (dsp_vector*  v) noexcept { return zf::tan<double>(v); }
ZF_API int ZF_CALL dspfi_tan(dspf_vector* v) noexcept { return zf::tan<float>(v); }
ZF_API int ZF_CALL dspi_atan (dsp_vector*  v) noexcept { return zf::atan<double>(v); }
ZF_API int ZF_CALL dspfi_atan(dspf_vector* v) noexcept { return zf::atan<float>(v); }
ZF_API int ZF_CALL dspi_acos (dsp_vector*  v) noexcept { return zf::acos<double>(v); }
ZF_API int ZF_CALL dspfi_acos(dspf_vector* v) noexcept { return zf::acos<float>(v); }
ZF_API int ZF_CALL dspi_asin (dsp_vector*  v) noexcept { return zf::asin<double>(v); }
ZF_API int ZF_CALL dspfi_asin(dspf_vector* v) noexcept { return zf::asin<float>(v); }
ZF_API int ZF_CALL dspi_cosh (dsp_vector*  v) noexcept { return zf::cosh<double>(v); }
ZF_API int ZF_CALL dspfi_cosh(dspf_vector* v) noexcept { return zf::cosh<float>(v); }
ZF_API int ZF_CALL dspi_sinh (dsp_vector*  v) noexcept { return zf::sinh<double>(v); }
ZF_API int ZF_CALL dspfi_sinh(dspf_vector* v) noexcept { return zf::sinh<float>(v); }
ZF_API int ZF_CALL dspi_tanh (dsp_vector*  v) noexcept { return zf::tanh<double>(v); }
ZF_API int ZF_CALL dspfi_tanh(dspf_vector* v) noexcept { return zf::tanh<float>(v); }
ZF_API int ZF_CALL dspi_sinc (dsp_vector*  v) noexcept { return zf::sinc<double>(v); }
ZF_API int ZF_CALL dspfi_sinc(dspf_vector* v) noexcept { return zf::sinc<float>(v); }
ZF_API int ZF_CALL dspu_mag (const dsp_vector*  s, dsp_vector*  d) noexcept { return zf::mag<double>(s, d); }
ZF_API int ZF_CALL dspfu_mag(const dspf_vector* s, dspf_vector* d) noexcept { return zf::mag<float>(s, d); }
ZF_API int ZF_CALL dspu_magsq (const dsp_vector*  s, dsp_vector*  d) noexcept { return zf::magsq<double>(s, d); }
ZF_API int ZF_CALL dspfu_magsq(const dspf_vector* s, dspf_vector* d) noexcept { return zf::magsq<float>(s, d); }
ZF_API int ZF_CALL dspu_sqrt (const dsp_vector*  s, dsp_vector*  d) noexcept { return zf::sqrt<double>(s, d); }
ZF_API int ZF_CALL dspfu_sqrt(const dspf_vector* s, dspf_vector* d) noexcept { return zf::sqrt<float>(s, d); }

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
ZF_API int ZF_CALL dspi_besj0 (dsp_vector*  v) noexcept { return zf::besj0<double>(v); }
ZF_API int ZF_CALL dspfi_besj0(dspf_vector* v) noexcept { return zf::besj0<float>(v); }
ZF_API int ZF_CALL dspi_besj1 (dsp_vector*  v) noexcept { return zf::besj1<double>(v); }
ZF_API int ZF_CALL dspfi_besj1(dspf_vector* v) noexcept { return zf::besj1<float>(v); }
ZF_API int ZF_CALL dspi_besy0 (dsp_vector*  v) noexcept { return zf::besy0<double>(v); }
ZF_API int ZF_CALL dspfi_besy0(dspf_vector* v) noexcept { return zf::besy0<float>(v); }
ZF_API int ZF_CALL dspi_besy1 (dsp_vector*  v) noexcept { return zf::besy1<double>(v); }
ZF_API int ZF_CALL dspfi_besy1(dspf_vector* v) noexcept { return zf::besy1<float>(v); }
ZF_API int ZF_CALL dspi_besi0 (dsp_vector*  v) noexcept { return zf::besi0<double>(v); }
ZF_API int ZF_CALL dspfi_besi0(dspf_vector* v) noexcept { return zf::besi0<float>(v); }
ZF_API int ZF_CALL dspi_erf (dsp_vector*  v) noexcept { return zf::unavailable<double>(v); }
ZF_API int ZF_CALL dspfi_erf(dspf_vector* v) noexcept { return zf::unavailable<float>(v); }
ZF_API int ZF_CALL dspi_erfc (dsp_vector*  v) noexcept { return zf::unavailable<double>(v); }
ZF_API int ZF_CALL dspfi_erfc(dspf_vector* v) noexcept { return zf::unavailable<float>(v); }
ZF_API int ZF_CALL dspi_gamma (dsp_vector*  v) noexcept { return zf::unavailable<double>(v); }
ZF_API int ZF_CALL dspfi_gamma(dspf_vector* v) noexcept { return zf::unavailable<float>(v); }
ZF_API int ZF_CALL dspi_lgamma (dsp_vector*  v) noexcept { return zf::unavailable<double>(v); }
ZF_API int ZF_CALL dspfi_lgamma(dspf_vector* v) noexcept { return zf::unavailable<float>(v); }

}  // extern "C"
