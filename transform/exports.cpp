// C entry points of the transforms: one line each, double then float, in
// header order.
#include "transform/dft.hpp"

using namespace zf;

extern "C" {

// ---- FFT

// ---- DFT, DCT, Hilbert transform and analytic signal
ZF_API int ZF_CALL dspi_dft (dsp_vector*  v, int direction) noexcept { return dft<double>(v, direction); }
ZF_API int ZF_CALL dspfi_dft(dspf_vector* v, int direction) noexcept { return dft<float>(v, direction); }
ZF_API int ZF_CALL dspi_rdft (dsp_vector*  v) noexcept { return rdft<double>(v); }
ZF_API int ZF_CALL dspfi_rdft(dspf_vector* v) noexcept { return rdft<float>(v); }
ZF_API int ZF_CALL dspi_irdft (dsp_vector*  v, int odd) noexcept { return irdft<double>(v, odd); }
ZF_API int ZF_CALL dspfi_irdft(dspf_vector* v, int odd) noexcept { return irdft<float>(v, odd); }
ZF_API int ZF_CALL dspi_orecon (dsp_vector*  v, int odd) noexcept { return orecon<double>(v, odd); }
ZF_API int ZF_CALL dspfi_orecon(dspf_vector* v, int odd) noexcept { return orecon<float>(v, odd); }
ZF_API int ZF_CALL dspi_recon (dsp_vector*  v) noexcept { return recon<double>(v); }
ZF_API int ZF_CALL dspfi_recon(dspf_vector* v) noexcept { return recon<float>(v); }
ZF_API int ZF_CALL dspi_dct (dsp_vector*  v, int flags) noexcept { return dct<double>(v, flags); }
ZF_API int ZF_CALL dspfi_dct(dspf_vector* v, int flags) noexcept { return dct<float>(v, flags); }
ZF_API int ZF_CALL dspi_hilbert (dsp_vector*  v) noexcept { return hilbert<double>(v); }
ZF_API int ZF_CALL dspfi_hilbert(dspf_vector* v) noexcept { return hilbert<float>(v); }
ZF_API int ZF_CALL dspi_analytic (dsp_vector*  v) noexcept { return analytic<double>(v); }
ZF_API int ZF_CALL dspfi_analytic(dspf_vector* v) noexcept { return analytic<float>(v); }

}  // extern "C"
