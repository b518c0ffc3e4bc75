// Test-side overloads of the statistics, histogram, peak, polynomial and
// regression entry points, picked by record type, so one typed test reaches
// both C twins through the real interface.
#pragma once
#include "support/api_core.hpp"

namespace api {
ZT_TWIN(sum, dsps_sum, dspfs_sum)
ZT_TWIN(mean, dsps_mean, dspfs_mean)
ZT_TWIN(min, dsps_min, dspfs_min)
ZT_TWIN(max, dsps_max, dspfs_max)
ZT_TWIN(median, dsps_median, dspfs_median)
ZT_TWIN(magsq_sum, dsps_magsq_sum, dspfs_magsq_sum)
ZT_TWIN(rms, dsps_rms, dspfs_rms)
ZT_TWIN(pop_var, dsps_pop_var, dspfs_pop_var)
ZT_TWIN(samp_var, dsps_samp_var, dspfs_samp_var)
ZT_TWIN(pop_stddev, dsps_pop_stddev, dspfs_pop_stddev)
ZT_TWIN(samp_stddev, dsps_samp_stddev, dspfs_samp_stddev)
ZT_TWIN(skew, dsps_skew, dspfs_skew)
ZT_TWIN(excess, dsps_excess, dspfs_excess)
ZT_TWIN(gmean, dsps_gmean, dspfs_gmean)
ZT_TWIN(hmean, dsps_hmean, dspfs_hmean)
ZT_TWIN(hist, dsps_hist, dspfs_hist)
ZT_TWIN(peak, dsps_peak, dspfs_peak)
ZT_TWIN(peval, dsps_peval, dspfs_peval)
ZT_TWIN(psolve, dsps_psolve, dspfs_psolve)
ZT_TWIN(pcsolve, dsps_pcsolve, dspfs_pcsolve)
ZT_TWIN(proots, dsps_proots, dspfs_proots)
ZT_TWIN(proots_in_place, dspi_proots, dspfi_proots)
ZT_TWIN(pztoc, dspi_pztoc, dspfi_pztoc)
ZT_TWIN(lin_regres, dsps_lin_regres, dspfs_lin_regres)
ZT_TWIN(lin_regres2, dsps_lin_regres2, dspfs_lin_regres2)
}  // namespace api
