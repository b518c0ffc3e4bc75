// Test-side overloads of the FFT entry points, picked by record type.
#pragma once
#include <zifaif/dsp.h>

namespace api {
inline int fft(dsp_vector* v, int d) { return dspi_fft(v, d); }
inline int fft(dspf_vector* v, int d) { return dspfi_fft(v, d); }
inline int rfft(dsp_vector* v) { return dspi_rfft(v); }
inline int rfft(dspf_vector* v) { return dspfi_rfft(v); }
inline int irfft(dsp_vector* v) { return dspi_irfft(v); }
inline int irfft(dspf_vector* v) { return dspfi_irfft(v); }
inline int bitrev(dsp_vector* v) { return dspi_bitrev(v); }
inline int bitrev(dspf_vector* v) { return dspfi_bitrev(v); }
inline int bitrev_scale(dsp_vector* v) { return dspi_bitrev_scale(v); }
inline int bitrev_scale(dspf_vector* v) { return dspfi_bitrev_scale(v); }
inline int free_internal(const dsp_vector*) { return dsp_free_internal(); }
inline int free_internal(const dspf_vector*) { return dspf_free_internal(); }
}  // namespace api
