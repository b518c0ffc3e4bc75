// The FFT engine's kernels on raw interleaved complex data. The portable
// versions are the reference; faster ones for wider instruction sets sit in
// fft_avx2.cpp / fft_avx512.cpp and are chosen once at run time.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zf {

// Split-radix decimation-in-frequency transform of n complex values at x
// (n a power of two), natural order in, bit-reversed order out, no scaling.
// tw is the twiddle table of a length n * stride (six scalars per entry), read
// at every stride-th entry. Forward uses the kernel e^(-j 2 pi nk/n), inverse
// the conjugate.
template <class T> void dif(T* x, std::ptrdiff_t n, const T* tw, std::ptrdiff_t stride, bool inverse) noexcept;
template <class T> void dif_portable(T* x, std::ptrdiff_t n, const T* tw, std::ptrdiff_t stride, bool inverse) noexcept;

// The vectorised transform: as dif with stride 1, for n >= 4, on the level
// twiddles lv (tables.hpp) of width vector_width<T>(). Null when the machine
// lacks the instruction set; chosen once.
template <class T> using VectorDifFn = void (*)(T* x, std::ptrdiff_t n, const T* lv, bool inverse) noexcept;
template <class T> VectorDifFn<T> vector_dif() noexcept;
template <class T> constexpr int vector_width() noexcept { return 32 / (2 * static_cast<int>(sizeof(T))); }

// The AVX2/FMA kernels (fft_avx2.cpp); call only when the processor has both.
void dif_avx2(double* x, std::ptrdiff_t n, const double* lv, bool inverse) noexcept;
void dif_avx2(float* x, std::ptrdiff_t n, const float* lv, bool inverse) noexcept;

// Exchanges the elements of every pair of a swap list (width scalars each).
template <class T> void swap_pairs(T* x, const std::int32_t* swaps, int width) noexcept;
// The same, multiplying both by f, then multiplies every fixed point by f.
template <class T> void swap_pairs_scale(T* x, const std::int32_t* swaps, const std::int32_t* fixed, int width, T f) noexcept;

}  // namespace zf
