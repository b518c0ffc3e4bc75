// The two-port correction for eight points at a time with AVX-512: one point
// per lane of a 512-bit register, comparisons in mask registers.
// GCC 12 warns about the deliberately undefined pass-through operand inside
// its own AVX-512 intrinsics; the warning is silenced for that header only.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#include <immintrin.h>
#pragma GCC diagnostic pop

#include "netcal/correct2_simd.hpp"

namespace zf {

namespace {

struct Avx512 {
    using W = __m512d;
    using Mask = __mmask8;

    static W set(double x) noexcept { return _mm512_set1_pd(x); }
    static W add(W a, W b) noexcept { return _mm512_add_pd(a, b); }
    static W sub(W a, W b) noexcept { return _mm512_sub_pd(a, b); }
    static W mul(W a, W b) noexcept { return _mm512_mul_pd(a, b); }
    static W div(W a, W b) noexcept { return _mm512_div_pd(a, b); }
    static W sqrt(W a) noexcept { return _mm512_sqrt_pd(a); }
    static W abs(W a) noexcept { return _mm512_abs_pd(a); }
    static W select(W a, W b, Mask m) noexcept { return _mm512_mask_blend_pd(m, a, b); }
    static Mask ge(W a, W b) noexcept { return _mm512_cmp_pd_mask(a, b, _CMP_GE_OQ); }
    static Mask gt(W a, W b) noexcept { return _mm512_cmp_pd_mask(a, b, _CMP_GT_OQ); }
    static Mask le(W a, W b) noexcept { return _mm512_cmp_pd_mask(a, b, _CMP_LE_OQ); }
    static Mask lt(W a, W b) noexcept { return _mm512_cmp_pd_mask(a, b, _CMP_LT_OQ); }
    static Mask eq(W a, W b) noexcept { return _mm512_cmp_pd_mask(a, b, _CMP_EQ_OQ); }
    static Mask both(Mask a, Mask b) noexcept { return static_cast<Mask>(a & b); }
    static Mask either(Mask a, Mask b) noexcept { return static_cast<Mask>(a | b); }
    static bool all(Mask m) noexcept { return m == 0xFF; }
    static bool any(Mask m) noexcept { return m != 0; }

    // The lanes hold points 0, 4, 1, 5, 2, 6, 3, 7, an order that the store
    // undoes, so no lane crosses a 128-bit quarter.
    static void load8(const Cx* p, W& re, W& im) noexcept {
        const W a = _mm512_loadu_pd(&p[0].re), b = _mm512_loadu_pd(&p[4].re);
        re = _mm512_shuffle_pd(a, b, 0x00);
        im = _mm512_shuffle_pd(a, b, 0xFF);
    }
    static void store8(Cx* p, W re, W im) noexcept {
        _mm512_storeu_pd(&p[0].re, _mm512_shuffle_pd(re, im, 0x00));
        _mm512_storeu_pd(&p[4].re, _mm512_shuffle_pd(re, im, 0xFF));
    }
};

}  // namespace

void correct_2port_x8_avx512(const TwoPortArrays& t, int start) noexcept { simd::correct_2port_x8<Avx512>(t, start); }

}  // namespace zf
