// C entry points of the transforms: one line each, double then float, in
// header order.
#include "transform/dft.hpp"
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
ZF_API int ZF_CALL dspi_dft (dsp_vector*  v, int direction) noexcept { return zf::dft<double>(v, direction); }
ZF_API int ZF_CALL dspfi_dft(dspf_vector* v, int direction) noexcept { return zf::dft<float>(v, direction); }
ZF_API int ZF_CALL dspi_rdft (dsp_vector*  v) noexcept { return zf::rdft<double>(v); }
ZF_API int ZF_CALL dspfi_rdft(dspf_vector* v) noexcept { return zf::rdft<float>(v); }
ZF_API int ZF_CALL dspi_irdft (dsp_vector*  v, int odd) noexcept { return zf::irdft<double>(v, odd); }
ZF_API int ZF_CALL dspfi_irdft(dspf_vector* v, int odd) noexcept { return zf::irdft<float>(v, odd); }
ZF_API int ZF_CALL dspi_orecon (dsp_vector*  v, int odd) noexcept { return zf::orecon<double>(v, odd); }
ZF_API int ZF_CALL dspfi_orecon(dspf_vector* v, int odd) noexcept { return zf::orecon<float>(v, odd); }
ZF_API int ZF_CALL dspi_recon (dsp_vector*  v) noexcept { return zf::recon<double>(v); }
ZF_API int ZF_CALL dspfi_recon(dspf_vector* v) noexcept { return zf::recon<float>(v); }
ZF_API int ZF_CALL dspi_dct (dsp_vector*  v, int flags) noexcept { return zf::dct<double>(v, flags); }
ZF_API int ZF_CALL dspfi_dct(dspf_vector* v, int flags) noexcept { return zf::dct<float>(v, flags); }
ZF_API int ZF_CALL dspi_hilbert (dsp_vector*  v) noexcept { return zf::hilbert<double>(v); }
ZF_API int ZF_CALL dspfi_hilbert(dspf_vector* v) noexcept { return zf::hilbert<float>(v); }
ZF_API int ZF_CALL dspi_analytic (dsp_vector*  v) noexcept { return zf::analytic<double>(v); }
ZF_API int ZF_CALL dspfi_analytic(dspf_vector* v) noexcept { return zf::analytic<float>(v); }

}  // extern "C"
