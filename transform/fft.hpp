// The FFT engine: in-place split-radix transforms of power-of-two length on the
// signal vector. The forward transform carries 1/N and the kernel
// e^(-j 2 pi nk/N); the inverse is unscaled. After a transform delta becomes
// 1/(N delta) (1e100 / 1e15 when delta is 0).
#pragma once
#include "core/vector.hpp"
namespace zf {
template <class T> int fft(Vec<T>* v, int direction) noexcept;   // dspi_fft: direction 0 forward (carries 1/N), else inverse
template <class T> int rfft(Vec<T>* v) noexcept;                  // dspi_rfft
template <class T> int irfft(Vec<T>* v) noexcept;                 // dspi_irfft
template <class T> int bitrev(Vec<T>* v) noexcept;                // dspi_bitrev
template <class T> int bitrev_scale(Vec<T>* v) noexcept;          // dspi_bitrev_scale

// cf_dspi_fft: dspi_fft on a caller's array. A real array (complex 0) of two
// or more points has no room for the complex result: -1, array untouched.
int cf_fft(double* data, int points, int complex, int direction) noexcept;

// log2 n when n is a positive power of two, else -1.
int log2_exact(int n) noexcept;
// delta <- 1/(n delta), with the precision's huge value for delta 0.
template <class T> void invert_delta(Vec<T>& v, int n) noexcept;
}
