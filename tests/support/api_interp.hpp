// Test-side overloads of the interpolation entry points, picked by record type.
#pragma once
#include <zifaif/dsp.h>

namespace api {
inline int interp(const dsp_vector* x, const dsp_vector* y, const dsp_vector* s, const dsp_vector* xi, dsp_vector* o, int f) { return dsp_interp(x, y, s, xi, o, f); }
inline int interp(const dspf_vector* x, const dspf_vector* y, const dspf_vector* s, const dspf_vector* xi, dspf_vector* o, int f) { return dspf_interp(x, y, s, xi, o, f); }
inline int cspline(const dsp_vector* x, const dsp_vector* y, const dsp_vector* s, const dsp_vector* xi, dsp_vector* o) { return dsp_cspline(x, y, s, xi, o); }
inline int cspline(const dspf_vector* x, const dspf_vector* y, const dspf_vector* s, const dspf_vector* xi, dspf_vector* o) { return dspf_cspline(x, y, s, xi, o); }
inline int cspline_2d(const dsp_vector* x, const dsp_vector* y, dsp_vector* s, double a, double b, int c0, int cn) { return dspb_cspline_2d(x, y, s, a, b, c0, cn); }
inline int cspline_2d(const dspf_vector* x, const dspf_vector* y, dspf_vector* s, float a, float b, int c0, int cn) { return dspfb_cspline_2d(x, y, s, a, b, c0, cn); }
inline int zinter(dsp_vector* v) { return dspi_zinter(v); }
inline int zinter(dspf_vector* v) { return dspfi_zinter(v); }
}  // namespace api
