// Plain long double references for the library's own elementary functions:
// sine and cosine reduced by π/2 in three long double pieces (exact products
// for |x| < 2^31, so the reference holds near multiples of π on any runtime),
// and the distance of a result from a long double value in units in the last
// place of the result's precision.
#pragma once

#include <cfloat>
#include <cmath>
#include <limits>

namespace ref {

// sin x and cos x for |x| < 2^31.
inline void sincos(long double x, long double& s, long double& c) {
    const long double p1 = 0xc90fdaa2p-31L, p2 = 0x85a308d3p-65L, p3 = 0x98cc51701b839a25p-132L;
    const long double k = std::nearbyint(x / (p1 + p2));
    const long double r = ((x - k * p1) - k * p2) - k * p3;
    const long double rs = std::sin(r), rc = std::cos(r);
    switch (static_cast<long long>(std::fmod(k, 4.0L)) & 3) {
        case 0: s = rs; c = rc; break;
        case 1: s = rc; c = -rs; break;
        case 2: s = -rs; c = -rc; break;
        default: s = -rc; c = rs; break;
    }
}

// |got - want| in ulps of T at want (the subnormal spacing below the normals).
template <class T> double ulps(T got, long double want) {
    if (std::isnan(want)) return std::isnan(got) ? 0 : HUGE_VAL;
    const int digits = std::numeric_limits<T>::digits;
    int e = 0;
    std::frexp(want, &e);
    e = std::max(e, std::numeric_limits<T>::min_exponent);
    return static_cast<double>(std::fabs(static_cast<long double>(got) - want) / std::ldexp(1.0L, e - digits));
}

}  // namespace ref
