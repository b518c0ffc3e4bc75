// The passes of the mixed-radix DFT compiled for AVX2 with fused
// multiply-add: the same loops as the portable build, vectorised four doubles
// or eight floats wide. Called only when the processor has both.
//
// Two passes of the double kernel are written out with intrinsics, because
// the compiler's versions scatter single values: the first pass of radix 4 or
// 8, whose butterfly j writes the p consecutive values p·j + r (it runs four
// butterflies j side by side and transposes 4 x 4 blocks on the way out), and
// the last pass, which writes interleaved pairs (it runs four consecutive k
// side by side and interleaves the real and imaginary registers).
#include <immintrin.h>

#include <type_traits>

#include "transform/mixed_radix_kernel.hpp"

namespace zf {
namespace {

using V = __m256d;

// The four pairs at p, p + 2, p + 4, p + 6 taken apart: lanes j0 j2 j1 j3.
inline void load_split(const double* p, V& re, V& im) noexcept {
    const V a = _mm256_loadu_pd(p), b = _mm256_loadu_pd(p + 4);
    re = _mm256_unpacklo_pd(a, b);
    im = _mm256_unpackhi_pd(a, b);
}

// Rows a, b, c, d (the values r .. r + 3 of four butterflies, lanes j0 j2 j1
// j3 as load_split leaves them) stored as the four values r .. r + 3 of
// butterflies j0 .. j3, at out + stride·j.
inline void store_transposed(double* out, std::ptrdiff_t stride, V a, V b, V c, V d) noexcept {
    const V t0 = _mm256_unpacklo_pd(a, b), t1 = _mm256_unpackhi_pd(a, b);   // j0 j1 | j2 j3
    const V t2 = _mm256_unpacklo_pd(c, d), t3 = _mm256_unpackhi_pd(c, d);
    _mm256_storeu_pd(out, _mm256_permute2f128_pd(t0, t2, 0x20));
    _mm256_storeu_pd(out + stride, _mm256_permute2f128_pd(t0, t2, 0x31));
    _mm256_storeu_pd(out + 2 * stride, _mm256_permute2f128_pd(t1, t3, 0x20));
    _mm256_storeu_pd(out + 3 * stride, _mm256_permute2f128_pd(t1, t3, 0x31));
}

// The first pass of radix 4 or 8 into the split halves (the OS = 1 case of
// first_pass). The pairs may come with real and imaginary parts exchanged
// (the inverse): then ii lies before ir.
template <int P>
void first_pass_x4(const double* ir, const double* ii, double* or_, double* oi, std::ptrdiff_t m, std::ptrdiff_t,
                   const double* tw, const double* roots, double f) noexcept {
    const bool swapped = ii < ir;
    const double* x = swapped ? ii : ir;
    std::ptrdiff_t j = 0;
    for (; j + 4 <= m; j += 4) {
        V ar[P], ai[P], br[P], bi[P];
        for (int q = 0; q < P; ++q) load_split(x + 2 * (j + m * q), swapped ? ai[q] : ar[q], swapped ? ar[q] : ai[q]);
        butterfly<double, P, V>(ar, ai, br, bi, nullptr, nullptr);
        for (int r = 1; r < P; ++r) {
            V wr, wi;
            load_split(tw + 2 * ((r - 1) * m + j), wr, wi);
            const V yr = _mm256_fmsub_pd(br[r], wr, _mm256_mul_pd(bi[r], wi));
            bi[r] = _mm256_fmadd_pd(br[r], wi, _mm256_mul_pd(bi[r], wr));
            br[r] = yr;
        }
        for (int r = 0; r < P; r += 4) {
            store_transposed(or_ + P * j + r, P, br[r], br[r + 1], br[r + 2], br[r + 3]);
            store_transposed(oi + P * j + r, P, bi[r], bi[r + 1], bi[r + 2], bi[r + 3]);
        }
    }
    first_pass_from<double, P, 1>(ir, ii, or_, oi, m, tw, roots, f, j);
}

// The last pass (m = 1, no twiddles) into the interleaved pairs times f (the
// OS = 2 case of pass); with the parts exchanged oi lies before or_.
template <int P>
void last_pass_x4(const double* ir, const double* ii, double* or_, double* oi, std::ptrdiff_t m, std::ptrdiff_t s,
                  const double* tw, const double* roots, double f) noexcept {
    const bool swapped = oi < or_;
    double* y = swapped ? oi : or_;
    V c[P], sn[P];
    for (int k = 0; k < P; ++k) {
        c[k] = _mm256_set1_pd(P % 2 ? roots[k] : 0.0);
        sn[k] = _mm256_set1_pd(P % 2 ? roots[8 + k] : 0.0);
    }
    const V vf = _mm256_set1_pd(f);
    std::ptrdiff_t k = 0;
    for (; k + 4 <= s; k += 4) {
        V ar[P], ai[P], br[P], bi[P];
        for (int q = 0; q < P; ++q) {
            ar[q] = _mm256_loadu_pd(ir + k + s * q);
            ai[q] = _mm256_loadu_pd(ii + k + s * q);
        }
        butterfly<double, P, V>(ar, ai, br, bi, c, sn);
        for (int r = 0; r < P; ++r) {
            const V re = _mm256_mul_pd(swapped ? bi[r] : br[r], vf), im = _mm256_mul_pd(swapped ? br[r] : bi[r], vf);
            const V lo = _mm256_unpacklo_pd(re, im), hi = _mm256_unpackhi_pd(re, im);   // pairs k, k+2 | k+1, k+3
            _mm256_storeu_pd(y + 2 * (k + s * r), _mm256_permute2f128_pd(lo, hi, 0x20));
            _mm256_storeu_pd(y + 2 * (k + s * r) + 4, _mm256_permute2f128_pd(lo, hi, 0x31));
        }
    }
    pass_from<double, P, 2>(ir, ii, or_, oi, m, s, tw, roots, f, k);
}

// The plain passes but for the two above, in double.
struct Avx2Passes {
    template <class T, bool First, int OS> static PassFn<T> pick(int p) noexcept {
        if constexpr (std::is_same_v<T, double> && First && OS == 1) {
            if (p == 8) return &first_pass_x4<8>;
            if (p == 4) return &first_pass_x4<4>;
        }
        if constexpr (std::is_same_v<T, double> && !First && OS == 2) {
            switch (p) {
                case 2: return &last_pass_x4<2>;
                case 3: return &last_pass_x4<3>;
                case 4: return &last_pass_x4<4>;
                case 5: return &last_pass_x4<5>;
                case 7: return &last_pass_x4<7>;
                default: return &last_pass_x4<8>;
            }
        }
        return PlainPasses::pick<T, First, OS>(p);
    }
};

}  // namespace

void mixed_run_avx2(const MixedPlan<double>& plan, double* x, double* work, bool inverse, double f) noexcept {
    run_passes<double, Avx2Passes>(plan, x, work, inverse, f);
}
void mixed_run_avx2(const MixedPlan<float>& plan, float* x, float* work, bool inverse, float f) noexcept {
    run_passes<float, Avx2Passes>(plan, x, work, inverse, f);
}

}  // namespace zf
