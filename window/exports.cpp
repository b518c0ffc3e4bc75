// C entry points of the windows: one line each, double then float, in header order.
#include "window/window.hpp"

extern "C" {

// ---- catalogue and generation
ZF_API int ZF_CALL dspi_window2 (dsp_vector*  v, int kind, int flags, double width) noexcept { return zf::window2<double>(v, kind, flags, width); }
ZF_API int ZF_CALL dspfi_window2(dspf_vector* v, int kind, int flags, float  width) noexcept { return zf::window2<float>(v, kind, flags, width); }
ZF_API int ZF_CALL dspi_window (dsp_vector*  v, int kind, int flags) noexcept { return zf::window<double>(v, kind, flags); }
ZF_API int ZF_CALL dspfi_window(dspf_vector* v, int kind, int flags) noexcept { return zf::window<float>(v, kind, flags); }
ZF_API int ZF_CALL dspi_window_cos (dsp_vector*  v, const dsp_vector*  coef) noexcept { return zf::window_cos<double>(v, coef); }
ZF_API int ZF_CALL dspfi_window_cos(dspf_vector* v, const dspf_vector* coef) noexcept { return zf::window_cos<float>(v, coef); }
ZF_API int ZF_CALL dspi_window_gauss (dsp_vector*  v, double sigma, int flags) noexcept { return zf::window_gauss<double>(v, sigma, flags); }
ZF_API int ZF_CALL dspfi_window_gauss(dspf_vector* v, float  sigma, int flags) noexcept { return zf::window_gauss<float>(v, sigma, flags); }
ZF_API int ZF_CALL dspi_window_kaiser (dsp_vector*  v, double beta, int flags) noexcept { return zf::window_kaiser<double>(v, beta, flags); }
ZF_API int ZF_CALL dspfi_window_kaiser(dspf_vector* v, float  beta, int flags) noexcept { return zf::window_kaiser<float>(v, beta, flags); }
ZF_API int ZF_CALL dspi_window_sinc (dsp_vector*  v, double span, double power, int flags) noexcept { return zf::window_sinc<double>(v, span, power, flags); }
ZF_API int ZF_CALL dspfi_window_sinc(dspf_vector* v, float  span, float  power, int flags) noexcept { return zf::window_sinc<float>(v, span, power, flags); }
ZF_API int ZF_CALL dspi_window_tukey (dsp_vector*  v, double taper, int flags) noexcept { return zf::window_tukey<double>(v, taper, flags); }
ZF_API int ZF_CALL dspfi_window_tukey(dspf_vector* v, float  taper, int flags) noexcept { return zf::window_tukey<float>(v, taper, flags); }
ZF_API int ZF_CALL dspi_window_fir (dsp_vector*  v, int kind, double param) noexcept { return zf::window_fir<double>(v, kind, param); }
ZF_API int ZF_CALL dspfi_window_fir(dspf_vector* v, int kind, float  param) noexcept { return zf::window_fir<float>(v, kind, param); }
ZF_API int ZF_CALL dsp_window_to_str (int kind, char* buffer, int size) noexcept { return zf::window_to_str(kind, buffer, size); }
ZF_API int ZF_CALL dspf_window_to_str(int kind, char* buffer, int size) noexcept { return zf::window_to_str(kind, buffer, size); }
ZF_API int ZF_CALL dsp_window_from_str (const char* text, int* kind) noexcept { return zf::window_from_str(text, kind); }
ZF_API int ZF_CALL dspf_window_from_str(const char* text, int* kind) noexcept { return zf::window_from_str(text, kind); }

// ---- scaling and noise bandwidth
ZF_API int ZF_CALL dsp_window2_scale (double* result, int kind, int flags, int points, double width) noexcept { return zf::window2_scale<double>(result, kind, flags, points, width); }
ZF_API int ZF_CALL dspf_window2_scale(float*  result, int kind, int flags, int points, float  width) noexcept { return zf::window2_scale<float>(result, kind, flags, points, width); }
ZF_API int ZF_CALL dsp_window_scale (double* result, int kind, int flags, int points) noexcept { return zf::window_scale<double>(result, kind, flags, points); }
ZF_API int ZF_CALL dspf_window_scale(float*  result, int kind, int flags, int points) noexcept { return zf::window_scale<float>(result, kind, flags, points); }
ZF_API int ZF_CALL dsp_window_enbw (double* result, int kind, int points) noexcept { return zf::window_enbw<double>(result, kind, points); }
ZF_API int ZF_CALL dspf_window_enbw(float*  result, int kind, int points) noexcept { return zf::window_enbw<float>(result, kind, points); }
ZF_API int ZF_CALL dsp_window2_enbw (double* result, int kind, int points, double width) noexcept { return zf::window2_enbw<double>(result, kind, points, width); }
ZF_API int ZF_CALL dspf_window2_enbw(float*  result, int kind, int points, float  width) noexcept { return zf::window2_enbw<float>(result, kind, points, width); }

}  // extern "C"
