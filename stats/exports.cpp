// C entry points of the descriptive statistics: one line each, double then
// float, in header order.
#include "stats/descriptive.hpp"
#include "stats/poly.hpp"

using namespace zf;

extern "C" {

ZF_API int ZF_CALL dsps_sum (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::sum<double>(in, out); }
ZF_API int ZF_CALL dspfs_sum(const dspf_vector* in, dspf_vector* out) noexcept { return zf::sum<float>(in, out); }
ZF_API int ZF_CALL dsps_mean (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::mean<double>(in, out); }
ZF_API int ZF_CALL dspfs_mean(const dspf_vector* in, dspf_vector* out) noexcept { return zf::mean<float>(in, out); }
ZF_API int ZF_CALL dsps_min (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::min<double>(in, out); }
ZF_API int ZF_CALL dspfs_min(const dspf_vector* in, dspf_vector* out) noexcept { return zf::min<float>(in, out); }
ZF_API int ZF_CALL dsps_max (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::max<double>(in, out); }
ZF_API int ZF_CALL dspfs_max(const dspf_vector* in, dspf_vector* out) noexcept { return zf::max<float>(in, out); }
ZF_API int ZF_CALL dsps_median (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::median<double>(in, out); }
ZF_API int ZF_CALL dspfs_median(const dspf_vector* in, dspf_vector* out) noexcept { return zf::median<float>(in, out); }
ZF_API int ZF_CALL dsps_magsq_sum (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::magsq_sum<double>(in, out); }
ZF_API int ZF_CALL dspfs_magsq_sum(const dspf_vector* in, dspf_vector* out) noexcept { return zf::magsq_sum<float>(in, out); }
ZF_API int ZF_CALL dsps_rms (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::rms<double>(in, out); }
ZF_API int ZF_CALL dspfs_rms(const dspf_vector* in, dspf_vector* out) noexcept { return zf::rms<float>(in, out); }
ZF_API int ZF_CALL dsps_pop_var (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::pop_var<double>(in, out); }
ZF_API int ZF_CALL dspfs_pop_var(const dspf_vector* in, dspf_vector* out) noexcept { return zf::pop_var<float>(in, out); }
ZF_API int ZF_CALL dsps_samp_var (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::samp_var<double>(in, out); }
ZF_API int ZF_CALL dspfs_samp_var(const dspf_vector* in, dspf_vector* out) noexcept { return zf::samp_var<float>(in, out); }
ZF_API int ZF_CALL dsps_pop_stddev (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::pop_stddev<double>(in, out); }
ZF_API int ZF_CALL dspfs_pop_stddev(const dspf_vector* in, dspf_vector* out) noexcept { return zf::pop_stddev<float>(in, out); }
ZF_API int ZF_CALL dsps_samp_stddev (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::samp_stddev<double>(in, out); }
ZF_API int ZF_CALL dspfs_samp_stddev(const dspf_vector* in, dspf_vector* out) noexcept { return zf::samp_stddev<float>(in, out); }
ZF_API int ZF_CALL dsps_skew (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::skew<double>(in, out); }
ZF_API int ZF_CALL dspfs_skew(const dspf_vector* in, dspf_vector* out) noexcept { return zf::skew<float>(in, out); }
ZF_API int ZF_CALL dsps_excess (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::excess<double>(in, out); }
ZF_API int ZF_CALL dspfs_excess(const dspf_vector* in, dspf_vector* out) noexcept { return zf::excess<float>(in, out); }
ZF_API int ZF_CALL dsps_gmean (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::gmean<double>(in, out); }
ZF_API int ZF_CALL dspfs_gmean(const dspf_vector* in, dspf_vector* out) noexcept { return zf::gmean<float>(in, out); }
ZF_API int ZF_CALL dsps_hmean (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::hmean<double>(in, out); }
ZF_API int ZF_CALL dspfs_hmean(const dspf_vector* in, dspf_vector* out) noexcept { return zf::hmean<float>(in, out); }

ZF_API int ZF_CALL dsps_hist (const dsp_vector*  in, double lo, double hi, int bins, dsp_vector*  out) noexcept { return zf::hist<double>(in, out, lo, hi, bins); }
ZF_API int ZF_CALL dspfs_hist(const dspf_vector* in, float  lo, float  hi, int bins, dspf_vector* out) noexcept { return zf::hist<float>(in, out, lo, hi, bins); }
ZF_API int ZF_CALL dsps_peak (const dsp_vector*  in, dsp_vector*  out) noexcept { return zf::peak<double>(in, out); }
ZF_API int ZF_CALL dspfs_peak(const dspf_vector* in, dspf_vector* out) noexcept { return zf::peak<float>(in, out); }
ZF_API int ZF_CALL dsps_peval (const dsp_vector*  p, const dsp_vector*  x, dsp_vector*  out) noexcept { return zf::peval<double>(p, x, out); }
ZF_API int ZF_CALL dspfs_peval(const dspf_vector* p, const dspf_vector* x, dspf_vector* out) noexcept { return zf::peval<float>(p, x, out); }
ZF_API int ZF_CALL dsps_psolve (const dsp_vector*  p, double y, double x0, dsp_vector*  out) noexcept { return zf::psolve<double>(p, y, x0, out); }
ZF_API int ZF_CALL dspfs_psolve(const dspf_vector* p, float  y, float  x0, dspf_vector* out) noexcept { return zf::psolve<float>(p, y, x0, out); }
ZF_API int ZF_CALL dsps_pcsolve (const dsp_vector*  p, double y_re, double y_im, double x0_re, double x0_im, dsp_vector*  out) noexcept { return zf::pcsolve<double>(p, y_re, y_im, x0_re, x0_im, out); }
ZF_API int ZF_CALL dspfs_pcsolve(const dspf_vector* p, float  y_re, float  y_im, float  x0_re, float  x0_im, dspf_vector* out) noexcept { return zf::pcsolve<float>(p, y_re, y_im, x0_re, x0_im, out); }
ZF_API int ZF_CALL dsps_proots (const dsp_vector*  p, dsp_vector*  out) noexcept { return zf::proots<double>(p, out); }
ZF_API int ZF_CALL dspfs_proots(const dspf_vector* p, dspf_vector* out) noexcept { return zf::proots<float>(p, out); }
ZF_API int ZF_CALL dspi_proots (dsp_vector*  v) noexcept { return zf::proots<double>(v, v); }
ZF_API int ZF_CALL dspfi_proots(dspf_vector* v) noexcept { return zf::proots<float>(v, v); }
ZF_API int ZF_CALL dspi_pztoc (dsp_vector*  v) noexcept { return zf::pztoc<double>(v); }
ZF_API int ZF_CALL dspfi_pztoc(dspf_vector* v) noexcept { return zf::pztoc<float>(v); }
ZF_API int ZF_CALL dsps_lin_regres (const dsp_vector*  y, dsp_vector*  out) noexcept { return zf::lin_regres<double>(y, out); }
ZF_API int ZF_CALL dspfs_lin_regres(const dspf_vector* y, dspf_vector* out) noexcept { return zf::lin_regres<float>(y, out); }
ZF_API int ZF_CALL dsps_lin_regres2 (const dsp_vector*  x, const dsp_vector*  y, dsp_vector*  out) noexcept { return zf::lin_regres2<double>(x, y, out); }
ZF_API int ZF_CALL dspfs_lin_regres2(const dspf_vector* x, const dspf_vector* y, dspf_vector* out) noexcept { return zf::lin_regres2<float>(x, y, out); }

}  // extern "C"
