// The two-port correction for eight points at a time, one point per lane,
// written once over a set of vector operations O that each instruction-set
// file (correct2_avx2.cpp, correct2_avx512.cpp) defines in its anonymous
// namespace, so every instantiation stays inside the file built for it.
//
// Every lane repeats the portable kernel's operations in the same order
// (Smith's division, the overflow-safe magnitude, the 2 x 2 Gauss-Jordan steps
// with their pivot choice, the partial state of a singular matrix), with the
// branches turned into selections, so the results are identical. The netcal
// files are built without floating-point contraction for that reason.
//
// O provides: the lane vector W and its comparison result Mask; set, add,
// sub, mul, div, sqrt, abs; select(a, b, m) (b where m is set, else a); the
// ordered comparisons ge, gt, le, lt, eq (false for a non-number); both,
// either (mask and, or); all, any; load8(p, re, im) and store8(p, re, im) for
// eight consecutive points. The helpers are forced inline: a call would pass
// the lane vectors through memory.
#pragma once

#include <immintrin.h>

#include <cmath>
#include <cstdint>

#include "netcal/correct.hpp"

namespace zf {
namespace simd {

template <class O> struct Vc {
    typename O::W re, im;
};

template <class O> [[gnu::always_inline]] inline Vc<O> add(Vc<O> a, Vc<O> b) noexcept { return {O::add(a.re, b.re), O::add(a.im, b.im)}; }
template <class O> [[gnu::always_inline]] inline Vc<O> sub(Vc<O> a, Vc<O> b) noexcept { return {O::sub(a.re, b.re), O::sub(a.im, b.im)}; }
template <class O> [[gnu::always_inline]] inline Vc<O> mul(Vc<O> a, Vc<O> b) noexcept {
    return {O::sub(O::mul(a.re, b.re), O::mul(a.im, b.im)), O::add(O::mul(a.im, b.re), O::mul(a.re, b.im))};
}
template <class O> [[gnu::always_inline]] inline Vc<O> select(Vc<O> a, Vc<O> b, typename O::Mask m) noexcept {
    return {O::select(a.re, b.re, m), O::select(a.im, b.im, m)};
}
template <class O> [[gnu::always_inline]] inline Vc<O> load(const Cx* p) noexcept {
    Vc<O> v;
    O::load8(p, v.re, v.im);
    return v;
}

// Smith's division, both branches folded into one by exchanging the roles of
// the components where the imaginary part of the divisor is the larger.
template <class O> [[gnu::always_inline]] inline Vc<O> div(Vc<O> a, Vc<O> b) noexcept {
    using W = typename O::W;
    const typename O::Mask re_big = O::ge(O::abs(b.re), O::abs(b.im));
    const W big = O::select(b.im, b.re, re_big), small = O::select(b.re, b.im, re_big);
    const W p = O::select(a.im, a.re, re_big), q = O::select(a.re, a.im, re_big);
    const W r = O::div(small, big);
    const W den = O::add(big, O::mul(small, r));
    const W pr = O::mul(p, r);
    const W im = O::select(O::sub(pr, q), O::sub(q, pr), re_big);
    return {O::div(O::add(p, O::mul(q, r)), den), O::div(im, den)};
}

// The overflow-safe magnitude; the scaled form only when some lane needs it.
template <class O> [[gnu::always_inline]] inline typename O::W magnitude(Vc<O> z) noexcept {
    using W = typename O::W;
    using Mask = typename O::Mask;
    const W ax = O::abs(z.re), ay = O::abs(z.im);
    const Mask x_big = O::ge(ax, ay);
    const W big = O::select(ay, ax, x_big);
    const W plain = O::sqrt(O::add(O::mul(ax, ax), O::mul(ay, ay)));
    const Mask safe = O::both(O::le(big, O::set(kSquareSafeHigh)),
                              O::either(O::ge(big, O::set(kSquareSafeLow)), O::eq(big, O::set(0.0))));
    if (O::all(safe)) return plain;
    const W inf = O::set(HUGE_VAL);
    const W q = O::div(O::select(ax, ay, x_big), big);
    W scaled = O::mul(big, O::sqrt(O::add(O::set(1.0), O::mul(q, q))));
    scaled = O::select(scaled, inf, O::either(O::eq(ax, inf), O::eq(ay, inf)));
    return O::select(scaled, plain, safe);
}

// Twenty streams are more than the hardware prefetchers keep up with: each
// call asks for the inputs of the call eight calls later, into the L2 cache.
constexpr int kPrefetchPoints = 64;
static inline void prefetch_ahead(const Cx* p) noexcept {
    // Integer arithmetic: the address may lie past the end of the array.
    const std::uintptr_t at = reinterpret_cast<std::uintptr_t>(p) + kPrefetchPoints * sizeof(Cx);
    _mm_prefetch(reinterpret_cast<const char*>(at), _MM_HINT_T1);
    _mm_prefetch(reinterpret_cast<const char*>(at + 4 * sizeof(Cx)), _MM_HINT_T1);
}

template <class O> void correct_2port_x8(const TwoPortArrays& t, int start) noexcept {
    using V = Vc<O>;
    using Mask = typename O::Mask;
    const V one = {O::set(1.0), O::set(0.0)};
    const V zero = {O::set(0.0), O::set(0.0)};
    const typename O::W threshold = O::set(kPivotThreshold);

    // N = (measured - offset) / tracking, M = N * match + I.
    V n[4], m[4];
    for (int p = 0; p < 4; ++p) {
        prefetch_ahead(t.measured[p] + start);
        prefetch_ahead(t.tracking[p] + start);
        prefetch_ahead(t.match[p] + start);
        if (t.offset[p]) prefetch_ahead(t.offset[p] + start);
        V raw = load<O>(t.measured[p] + start);
        if (t.offset[p]) raw = sub(raw, load<O>(t.offset[p] + start));
        n[p] = div(raw, load<O>(t.tracking[p] + start));
        m[p] = mul(n[p], load<O>(t.match[p] + start));
    }
    m[0].re = O::add(m[0].re, one.re);
    m[3].re = O::add(m[3].re, one.re);

    // Column 0: the lower row becomes the pivot row only when strictly larger.
    const typename O::W mag0 = magnitude(m[0]), mag2 = magnitude(m[2]);
    const Mask swap = O::gt(mag2, mag0);
    const Mask singular0 = O::lt(O::select(mag0, mag2, swap), threshold);
    V a00 = select(m[0], m[2], swap), a01 = select(m[1], m[3], swap);
    V a10 = select(m[2], m[0], swap), a11 = select(m[3], m[1], swap);
    V rec = div(one, a00);
    a00 = mul(one, rec);
    a01 = mul(a01, rec);
    V f = a10;
    a10 = sub(zero, mul(f, a00));
    a11 = sub(a11, mul(f, a01));
    const V h00 = a00, h01 = a01, h10 = a10, h11 = a11;  // the state a singular column 1 leaves

    // Column 1.
    const Mask singular1 = O::lt(magnitude(a11), threshold);
    rec = div(one, a11);
    a10 = mul(a10, rec);
    a11 = mul(one, rec);
    f = a01;
    a00 = sub(a00, mul(f, a10));
    a01 = sub(zero, mul(f, a11));

    // Undo the row interchange on the columns; a lane whose matrix was
    // singular keeps the state its inversion stopped in.
    V i00 = select(a00, a01, swap), i01 = select(a01, a00, swap);
    V i10 = select(a10, a11, swap), i11 = select(a11, a10, swap);
    if (O::any(O::either(singular0, singular1))) {
        i00 = select(select(i00, h00, singular1), m[0], singular0);
        i01 = select(select(i01, h01, singular1), m[1], singular0);
        i10 = select(select(i10, h10, singular1), m[2], singular0);
        i11 = select(select(i11, h11, singular1), m[3], singular0);
    }

    // Corrected = N * M^-1, each sum accumulated from zero in increasing k.
    const V c[4] = {add(add(zero, mul(n[0], i00)), mul(n[1], i10)), add(add(zero, mul(n[0], i01)), mul(n[1], i11)),
                    add(add(zero, mul(n[2], i00)), mul(n[3], i10)), add(add(zero, mul(n[2], i01)), mul(n[3], i11))};
    for (int p = 0; p < 4; ++p)
        if (t.corrected[p]) O::store8(t.corrected[p] + start, c[p].re, c[p].im);
}

}  // namespace simd
}  // namespace zf
