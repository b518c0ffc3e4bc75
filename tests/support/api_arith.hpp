// Test-side overloads of the one-input element-wise entry points (arithmetic,
// conversions, logarithms, trigonometric and special functions), picked by
// record type so one typed test reaches both C twins.
#pragma once
#include <zifaif/dsp.h>

namespace api {
inline int abs(dsp_vector* v) { return dspi_abs(v); }
inline int abs(dspf_vector* v) { return dspfi_abs(v); }
inline int neg(dsp_vector* v) { return dspi_neg(v); }
inline int neg(dspf_vector* v) { return dspfi_neg(v); }
inline int recip(dsp_vector* v) { return dspi_recip(v); }
inline int recip(dspf_vector* v) { return dspfi_recip(v); }
inline int square(dsp_vector* v) { return dspi_square(v); }
inline int square(dspf_vector* v) { return dspfi_square(v); }
inline int sqrt(dsp_vector* v) { return dspi_sqrt(v); }
inline int sqrt(dspf_vector* v) { return dspfi_sqrt(v); }
inline int exp(dsp_vector* v) { return dspi_exp(v); }
inline int exp(dspf_vector* v) { return dspfi_exp(v); }
inline int exp10(dsp_vector* v) { return dspi_exp10(v); }
inline int exp10(dspf_vector* v) { return dspfi_exp10(v); }
inline int log(dsp_vector* v) { return dspi_log(v); }
inline int log(dspf_vector* v) { return dspfi_log(v); }
inline int log10(dsp_vector* v) { return dspi_log10(v); }
inline int log10(dspf_vector* v) { return dspfi_log10(v); }
inline int mag(dsp_vector* v) { return dspi_mag(v); }
inline int mag(dspf_vector* v) { return dspfi_mag(v); }
inline int magsq(dsp_vector* v) { return dspi_magsq(v); }
inline int magsq(dspf_vector* v) { return dspfi_magsq(v); }
inline int phase(dsp_vector* v) { return dspi_phase(v); }
inline int phase(dspf_vector* v) { return dspfi_phase(v); }
inline int rtoc(dsp_vector* v) { return dspi_rtoc(v); }
inline int rtoc(dspf_vector* v) { return dspfi_rtoc(v); }
inline int rtop(dsp_vector* v) { return dspi_rtop(v); }
inline int rtop(dspf_vector* v) { return dspfi_rtop(v); }
inline int ptor(dsp_vector* v) { return dspi_ptor(v); }
inline int ptor(dspf_vector* v) { return dspfi_ptor(v); }
inline int conj(dsp_vector* v) { return dspi_conj(v); }
inline int conj(dspf_vector* v) { return dspfi_conj(v); }
inline int real(dsp_vector* v) { return dspi_real(v); }
inline int real(dspf_vector* v) { return dspfi_real(v); }
inline int imag(dsp_vector* v) { return dspi_imag(v); }
inline int imag(dspf_vector* v) { return dspfi_imag(v); }
inline int timesi(dsp_vector* v) { return dspi_timesi(v); }
inline int timesi(dspf_vector* v) { return dspfi_timesi(v); }
inline int cos(dsp_vector* v) { return dspi_cos(v); }
inline int cos(dspf_vector* v) { return dspfi_cos(v); }
inline int sin(dsp_vector* v) { return dspi_sin(v); }
inline int sin(dspf_vector* v) { return dspfi_sin(v); }
inline int tan(dsp_vector* v) { return dspi_tan(v); }
inline int tan(dspf_vector* v) { return dspfi_tan(v); }
inline int atan(dsp_vector* v) { return dspi_atan(v); }
inline int atan(dspf_vector* v) { return dspfi_atan(v); }
inline int acos(dsp_vector* v) { return dspi_acos(v); }
inline int acos(dspf_vector* v) { return dspfi_acos(v); }
inline int asin(dsp_vector* v) { return dspi_asin(v); }
inline int asin(dspf_vector* v) { return dspfi_asin(v); }
inline int cosh(dsp_vector* v) { return dspi_cosh(v); }
inline int cosh(dspf_vector* v) { return dspfi_cosh(v); }
inline int sinh(dsp_vector* v) { return dspi_sinh(v); }
inline int sinh(dspf_vector* v) { return dspfi_sinh(v); }
inline int tanh(dsp_vector* v) { return dspi_tanh(v); }
inline int tanh(dspf_vector* v) { return dspfi_tanh(v); }
inline int sinc(dsp_vector* v) { return dspi_sinc(v); }
inline int sinc(dspf_vector* v) { return dspfi_sinc(v); }
inline int besj0(dsp_vector* v) { return dspi_besj0(v); }
inline int besj0(dspf_vector* v) { return dspfi_besj0(v); }
inline int besj1(dsp_vector* v) { return dspi_besj1(v); }
inline int besj1(dspf_vector* v) { return dspfi_besj1(v); }
inline int besy0(dsp_vector* v) { return dspi_besy0(v); }
inline int besy0(dspf_vector* v) { return dspfi_besy0(v); }
inline int besy1(dsp_vector* v) { return dspi_besy1(v); }
inline int besy1(dspf_vector* v) { return dspfi_besy1(v); }
inline int besi0(dsp_vector* v) { return dspi_besi0(v); }
inline int besi0(dspf_vector* v) { return dspfi_besi0(v); }
inline int erf(dsp_vector* v) { return dspi_erf(v); }
inline int erf(dspf_vector* v) { return dspfi_erf(v); }
inline int erfc(dsp_vector* v) { return dspi_erfc(v); }
inline int erfc(dspf_vector* v) { return dspfi_erfc(v); }
inline int gamma(dsp_vector* v) { return dspi_gamma(v); }
inline int gamma(dspf_vector* v) { return dspfi_gamma(v); }
inline int lgamma(dsp_vector* v) { return dspi_lgamma(v); }
inline int lgamma(dspf_vector* v) { return dspfi_lgamma(v); }
inline int scale(dsp_vector* v, double f) { return dspi_scale(v, f); }
inline int scale(dspf_vector* v, float f) { return dspfi_scale(v, f); }
inline int offset(dsp_vector* v, double f) { return dspi_offset(v, f); }
inline int offset(dspf_vector* v, float f) { return dspfi_offset(v, f); }
inline int db(dsp_vector* v, double f) { return dspi_db(v, f); }
inline int db(dspf_vector* v, float f) { return dspfi_db(v, f); }
inline int cscale(dsp_vector* v, double a, double b) { return dspi_cscale(v, a, b); }
inline int cscale(dspf_vector* v, float a, float b) { return dspfi_cscale(v, a, b); }
inline int limit(dsp_vector* v, int r, double a, double b, int* c) { return dspi_limit(v, r, a, b, c); }
inline int limit(dspf_vector* v, int r, float a, float b, int* c) { return dspfi_limit(v, r, a, b, c); }
inline int mag(const dsp_vector* s, dsp_vector* d) { return dspu_mag(s, d); }
inline int mag(const dspf_vector* s, dspf_vector* d) { return dspfu_mag(s, d); }
inline int magsq(const dsp_vector* s, dsp_vector* d) { return dspu_magsq(s, d); }
inline int magsq(const dspf_vector* s, dspf_vector* d) { return dspfu_magsq(s, d); }
inline int sqrt(const dsp_vector* s, dsp_vector* d) { return dspu_sqrt(s, d); }
inline int sqrt(const dspf_vector* s, dspf_vector* d) { return dspfu_sqrt(s, d); }
}  // namespace api
