// AVX2/FMA direct-sum kernel on a real response: the portable kernel's sums
// (taps outer over a block of outputs) with U registers of accumulators.
#include <immintrin.h>

#include "filter/fir.hpp"

namespace zf {
namespace {

template <class T> struct Ops;
template <> struct Ops<double> {
    using R = __m256d;
    static constexpr int W = 4;
    static R zero() noexcept { return _mm256_setzero_pd(); }
    static R splat(double g) noexcept { return _mm256_set1_pd(g); }
    static R load(const double* p) noexcept { return _mm256_loadu_pd(p); }
    static void store(double* p, R v) noexcept { _mm256_storeu_pd(p, v); }
    static R fma(R a, R b, R c) noexcept { return _mm256_fmadd_pd(a, b, c); }
};
template <> struct Ops<float> {
    using R = __m256;
    static constexpr int W = 8;
    static R zero() noexcept { return _mm256_setzero_ps(); }
    static R splat(float g) noexcept { return _mm256_set1_ps(g); }
    static R load(const float* p) noexcept { return _mm256_loadu_ps(p); }
    static void store(float* p, R v) noexcept { _mm256_storeu_ps(p, v); }
    static R fma(R a, R b, R c) noexcept { return _mm256_fmadd_ps(a, b, c); }
};

// U * W outputs from x with every tap.
template <class T, int U> inline void block(const T* x, const T* g, int m, std::ptrdiff_t s, T* y) noexcept {
    using O = Ops<T>;
    typename O::R acc[U];
    for (int u = 0; u < U; ++u) acc[u] = O::zero();
    for (int j = 0; j < m; ++j) {
        const typename O::R gj = O::splat(g[j]);
        const T* xp = x + s * j;
        for (int u = 0; u < U; ++u) acc[u] = O::fma(gj, O::load(xp + u * O::W), acc[u]);
    }
    for (int u = 0; u < U; ++u) O::store(y + u * O::W, acc[u]);
}

template <class T> void conv(const T* x, const T* g, int m, int s, T* y, std::ptrdiff_t n) noexcept {
    constexpr std::ptrdiff_t W = Ops<T>::W;
    std::ptrdiff_t i = 0;
    for (; i + 8 * W <= n; i += 8 * W) block<T, 8>(x + i, g, m, s, y + i);
    for (; i + W <= n; i += W) block<T, 1>(x + i, g, m, s, y + i);
    if (i < n) conv_portable<T>(x + i, g, m, s, y + i, n - i);
}

}  // namespace

void conv_avx2(const double* x, const double* g, int m, int s, double* y, std::ptrdiff_t n) noexcept { conv<double>(x, g, m, s, y, n); }
void conv_avx2(const float* x, const float* g, int m, int s, float* y, std::ptrdiff_t n) noexcept { conv<float>(x, g, m, s, y, n); }

}  // namespace zf
