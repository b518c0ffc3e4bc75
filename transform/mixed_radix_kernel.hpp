// The passes of the mixed-radix DFT as plain loops for the compiler to
// vectorise: the innermost loop runs over the s butterflies that share one
// set of twiddles, whose inputs and outputs lie consecutively. Included by
// mixed_radix.cpp (portable build) and mixed_radix_avx2.cpp (AVX2/FMA build);
// the templates live in an unnamed namespace so that each file keeps its own
// copy, compiled for its own instruction set.
#pragma once

#include <cstddef>
#include <cstring>

#include "transform/mixed_radix.hpp"

// Loops over the points of one butterfly are unrolled before vectorisation,
// so that their arrays become registers; the loop over the butterflies of one
// twiddle set carries no dependence (its outputs k + s·r, k < s, never meet),
// which the compiler cannot see for a stride s known only at run time.
#if defined(__clang__)
#define ZF_UNROLL _Pragma("unroll")
#define ZF_IVDEP _Pragma("clang loop vectorize(assume_safety)")
#elif defined(__GNUC__)
#define ZF_UNROLL _Pragma("GCC unroll 16")
#define ZF_IVDEP _Pragma("GCC ivdep")
#else
#define ZF_UNROLL
#define ZF_IVDEP
#endif

namespace zf {
namespace {

// The p-point DFT of (ar, ai) with the kernel e^(-j2πqr/p) into (br, bi).
// Odd p pairs the inputs q and p - q: with t = a_q + a_(p-q) and
// u = a_q - a_(p-q), X_r = a_0 + Σ t·cos(2πqr/p) - j Σ u·sin(2πqr/p) and
// X_(p-r) the same with +j. V is T, or a vector register of T's (one
// butterfly per lane; the constants c and sn then hold a value per lane).
template <class T, int P, class V = T>
inline void butterfly(const V* ar, const V* ai, V* br, V* bi, const V* c, const V* sn) noexcept {
    if constexpr (P == 2) {
        br[0] = ar[0] + ar[1]; bi[0] = ai[0] + ai[1];
        br[1] = ar[0] - ar[1]; bi[1] = ai[0] - ai[1];
    } else if constexpr (P == 4) {
        const V t0r = ar[0] + ar[2], t0i = ai[0] + ai[2], t1r = ar[0] - ar[2], t1i = ai[0] - ai[2];
        const V t2r = ar[1] + ar[3], t2i = ai[1] + ai[3], t3r = ar[1] - ar[3], t3i = ai[1] - ai[3];
        br[0] = t0r + t2r; bi[0] = t0i + t2i;
        br[2] = t0r - t2r; bi[2] = t0i - t2i;
        br[1] = t1r + t3i; bi[1] = t1i - t3r;   // t1 - j t3
        br[3] = t1r - t3i; bi[3] = t1i + t3r;   // t1 + j t3
    } else if constexpr (P == 8) {
        // Two transforms of four (even and odd inputs) joined by e^(-j2πk/8).
        const V h = V{} + Traits<T>::sqrt_half;
        V evr[4], evi[4], odr[4], odi[4], er[4], ei[4], orr[4], oi[4];
        ZF_UNROLL
        for (int q = 0; q < 4; ++q) {
            evr[q] = ar[2 * q]; evi[q] = ai[2 * q];
            odr[q] = ar[2 * q + 1]; odi[q] = ai[2 * q + 1];
        }
        butterfly<T, 4, V>(evr, evi, er, ei, c, sn);
        butterfly<T, 4, V>(odr, odi, orr, oi, c, sn);
        const V o1r = (orr[1] + oi[1]) * h, o1i = (oi[1] - orr[1]) * h;   // e^(-jπ/4) O1
        const V o2r = oi[2], o2i = -orr[2];                                // -j O2
        const V o3r = (oi[3] - orr[3]) * h, o3i = -(orr[3] + oi[3]) * h;  // e^(-j3π/4) O3
        br[0] = er[0] + orr[0]; bi[0] = ei[0] + oi[0];
        br[4] = er[0] - orr[0]; bi[4] = ei[0] - oi[0];
        br[1] = er[1] + o1r; bi[1] = ei[1] + o1i;
        br[5] = er[1] - o1r; bi[5] = ei[1] - o1i;
        br[2] = er[2] + o2r; bi[2] = ei[2] + o2i;
        br[6] = er[2] - o2r; bi[6] = ei[2] - o2i;
        br[3] = er[3] + o3r; bi[3] = ei[3] + o3i;
        br[7] = er[3] - o3r; bi[7] = ei[3] - o3i;
    } else {
        constexpr int H = P / 2;
        V tr[H + 1], ti[H + 1], ur[H + 1], ui[H + 1];
        br[0] = ar[0];
        bi[0] = ai[0];
        ZF_UNROLL
        for (int q = 1; q <= H; ++q) {
            tr[q] = ar[q] + ar[P - q]; ti[q] = ai[q] + ai[P - q];
            ur[q] = ar[q] - ar[P - q]; ui[q] = ai[q] - ai[P - q];
            br[0] += tr[q];
            bi[0] += ti[q];
        }
        ZF_UNROLL
        for (int r = 1; r <= H; ++r) {
            V sr = ar[0], si = ai[0], vr = V{}, vi = V{};
            ZF_UNROLL
            for (int q = 1; q <= H; ++q) {
                const int e = q * r % P;
                sr += tr[q] * c[e]; si += ti[q] * c[e];
                vr += ur[q] * sn[e]; vi += ui[q] * sn[e];
            }
            br[r] = sr + vi; bi[r] = si - vr;           // s - j v
            br[P - r] = sr - vi; bi[P - r] = si + vr;   // s + j v
        }
    }
}

// The butterfly constants cos 2πk/p and sin 2πk/p of odd radices.
template <class T, int P> inline void load_roots(const T* roots, T* c, T* sn) noexcept {
    ZF_UNROLL
    for (int k = 0; k < P; ++k) {
        c[k] = P % 2 ? roots[k] : T(0);
        sn[k] = P % 2 ? roots[8 + k] : T(0);
    }
}

// A pass of radix P after the first: from the split halves (ir, ii) to the
// split halves (OS = 1) or the interleaved pairs (OS = 2, the last pass, which
// multiplies by f) of (or_, oi). The loop over k runs along s consecutive
// values with one twiddle set, from k = k0 on (0 but in the tails of the
// vector passes).
template <class T, int P, int OS>
void pass_from(const T* __restrict ir, const T* __restrict ii, T* __restrict or_, T* __restrict oi,
               std::ptrdiff_t m, std::ptrdiff_t s, const T* __restrict tw, const T* roots, T f,
               std::ptrdiff_t k0) noexcept {
    T c[P], sn[P];
    load_roots<T, P>(roots, c, sn);
    const std::ptrdiff_t sm = s * m;
    for (std::ptrdiff_t j = 0; j < m; ++j) {
        T wr[P], wi[P];
        wr[0] = f;
        wi[0] = T(0);
        ZF_UNROLL
        for (int r = 1; r < P; ++r) {
            wr[r] = tw[2 * ((r - 1) * m + j)] * f;
            wi[r] = tw[2 * ((r - 1) * m + j) + 1] * f;
        }
        const T* __restrict xr = ir + s * j;
        const T* __restrict xi = ii + s * j;
        T* __restrict yr = or_ + OS * s * P * j;
        T* __restrict yi = oi + OS * s * P * j;
        ZF_IVDEP
        for (std::ptrdiff_t k = k0; k < s; ++k) {
            T ar[P], ai[P], br[P], bi[P];
            ZF_UNROLL
            for (int q = 0; q < P; ++q) {
                ar[q] = xr[k + sm * q];
                ai[q] = xi[k + sm * q];
            }
            butterfly<T, P>(ar, ai, br, bi, c, sn);
            ZF_UNROLL
            for (int r = 0; r < P; ++r) {
                if constexpr (OS == 2) {   // the last pass: m = 1, every twiddle is 1
                    yr[2 * (k + s * r)] = br[r] * f;
                    yi[2 * (k + s * r)] = bi[r] * f;
                } else {
                    yr[k + s * r] = br[r] * wr[r] - bi[r] * wi[r];
                    yi[k + s * r] = br[r] * wi[r] + bi[r] * wr[r];
                }
            }
        }
    }
}
template <class T, int P, int OS>
void pass(const T* ir, const T* ii, T* or_, T* oi, std::ptrdiff_t m, std::ptrdiff_t s, const T* tw, const T* roots,
          T f) noexcept {
    pass_from<T, P, OS>(ir, ii, or_, oi, m, s, tw, roots, f, 0);
}

// The first pass (s = 1): from the interleaved pairs (ir, ii) to the split
// halves (OS = 1) or, when it is the only pass, to the interleaved pairs times
// f (OS = 2). One butterfly per twiddle set, so the loop runs over the sets j,
// from j = j0 on.
template <class T, int P, int OS>
void first_pass_from(const T* __restrict ir, const T* __restrict ii, T* __restrict or_, T* __restrict oi,
                     std::ptrdiff_t m, const T* __restrict tw, const T* roots, T f, std::ptrdiff_t j0) noexcept {
    T c[P], sn[P];
    load_roots<T, P>(roots, c, sn);
    ZF_IVDEP
    for (std::ptrdiff_t j = j0; j < m; ++j) {
        T ar[P], ai[P], br[P], bi[P];
        ZF_UNROLL
        for (int q = 0; q < P; ++q) {
            ar[q] = ir[2 * (j + m * q)];
            ai[q] = ii[2 * (j + m * q)];
        }
        butterfly<T, P>(ar, ai, br, bi, c, sn);
        or_[OS * P * j] = OS == 2 ? br[0] * f : br[0];
        oi[OS * P * j] = OS == 2 ? bi[0] * f : bi[0];
        ZF_UNROLL
        for (int r = 1; r < P; ++r) {
            const T wr = tw[2 * ((r - 1) * m + j)], wi = tw[2 * ((r - 1) * m + j) + 1];
            const T yr = br[r] * wr - bi[r] * wi, yi = br[r] * wi + bi[r] * wr;
            or_[OS * (P * j + r)] = OS == 2 ? yr * f : yr;
            oi[OS * (P * j + r)] = OS == 2 ? yi * f : yi;
        }
    }
}
template <class T, int P, int OS>
void first_pass(const T* ir, const T* ii, T* or_, T* oi, std::ptrdiff_t m, std::ptrdiff_t, const T* tw,
                const T* roots, T f) noexcept {
    first_pass_from<T, P, OS>(ir, ii, or_, oi, m, tw, roots, f, 0);
}

template <class T> using PassFn = void (*)(const T*, const T*, T*, T*, std::ptrdiff_t, std::ptrdiff_t, const T*,
                                           const T*, T) noexcept;

// The plain passes; a build for a wider instruction set may replace some of
// them (Passes in run_passes).
struct PlainPasses {
    template <class T, bool First, int OS> static PassFn<T> pick(const MixedPass<T>& ps) noexcept;
};
template <class T, bool First, int OS> PassFn<T> PlainPasses::pick(const MixedPass<T>& ps) noexcept {
    switch (ps.p) {
        case 2: return First ? &first_pass<T, 2, OS> : &pass<T, 2, OS>;
        case 3: return First ? &first_pass<T, 3, OS> : &pass<T, 3, OS>;
        case 4: return First ? &first_pass<T, 4, OS> : &pass<T, 4, OS>;
        case 5: return First ? &first_pass<T, 5, OS> : &pass<T, 5, OS>;
        case 8: return First ? &first_pass<T, 8, OS> : &pass<T, 8, OS>;
        default: return First ? &first_pass<T, 7, OS> : &pass<T, 7, OS>;
    }
}

// The chain of passes: the first reads the interleaved pairs of x, the middle
// ones go back and forth between split halves, the last writes the pairs of x
// and applies f. The middle passes use x itself (its pairs already read) and
// the first half of the scratch, chosen so that the last pass reads the
// scratch; with an odd number of passes the first writes the second half of
// the scratch. The inverse kernel is the forward one on the pairs with real
// and imaginary parts exchanged, on the way in and out. A single pass reads a
// copy of x.
template <class T, class Passes = PlainPasses>
void run_passes(const MixedPlan<T>& plan, T* x, T* work, bool inverse, T f) noexcept {
    const std::ptrdiff_t n = plan.n;
    const int k = plan.passes;
    T* xr = inverse ? x + 1 : x;
    T* xi = inverse ? x : x + 1;
    const T* src_r = xr;
    const T* src_i = xi;
    if (k == 1) {
        std::memcpy(work, x, 2 * static_cast<std::size_t>(n) * sizeof(T));
        src_r = inverse ? work + 1 : work;
        src_i = inverse ? work : work + 1;
    }
    for (int i = 0; i < k; ++i) {
        const MixedPass<T>& ps = plan.pass[i];
        const bool first = i == 0, last = i == k - 1;
        T* dst = (k - 2 - i) % 2 == 0 ? work : first ? work + 2 * n : x;
        const PassFn<T> fn = first ? (last ? Passes::template pick<T, true, 2>(ps) : Passes::template pick<T, true, 1>(ps))
                                   : (last ? Passes::template pick<T, false, 2>(ps) : Passes::template pick<T, false, 1>(ps));
        T* dst_r = last ? xr : dst;
        T* dst_i = last ? xi : dst + n;
        fn(src_r, src_i, dst_r, dst_i, ps.m, ps.s, ps.tw, ps.roots, last ? f : T(1));
        src_r = dst;
        src_i = dst + n;
    }
}

}  // namespace
}  // namespace zf
