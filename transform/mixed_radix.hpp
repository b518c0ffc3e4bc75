// The mixed-radix DFT of smooth lengths: every length whose prime factors are
// 2, 3, 5 and 7 runs as a chain of self-sorting (Stockham) passes of radix
// 8, 4, 2, 3, 5 and 7, natural order in and out, instead of the chirp-z
// convolution. The plan of the last length used (factors and twiddles, the
// twiddles computed in double by the library's sin/cos and rounded once) and
// a scratch block, kept apart, form one process-wide cache per precision,
// released by dsp_free_internal / dspf_free_internal.
#pragma once

#include <cstddef>

#include "core/vector.hpp"

namespace zf {

constexpr int kMixedMaxPasses = 32;

// One pass of radix p (2, 3, 4, 5, 7 or 8) on the n = p·m·s values of the chain: value
// k + s(j + mq) of the input (q < p) enters butterfly (j, k); its output r,
// rotated by e^(-j2π·jr/(pm)), goes to k + s(pj + r). s is the product of the
// radices before.
template <class T> struct MixedPass {
    int p, m, s;
    const T* tw;   // (p - 1)·m pairs (cos, -sin), pair (r - 1)·m + j for 1 <= r < p, j < m
    T roots[16];   // cos 2πk/p at [k], sin 2πk/p at [8 + k], k < p (used by odd p)
};

template <class T> struct MixedPlan {
    int n;
    int passes;
    MixedPass<T> pass[kMixedMaxPasses];
    T* tw;         // the twiddles of every pass in one block
};

// True when n >= 2 has no prime factor above 7.
bool mixed_radix_length(int n) noexcept;

// dspi_dft of a smooth length that is not a power of two: direction 0
// forward with 1/N, 1 inverse unscaled, any other value the forward sum
// without 1/N. The vector is widened to complex and delta becomes
// 1/(N·delta). -1 when the plan or the scratch cannot be allocated (the
// vector is then untouched).
template <class T> int mixed_dft(Vec<T>* v, int direction) noexcept;

// The plan of length n from the cache (built when n is new), or null when it
// cannot be allocated; for the tests of the kernels.
template <class T> const MixedPlan<T>* mixed_plan(int n) noexcept;
// How many plans of this precision have been built since the process started.
template <class T> int mixed_plan_builds() noexcept;

// Runs the passes of the plan on the n pairs at x, in place, with 4n scalars
// of scratch at work: the forward kernel, or the inverse one when inverse;
// the result is multiplied by f. The portable kernel, the AVX2/FMA one (call
// only when the processor has both) and the one chosen once at run time.
template <class T> using MixedRunFn = void (*)(const MixedPlan<T>& plan, T* x, T* work, bool inverse, T f) noexcept;
void mixed_run_portable(const MixedPlan<double>& plan, double* x, double* work, bool inverse, double f) noexcept;
void mixed_run_portable(const MixedPlan<float>& plan, float* x, float* work, bool inverse, float f) noexcept;
void mixed_run_avx2(const MixedPlan<double>& plan, double* x, double* work, bool inverse, double f) noexcept;
void mixed_run_avx2(const MixedPlan<float>& plan, float* x, float* work, bool inverse, float f) noexcept;
template <class T> MixedRunFn<T> mixed_runner() noexcept;

}  // namespace zf
