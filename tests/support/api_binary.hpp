// Test-side overloads of the binary operations and of the rearrangement,
// editing and calculus functions, picked by record type.
#pragma once
#include <zifaif/dsp.h>

namespace api {
// Binary operations.
inline int add(const dsp_vector* a, const dsp_vector* b, dsp_vector* o) { return dspb_add(a, b, o); }
inline int add(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) { return dspfb_add(a, b, o); }
inline int sub(const dsp_vector* a, const dsp_vector* b, dsp_vector* o) { return dspb_sub(a, b, o); }
inline int sub(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) { return dspfb_sub(a, b, o); }
inline int mul(const dsp_vector* a, const dsp_vector* b, dsp_vector* o) { return dspb_mul(a, b, o); }
inline int mul(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) { return dspfb_mul(a, b, o); }
inline int div(const dsp_vector* a, const dsp_vector* b, dsp_vector* o) { return dspb_div(a, b, o); }
inline int div(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) { return dspfb_div(a, b, o); }
inline int conj_mul(const dsp_vector* a, const dsp_vector* b, dsp_vector* o) { return dspb_conj_mul(a, b, o); }
inline int conj_mul(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) { return dspfb_conj_mul(a, b, o); }
inline int avg_add(const dsp_vector* a, const dsp_vector* b, dsp_vector* o, double w) { return dspb_avg_add(a, b, o, w); }
inline int avg_add(const dspf_vector* a, const dspf_vector* b, dspf_vector* o, float w) { return dspfb_avg_add(a, b, o, w); }
inline int min(const dsp_vector* a, const dsp_vector* b, dsp_vector* o) { return dspb_min(a, b, o); }
inline int min(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) { return dspfb_min(a, b, o); }
inline int max(const dsp_vector* a, const dsp_vector* b, dsp_vector* o) { return dspb_max(a, b, o); }
inline int max(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) { return dspfb_max(a, b, o); }
inline int inter(const dsp_vector* a, const dsp_vector* b, dsp_vector* o) { return dspb_inter(a, b, o); }
inline int inter(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) { return dspfb_inter(a, b, o); }
inline int ritoc(const dsp_vector* a, const dsp_vector* b, dsp_vector* o) { return dspb_ritoc(a, b, o); }
inline int ritoc(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) { return dspfb_ritoc(a, b, o); }
inline int pmul(const dsp_vector* a, const dsp_vector* b, dsp_vector* o) { return dspb_pmul(a, b, o); }
inline int pmul(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) { return dspfb_pmul(a, b, o); }
inline int dot(const dsp_vector* a, const dsp_vector* b, dsp_vector* o) { return dspbs_dot(a, b, o); }
inline int dot(const dspf_vector* a, const dspf_vector* b, dspf_vector* o) { return dspfbs_dot(a, b, o); }

// Rearrangement, editing and calculus.
inline int rev(dsp_vector* v) { return dspi_rev(v); }
inline int rev(dspf_vector* v) { return dspfi_rev(v); }
inline int shift(dsp_vector* v, int n) { return dspi_shift(v, n); }
inline int shift(dspf_vector* v, int n) { return dspfi_shift(v, n); }
inline int shuffle(dsp_vector* v) { return dspi_shuffle(v); }
inline int shuffle(dspf_vector* v) { return dspfi_shuffle(v); }
inline int sort(dsp_vector* v) { return dspi_sort(v); }
inline int sort(dspf_vector* v) { return dspfi_sort(v); }
inline int swap_halves(dsp_vector* v) { return dspi_swap_halves(v); }
inline int swap_halves(dspf_vector* v) { return dspfi_swap_halves(v); }
inline int swap_halves2(dsp_vector* v) { return dspi_swap_halves2(v); }
inline int swap_halves2(dspf_vector* v) { return dspfi_swap_halves2(v); }
inline int zero(dsp_vector* v) { return dspi_zero(v); }
inline int zero(dspf_vector* v) { return dspfi_zero(v); }
inline int zpad(dsp_vector* v, int n) { return dspi_zpad(v, n); }
inline int zpad(dspf_vector* v, int n) { return dspfi_zpad(v, n); }
inline int zpad2(dsp_vector* v, int n, int flags) { return dspi_zpad2(v, n, flags); }
inline int zpad2(dspf_vector* v, int n, int flags) { return dspfi_zpad2(v, n, flags); }
inline int unzpad(dsp_vector* v, int n, int flags) { return dspi_unzpad(v, n, flags); }
inline int unzpad(dspf_vector* v, int n, int flags) { return dspfi_unzpad(v, n, flags); }
inline int differ(dsp_vector* v) { return dspi_differ(v); }
inline int differ(dspf_vector* v) { return dspfi_differ(v); }
inline int pdiffer(dsp_vector* v) { return dspi_pdiffer(v); }
inline int pdiffer(dspf_vector* v) { return dspfi_pdiffer(v); }
inline int integ(dsp_vector* v) { return dspi_integ(v); }
inline int integ(dspf_vector* v) { return dspfi_integ(v); }
inline int edge(dsp_vector* v, int mode, double level) { return dspi_edge(v, mode, level); }
inline int edge(dspf_vector* v, int mode, float level) { return dspfi_edge(v, mode, level); }
inline int unwrap(dsp_vector* v) { return dspi_unwrap(v); }
inline int unwrap(dspf_vector* v) { return dspfi_unwrap(v); }
inline int unwrap_wnd(dsp_vector* v, int w) { return dspi_unwrap_wnd(v, w); }
inline int unwrap_wnd(dspf_vector* v, int w) { return dspfi_unwrap_wnd(v, w); }
}  // namespace api
