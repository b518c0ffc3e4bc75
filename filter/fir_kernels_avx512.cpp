// AVX-512 registers for the blocked direct-sum kernel of fir_blocked.hpp.
#include <immintrin.h>

#include "filter/fir_blocked.hpp"

namespace zf {
namespace {

template <class T> struct Ops;
template <> struct Ops<double> {
    using R = __m512d;
    static constexpr int W = 8;
    static R zero() noexcept { return _mm512_setzero_pd(); }
    static R set1(double g) noexcept { return _mm512_set1_pd(g); }
    static R load(const double* p) noexcept { return _mm512_loadu_pd(p); }
    static void store(double* p, R v) noexcept { _mm512_storeu_pd(p, v); }
    static R fma(R a, R b, R c) noexcept { return _mm512_fmadd_pd(a, b, c); }
};
template <> struct Ops<float> {
    using R = __m512;
    static constexpr int W = 16;
    static R zero() noexcept { return _mm512_setzero_ps(); }
    static R set1(float g) noexcept { return _mm512_set1_ps(g); }
    static R load(const float* p) noexcept { return _mm512_loadu_ps(p); }
    static void store(float* p, R v) noexcept { _mm512_storeu_ps(p, v); }
    static R fma(R a, R b, R c) noexcept { return _mm512_fmadd_ps(a, b, c); }
};

}  // namespace

void conv_avx512(const double* x, const double* g, int m, int s, double* y, std::ptrdiff_t n) noexcept { blocked::conv<Ops<double>>(x, g, m, s, y, n); }
void conv_avx512(const float* x, const float* g, int m, int s, float* y, std::ptrdiff_t n) noexcept { blocked::conv<Ops<float>>(x, g, m, s, y, n); }

}  // namespace zf
