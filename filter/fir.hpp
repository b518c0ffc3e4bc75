// FIR design and filtering, the half-response filter and the hardware-filter
// model, with the history vectors and the library-wide scratch vectors that
// decimation and resampling share.
//
// Coefficients h[0..M-1] apply h[0] to the newest input; a history vector
// carries the last M-1 inputs, oldest first, so that filtering a signal block
// by block gives the output of one call on the whole signal.
//
// Decisions where the contract leaves room:
// - FFT convolution runs overlap-save with a transform length of about eight
//   times the taps (less for a short block), and the coefficient-transform
//   cache is keyed on the coefficient values and that length: a changed length
//   recomputes the transform instead of reusing one of another length, so a
//   streamed signal gives the whole-signal output (up to rounding) whatever
//   the block sizes.
// - The output may be the input record (built in the scratch vector, copied
//   at the end); a history that shares storage with the input, the output or
//   the coefficients, or an output that shares it with the coefficients, is
//   refused with -1 and nothing is changed.
// - sfir with odd and negate both set negates the mirrored taps only: the
//   shared centre tap keeps its sign (half [1, 2] gives [1, 2, -1]).
// - Fixed set 101 keeps the listed taps; expanded to 39 taps its gain is 1 to
//   0.2 cycles per sample and at most 0.00034 (-69.4 dB) from 0.3 on.
#pragma once

#include "core/vector.hpp"

namespace zf {

// dspc_fir: M = points taps of design kind 0-10 (DSP_FIR_*).
template <class T> int fir(Vec<T>* v, int kind, T f1, T f2) noexcept;
// dspc_fir2: fixed half responses 100 (12 values), 101 (20), 102 (5).
template <class T> int fir2(Vec<T>* v, int which) noexcept;

// dspd_fir: causal filtering, output as long as the input.
template <class T> int fir(const Vec<T>* in, Vec<T>* out, const Vec<T>* h, Vec<T>* hist) noexcept;
// dspd_sfir: filtering with the response expanded from one half (odd: the
// last half sample is the shared centre; negate: antisymmetric).
template <class T> int sfir(const Vec<T>* in, Vec<T>* out, const Vec<T>* half, int odd, int negate, Vec<T>* hist) noexcept;
// dspd_hwfilt / dspi_hwfilt: the shift-and-add cascade (kind 0 only).
template <class T> int hwfilt(const Vec<T>* in, Vec<T>* out, int kind, Vec<T>* hist) noexcept;
template <class T> int hwfilt(Vec<T>* v, int kind) noexcept;

// Shared with decimation and resampling (scratch.cpp).
// Prepares a history vector for input in: delta and kind of the input, then
// zero-padded or truncated at the end to length samples. Null is accepted (0).
template <class T> int prepare_history(Vec<T>* hist, const Vec<T>& in, int length) noexcept;
// Sizes out as the input (points, complex when in or extra_complex is,
// delta) with dsp_alloc; out is not the input's record.
template <class T> int prepare_output(const Vec<T>& in, Vec<T>* out, bool extra_complex) noexcept;
// The library-wide vector in which an in-place result is built; registered
// for release by dsp_free_internal. Its contents are the caller's until the
// next filter call.
template <class T> Vec<T>* scratch() noexcept;
// The library-wide default history of the hardware filter.
template <class T> Vec<T>* hw_default_history() noexcept;

// The filter core (fir_filter.cpp): dspd_fir, with direct sums forced when
// direct is set (the half-response filter's short kernels).
template <class T> int fir_filter(const Vec<T>* in, Vec<T>* out, const Vec<T>* h, Vec<T>* hist, bool direct) noexcept;
// After a block of n samples x, the history holds the last hist->points
// inputs: shifted left by n with the new samples appended, or the block's tail.
template <class T> void update_history(Vec<T>* hist, const T* x, int n) noexcept;
// An input block with the past samples of its history before it.
template <class T> struct Signal {
    const T* data;       // n samples (pairs when width is 2)
    int n;
    int width;           // scalars per sample
    const T* history;    // past samples, oldest first, or null for zeros
    int past;            // samples the history holds
    // Samples first .. first + count - 1 into dst: the history below 0, zeros
    // before it and past the end of the block.
    void gather(T* dst, int first, int count) const noexcept;
    // Asks the processor to start loading samples first .. first + count - 1.
    void prefetch(int first, int count) const noexcept;
};

// Direct-sum kernel on a real response (fir_kernels*.cpp): for i in [0, n),
// y[i] = sum over j < m of g[j] x[i + s j], with g the taps reversed (g[j] =
// h[m-1-j]) and s = 1 for real, 2 for interleaved complex data.
template <class T> using ConvFn = void (*)(const T* x, const T* g, int m, int s, T* y, std::ptrdiff_t n) noexcept;
template <class T> void conv_portable(const T* x, const T* g, int m, int s, T* y, std::ptrdiff_t n) noexcept;
template <class T> ConvFn<T> conv_kernel() noexcept;   // the fastest the processor runs, chosen once
void conv_avx2(const double* x, const double* g, int m, int s, double* y, std::ptrdiff_t n) noexcept;
void conv_avx2(const float* x, const float* g, int m, int s, float* y, std::ptrdiff_t n) noexcept;
void conv_avx512(const double* x, const double* g, int m, int s, double* y, std::ptrdiff_t n) noexcept;
void conv_avx512(const float* x, const float* g, int m, int s, float* y, std::ptrdiff_t n) noexcept;

}  // namespace zf
