// Test-side overloads of the binary operations and of the rearrangement,
// editing and calculus functions, picked by record type.
#pragma once
#include <zifaif/dsp.h>

namespace api {
// Rearrangement, editing and calculus.
inline int rev(dsp_vector* v) { return dspi_rev(v); }
inline int rev(dspf_vector* v) { return dspfi_rev(v); }
inline int shift(dsp_vector* v, int n) { return dspi_shift(v, n); }
inline int shift(dspf_vector* v, int n) { return dspfi_shift(v, n); }
inline int shuffle(dsp_vector* v) { return dspi_shuffle(v); }
inline int shuffle(dspf_vector* v) { return dspfi_shuffle(v); }
inline int sort(dsp_vector* v) { return dspi_sort(v); }
inline int sort(dspf_vector* v) { return dspfi_sort(v); }
inline int swap_halves(dsp_vector* v) { return dspi_swap_halves(v); }
inline int swap_halves(dspf_vector* v) { return dspfi_swap_halves(v); }
inline int swap_halves2(dsp_vector* v) { return dspi_swap_halves2(v); }
inline int swap_halves2(dspf_vector* v) { return dspfi_swap_halves2(v); }
inline int zero(dsp_vector* v) { return dspi_zero(v); }
inline int zero(dspf_vector* v) { return dspfi_zero(v); }
inline int zpad(dsp_vector* v, int n) { return dspi_zpad(v, n); }
inline int zpad(dspf_vector* v, int n) { return dspfi_zpad(v, n); }
}  // namespace api
