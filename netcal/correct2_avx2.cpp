// The two-port correction for eight points at a time with AVX2: each lane
// vector is a pair of 256-bit registers, two groups of four points whose
// independent chains keep the dividers busy while the other waits.
#include <immintrin.h>

#include "netcal/correct2_simd.hpp"

namespace zf {

namespace {

struct Avx2 {
    struct W {
        __m256d h[2];
    };
    using Mask = W;

    static W set(double x) noexcept { const __m256d v = _mm256_set1_pd(x); return {{v, v}}; }
    static W add(W a, W b) noexcept { return {{_mm256_add_pd(a.h[0], b.h[0]), _mm256_add_pd(a.h[1], b.h[1])}}; }
    static W sub(W a, W b) noexcept { return {{_mm256_sub_pd(a.h[0], b.h[0]), _mm256_sub_pd(a.h[1], b.h[1])}}; }
    static W mul(W a, W b) noexcept { return {{_mm256_mul_pd(a.h[0], b.h[0]), _mm256_mul_pd(a.h[1], b.h[1])}}; }
    static W div(W a, W b) noexcept { return {{_mm256_div_pd(a.h[0], b.h[0]), _mm256_div_pd(a.h[1], b.h[1])}}; }
    static W sqrt(W a) noexcept { return {{_mm256_sqrt_pd(a.h[0]), _mm256_sqrt_pd(a.h[1])}}; }
    static W abs(W a) noexcept {
        const __m256d sign = _mm256_set1_pd(-0.0);
        return {{_mm256_andnot_pd(sign, a.h[0]), _mm256_andnot_pd(sign, a.h[1])}};
    }
    static W select(W a, W b, Mask m) noexcept {
        return {{_mm256_blendv_pd(a.h[0], b.h[0], m.h[0]), _mm256_blendv_pd(a.h[1], b.h[1], m.h[1])}};
    }
    template <int Predicate> static Mask cmp(W a, W b) noexcept {
        return {{_mm256_cmp_pd(a.h[0], b.h[0], Predicate), _mm256_cmp_pd(a.h[1], b.h[1], Predicate)}};
    }
    static Mask ge(W a, W b) noexcept { return cmp<_CMP_GE_OQ>(a, b); }
    static Mask gt(W a, W b) noexcept { return cmp<_CMP_GT_OQ>(a, b); }
    static Mask le(W a, W b) noexcept { return cmp<_CMP_LE_OQ>(a, b); }
    static Mask lt(W a, W b) noexcept { return cmp<_CMP_LT_OQ>(a, b); }
    static Mask eq(W a, W b) noexcept { return cmp<_CMP_EQ_OQ>(a, b); }
    static Mask both(Mask a, Mask b) noexcept { return {{_mm256_and_pd(a.h[0], b.h[0]), _mm256_and_pd(a.h[1], b.h[1])}}; }
    static Mask either(Mask a, Mask b) noexcept { return {{_mm256_or_pd(a.h[0], b.h[0]), _mm256_or_pd(a.h[1], b.h[1])}}; }
    static bool all(Mask m) noexcept { return (_mm256_movemask_pd(m.h[0]) & _mm256_movemask_pd(m.h[1])) == 0xF; }
    static bool any(Mask m) noexcept { return (_mm256_movemask_pd(m.h[0]) | _mm256_movemask_pd(m.h[1])) != 0; }

    // The lanes of each group hold its points 0, 2, 1, 3, an order that the
    // store undoes, so no lane crosses a 128-bit half.
    static void load8(const Cx* p, W& re, W& im) noexcept {
        for (int g = 0; g < 2; ++g) {
            const __m256d a = _mm256_loadu_pd(&p[4 * g].re), b = _mm256_loadu_pd(&p[4 * g + 2].re);
            re.h[g] = _mm256_unpacklo_pd(a, b);
            im.h[g] = _mm256_unpackhi_pd(a, b);
        }
    }
    static void store8(Cx* p, W re, W im) noexcept {
        for (int g = 0; g < 2; ++g) {
            _mm256_storeu_pd(&p[4 * g].re, _mm256_unpacklo_pd(re.h[g], im.h[g]));
            _mm256_storeu_pd(&p[4 * g + 2].re, _mm256_unpackhi_pd(re.h[g], im.h[g]));
        }
    }
};

}  // namespace

void correct_2port_x8_avx2(const TwoPortArrays& t, int start) noexcept { simd::correct_2port_x8<Avx2>(t, start); }

}  // namespace zf
