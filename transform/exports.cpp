// C entry points of the transforms: one line each, double then float, in
// header order.
#include "transform/fft.hpp"

extern "C" {

// ---- FFT
ZF_API int ZF_CALL dspi_fft (dsp_vector*  v, int direction) noexcept { return zf::fft<double>(v, direction); }
ZF_API int ZF_CALL dspfi_fft(dspf_vector* v, int direction) noexcept { return zf::fft<float>(v, direction); }
ZF_API int ZF_CALL dspi_rfft (dsp_vector*  v) noexcept { return zf::rfft<double>(v); }
ZF_API int ZF_CALL dspfi_rfft(dspf_vector* v) noexcept { return zf::rfft<float>(v); }
ZF_API int ZF_CALL dspi_irfft (dsp_vector*  v) noexcept { return zf::irfft<double>(v); }
ZF_API int ZF_CALL dspfi_irfft(dspf_vector* v) noexcept { return zf::irfft<float>(v); }
ZF_API int ZF_CALL dspi_bitrev (dsp_vector*  v) noexcept { return zf::bitrev<double>(v); }
ZF_API int ZF_CALL dspfi_bitrev(dspf_vector* v) noexcept { return zf::bitrev<float>(v); }
ZF_API int ZF_CALL dspi_bitrev_scale (dsp_vector*  v) noexcept { return zf::bitrev_scale<double>(v); }
ZF_API int ZF_CALL dspfi_bitrev_scale(dspf_vector* v) noexcept { return zf::bitrev_scale<float>(v); }
ZF_API int ZF_CDECL cf_dspi_fft(double* data, int points, int complex, int direction) noexcept { return zf::cf_fft(data, points, complex, direction); }

// ---- DFT, DCT, Hilbert transform and analytic signal

}  // extern "C"
