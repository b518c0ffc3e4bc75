// Plain references for Fourier transforms, in long double: the direct DFT
// (O(N^2), every twiddle from cosl/sinl of the reduced angle) and, for long
// inputs, a textbook recursive radix-2 FFT with the same exact twiddles. Both
// follow the library's convention: X[k] = scale * sum x[n] e^(sign j 2 pi nk/N).
#pragma once

#include <limits>

#include "support/vectors.hpp"   // <cmath>, <complex>, <vector>

namespace ref {

using cld = std::complex<long double>;

constexpr long double pi_l = 3.141592653589793238462643383279502884L;

// e^(sign j 2 pi m / n) for m = 0 .. n-1.
inline std::vector<cld> unit_roots(std::size_t n, int sign) {
    std::vector<cld> w(n);
    for (std::size_t m = 0; m < n; ++m) {
        const long double a = 2 * pi_l * static_cast<long double>(m) / static_cast<long double>(n);
        w[m] = cld(std::cos(a), sign * std::sin(a));
    }
    return w;
}

// Real arithmetic on the parts (a complex value is an array of two) in the
// O(N^2) loop: a product of std::complex values goes through the runtime's
// check for infinities on every call, which makes long references crawl in
// unoptimised builds.
inline std::vector<cld> dft(const std::vector<cld>& x, int sign, long double scale = 1) {
    const std::size_t n = x.size();
    const std::vector<cld> w = unit_roots(n, sign);
    const long double *wp = reinterpret_cast<const long double*>(w.data()), *xp = reinterpret_cast<const long double*>(x.data());
    std::vector<cld> out(n);
    for (std::size_t k = 0; k < n; ++k) {
        long double sr = 0, si = 0;
        for (std::size_t m = 0, i = 0; m < n; ++m, i = i + k >= n ? i + k - n : i + k) {  // i = m·k mod n
            sr += xp[2 * m] * wp[2 * i] - xp[2 * m + 1] * wp[2 * i + 1];
            si += xp[2 * m] * wp[2 * i + 1] + xp[2 * m + 1] * wp[2 * i];
        }
        out[k] = cld(sr, si) * scale;
    }
    return out;
}

// The library's conventions: forward with e^(-j2πnk/N) and 1/N, inverse unscaled.
inline std::vector<cld> forward(const std::vector<cld>& x) {
    return dft(x, -1, 1.0L / static_cast<long double>(x.empty() ? 1 : x.size()));
}
inline std::vector<cld> inverse(const std::vector<cld>& x) { return dft(x, +1); }

// Power-of-two lengths: halves of even and odd samples, joined by the exact
// roots; the direct sum below 64 points.
inline std::vector<cld> fft(const std::vector<cld>& x, int sign, long double scale = 1) {
    const std::size_t n = x.size(), h = n / 2;
    if (n < 64) return dft(x, sign, scale);
    std::vector<cld> e(h), o(h), out(n);
    for (std::size_t i = 0; i < h; ++i) e[i] = x[2 * i], o[i] = x[2 * i + 1];
    e = fft(e, sign), o = fft(o, sign);
    const std::vector<cld> w = unit_roots(n, sign);
    for (std::size_t k = 0; k < h; ++k) out[k] = (e[k] + w[k] * o[k]) * scale, out[h + k] = (e[k] - w[k] * o[k]) * scale;
    return out;
}

// The DCT y[k] = (1/N) sum x[n] cos(pi k (2n + 1)/(2N)): the real part of bin k
// of the 4N-point sum with x at the odd places. Orthonormal: times 2, y[0] times
// sqrt(1/2) more.
template <class T> std::vector<cld> dct(const std::vector<T>& x, bool ortho) {
    const std::size_t n = x.size();
    std::vector<cld> z(4 * n);
    for (std::size_t i = 0; i < n; ++i) z[2 * i + 1] = static_cast<long double>(x[i]);
    z = dft(z, -1);
    z.resize(n);
    for (std::size_t k = 0; k < n; ++k) z[k] = z[k].real() / static_cast<long double>(n) * (!ortho ? 1 : k ? 2 : std::sqrt(2.0L));
    return z;
}

// Interleaved (re, im) scalars to complex values, and real scalars to complex.
template <class T> std::vector<cld> from_pairs(const std::vector<T>& s) { return zt::samples(s, true); }
template <class T> std::vector<cld> from_reals(const std::vector<T>& s) { return zt::samples(s, false); }

// The accuracy promised for transforms of any length: RMS error relative to
// the RMS of the exact result at most 10·eps·log2(n) (taking log2 as 1 below 2).
template <class T> double dft_bound(std::size_t n) {
    const double bits = n > 2 ? std::log2(static_cast<double>(n)) : 1.0;
    return 10.0 * static_cast<double>(std::numeric_limits<T>::epsilon()) * bits;
}

// RMS of the error relative to the RMS of the exact result.
inline double rms_rel_error(const std::vector<cld>& got, const std::vector<cld>& want) {
    if (got.size() != want.size()) return 1e300;
    long double e = 0, r = 0;
    for (std::size_t i = 0; i < want.size(); ++i) e += std::norm(got[i] - want[i]), r += std::norm(want[i]);
    return static_cast<double>(r > 0 ? std::sqrt(e / r) : std::sqrt(e));
}

}  // namespace ref
