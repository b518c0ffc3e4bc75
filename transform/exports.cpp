// C entry points of the transforms: one line each, double then float, in
// header order.
#include "transform/dft.hpp"
#include "transform/fft.hpp"
#include "transform/handle_fft.hpp"

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


// ---- handle-based spectra, averaging and correlation
ZF_API int ZF_CALL dsph_fft (const dsp_vector*  in, dsp_vector*  out, int points, double fraction, int kind, int flags) noexcept { return zf::fft<double>(in, out, points, fraction, kind, flags); }
ZF_API int ZF_CALL dspfh_fft(const dspf_vector* in, dspf_vector* out, int points, float  fraction, int kind, int flags) noexcept { return zf::fft<float>(in, out, points, fraction, kind, flags); }
ZF_API int ZF_CALL dsph_dft (const dsp_vector*  in, dsp_vector*  out, int kind, int flags) noexcept { return zf::dft<double>(in, out, kind, flags); }
ZF_API int ZF_CALL dspfh_dft(const dspf_vector* in, dspf_vector* out, int kind, int flags) noexcept { return zf::dft<float>(in, out, kind, flags); }
ZF_API int ZF_CDECL cf_dsph_fft(const double* in, double* out, int points, int complex, double fraction, int kind, int flags) noexcept { return zf::cf_fft(in, out, points, complex, fraction, kind, flags); }
ZF_API int ZF_CALL dsph_avg (const dsp_vector*  in, dsp_vector*  acc, dsp_vector*  scratch, int flags, int count, int n, double weight, double limit) noexcept { return zf::avg<double>(in, acc, scratch, flags, count, n, weight, limit); }
ZF_API int ZF_CALL dspfh_avg(const dspf_vector* in, dspf_vector* acc, dspf_vector* scratch, int flags, int count, int n, float  weight, float  limit) noexcept { return zf::avg<float>(in, acc, scratch, flags, count, n, weight, limit); }
ZF_API int ZF_CALL dsph_corr (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  out, dsp_vector*  scratch, int length, int half) noexcept { return zf::corr<double>(a, b, out, scratch, length, half); }
ZF_API int ZF_CALL dspfh_corr(const dspf_vector* a, const dspf_vector* b, dspf_vector* out, dspf_vector* scratch, int length, int half) noexcept { return zf::corr<float>(a, b, out, scratch, length, half); }
ZF_API int ZF_CALL dspb_corr (const dsp_vector*  a, const dsp_vector*  b, dsp_vector*  out, int length, int half) noexcept { return zf::corr<double>(a, b, out, nullptr, length, half); }
ZF_API int ZF_CALL dspfb_corr(const dspf_vector* a, const dspf_vector* b, dspf_vector* out, int length, int half) noexcept { return zf::corr<float>(a, b, out, nullptr, length, half); }

}  // extern "C"
