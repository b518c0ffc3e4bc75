// The AVX2/FMA registers of each precision and their common operations, for
// the kernels compiled for AVX2 (include only from *_avx2.cpp files): R the
// register, W its lanes, loads and stores unaligned, fma(a, b, c) = a·b + c,
// fms(a, b, c) = a·b - c. A kernel adds the shuffles it needs in a struct of
// its own derived from these. In an unnamed namespace, so that every file
// keeps its own copies, compiled with its own instruction-set options.
#pragma once

#include <immintrin.h>

namespace zf::avx2 {
namespace {

template <class T> struct Reg;

template <> struct Reg<double> {
    using R = __m256d;
    static constexpr int W = 4;
    static R zero() noexcept { return _mm256_setzero_pd(); }
    static R set1(double x) noexcept { return _mm256_set1_pd(x); }
    static R load(const double* p) noexcept { return _mm256_loadu_pd(p); }
    static void store(double* p, R v) noexcept { _mm256_storeu_pd(p, v); }
    static R add(R a, R b) noexcept { return _mm256_add_pd(a, b); }
    static R sub(R a, R b) noexcept { return _mm256_sub_pd(a, b); }
    static R mul(R a, R b) noexcept { return _mm256_mul_pd(a, b); }
    static R fma(R a, R b, R c) noexcept { return _mm256_fmadd_pd(a, b, c); }
    static R fms(R a, R b, R c) noexcept { return _mm256_fmsub_pd(a, b, c); }
};

template <> struct Reg<float> {
    using R = __m256;
    static constexpr int W = 8;
    static R zero() noexcept { return _mm256_setzero_ps(); }
    static R set1(float x) noexcept { return _mm256_set1_ps(x); }
    static R load(const float* p) noexcept { return _mm256_loadu_ps(p); }
    static void store(float* p, R v) noexcept { _mm256_storeu_ps(p, v); }
    static R add(R a, R b) noexcept { return _mm256_add_ps(a, b); }
    static R sub(R a, R b) noexcept { return _mm256_sub_ps(a, b); }
    static R mul(R a, R b) noexcept { return _mm256_mul_ps(a, b); }
    static R fma(R a, R b, R c) noexcept { return _mm256_fmadd_ps(a, b, c); }
    static R fms(R a, R b, R c) noexcept { return _mm256_fmsub_ps(a, b, c); }
};

}  // namespace
}  // namespace zf::avx2
