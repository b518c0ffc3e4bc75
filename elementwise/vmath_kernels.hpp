// The vector math kernels, written once over the operations of
// vmath_simd.hpp and compiled by vmath_avx2.cpp and vmath_avx512.cpp. They
// compute in double for both precisions (float data are widened on load), so
// a float result is the double one rounded once; the double results carry the
// last steps in double-double and are rounded once at the end.
//
// Polynomial coefficients are Chebyshev fits made in 300-bit arithmetic; the
// comments give the interval and the fit's error.
#pragma once

#include <cmath>
#include <cstddef>

#include "core/libm.hpp"
#include "core/vector.hpp"
#include "elementwise/vmath.hpp"
#include "elementwise/vmath_simd.hpp"

namespace zf {
namespace {

struct DD {
    V hi, lo;
};
// a + b exactly, for |a| >= |b| or a = 0.
ZF_VINLINE DD fast_two_sum(V a, V b) noexcept {
    const V s = add(a, b);
    return {s, sub(b, sub(s, a))};
}

template <std::size_t N> ZF_VINLINE V horner(V x, const double (&c)[N]) noexcept {
    V p = set1(c[N - 1]);
    for (std::size_t k = N - 1; k-- > 0;) p = fma(p, x, set1(c[k]));
    return p;
}

// ---------------------------------------------------------------- logarithm
// x = 2^k m, m in [0.75, 1.5), cut into 16 intervals by the top four bits of
// m's mantissa field: [1 + i/16, ...) for i < 8 and [0.75 + (i-8)/32, ...)
// above. With c the reciprocal of an interval's centre (1 for the two
// intervals that touch 1, so that r = m - 1 is exact there),
// log x = k log 2 - log c + log1p(r), r = m c - 1 in [-1/32, 1/16]. The
// table parts -log c and log 2 are cut after 43 bits (44 for base 10) so
// that k log2_hi + T_hi is exact.
constexpr double kLogRcp[16] = {
    0x1.0000000000000p+0, 0x1.d41d41d41d41dp-1, 0x1.bacf914c1bad0p-1, 0x1.a41a41a41a41ap-1,
    0x1.8f9c18f9c18fap-1, 0x1.7d05f417d05f4p-1, 0x1.6c16c16c16c17p-1, 0x1.5c9882b931057p-1,
    0x1.4e5e0a72f0539p+0, 0x1.4141414141414p+0, 0x1.3521cfb2b78c1p+0, 0x1.29e4129e4129ep+0,
    0x1.1f7047dc11f70p+0, 0x1.15b1e5f75270dp+0, 0x1.0c9714fbcda3bp+0, 0x1.0000000000000p+0};
constexpr double kLnHi[16] = {
    0x0.0p+0, 0x1.6f0d28ae56000p-4, 0x1.29552f81ff000p-3, 0x1.9525a9cf45000p-3,
    0x1.fb9186d5e4000p-3, 0x1.2e8e2bae12000p-2, 0x1.5d1bdbf580800p-2, 0x1.89a3386c14000p-2,
    -0x1.1178e8227e800p-2, -0x1.d1037f2656000p-3, -0x1.823c16551a000p-3, -0x1.365fcb0159000p-3,
    -0x1.da72763844000p-4, -0x1.4d3115d208000p-4, -0x1.894aa149fc000p-5, 0x0.0p+0};
constexpr double kLnLo[16] = {
    0x0.0p+0, 0x1.69bb7c93373dap-45, 0x1.485301771c408p-45, 0x1.ad6d904c1d4e3p-45,
    -0x1.d6b2aab993c87p-47, -0x1.6791e99b72bd8p-45, 0x1.c9a08d8e0f720p-46, 0x1.2d92d38c40882p-45,
    0x1.c2c8e63a5f01cp-45, 0x1.8527e75b6f6e4p-47, -0x1.e02db9a631e83p-46, -0x1.46fa8234b7289p-51,
    -0x1.a79401fa71733p-46, 0x1.53e2582f4e1efp-48, 0x1.96a95d05a267dp-46, 0x0.0p+0};
constexpr double kLgHi[16] = {
    0x0.0p+0, 0x1.3ed1199a5e000p-5, 0x1.02428c1f08000p-4, 0x1.5fe80488af000p-4,
    0x1.b8de4d3ab4000p-4, 0x1.06cbd67a6c000p-3, 0x1.2f3b691c5a000p-3, 0x1.55e8c518b1000p-3,
    -0x1.db11ed766b000p-4, -0x1.93e7de0fc4000p-4, -0x1.4f7aad9bbd000p-4, -0x1.0d966cc650000p-4,
    -0x1.9c197abf00000p-5, -0x1.21681b5c8c000p-5, -0x1.559bd2406c000p-6, 0x0.0p+0};
constexpr double kLgLo[16] = {
    0x0.0p+0, 0x1.09bdf0f3d5010p-47, 0x1.42db4116a1ddbp-52, 0x1.3f6fc606b7fa2p-46,
    -0x1.34900b1b6ca32p-47, 0x1.db45f7dd9d12ep-46, 0x1.2aacd09e444c0p-58, 0x1.f1760e647e191p-48,
    0x1.03931af4b2b2ap-46, 0x1.80e361f2a4f9fp-48, 0x1.14975ae196b7bp-46, -0x1.f0690fe283eb2p-49,
    -0x1.ba6dc5ea8fbadp-46, -0x1.0990a0a677b7ap-48, -0x1.e04720d7d2794p-49, 0x0.0p+0};
constexpr double kLn2Hi = 0x1.62e42fefa3800p-1, kLn2Lo = 0x1.ef35793c76730p-45;
constexpr double kLg2Hi = 0x1.34413509f7800p-2, kLg2Lo = 0x1.fef311f12b358p-46;
constexpr double kInvLn10Hi = 0x1.bcb7b1526e50ep-2, kInvLn10Lo = 0x1.95355baaafad3p-57;
// log1p(r) = r - r^2/2 + r^3 Q(r) on [-0.032, 0.0625]: error 3.5e-16 (double), 8.6e-8 (float).
constexpr double kLogQ[9] = {0x1.5555555555554p-2,  -0x1.00000000004b5p-2, 0x1.99999999a7688p-3,
                             -0x1.555555467153fp-3, 0x1.249247e22fbf1p-3,  -0x1.00005b0473cf1p-3,
                             0x1.c72f8a8ca8ce5p-4,  -0x1.98a8147589124p-4, 0x1.4a02387e87101p-4};
constexpr double kLogQf[4] = {0x1.555553e5256fcp-2, -0x1.0001e9b332e24p-2, 0x1.99d883420291bp-3,
                              -0x1.4498159fdf5c1p-3};

struct LogTables {
    Table16 rcp, hi, lo;
    V k_hi, k_lo;
    bool decimal;
    explicit LogTables(bool dec) noexcept
        : rcp(kLogRcp), hi(dec ? kLgHi : kLnHi), lo(dec ? kLgLo : kLnLo), k_hi(set1(dec ? kLg2Hi : kLn2Hi)),
          k_lo(set1(dec ? kLg2Lo : kLn2Lo)), decimal(dec) {}
};

// The natural or decimal logarithm of positive normal finite lanes.
template <class T> ZF_VINLINE V log_core(V x, const LogTables& t) noexcept {
    V k, m;
    split(x, k, m);
    const I i = top4(m);
    const V c = t.rcp(i);
    const V p = mul(m, c);
    const V pe = fms(m, c, p);           // m c = p + pe exactly
    const V r = sub(p, set1(1.0));       // exact: p is near 1
    const V q = sizeof(T) == 4 ? horner(r, kLogQf) : horner(r, kLogQ);
    // log1p(r + pe) = r + (pe - pe r) + r^2 (r Q - 1/2)
    const V tail = add(fnma(pe, r, pe), mul(mul(r, r), fms(r, q, set1(0.5))));
    const V a = fma(k, t.k_hi, t.hi(i));   // exact
    if (!t.decimal) {
        const DD s = fast_two_sum(a, r);
        return add(s.hi, add(s.lo, add(fma(k, t.k_lo, t.lo(i)), tail)));
    }
    const V rh = mul(r, set1(kInvLn10Hi));
    const V rl = fms(r, set1(kInvLn10Hi), rh);
    const DD s = fast_two_sum(a, rh);
    const V low = fma(r, set1(kInvLn10Lo), fma(tail, set1(kInvLn10Hi), rl));
    return add(s.hi, add(s.lo, add(fma(k, t.k_lo, t.lo(i)), low)));
}

// --------------------------------------------------------------- arc tangent
// t = min/max of |x|, |y| (a double-double), j = round(16 t) (at most 15),
// atan t = atan(j/16) + atan(d) with d = (t - j/16) / (1 + t j/16), |d| <= 1/32,
// then the octant: atan2 = C + s atan t with C in {0, π/2, π}, and y's sign.
constexpr double kAtanHi[16] = {
    0x0.0p+0, 0x1.ff55bb72cfdeap-5, 0x1.fd5ba9aac2f6ep-4, 0x1.7b97b4bce5b02p-3,
    0x1.f5b75f92c80ddp-3, 0x1.362773707ebccp-2, 0x1.6f61941e4def1p-2, 0x1.a64eec3cc23fdp-2,
    0x1.dac670561bb4fp-2, 0x1.0657e94db30d0p-1, 0x1.1e00babdefeb4p-1, 0x1.345f01cce37bbp-1,
    0x1.4978fa3269ee1p-1, 0x1.5d58987169b18p-1, 0x1.700a7c5784634p-1, 0x1.819d0b7158a4dp-1};
constexpr double kAtanLo[16] = {
    0x0.0p+0, -0x1.c934d86d23f1dp-60, -0x1.cd37686760c17p-59, 0x1.347b0b4f881cap-58,
    0x1.8ab6e3cf7afbdp-57, -0x1.963a544b672d8p-57, -0x1.c63aae6f6e918p-56, -0x1.24dec1b50b7ffp-56,
    0x1.a2b7f222f65e2p-56, -0x1.d5b495f6349e6p-56, -0x1.928df287a668fp-58, 0x1.1021137c71102p-55,
    0x1.2419a87f2a458p-56, 0x1.0028e4bc5e7cap-57, -0x1.8c34d25aadef6p-56, -0x1.bf76229d3b917p-56};
// atan(d) = d + d^3 A(d^2) for d^2 <= 0.0325^2: error 2.0e-19 (double), 2.0e-8 (float).
constexpr double kAtanA[5] = {-0x1.5555555555555p-2, 0x1.9999999999849p-3, -0x1.2492492224b63p-3,
                              0x1.c71c3f7b8abadp-4, -0x1.73886a544b7e2p-4};
constexpr double kAtanAf[2] = {-0x1.555553ff58dc6p-2, 0x1.994a8ba6a8649p-3};
constexpr double kPio2Hi = 0x1.921fb54442d18p+0, kPio2Lo = 0x1.1a62633145c07p-54;
constexpr double kPiHi = 0x1.921fb54442d18p+1, kPiLo = 0x1.1a62633145c07p-53;

struct AtanTables {
    Table16 hi, lo;
    AtanTables() noexcept : hi(kAtanHi), lo(kAtanLo) {}
};

// atan2(y, x) for finite lanes whose larger part lies within 2^+-500, not both 0.
// The float twin needs no low parts: its sums in double are 2^-29 ulp off at most.
template <class T> ZF_VINLINE V atan2_core(V y, V x, const AtanTables& tab) noexcept {
    constexpr bool twin = sizeof(T) == 4;
    const V ax = abs(x), ay = abs(y);
    const M swap = gt(ay, ax), neg = lt(x, set1(0.0));
    const V num = min(ax, ay), den = max(ax, ay);
    const V inv = recip(den);
    const V t = mul(num, inv);
    const V jd = min(round(mul(t, set1(16.0))), set1(15.0));
    const V tj = mul(jd, set1(0.0625));
    const V nh = sub(t, tj);   // exact
    const V dh = fma(t, tj, set1(1.0));
    const V inv2 = recip(dh);
    const V d = mul(nh, inv2);
    const V z = mul(d, d);
    const I j = small_int(jd);
    // C + s atan t, s = -1 when exactly one of swap and neg holds.
    const V zero = set1(0.0), minus = set1(-0.0);
    const V c_hi = select(swap, set1(kPio2Hi), select(neg, set1(kPiHi), zero));
    const V flip = select(swap, select(neg, zero, minus), select(neg, minus, zero));
    if constexpr (twin) {
        const V at = add(tab.hi(j), fma(mul(d, z), horner(z, kAtanAf), d));
        return xor_(add(c_hi, xor_(at, flip)), sign_of(y));
    } else {
        const V tl = mul(fnma(t, den, num), inv);
        const V dl = fma(tl, tj, fma(t, tj, sub(set1(1.0), dh)));
        const V dlo = mul(fnma(d, dl, add(fnma(d, dh, nh), tl)), inv2);
        const DD a = fast_two_sum(tab.hi(j), d);
        const V alo = add(a.lo, add(tab.lo(j), fma(mul(d, z), horner(z, kAtanA), dlo)));
        const V c_lo = select(swap, set1(kPio2Lo), select(neg, set1(kPiLo), zero));
        const DD s = fast_two_sum(c_hi, xor_(a.hi, flip));
        const V out = add(s.hi, add(s.lo, add(c_lo, xor_(alo, flip))));
        return xor_(out, sign_of(y));
    }
}

// ------------------------------------------------------------- exponential
// k = round(x / log 2), r = x - k log 2 (exact high part), e^r = 1 + r + r^2/2
// + r^3 E(r), times 2^k rounded once (subnormal results too).
constexpr double kLog2e = 0x1.71547652b82fep+0;
constexpr double kLn2ExpHi = 0x1.62e42fefa39efp-1, kLn2ExpLo = 0x1.abc9e3b39803fp-56;
// on [-0.3466, 0.3466]: error 8.1e-18 (double), 8.1e-9 (float).
constexpr double kExpE[10] = {0x1.5555555555556p-3, 0x1.5555555555555p-5, 0x1.11111111109b3p-7,
                              0x1.6c16c16c167e1p-10, 0x1.a01a01a7c41d5p-13, 0x1.a01a01a47b054p-16,
                              0x1.71de0dae63bb3p-19, 0x1.27e4e1f48534fp-22, 0x1.af38a9b0ec855p-26,
                              0x1.1f66df7fca49fp-29};
constexpr double kExpEf[5] = {0x1.5555555555555p-3, 0x1.5555192d5f5dep-5, 0x1.1110f656b73fcp-7,
                              0x1.6d11093a17fd8p-10, 0x1.a0f86c84449cdp-13};

template <class T> ZF_VINLINE V exp_core(V x) noexcept {
    x = max(set1(-746.0), x);   // e^-746 rounds to 0; NaN passes (max returns its second operand)
    const V k = round(mul(x, set1(kLog2e)));
    const DD r = fast_two_sum(fnma(k, set1(kLn2ExpHi), x), mul(k, set1(-kLn2ExpLo)));   // first term exact
    const V e = sizeof(T) == 4 ? horner(r.hi, kExpEf) : horner(r.hi, kExpE);
    const DD s = fast_two_sum(set1(1.0), r.hi);
    const V tail = fma(mul(r.hi, r.hi), fma(r.hi, e, set1(0.5)), fma(r.lo, r.hi, r.lo));
    return scale2(add(s.hi, add(s.lo, tail)), k);
}

// ---------------------------------------------------------------- hypotenuse
// hypot = sqrt(s), s = a^2 + b^2. Double: s is formed in double-double and
// rounded once, so sqrt(s) is within half an ulp of the root of the rounded
// sum, which is itself within half an ulp (relative 2^-54) of hypot: the result
// is at most 1 ulp off, for lanes whose larger part lies within 2^+-500. Float
// (parts widened): the square b^2 is exact, s and its root each rounded once in
// double, then to float: any finite pair.
template <class T> ZF_VINLINE V hypot_core(V a, V b) noexcept {
    if constexpr (sizeof(T) == 4) {
        return sqrt(fma(a, a, mul(b, b)));
    } else {
        const V hi = max(abs(a), abs(b)), lo = min(abs(a), abs(b));
        const V h2 = mul(hi, hi), l2 = mul(lo, lo);
        const DD s = fast_two_sum(h2, l2);
        return sqrt(add(s.hi, add(s.lo, add(fms(hi, hi, h2), fms(lo, lo, l2)))));
    }
}

// ------------------------------------------------------------ sine, cosine
// n = round(x 2/π), r = x - n π/2 with π/2 in three parts (the first product
// exact through the fused multiply-add) as a double-double, then the Taylor
// kernels of core/libm.cpp with the leading terms formed exactly; for |x| below
// kTrigLimit (beyond it, and for non-finite x, the scalar functions serve).
constexpr double kTwoOverPi = 0x1.45f306dc9c883p-1;
constexpr double kPio2_2 = 0x1.1a62633145c07p-54, kPio2_3 = -0x1.f1976b7ed8fbcp-110;
constexpr double kTrigLimit = 1.6e6;
constexpr double kSinS[7] = {1.0 / 120, -1.0 / 5040, 1.0 / 362880, -1.0 / 39916800, 1.0 / 6227020800,
                             -1.0 / 1307674368000, 1.0 / 355687428096000};
constexpr double kCosC[8] = {1.0 / 24, -1.0 / 720, 1.0 / 40320, -1.0 / 3628800, 1.0 / 479001600,
                             -1.0 / 87178291200, 1.0 / 20922789888000, -1.0 / 6402373705728000};
constexpr double kSixthHi = -1.0 / 6, kSixthLo = -9.2518585385429707e-18;

struct SinCos {
    V s, c;
};
ZF_VINLINE SinCos sincos_core(V x) noexcept {
    const V n = round(mul(x, set1(kTwoOverPi)));
    const V r1 = fnma(n, set1(kPio2Hi), x);   // exact
    const V p = mul(n, set1(kPio2_2)), pe = fms(n, set1(kPio2_2), p);
    const V s0 = sub(r1, p), bp = sub(s0, r1);
    const V e = sub(sub(r1, sub(s0, bp)), add(p, bp));   // r1 - p = s0 + e exactly
    const DD r = fast_two_sum(s0, fnma(n, set1(kPio2_3), sub(e, pe)));
    // sin r: r + (-r^3/6 exactly) + r^5 ..., cos r: (1 - z/2 exactly) + z^2 ...
    const V z = mul(r.hi, r.hi), zl = fms(r.hi, r.hi, z);
    const V r3 = mul(r.hi, z), r3l = fma(r.hi, zl, fms(r.hi, z, r3));
    const V lead = mul(r3, set1(kSixthHi));
    const V rest = add(fma(r3, set1(kSixthLo), fma(r3l, set1(kSixthHi), fms(r3, set1(kSixthHi), lead))),
                       fma(mul(r3, z), horner(z, kSinS), mul(r.lo, fnma(set1(0.5), z, set1(1.0)))));
    const DD sh = fast_two_sum(r.hi, lead);
    const V sv = add(sh.hi, add(sh.lo, rest));
    const DD w = fast_two_sum(set1(1.0), mul(set1(-0.5), z));
    const V cv = add(w.hi, add(w.lo, fnma(r.hi, r.lo, fms(mul(z, z), horner(z, kCosC), mul(set1(0.5), zl)))));
    // quadrant n mod 4
    const V q = sub(n, mul(floor(mul(n, set1(0.25))), set1(4.0)));
    const M odd = or_(eq(q, set1(1.0)), eq(q, set1(3.0)));
    const V zero = set1(0.0), minus = set1(-0.0);
    const V s_flip = select(ge(q, set1(2.0)), minus, zero);
    const V c_flip = select(or_(eq(q, set1(1.0)), eq(q, set1(2.0))), minus, zero);
    return {xor_(select(odd, cv, sv), s_flip), xor_(select(odd, sv, cv), c_flip)};
}

// ---------------------------------------------------------------- the loops
// Runs one(x) over n scalars in place, the last partial vector through a
// buffer padded with pad.
template <class T, class F> inline void each(T* d, std::size_t n, double pad, F one) noexcept {
    std::size_t i = 0;
    for (; i + W <= n; i += W) store(d + i, one(load(d + i)));
    if (i == n) return;
    T buf[W];
    for (int j = 0; j < W; ++j) buf[j] = i + j < n ? d[i + j] : static_cast<T>(pad);
    store(buf, one(load(buf)));
    for (std::size_t j = 0; i + j < n; ++j) d[i + j] = buf[j];
}

// Loads W pairs from 2W scalars (through a buffer padded with pad when fewer remain).
template <class T> inline void load_pairs(const T* in, std::size_t pairs, double pad, V& re, V& im) noexcept {
    if (pairs >= static_cast<std::size_t>(W)) {
        deinterleave(load(in), load(in + W), re, im);
        return;
    }
    T buf[2 * W];
    for (std::size_t j = 0; j < 2 * static_cast<std::size_t>(W); ++j) buf[j] = j < 2 * pairs ? in[j] : static_cast<T>(pad);
    deinterleave(load(buf), load(buf + W), re, im);
}

template <class T> void log_block(T* d, std::size_t n, T factor, T floor, bool decimal) noexcept {
    const LogTables tab(decimal);
    const V f = set1(factor), fl = set1(floor), tiny = set1(Traits<T>::tiny), inf = set1(HUGE_VAL);
    each(d, n, 1.0, [&](V x) {
        const V y = select(eq(x, inf), inf, log_core<T>(x, tab));
        return select(ge(x, tiny), mul(f, y), fl);
    });
}

template <class T> void log_pairs_block(T* d, std::size_t n, T factor, T floor, T angle, bool decimal) noexcept {
    const LogTables tab(decimal);
    const AtanTables at;
    const V f = set1(factor), fl = set1(floor), ang = set1(angle), tiny = set1(Traits<T>::tiny);
    const V huge = set1(Traits<T>::huge), nhuge = set1(-Traits<T>::huge);
    for (std::size_t k = 0; k < n; k += W) {
        const std::size_t left = n - k;
        V re, im;
        load_pairs(d + 2 * k, left, 1.0, re, im);
        const V a = min(huge, max(nhuge, re)), b = min(huge, max(nhuge, im));   // NaN kept
        const V p = sizeof(T) == 4 ? fma(a, a, mul(b, b)) : add(mul(a, a), mul(b, b));
        const M ok = ge(p, tiny);
        const V lr = select(ok, mul(mul(f, log_core<T>(p, tab)), set1(0.5)), fl);
        const V li = select(ok, mul(atan2_core<T>(b, a, at), ang), set1(0.0));
        V lo, hi;
        interleave(lr, li, lo, hi);
        if (left >= static_cast<std::size_t>(W)) {
            store(d + 2 * k, lo);
            store(d + 2 * k + W, hi);
        } else {
            T buf[2 * W];
            store(buf, lo);
            store(buf + W, hi);
            for (std::size_t j = 0; j < 2 * left; ++j) d[2 * k + j] = buf[j];
        }
    }
}

template <class T> void exp_block(T* d, std::size_t n) noexcept {
    const V limit = set1(Traits<T>::exp_limit), huge = set1(Traits<T>::huge);
    each(d, n, 0.0, [&](V x) { return select(gt(x, limit), huge, exp_core<T>(x)); });
}

// Pairs to one value each, in place allowed: vector lanes whose larger part
// lies in [least, 2^500), the others by scalar(re, im).
template <class T, class Core, class Scalar>
inline void pack_block(const T* in, T* out, std::size_t n, double least, Core core, Scalar scalar) noexcept {
    const V lo = set1(least), hi = set1(0x1p500);
    for (std::size_t k = 0; k < n; k += W) {
        const std::size_t left = n - k;
        V re, im;
        load_pairs(in + 2 * k, left, 1.0, re, im);
        const V big = max(abs(re), abs(im));
        const unsigned safe = bits(and_(ge(big, lo), lt(big, hi)));
        if (left >= static_cast<std::size_t>(W) && safe == (1u << W) - 1) {
            store(out + k, core(re, im));
            continue;
        }
        T buf[W];
        store(buf, core(re, im));
        const std::size_t count = left < static_cast<std::size_t>(W) ? left : static_cast<std::size_t>(W);
        for (std::size_t j = 0; j < count; ++j) {
            if (!((safe >> j) & 1u)) buf[j] = scalar(in[2 * (k + j)], in[2 * (k + j) + 1]);
        }
        for (std::size_t j = 0; j < count; ++j) out[k + j] = buf[j];
    }
}

template <class T> void phase_block(const T* in, T* out, std::size_t n) noexcept {
    const AtanTables at;
    pack_block(in, out, n, 0x1p-500, [&](V re, V im) { return atan2_core<T>(im, re, at); },
               [](T re, T im) { return (re == T(0) && im == T(0)) ? T(0) : std::atan2(im, re); });
}

template <class T> void mag_block(const T* in, T* out, std::size_t n) noexcept {
    // float pairs down to (0, 0) stay in the vector lanes
    pack_block(in, out, n, sizeof(T) == 4 ? 0.0 : 0x1p-500, [](V re, V im) { return hypot_core<T>(re, im); },
               [](T re, T im) { return std::hypot(re, im); });
}

template <class T> void sin_cos_block(T* d, std::size_t n, bool cosine) noexcept {
    const V limit = set1(kTrigLimit);
    for (std::size_t i = 0; i < n; i += W) {
        const std::size_t left = n - i;
        const bool full = left >= static_cast<std::size_t>(W);
        T buf[W];
        for (std::size_t j = 0; !full && j < static_cast<std::size_t>(W); ++j) buf[j] = j < left ? d[i + j] : T(0);
        const V x = load(full ? d + i : buf);
        const unsigned safe = bits(lt(abs(x), limit));
        const SinCos sc = sincos_core(x);
        const V y = cosine ? sc.c : sc.s;
        if (full && safe == (1u << W) - 1) {
            store(d + i, y);
            continue;
        }
        T out[W];
        store(out, y);
        const std::size_t count = full ? static_cast<std::size_t>(W) : left;
        for (std::size_t j = 0; j < count; ++j)
            d[i + j] = ((safe >> j) & 1u) ? out[j] : (cosine ? libm::cos(d[i + j]) : libm::sin(d[i + j]));
    }
}

template <class T> void polar_block(T* d, std::size_t n) noexcept {
    const V limit = set1(kTrigLimit);
    for (std::size_t k = 0; k < n; k += W) {
        const std::size_t left = n - k;
        V m, phi;
        load_pairs(d + 2 * k, left, 0.0, m, phi);
        const unsigned safe = bits(lt(abs(phi), limit));
        const SinCos sc = sincos_core(phi);
        V lo, hi;
        interleave(mul(m, sc.c), mul(m, sc.s), lo, hi);
        T buf[2 * W];
        store(buf, lo);
        store(buf + W, hi);
        const std::size_t count = left < static_cast<std::size_t>(W) ? left : static_cast<std::size_t>(W);
        for (std::size_t j = 0; j < count; ++j) {
            T* pair = d + 2 * (k + j);
            if ((safe >> j) & 1u) {
                pair[0] = buf[2 * j];
                pair[1] = buf[2 * j + 1];
            } else {
                double s, c;   // in double like the vector lanes, rounded once
                libm::sincos(static_cast<double>(pair[1]), &s, &c);
                const double mag = pair[0];
                pair[0] = static_cast<T>(mag * c);
                pair[1] = static_cast<T>(mag * s);
            }
        }
    }
}

template <class T> constexpr VecMath<T> kernels() noexcept {
    return VecMath<T>{&log_block<T>, &log_pairs_block<T>, &exp_block<T>, &phase_block<T>,
                      &mag_block<T>, &sin_cos_block<T>, &polar_block<T>};
}

}  // namespace
}  // namespace zf
