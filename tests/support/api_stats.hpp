// Test-side overloads of the descriptive statistics, picked by record type,
// so one typed test reaches both C twins through the real interface.
#pragma once
#include <zifaif/dsp.h>

namespace api {
inline int sum(const dsp_vector* in, dsp_vector* out) { return dsps_sum(in, out); }
inline int sum(const dspf_vector* in, dspf_vector* out) { return dspfs_sum(in, out); }
inline int mean(const dsp_vector* in, dsp_vector* out) { return dsps_mean(in, out); }
inline int mean(const dspf_vector* in, dspf_vector* out) { return dspfs_mean(in, out); }
inline int min(const dsp_vector* in, dsp_vector* out) { return dsps_min(in, out); }
inline int min(const dspf_vector* in, dspf_vector* out) { return dspfs_min(in, out); }
inline int max(const dsp_vector* in, dsp_vector* out) { return dsps_max(in, out); }
inline int max(const dspf_vector* in, dspf_vector* out) { return dspfs_max(in, out); }
inline int median(const dsp_vector* in, dsp_vector* out) { return dsps_median(in, out); }
inline int median(const dspf_vector* in, dspf_vector* out) { return dspfs_median(in, out); }
inline int magsq_sum(const dsp_vector* in, dsp_vector* out) { return dsps_magsq_sum(in, out); }
inline int magsq_sum(const dspf_vector* in, dspf_vector* out) { return dspfs_magsq_sum(in, out); }
inline int rms(const dsp_vector* in, dsp_vector* out) { return dsps_rms(in, out); }
inline int rms(const dspf_vector* in, dspf_vector* out) { return dspfs_rms(in, out); }
inline int pop_var(const dsp_vector* in, dsp_vector* out) { return dsps_pop_var(in, out); }
inline int pop_var(const dspf_vector* in, dspf_vector* out) { return dspfs_pop_var(in, out); }
inline int samp_var(const dsp_vector* in, dsp_vector* out) { return dsps_samp_var(in, out); }
inline int samp_var(const dspf_vector* in, dspf_vector* out) { return dspfs_samp_var(in, out); }
inline int pop_stddev(const dsp_vector* in, dsp_vector* out) { return dsps_pop_stddev(in, out); }
inline int pop_stddev(const dspf_vector* in, dspf_vector* out) { return dspfs_pop_stddev(in, out); }
inline int samp_stddev(const dsp_vector* in, dsp_vector* out) { return dsps_samp_stddev(in, out); }
inline int samp_stddev(const dspf_vector* in, dspf_vector* out) { return dspfs_samp_stddev(in, out); }
inline int skew(const dsp_vector* in, dsp_vector* out) { return dsps_skew(in, out); }
inline int skew(const dspf_vector* in, dspf_vector* out) { return dspfs_skew(in, out); }
inline int excess(const dsp_vector* in, dsp_vector* out) { return dsps_excess(in, out); }
inline int excess(const dspf_vector* in, dspf_vector* out) { return dspfs_excess(in, out); }
inline int gmean(const dsp_vector* in, dsp_vector* out) { return dsps_gmean(in, out); }
inline int gmean(const dspf_vector* in, dspf_vector* out) { return dspfs_gmean(in, out); }
inline int hmean(const dsp_vector* in, dsp_vector* out) { return dsps_hmean(in, out); }
inline int hmean(const dspf_vector* in, dspf_vector* out) { return dspfs_hmean(in, out); }
}  // namespace api
