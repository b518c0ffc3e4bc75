// C entry points of the interpolation and splines: one line each, double then
// float, in header order.
#include "interp/interp.hpp"

extern "C" {

ZF_API int ZF_CALL dsp_interp (const dsp_vector*  x, const dsp_vector*  y, const dsp_vector*  y2, const dsp_vector*  xi, dsp_vector*  out, int flags) noexcept { return zf::interp<double>(x, y, y2, xi, out, flags); }
ZF_API int ZF_CALL dspf_interp(const dspf_vector* x, const dspf_vector* y, const dspf_vector* y2, const dspf_vector* xi, dspf_vector* out, int flags) noexcept { return zf::interp<float>(x, y, y2, xi, out, flags); }
ZF_API int ZF_CALL dsp_cspline (const dsp_vector*  x, const dsp_vector*  y, const dsp_vector*  y2, const dsp_vector*  xi, dsp_vector*  out) noexcept { return zf::cspline<double>(x, y, y2, xi, out); }
ZF_API int ZF_CALL dspf_cspline(const dspf_vector* x, const dspf_vector* y, const dspf_vector* y2, const dspf_vector* xi, dspf_vector* out) noexcept { return zf::cspline<float>(x, y, y2, xi, out); }
ZF_API int ZF_CALL dspb_cspline_2d (const dsp_vector*  x, const dsp_vector*  y, dsp_vector*  y2, double d0, double dn, int cond0, int condn) noexcept { return zf::cspline_2d<double>(x, y, y2, d0, dn, cond0, condn); }
ZF_API int ZF_CALL dspfb_cspline_2d(const dspf_vector* x, const dspf_vector* y, dspf_vector* y2, float  d0, float  dn, int cond0, int condn) noexcept { return zf::cspline_2d<float>(x, y, y2, d0, dn, cond0, condn); }
ZF_API int ZF_CALL dspi_zinter (dsp_vector*  v) noexcept { return zf::zinter<double>(v); }
ZF_API int ZF_CALL dspfi_zinter(dspf_vector* v) noexcept { return zf::zinter<float>(v); }

}  // extern "C"
