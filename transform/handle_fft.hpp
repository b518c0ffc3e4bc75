// One-call spectra of a record (select, window, scale, pad, transform) and
// their inverses, one step of averaging successive results, and correlation
// through the FFT. Each reads its inputs and writes a separate output record
// (which may be an input); 0, or -1 for a bad record, a refused argument or a
// failed sub-operation.
#pragma once

#include "core/vector.hpp"

namespace zf {

// Flags of the spectra.
enum SpectrumFlags : int {
    spec_inverse = 1,      // spectrum to record
    spec_two_sided = 2,    // no factor 2; complex transform, DC in the middle
    spec_by_length = 4,    // scale by the length instead of 2; centred padding
    spec_no_window = 8,    // only the rotation the window would have done
    spec_centred = 16,     // window of kind 0 rotated; centred padding
    spec_complex = 32,     // inverse only: complex result
    spec_raw = 128,        // plain zero-padded transform
};

// dsph_fft: points and fraction select and pad the record to a power of two.
template <class T> int fft(const Vec<T>* in, Vec<T>* out, int points, T fraction, int kind, int flags) noexcept;
// dsph_dft: the same for any length, the whole record.
template <class T> int dft(const Vec<T>* in, Vec<T>* out, int kind, int flags) noexcept;
// cf_dsph_fft: dsph_fft between caller arrays.
int cf_fft(const double* in, double* out, int points, int complex, double fraction, int kind, int flags) noexcept;

// Flags of the averaging step: mode in the low four bits.
enum AverageFlags : int {
    avg_mode_mask = 15,
    avg_copy = 0, avg_mean = 1, avg_max = 2, avg_min = 3,
    avg_harmonic = 4, avg_geometric = 5, avg_hold = 6,
    avg_limit = 16,        // the weight 1/count stops falling at 1/limit
    avg_power = 32,        // average the magnitude squared of the input
};
// dsph_avg: folds in into acc as record number count of the run.
template <class T> int avg(const Vec<T>* in, Vec<T>* acc, Vec<T>* scratch, int flags, int count, int n, T weight, T limit) noexcept;

// dsph_corr: sum over the first `length` samples of a against b at every lag
// that stays inside b, through one FFT of the power of two >= b's points.
template <class T> int corr(const Vec<T>* a, const Vec<T>* b, Vec<T>* out, Vec<T>* scratch, int length, int half) noexcept;

}  // namespace zf
