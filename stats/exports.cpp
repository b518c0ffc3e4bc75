// C entry points of the descriptive statistics: one line each, double then
// float, in header order.
#include "stats/descriptive.hpp"

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

}  // extern "C"
