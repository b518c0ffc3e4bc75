// Test-side overloads of the DFT, DCT, Hilbert and analytic-signal entry
// points, picked by record type.
#pragma once
#include <zifaif/dsp.h>

namespace api {
inline int dft(dsp_vector* v, int d) { return dspi_dft(v, d); }
inline int dft(dspf_vector* v, int d) { return dspfi_dft(v, d); }
inline int rdft(dsp_vector* v) { return dspi_rdft(v); }
inline int rdft(dspf_vector* v) { return dspfi_rdft(v); }
inline int irdft(dsp_vector* v, int odd) { return dspi_irdft(v, odd); }
inline int irdft(dspf_vector* v, int odd) { return dspfi_irdft(v, odd); }
inline int orecon(dsp_vector* v, int odd) { return dspi_orecon(v, odd); }
inline int orecon(dspf_vector* v, int odd) { return dspfi_orecon(v, odd); }
inline int recon(dsp_vector* v) { return dspi_recon(v); }
inline int recon(dspf_vector* v) { return dspfi_recon(v); }
inline int dct(dsp_vector* v, int flags) { return dspi_dct(v, flags); }
inline int dct(dspf_vector* v, int flags) { return dspfi_dct(v, flags); }
inline int hilbert(dsp_vector* v) { return dspi_hilbert(v); }
inline int hilbert(dspf_vector* v) { return dspfi_hilbert(v); }
inline int analytic(dsp_vector* v) { return dspi_analytic(v); }
inline int analytic(dspf_vector* v) { return dspfi_analytic(v); }
template <class V> int free_internal();
template <> inline int free_internal<dsp_vector>() { return dsp_free_internal(); }
template <> inline int free_internal<dspf_vector>() { return dspf_free_internal(); }
}  // namespace api
