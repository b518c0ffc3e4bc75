// The two-port correction for eight points at a time, one point per lane of
// two interleaved groups of four (two independent chains keep the dividers
// busy while the other waits). Every lane repeats the portable kernel's
// operations in the same order (Smith's division, the overflow-safe magnitude,
// the 2 x 2 Gauss-Jordan steps with their pivot choice, the partial state of a
// singular matrix), with the branches turned into selections, so the results
// are identical. This file is built without floating-point contraction for
// that reason, and it calls no inline function shared with files built for the
// baseline processor.
#include <immintrin.h>

#include <cstdint>

#include "netcal/correct.hpp"

namespace zf {

namespace {

// Eight doubles: two groups of four.
struct W {
    __m256d h[2];
};
inline W wset(double x) noexcept { const __m256d v = _mm256_set1_pd(x); return {{v, v}}; }
inline W wadd(W a, W b) noexcept { return {{_mm256_add_pd(a.h[0], b.h[0]), _mm256_add_pd(a.h[1], b.h[1])}}; }
inline W wsub(W a, W b) noexcept { return {{_mm256_sub_pd(a.h[0], b.h[0]), _mm256_sub_pd(a.h[1], b.h[1])}}; }
inline W wmul(W a, W b) noexcept { return {{_mm256_mul_pd(a.h[0], b.h[0]), _mm256_mul_pd(a.h[1], b.h[1])}}; }
inline W wdiv(W a, W b) noexcept { return {{_mm256_div_pd(a.h[0], b.h[0]), _mm256_div_pd(a.h[1], b.h[1])}}; }
inline W wsqrt(W a) noexcept { return {{_mm256_sqrt_pd(a.h[0]), _mm256_sqrt_pd(a.h[1])}}; }
inline W wand(W a, W b) noexcept { return {{_mm256_and_pd(a.h[0], b.h[0]), _mm256_and_pd(a.h[1], b.h[1])}}; }
inline W wor(W a, W b) noexcept { return {{_mm256_or_pd(a.h[0], b.h[0]), _mm256_or_pd(a.h[1], b.h[1])}}; }
inline W wabs(W a) noexcept {
    const __m256d sign = _mm256_set1_pd(-0.0);
    return {{_mm256_andnot_pd(sign, a.h[0]), _mm256_andnot_pd(sign, a.h[1])}};
}
// Where mask is set b, elsewhere a.
inline W wselect(W a, W b, W mask) noexcept {
    return {{_mm256_blendv_pd(a.h[0], b.h[0], mask.h[0]), _mm256_blendv_pd(a.h[1], b.h[1], mask.h[1])}};
}
// Ordered comparisons: false where either side is a non-number.
inline W wge(W a, W b) noexcept { return {{_mm256_cmp_pd(a.h[0], b.h[0], _CMP_GE_OQ), _mm256_cmp_pd(a.h[1], b.h[1], _CMP_GE_OQ)}}; }
inline W wgt(W a, W b) noexcept { return {{_mm256_cmp_pd(a.h[0], b.h[0], _CMP_GT_OQ), _mm256_cmp_pd(a.h[1], b.h[1], _CMP_GT_OQ)}}; }
inline W wle(W a, W b) noexcept { return {{_mm256_cmp_pd(a.h[0], b.h[0], _CMP_LE_OQ), _mm256_cmp_pd(a.h[1], b.h[1], _CMP_LE_OQ)}}; }
inline W wlt(W a, W b) noexcept { return {{_mm256_cmp_pd(a.h[0], b.h[0], _CMP_LT_OQ), _mm256_cmp_pd(a.h[1], b.h[1], _CMP_LT_OQ)}}; }
inline W weq(W a, W b) noexcept { return {{_mm256_cmp_pd(a.h[0], b.h[0], _CMP_EQ_OQ), _mm256_cmp_pd(a.h[1], b.h[1], _CMP_EQ_OQ)}}; }
inline bool wall(W mask) noexcept { return (_mm256_movemask_pd(mask.h[0]) & _mm256_movemask_pd(mask.h[1])) == 0xF; }
inline bool wany(W mask) noexcept { return (_mm256_movemask_pd(mask.h[0]) | _mm256_movemask_pd(mask.h[1])) != 0; }

// Eight complex numbers.
struct V {
    W re, im;
};

// Eight consecutive points. The lanes of each group hold points 0, 2, 1, 3 of
// it, an order that the store undoes, so no lane crosses a 128-bit half.
inline V load8(const Cx* p) noexcept {
    V v;
    for (int g = 0; g < 2; ++g) {
        const __m256d a = _mm256_loadu_pd(&p[4 * g].re), b = _mm256_loadu_pd(&p[4 * g + 2].re);
        v.re.h[g] = _mm256_unpacklo_pd(a, b);
        v.im.h[g] = _mm256_unpackhi_pd(a, b);
    }
    return v;
}
inline void store8(Cx* p, V v) noexcept {
    for (int g = 0; g < 2; ++g) {
        _mm256_storeu_pd(&p[4 * g].re, _mm256_unpacklo_pd(v.re.h[g], v.im.h[g]));
        _mm256_storeu_pd(&p[4 * g + 2].re, _mm256_unpackhi_pd(v.re.h[g], v.im.h[g]));
    }
}

inline V vadd(V a, V b) noexcept { return {wadd(a.re, b.re), wadd(a.im, b.im)}; }
inline V vsub(V a, V b) noexcept { return {wsub(a.re, b.re), wsub(a.im, b.im)}; }
inline V vmul(V a, V b) noexcept {
    return {wsub(wmul(a.re, b.re), wmul(a.im, b.im)), wadd(wmul(a.im, b.re), wmul(a.re, b.im))};
}
inline V vselect(V a, V b, W mask) noexcept { return {wselect(a.re, b.re, mask), wselect(a.im, b.im, mask)}; }

// Smith's division, both branches folded into one by exchanging the roles of
// the components where the imaginary part of the divisor is the larger.
inline V vdiv(V a, V b) noexcept {
    const W re_big = wge(wabs(b.re), wabs(b.im));
    const W big = wselect(b.im, b.re, re_big), small = wselect(b.re, b.im, re_big);
    const W p = wselect(a.im, a.re, re_big), q = wselect(a.re, a.im, re_big);
    const W r = wdiv(small, big);
    const W den = wadd(big, wmul(small, r));
    const W pr = wmul(p, r);
    const W im = wselect(wsub(pr, q), wsub(q, pr), re_big);
    return {wdiv(wadd(p, wmul(q, r)), den), wdiv(im, den)};
}

// The overflow-safe magnitude; the scaled form only when some lane needs it.
inline W vmagnitude(V z) noexcept {
    const W ax = wabs(z.re), ay = wabs(z.im);
    const W x_big = wge(ax, ay);
    const W big = wselect(ay, ax, x_big);
    const W plain = wsqrt(wadd(wmul(ax, ax), wmul(ay, ay)));
    const W zero = wset(0.0);
    const W safe = wand(wle(big, wset(kSquareSafeHigh)), wor(wge(big, wset(kSquareSafeLow)), weq(big, zero)));
    if (wall(safe)) return plain;
    const W inf = wset(HUGE_VAL);
    const W small = wselect(ax, ay, x_big);
    const W q = wdiv(small, big);
    W scaled = wmul(big, wsqrt(wadd(wset(1.0), wmul(q, q))));
    scaled = wselect(scaled, inf, wor(weq(ax, inf), weq(ay, inf)));
    return wselect(scaled, plain, safe);
}

// Twenty streams are more than the hardware prefetchers keep up with: each
// call asks for the inputs of the call eight calls later, into the L2 cache.
constexpr int kPrefetchPoints = 64;
inline void prefetch_ahead(const Cx* p) noexcept {
    // Integer arithmetic: the address may lie past the end of the array.
    const std::uintptr_t at = reinterpret_cast<std::uintptr_t>(p) + kPrefetchPoints * sizeof(Cx);
    _mm_prefetch(reinterpret_cast<const char*>(at), _MM_HINT_T1);
    _mm_prefetch(reinterpret_cast<const char*>(at + 4 * sizeof(Cx)), _MM_HINT_T1);
}

}  // namespace

void correct_2port_x8_avx2(const TwoPortArrays& t, int start) noexcept {
    const V one = {wset(1.0), wset(0.0)};
    const V zero = {wset(0.0), wset(0.0)};
    const W threshold = wset(kPivotThreshold);

    // N = (measured - offset) / tracking, M = N * match + I.
    V n[4], m[4];
    for (int p = 0; p < 4; ++p) {
        prefetch_ahead(t.measured[p] + start);
        prefetch_ahead(t.tracking[p] + start);
        prefetch_ahead(t.match[p] + start);
        if (t.offset[p]) prefetch_ahead(t.offset[p] + start);
        V raw = load8(t.measured[p] + start);
        if (t.offset[p]) raw = vsub(raw, load8(t.offset[p] + start));
        n[p] = vdiv(raw, load8(t.tracking[p] + start));
        m[p] = vmul(n[p], load8(t.match[p] + start));
    }
    m[0].re = wadd(m[0].re, one.re);
    m[3].re = wadd(m[3].re, one.re);

    // Column 0: the lower row becomes the pivot row only when strictly larger.
    const W mag0 = vmagnitude(m[0]), mag2 = vmagnitude(m[2]);
    const W swap = wgt(mag2, mag0);
    const W singular0 = wlt(wselect(mag0, mag2, swap), threshold);
    V a00 = vselect(m[0], m[2], swap), a01 = vselect(m[1], m[3], swap);
    V a10 = vselect(m[2], m[0], swap), a11 = vselect(m[3], m[1], swap);
    V rec = vdiv(one, a00);
    a00 = vmul(one, rec);
    a01 = vmul(a01, rec);
    V f = a10;
    a10 = vsub(zero, vmul(f, a00));
    a11 = vsub(a11, vmul(f, a01));
    const V h00 = a00, h01 = a01, h10 = a10, h11 = a11;  // the state a singular column 1 leaves

    // Column 1.
    const W singular1 = wlt(vmagnitude(a11), threshold);
    rec = vdiv(one, a11);
    a10 = vmul(a10, rec);
    a11 = vmul(one, rec);
    f = a01;
    a00 = vsub(a00, vmul(f, a10));
    a01 = vsub(zero, vmul(f, a11));

    // Undo the row interchange on the columns; a lane whose matrix was
    // singular keeps the state its inversion stopped in.
    V i00 = vselect(a00, a01, swap), i01 = vselect(a01, a00, swap);
    V i10 = vselect(a10, a11, swap), i11 = vselect(a11, a10, swap);
    if (wany(wor(singular0, singular1))) {
        i00 = vselect(vselect(i00, h00, singular1), m[0], singular0);
        i01 = vselect(vselect(i01, h01, singular1), m[1], singular0);
        i10 = vselect(vselect(i10, h10, singular1), m[2], singular0);
        i11 = vselect(vselect(i11, h11, singular1), m[3], singular0);
    }

    // Corrected = N * M^-1, each sum accumulated from zero in increasing k.
    const V c[4] = {vadd(vadd(zero, vmul(n[0], i00)), vmul(n[1], i10)),
                    vadd(vadd(zero, vmul(n[0], i01)), vmul(n[1], i11)),
                    vadd(vadd(zero, vmul(n[2], i00)), vmul(n[3], i10)),
                    vadd(vadd(zero, vmul(n[2], i01)), vmul(n[3], i11))};
    for (int p = 0; p < 4; ++p)
        if (t.corrected[p]) store8(t.corrected[p] + start, c[p]);
}

}  // namespace zf
