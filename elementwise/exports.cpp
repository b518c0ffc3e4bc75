// C entry points of the element-wise operations: one line each, double then
// float, in header order.

#include "elementwise/arith.hpp"
#include "elementwise/convert.hpp"
#include "elementwise/logexp.hpp"
#include "elementwise/special.hpp"
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

// ---- rearrangement, editing and calculus

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
