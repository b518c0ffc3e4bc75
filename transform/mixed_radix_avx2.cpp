// The passes of the mixed-radix DFT compiled for AVX2 with fused
// multiply-add: the same loops as the portable build, vectorised four doubles
// or eight floats wide. Called only when the processor has both.
//
// The passes are also written out with intrinsics, W lanes wide (4 in
// double, 8 in float): the first pass of radix 4 or 8, whose butterfly j
// writes the p consecutive values p·j + r (it runs W butterflies j side by
// side, one per lane, and transposes blocks of rows on the way out), where
// the compiler scatters single values; the middle passes whose s is a
// multiple of W (W consecutive k side by side, the twiddles of j broadcast),
// where the compiler's loop pays its set-up for every j; and the last pass of
// an odd radix, which writes interleaved pairs (W consecutive k side by side,
// real and imaginary registers interleaved on the way out).
#include "core/avx2.hpp"
#include "transform/mixed_radix_kernel.hpp"

namespace zf {
namespace {

template <class T> struct Lanes;

template <> struct Lanes<double> : avx2::Reg<double> {
    using V = R;
    // The W pairs at p taken apart; the lanes hold the pairs 0 2 1 3.
    static void load_split(const double* p, V& re, V& im) noexcept {
        const V a = _mm256_loadu_pd(p), b = _mm256_loadu_pd(p + 4);
        re = _mm256_unpacklo_pd(a, b);
        im = _mm256_unpackhi_pd(a, b);
    }
    // Rows y[0 .. P-1] (value r of the butterflies in the lanes of
    // load_split) stored as the P values of butterfly j at out + P·j.
    template <int P> static void store_columns(double* out, const V* y) noexcept {
        for (int r = 0; r < P; r += 4) {
            const V t0 = _mm256_unpacklo_pd(y[r], y[r + 1]), t1 = _mm256_unpackhi_pd(y[r], y[r + 1]);   // 0 1 | 2 3
            const V t2 = _mm256_unpacklo_pd(y[r + 2], y[r + 3]), t3 = _mm256_unpackhi_pd(y[r + 2], y[r + 3]);
            _mm256_storeu_pd(out + r, _mm256_permute2f128_pd(t0, t2, 0x20));
            _mm256_storeu_pd(out + P + r, _mm256_permute2f128_pd(t0, t2, 0x31));
            _mm256_storeu_pd(out + 2 * P + r, _mm256_permute2f128_pd(t1, t3, 0x20));
            _mm256_storeu_pd(out + 3 * P + r, _mm256_permute2f128_pd(t1, t3, 0x31));
        }
    }
    // The W pairs (re, im) of consecutive lanes stored interleaved at out.
    static void store_pairs(double* out, V re, V im) noexcept {
        const V lo = _mm256_unpacklo_pd(re, im), hi = _mm256_unpackhi_pd(re, im);   // pairs 0 2 | 1 3
        _mm256_storeu_pd(out, _mm256_permute2f128_pd(lo, hi, 0x20));
        _mm256_storeu_pd(out + 4, _mm256_permute2f128_pd(lo, hi, 0x31));
    }
};

template <> struct Lanes<float> : avx2::Reg<float> {
    using V = R;
    // The lanes hold the pairs 0 1 4 5 2 3 6 7.
    static void load_split(const float* p, V& re, V& im) noexcept {
        const V a = _mm256_loadu_ps(p), b = _mm256_loadu_ps(p + 8);
        re = _mm256_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0));
        im = _mm256_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1));
    }
    // Four rows transposed: u[c] holds values r .. r+3 of the butterflies in
    // lanes c (low half) and c + 4 (high half), that is of butterflies
    // 0|2, 1|3, 4|6, 5|7 for c = 0, 1, 2, 3.
    static void transpose4(const V* y, V* u) noexcept {
        const V t0 = _mm256_unpacklo_ps(y[0], y[1]), t1 = _mm256_unpackhi_ps(y[0], y[1]);
        const V t2 = _mm256_unpacklo_ps(y[2], y[3]), t3 = _mm256_unpackhi_ps(y[2], y[3]);
        u[0] = _mm256_shuffle_ps(t0, t2, _MM_SHUFFLE(1, 0, 1, 0));
        u[1] = _mm256_shuffle_ps(t0, t2, _MM_SHUFFLE(3, 2, 3, 2));
        u[2] = _mm256_shuffle_ps(t1, t3, _MM_SHUFFLE(1, 0, 1, 0));
        u[3] = _mm256_shuffle_ps(t1, t3, _MM_SHUFFLE(3, 2, 3, 2));
    }
    template <int P> static void store_columns(float* out, const V* y) noexcept {
        static constexpr int lo[4] = {0, 1, 4, 5}, hi[4] = {2, 3, 6, 7};   // butterflies of the halves of u[c]
        V u[4];
        transpose4(y, u);
        if constexpr (P == 4) {
            for (int c = 0; c < 4; ++c) {
                _mm_storeu_ps(out + 4 * lo[c], _mm256_castps256_ps128(u[c]));
                _mm_storeu_ps(out + 4 * hi[c], _mm256_extractf128_ps(u[c], 1));
            }
        } else {
            V w[4];
            transpose4(y + 4, w);
            for (int c = 0; c < 4; ++c) {
                _mm256_storeu_ps(out + 8 * lo[c], _mm256_permute2f128_ps(u[c], w[c], 0x20));
                _mm256_storeu_ps(out + 8 * hi[c], _mm256_permute2f128_ps(u[c], w[c], 0x31));
            }
        }
    }
    static void store_pairs(float* out, V re, V im) noexcept {
        const V lo = _mm256_unpacklo_ps(re, im), hi = _mm256_unpackhi_ps(re, im);   // pairs 0 1 4 5 | 2 3 6 7
        _mm256_storeu_ps(out, _mm256_permute2f128_ps(lo, hi, 0x20));
        _mm256_storeu_ps(out + 8, _mm256_permute2f128_ps(lo, hi, 0x31));
    }
};

