// The FFT engine's kernels on raw interleaved complex data. The portable
// versions are the reference; the AVX2/FMA ones (fft_avx2.cpp) are chosen once
// at run time when the processor has both.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zf {

// Split-radix decimation-in-frequency transform of n complex values at x
// (n a power of two), natural order in, bit-reversed order out, no scaling.
// tw is the twiddle table of a length n * stride (six scalars per entry), read
// at every stride-th entry. Forward uses the kernel e^(-j 2 pi nk/n), inverse
// the conjugate.
template <class T> void dif_portable(T* x, std::ptrdiff_t n, const T* tw, std::ptrdiff_t stride, bool inverse) noexcept;

// The vectorised transform: as dif_portable with stride 1, for n >= 4, on the level
// twiddles lv (tables.hpp) of width vector_width<T>(). Null when the machine
// lacks the instruction set; chosen once.
template <class T> using VectorDifFn = void (*)(T* x, std::ptrdiff_t n, const T* lv, bool inverse) noexcept;
template <class T> VectorDifFn<T> vector_dif() noexcept;
template <class T> constexpr int vector_width() noexcept { return 32 / (2 * static_cast<int>(sizeof(T))); }

// The AVX2/FMA kernels (fft_avx2.cpp); call only when the processor has both.
void dif_avx2(double* x, std::ptrdiff_t n, const double* lv, bool inverse) noexcept;
void dif_avx2(float* x, std::ptrdiff_t n, const float* lv, bool inverse) noexcept;

// Bit reversal of 2^bits complex values (bits >= 4), times f when scale; the
// vectorised one is null without the instruction set.
template <class T> using VectorReverseFn = void (*)(T* x, int bits, bool scale, T f) noexcept;
template <class T> VectorReverseFn<T> vector_reverse() noexcept;
void reverse_avx2(double* x, int bits, bool scale, double f) noexcept;
void reverse_avx2(float* x, int bits, bool scale, float f) noexcept;

// The passes between z[m] = x[2m] + j x[2m+1], m < h = n/2, and the real
// transform of the n samples x. split_real turns Z, the (scaled) transform of
// z, into the bins 0 .. h in place (x holds n + 2 scalars): with
// E = (Z[k] + conj Z[h-k])/2, O = (Z[k] - conj Z[h-k])/2j and
// R = e^(-j 2 pi k/n) O, X[k] = E + R and X[h-k] = conj(E - R). join_real is
// its inverse without the 1/2 (only the real parts of bins 0 and h count):
// Z[k] = E' + j O' with E' = X[k] + conj X[h-k] and
// O' = (X[k] - conj X[h-k]) e^(+j 2 pi k/n), whose unscaled inverse transform
// of h points is z. tw is the table of length n; lv the level table of block
// size n for the vectorised passes, or null for the portable ones.
template <class T> void split_real(T* x, std::ptrdiff_t n, const T* tw, const T* lv) noexcept;
template <class T> void join_real(T* x, std::ptrdiff_t n, const T* tw, const T* lv) noexcept;

// The vectorised middle of the passes between a complex transform of n/2
// points and the real transform of n points (see split_real / join_real in
// fft.cpp): bins 1 .. n/4 - 1 with their partners, for n/4 >= vector_width;
// lv is the level table of block size n. Null without the instruction set.
template <class T> using VectorPassFn = void (*)(T* x, std::ptrdiff_t n, const T* lv) noexcept;
template <class T> VectorPassFn<T> vector_split() noexcept;
template <class T> VectorPassFn<T> vector_join() noexcept;
void split_avx2(double* x, std::ptrdiff_t n, const double* lv) noexcept;
void split_avx2(float* x, std::ptrdiff_t n, const float* lv) noexcept;
void join_avx2(double* x, std::ptrdiff_t n, const double* lv) noexcept;
void join_avx2(float* x, std::ptrdiff_t n, const float* lv) noexcept;

// Exchanges the elements of every pair of a swap list (width scalars each).
template <class T> void swap_pairs(T* x, const std::int32_t* swaps, int width) noexcept;
// The same, multiplying both by f, then multiplies every fixed point by f.
template <class T> void swap_pairs_scale(T* x, const std::int32_t* swaps, const std::int32_t* fixed, int width, T f) noexcept;

// The same permutation as a swap list of 2^bits elements (bits >= 2 * 4),
// walked block by block so that every access runs along 16 consecutive
// elements: fast when the data outgrow the cache. Multiplies by f when scale.
template <class T> void reverse_blocked(T* x, int bits, int width, bool scale, T f) noexcept;
// The permutation (times f when scale) by whichever walk suits the length:
// the swap list (and fixed-point list when scaling) for short data, blocks for long.
template <class T> void bit_reverse(T* x, int bits, int width, const std::int32_t* swaps, const std::int32_t* fixed,
                                    bool scale, T f) noexcept;
// Blocks pay once the data outgrow the first-level cache (32 KiB).
template <class T> constexpr int blocked_min_bits() noexcept { return sizeof(T) == 4 ? 13 : 12; }

}  // namespace zf
