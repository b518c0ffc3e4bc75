// Sine, cosine and tangent with correct argument reduction, in plain double
// arithmetic. A reduced argument is carried as a double-double r = rh + rl with
// |r| <= π/4 (a little more at the edges of the Cody-Waite range) and a quadrant
// q; the kernels return double-double values too, so that tan and the turn
// fractions of the tables lose nothing before their last rounding.
#include "core/libm.hpp"

#include <cmath>
#include <cstring>

namespace zf {
namespace libm {
namespace {

struct DD {
    double hi, lo;
};

// a + b exactly as hi + lo (any magnitudes).
inline DD two_sum(double a, double b) noexcept {
    const double s = a + b;
    const double bp = s - a;
    return {s, (a - (s - bp)) + (b - bp)};
}
// a + b exactly, for |a| >= |b| (or a = 0).
inline DD fast_two_sum(double a, double b) noexcept {
    const double s = a + b;
    return {s, b - (s - a)};
}
// a * b exactly as hi + lo, by Veltkamp's split (no fused multiply-add needed);
// the operands here are far from overflow.
inline DD two_prod(double a, double b) noexcept {
    const double split = 134217729.0;   // 2^27 + 1
    const double ca = split * a, cb = split * b;
    const double ah = ca - (ca - a), al = a - ah;
    const double bh = cb - (cb - b), bl = b - bh;
    const double p = a * b;
    return {p, ((ah * bh - p) + ah * bl + al * bh) + al * bl};
}

// π/2 in pieces: the first three of 33 bits each (so that n times each is exact
// for n < 2^20), the fourth the rest rounded; and π/2, π/4 as double-doubles.
constexpr double kPio2_1 = 0x1.921fb544p+0;
constexpr double kPio2_2 = 0x1.0b4611a6p-34;
constexpr double kPio2_3 = 0x1.3198a2ep-69;
constexpr double kPio2_4 = 0x1.b839a252049c1p-104;
constexpr double kPio2Hi = 0x1.921fb54442d18p+0, kPio2Lo = 0x1.1a62633145c07p-54;
constexpr double kPio4Hi = 0x1.921fb54442d18p-1, kPio4Lo = 0x1.1a62633145c07p-55;
constexpr double kTwoOverPi = 0.63661977236758138;
constexpr double kCodyWaiteLimit = 1.6e6;   // below (2^20 - 1/2) π/2

// The binary digits of 2/π, 32 to a word, from the first after the point.
constexpr std::uint32_t kTwoOverPiBits[] = {
    0xA2F9836E, 0x4E441529, 0xFC2757D1, 0xF534DDC0, 0xDB629599, 0x3C439041, 0xFE5163AB, 0xDEBBC561,
    0xB7246E3A, 0x424DD2E0, 0x06492EEA, 0x09D1921C, 0xFE1DEB1C, 0xB129A73E, 0xE88235F5, 0x2EBB4484,
    0xE99C7026, 0xB45F7E41, 0x3991D639, 0x835339F4, 0x9C845F8B, 0xBDF9283B, 0x1FF897FF, 0xDE05980F,
    0xEF2F118B, 0x5A0A6D1F, 0x6D367ECF, 0x27CB09B7, 0x4F463F66, 0x9E5FEA2D, 0x7527BAC7, 0xEBE5F17B,
    0x3D0739F7, 0x8A5292EA, 0x6BFB5FB1, 0x1F8D5D08, 0x56033046, 0xFC7B6BAB,
};

struct Reduced {
    DD r;
    int q;   // quadrant: x = r + q π/2 modulo 2π
};

// Cody-Waite reduction of 0 <= ax < kCodyWaiteLimit.
inline Reduced reduce_medium(double ax) noexcept {
    const double n = std::floor(ax * kTwoOverPi + 0.5);
    const double y = ax - n * kPio2_1;   // exact: n·kPio2_1 is exact and close to ax
    DD s = two_sum(y, -(n * kPio2_2));
    DD t = two_sum(s.hi, -(n * kPio2_3));
    const double err = (s.lo + t.lo) - n * kPio2_4;
    return {two_sum(t.hi, err), static_cast<int>(n) & 3};
}

// Bits [pos, pos + 63] of the number held in ten 32-bit limbs, least significant first.
inline std::uint64_t bits64(const std::uint32_t* p, int pos) noexcept {
    std::uint64_t out = 0;
    for (int k = 0; k < 64; k += 32) {
        const int at = pos + k, limb = at >> 5, sh = at & 31;
        std::uint64_t w = p[limb] >> sh;
        if (sh && limb + 1 < 10) w |= static_cast<std::uint64_t>(p[limb + 1]) << (32 - sh);
        out |= (w & 0xFFFFFFFFu) << k;
    }
    return out;
}

// Payne-Hanek reduction of a finite ax >= kCodyWaiteLimit: ax = m 2^e with a
// 53-bit integer m is multiplied by the seven words of 2/π that can reach the
// quadrant and 128 bits below the point (earlier words give multiples of 8);
// the seventh keeps the truncation below 2^-130, far under the smallest
// fraction a double can leave (about 2^-62).
Reduced reduce_huge(double ax) noexcept {
    std::uint64_t bits;
    std::memcpy(&bits, &ax, sizeof bits);
    const int e = static_cast<int>((bits >> 52) & 0x7FF) - 1075;
    const std::uint64_t m = (bits & ((std::uint64_t(1) << 52) - 1)) | (std::uint64_t(1) << 52);
    const int i0 = e >= 3 ? (e - 3) / 32 : 0;
    const int point = 192 - (e - 32 * (i0 + 1));   // bit of the product that weighs 1

    // Product m * (words i0 .. i0+6), 277 bits in ten limbs.
    std::uint32_t p[10] = {};
    const std::uint64_t half[2] = {m & 0xFFFFFFFFu, m >> 32};
    for (int h = 0; h < 2; ++h) {
        std::uint64_t carry = 0;
        for (int j = 0; j < 7; ++j) {
            const std::uint64_t w = kTwoOverPiBits[i0 + 6 - j];
            const std::uint64_t t = w * half[h] + p[j + h] + carry;
            p[j + h] = static_cast<std::uint32_t>(t);
            carry = t >> 32;
        }
        for (int j = 7 + h; j < 10 && carry; ++j) {
            const std::uint64_t t = p[j] + carry;
            p[j] = static_cast<std::uint32_t>(t);
            carry = t >> 32;
        }
    }
    int q = static_cast<int>(bits64(p, point) & 7);
    std::uint64_t f0 = bits64(p, point - 64), f1 = bits64(p, point - 128);
    double sign = 1;
    if (f0 >> 63) {   // fraction >= 1/2: round the quadrant up, keep 1 - fraction
        ++q;
        sign = -1;
        f1 = ~f1 + 1;
        f0 = ~f0 + (f1 == 0 ? 1 : 0);
    }
    int lz = 0;
    if (f0 == 0) { f0 = f1; f1 = 0; lz = 64; }
    while (!(f0 >> 63)) {
        f0 = (f0 << 1) | (f1 >> 63);
        f1 <<= 1;
        ++lz;
    }
    const double a = std::ldexp(static_cast<double>(f0 >> 11), -53 - lz);
    const double b = std::ldexp(static_cast<double>(((f0 & 0x7FF) << 42) | (f1 >> 22)), -106 - lz);
    DD r = two_prod(a, kPio2Hi);
    r = fast_two_sum(r.hi, r.lo + (a * kPio2Lo + b * kPio2Hi));
    return {{sign * r.hi, sign * r.lo}, q & 3};
}

// Reduction of a finite ax >= 0.
inline Reduced reduce(double ax) noexcept {
    if (ax <= kPio4Hi) return {{ax, 0.0}, 0};
    return ax < kCodyWaiteLimit ? reduce_medium(ax) : reduce_huge(ax);
}

// Taylor coefficients; with |r| <= π/4 + a little the first omitted terms are
// below 1e-19 relative.
constexpr double kS[8] = {-1.0 / 6, 1.0 / 120, -1.0 / 5040, 1.0 / 362880, -1.0 / 39916800,
                          1.0 / 6227020800, -1.0 / 1307674368000, 1.0 / 355687428096000};
constexpr double kC[8] = {1.0 / 24, -1.0 / 720, 1.0 / 40320, -1.0 / 3628800, 1.0 / 479001600,
                          -1.0 / 87178291200, 1.0 / 20922789888000, -1.0 / 6402373705728000};

// sin(rh + rl) as a double-double: the leading terms r and -r³/6 are formed
// exactly, so only the terms from r^5 on carry rounding errors (below 1% of an
// ulp of the result).
constexpr double kSixthHi = -1.0 / 6, kSixthLo = -9.2518585385429707e-18;   // -1/6 - kSixthHi
inline DD kernel_sin(DD r) noexcept {
    const DD z = two_prod(r.hi, r.hi);
    DD r3 = two_prod(r.hi, z.hi);
    r3.lo += r.hi * z.lo;
    double p = kS[7];
    for (int k = 6; k >= 1; --k) p = p * z.hi + kS[k];
    const DD lead = two_prod(r3.hi, kSixthHi);
    const double rest = (lead.lo + r3.lo * kSixthHi + r3.hi * kSixthLo) + r3.hi * z.hi * p + r.lo * (1 - 0.5 * z.hi);
    const DD s = fast_two_sum(r.hi, lead.hi);
    return fast_two_sum(s.hi, s.lo + rest);
}
// cos(rh + rl) as a double-double: 1 - z/2 is formed exactly from z = rh² split exactly.
inline DD kernel_cos(DD r) noexcept {
    const DD z = two_prod(r.hi, r.hi);
    double p = kC[7];
    for (int k = 6; k >= 0; --k) p = p * z.hi + kC[k];
    const DD w = fast_two_sum(1.0, -0.5 * z.hi);
    return fast_two_sum(w.hi, w.lo + ((z.hi * z.hi * p - 0.5 * z.lo) - r.hi * r.lo));
}

// (sin x, cos x) of a finite x as double-doubles.
inline void sincos_dd(double x, DD& s, DD& c) noexcept {
    const Reduced red = reduce(std::fabs(x));
    const DD ks = kernel_sin(red.r), kc = kernel_cos(red.r);
    switch (red.q) {
        case 0: s = ks; c = kc; break;
        case 1: s = kc; c = {-ks.hi, -ks.lo}; break;
        case 2: s = {-ks.hi, -ks.lo}; c = {-kc.hi, -kc.lo}; break;
        default: s = {-kc.hi, -kc.lo}; c = ks; break;
    }
    if (x < 0) s = {-s.hi, -s.lo};
}

constexpr double kTiny = 0x1p-27;   // below, sin x rounds to x and cos x to 1

}  // namespace

double sin(double x) noexcept {
    if (!(std::fabs(x) >= kTiny)) return x;   // ±0, subnormals, tiny and NaN
    if (std::isinf(x)) return x - x;
    const Reduced red = reduce(std::fabs(x));
    double v;
    switch (red.q) {
        case 0: { const DD k = kernel_sin(red.r); v = k.hi + k.lo; break; }
        case 1: { const DD k = kernel_cos(red.r); v = k.hi + k.lo; break; }
        case 2: { const DD k = kernel_sin(red.r); v = -(k.hi + k.lo); break; }
        default: { const DD k = kernel_cos(red.r); v = -(k.hi + k.lo); break; }
    }
    return x < 0 ? -v : v;
}

double cos(double x) noexcept {
    if (std::fabs(x) < kTiny) return 1.0;
    if (!std::isfinite(x)) return x - x;
    const Reduced red = reduce(std::fabs(x));
    switch (red.q) {
        case 0: { const DD k = kernel_cos(red.r); return k.hi + k.lo; }
        case 1: { const DD k = kernel_sin(red.r); return -(k.hi + k.lo); }
        case 2: { const DD k = kernel_cos(red.r); return -(k.hi + k.lo); }
        default: { const DD k = kernel_sin(red.r); return k.hi + k.lo; }
    }
}

void sincos(double x, double* s, double* c) noexcept {
    if (std::fabs(x) < kTiny) { *s = x; *c = 1.0; return; }
    if (!std::isfinite(x)) { *s = *c = x - x; return; }
    DD ds, dc;
    sincos_dd(x, ds, dc);
    *s = ds.hi + ds.lo;
    *c = dc.hi + dc.lo;
}

double tan(double x) noexcept {
    if (!(std::fabs(x) >= kTiny)) return x;
    if (std::isinf(x)) return x - x;
    DD n, d;
    sincos_dd(x, n, d);
    // (nh + nl) / (dh + dl) = q + (nh - q dh + nl - q dl) / dh to double-double
    // accuracy; nh - q dh is exact (the two are close), its tail from two_prod.
    const double q = n.hi / d.hi;
    const DD p = two_prod(q, d.hi);
    return q + (((n.hi - p.hi) - p.lo) + n.lo - q * d.lo) / d.hi;
}

float sin(float x) noexcept { return static_cast<float>(sin(static_cast<double>(x))); }
float cos(float x) noexcept { return static_cast<float>(cos(static_cast<double>(x))); }
float tan(float x) noexcept { return static_cast<float>(tan(static_cast<double>(x))); }
void sincos(float x, float* s, float* c) noexcept {
    double ds, dc;
    sincos(static_cast<double>(x), &ds, &dc);
    *s = static_cast<float>(ds);
    *c = static_cast<float>(dc);
}

void sincos_turn(std::int64_t p, std::int64_t q, double* s, double* c, double* s_lo, double* c_lo) noexcept {
    // The angle in units of 1/(8q) of a turn, folded into [0, π/4].
    std::int64_t a = 8 * (p % q);
    double sign_s = 1, sign_c = 1;
    if (a > 4 * q) { a = 8 * q - a; sign_s = -1; }   // lower half: sin(2π - t) = -sin t
    if (a > 2 * q) { a = 4 * q - a; sign_c = -1; }   // second quadrant: cos(π - t) = -cos t
    const bool swap = a > q;                           // second octant: cos(π/2 - t) = sin t
    if (swap) a = 2 * q - a;
    // t = (π/4)(a/q) in double-double: the quotient with its exact remainder.
    const double ad = static_cast<double>(a), qd = static_cast<double>(q);
    const double f = ad / qd;
    const DD fq = two_prod(f, qd);
    const double f_lo = ((ad - fq.hi) - fq.lo) / qd;
    DD t = two_prod(f, kPio4Hi);
    t = fast_two_sum(t.hi, t.lo + (f * kPio4Lo + f_lo * kPio4Hi));
    DD ks = kernel_sin(t), kc = kernel_cos(t);
    if (swap) { const DD w = ks; ks = kc; kc = w; }
    ks = fast_two_sum(ks.hi, ks.lo);
    kc = fast_two_sum(kc.hi, kc.lo);
    *s = sign_s * ks.hi;
    *c = sign_c * kc.hi;
    if (s_lo) *s_lo = sign_s * ks.lo;
    if (c_lo) *c_lo = sign_c * kc.lo;
}

}  // namespace libm
}  // namespace zf