// The first pass of radix 4 or 8 into the split halves (the OS = 1 case of
// first_pass). The pairs may come with real and imaginary parts exchanged
// (the inverse): then ii lies before ir.
template <class T, int P>
void first_pass_lanes(const T* ir, const T* ii, T* or_, T* oi, std::ptrdiff_t m, std::ptrdiff_t, const T* tw,
                      const T* roots, T f) noexcept {
    using L = Lanes<T>;
    using V = typename L::V;
    constexpr int W = L::W;
    const bool swapped = ii < ir;
    const T* x = swapped ? ii : ir;
    std::ptrdiff_t j = 0;
    for (; j + W <= m; j += W) {
        V ar[P], ai[P], br[P], bi[P];
        for (int q = 0; q < P; ++q) L::load_split(x + 2 * (j + m * q), swapped ? ai[q] : ar[q], swapped ? ar[q] : ai[q]);
        butterfly<T, P, V>(ar, ai, br, bi, nullptr, nullptr);
        for (int r = 1; r < P; ++r) {
            V wr, wi;
            L::load_split(tw + 2 * ((r - 1) * m + j), wr, wi);
            const V yr = L::fms(br[r], wr, L::mul(bi[r], wi));
            bi[r] = L::fma(br[r], wi, L::mul(bi[r], wr));
            br[r] = yr;
        }
        L::template store_columns<P>(or_ + P * j, br);
        L::template store_columns<P>(oi + P * j, bi);
    }
    first_pass_from<T, P, 1>(ir, ii, or_, oi, m, tw, roots, f, j);
}

// The cosines and sines of the odd radix P, each in every lane (zeros for
// the even radices, whose butterflies take none).
template <class T, int P>
void broadcast_roots(const T* roots, typename Lanes<T>::V* c, typename Lanes<T>::V* sn) noexcept {
    for (int k = 0; k < P; ++k) {
        c[k] = Lanes<T>::set1(P % 2 ? roots[k] : T(0));
        sn[k] = Lanes<T>::set1(P % 2 ? roots[8 + k] : T(0));
    }
}

