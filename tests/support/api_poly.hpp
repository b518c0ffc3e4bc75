// Test-side overloads of the histogram, peak, polynomial and regression entry points.
#pragma once
#include <zifaif/dsp.h>

namespace api {
inline int hist(const dsp_vector* i, double a, double b, int n, dsp_vector* o) { return dsps_hist(i, a, b, n, o); }
inline int hist(const dspf_vector* i, float a, float b, int n, dspf_vector* o) { return dspfs_hist(i, a, b, n, o); }
inline int peak(const dsp_vector* i, dsp_vector* o) { return dsps_peak(i, o); }
inline int peak(const dspf_vector* i, dspf_vector* o) { return dspfs_peak(i, o); }
inline int peval(const dsp_vector* p, const dsp_vector* x, dsp_vector* o) { return dsps_peval(p, x, o); }
inline int peval(const dspf_vector* p, const dspf_vector* x, dspf_vector* o) { return dspfs_peval(p, x, o); }
inline int psolve(const dsp_vector* p, double y, double x, dsp_vector* o) { return dsps_psolve(p, y, x, o); }
inline int psolve(const dspf_vector* p, float y, float x, dspf_vector* o) { return dspfs_psolve(p, y, x, o); }
inline int pcsolve(const dsp_vector* p, double a, double b, double c, double d, dsp_vector* o) { return dsps_pcsolve(p, a, b, c, d, o); }
inline int pcsolve(const dspf_vector* p, float a, float b, float c, float d, dspf_vector* o) { return dspfs_pcsolve(p, a, b, c, d, o); }
inline int proots(const dsp_vector* p, dsp_vector* o) { return dsps_proots(p, o); }
inline int proots(const dspf_vector* p, dspf_vector* o) { return dspfs_proots(p, o); }
inline int proots(dsp_vector* v) { return dspi_proots(v); }
inline int proots(dspf_vector* v) { return dspfi_proots(v); }
inline int pztoc(dsp_vector* v) { return dspi_pztoc(v); }
inline int pztoc(dspf_vector* v) { return dspfi_pztoc(v); }
inline int lin_regres(const dsp_vector* y, dsp_vector* o) { return dsps_lin_regres(y, o); }
inline int lin_regres(const dspf_vector* y, dspf_vector* o) { return dspfs_lin_regres(y, o); }
inline int lin_regres2(const dsp_vector* x, const dsp_vector* y, dsp_vector* o) { return dsps_lin_regres2(x, y, o); }
inline int lin_regres2(const dspf_vector* x, const dspf_vector* y, dspf_vector* o) { return dspfs_lin_regres2(x, y, o); }
}  // namespace api
