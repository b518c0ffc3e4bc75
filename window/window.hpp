// Spectral windows: generation of every catalogue kind in the three
// normalisations, the per-precision window cache, the operations that window a
// vector in place, the name conversions, and the scale and noise bandwidth of
// a normalised window. The entry points used by the other subsystems (spectra,
// FIR design) are the templates below.
//
// Flags (the DSP_WINFLAG_ bits): the low two bits pick the normalisation
// (0 mean 1, 1 RMS 1, 2 peak 1, 3 refused), 4 symmetric (denominator N - 1),
// 8 width (the window spans `width` samples), 16 rotate (kind 0 only),
// 32 no rotation (the other kinds). A generated window has its peak at index
// N/2; the window operations rotate the product left by N/2 unless told not to.
#pragma once

#include "core/vector.hpp"

namespace zf {

enum WindowFlags : int {
    win_norm_mask = 3,
    win_mean = 0,
    win_rms = 1,
    win_peak = 2,
    win_symmetric = 4,
    win_width = 8,
    win_rotate = 16,
    win_no_rotate = 32,
};

// Whole numbers from a real width, tolerant of a few units in the last place:
// x <= 0 gives 0, x >= 2147483647 gives 2147483647.
int floor_tolerant(double x) noexcept;
int ceil_tolerant(double x) noexcept;

// Generates the window of a catalogue kind (0 .. 24) into w: points n, real,
// normalised as the flags ask, peak at index n/2, not rotated; flags 16 and 32
// are ignored. -1 for refused flags or kind, or a failed allocation.
template <class T> int make_window(Vec<T>* w, int n, int kind, int flags, T width) noexcept;

// The cached window of (kind, flags & 15, n, width when flag 8), generated on
// a miss; the samples as make_window writes them. Null on refusal or failure.
// The pointer stays valid until the next window request of this precision or
// the release of the caches.
template <class T> const T* cached_window(int kind, int flags, int n, T width) noexcept;
// Empties the window cache of the precision (registered with the cache registry).
template <class T> int release_windows() noexcept;

// Windowing in place (dspi_window2, dspi_window and the parametrised windows).
template <class T> int window2(Vec<T>* v, int kind, int flags, T width) noexcept;
template <class T> int window(Vec<T>* v, int kind, int flags) noexcept;
template <class T> int window_cos(Vec<T>* v, const Vec<T>* coef) noexcept;
template <class T> int window_gauss(Vec<T>* v, T sigma, int flags) noexcept;
template <class T> int window_kaiser(Vec<T>* v, T beta, int flags) noexcept;
template <class T> int window_sinc(Vec<T>* v, T span, T power, int flags) noexcept;
template <class T> int window_tukey(Vec<T>* v, T taper, int flags) noexcept;
template <class T> int window_fir(Vec<T>* v, int kind, T param) noexcept;

// Names (the same for both precisions).
int window_to_str(int kind, char* buffer, int size) noexcept;
int window_from_str(const char* text, int* kind) noexcept;

// Scale of the normalised window against the peak-1 window, and the
// equivalent noise bandwidth in bins.
template <class T> int window2_scale(T* result, int kind, int flags, int points, T width) noexcept;
template <class T> int window_scale(T* result, int kind, int flags, int points) noexcept;
template <class T> int window_enbw(T* result, int kind, int points) noexcept;
template <class T> int window2_enbw(T* result, int kind, int points, T width) noexcept;

namespace win {
// Aliasing corrections of a cosine sum of `terms` coefficients r sampled at n
// points over one period: the mean of the sampled sum is
// sum_{k mod n = 0} r_k, and its mean square, with r an RMS row, is S below.
template <class T> double alias_mean(const T* r, int terms, int n) noexcept;
template <class T> double alias_mean_square(const T* r, int terms, int n) noexcept;
// Mean and RMS of n samples, summed in double.
template <class T> void measure(const T* w, int n, double* mean, double* rms) noexcept;
}  // namespace win

}  // namespace zf