// The last pass (m = 1, no twiddles) into the interleaved pairs times f (the
// OS = 2 case of pass); with the parts exchanged oi lies before or_.
template <class T, int P>
void last_pass_lanes(const T* ir, const T* ii, T* or_, T* oi, std::ptrdiff_t m, std::ptrdiff_t s, const T* tw,
                     const T* roots, T f) noexcept {
    using L = Lanes<T>;
    using V = typename L::V;
    constexpr int W = L::W;
    const bool swapped = oi < or_;
    T* y = swapped ? oi : or_;
    V c[P], sn[P];
    broadcast_roots<T, P>(roots, c, sn);
    const V vf = L::set1(f);
    std::ptrdiff_t k = 0;
    for (; k + W <= s; k += W) {
        V ar[P], ai[P], br[P], bi[P];
        for (int q = 0; q < P; ++q) {
            ar[q] = L::load(ir + k + s * q);
            ai[q] = L::load(ii + k + s * q);
        }
        butterfly<T, P, V>(ar, ai, br, bi, c, sn);
        for (int r = 0; r < P; ++r)
            L::store_pairs(y + 2 * (k + s * r), L::mul(swapped ? bi[r] : br[r], vf), L::mul(swapped ? br[r] : bi[r], vf));
    }
    pass_from<T, P, 2>(ir, ii, or_, oi, m, s, tw, roots, f, k);
}

// A middle pass (OS = 1; f is 1 there) with s a multiple of W.
template <class T, int P>
void pass_lanes(const T* ir, const T* ii, T* or_, T* oi, std::ptrdiff_t m, std::ptrdiff_t s, const T* tw,
                const T* roots, T f) noexcept {
    using L = Lanes<T>;
    using V = typename L::V;
    constexpr int W = L::W;
    V c[P], sn[P];
    broadcast_roots<T, P>(roots, c, sn);
    const std::ptrdiff_t sm = s * m;
    for (std::ptrdiff_t j = 0; j < m; ++j) {
        V wr[P], wi[P];
        for (int r = 1; r < P; ++r) {
            wr[r] = L::set1(tw[2 * ((r - 1) * m + j)]);
            wi[r] = L::set1(tw[2 * ((r - 1) * m + j) + 1]);
        }
        const T* xr = ir + s * j;
        const T* xi = ii + s * j;
        T* yr = or_ + s * P * j;
        T* yi = oi + s * P * j;
        for (std::ptrdiff_t k = 0; k < s; k += W) {
            V ar[P], ai[P], br[P], bi[P];
            for (int q = 0; q < P; ++q) {
                ar[q] = L::load(xr + k + sm * q);
                ai[q] = L::load(xi + k + sm * q);
            }
            butterfly<T, P, V>(ar, ai, br, bi, c, sn);
            L::store(yr + k, br[0]);
            L::store(yi + k, bi[0]);
            for (int r = 1; r < P; ++r) {
                L::store(yr + k + s * r, L::fms(br[r], wr[r], L::mul(bi[r], wi[r])));
                L::store(yi + k + s * r, L::fma(br[r], wi[r], L::mul(bi[r], wr[r])));
            }
        }
    }
}

// The plain passes but for the three above, when they fill at least one
// register (shorter runs would only pay for setting up the lanes).
struct LanePasses {
    template <class T, bool First, int OS> static PassFn<T> pick(const MixedPass<T>& ps) noexcept {
        constexpr int W = Lanes<T>::W;
        if constexpr (First && OS == 1) {
            if (ps.p == 8 && ps.m >= W) return &first_pass_lanes<T, 8>;
            if (ps.p == 4 && ps.m >= W) return &first_pass_lanes<T, 4>;
        }
        if constexpr (!First && OS == 1) {
            if (ps.s % W == 0) {
                switch (ps.p) {
                    case 2: return &pass_lanes<T, 2>;
                    case 3: return &pass_lanes<T, 3>;
                    case 4: return &pass_lanes<T, 4>;
                    case 5: return &pass_lanes<T, 5>;
                    case 7: return &pass_lanes<T, 7>;
                    default: return &pass_lanes<T, 8>;
                }
            }
        }
        if constexpr (!First && OS == 2) {
            // Radix 2, 4 or 8 comes last only in powers of two, which the FFT serves.
            if (ps.s >= W && ps.p == 3) return &last_pass_lanes<T, 3>;
            if (ps.s >= W && ps.p == 5) return &last_pass_lanes<T, 5>;
            if (ps.s >= W && ps.p == 7) return &last_pass_lanes<T, 7>;
        }
        return PlainPasses::pick<T, First, OS>(ps);
    }
};

}  // namespace

void mixed_run_avx2(const MixedPlan<double>& plan, double* x, double* work, bool inverse, double f) noexcept {
    run_passes<double, LanePasses>(plan, x, work, inverse, f);
}
void mixed_run_avx2(const MixedPlan<float>& plan, float* x, float* work, bool inverse, float f) noexcept {
    run_passes<float, LanePasses>(plan, x, work, inverse, f);
}

}  // namespace zf
