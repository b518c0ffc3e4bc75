// Plain references for Fourier transforms, in long double: the direct DFT
// (O(N^2), every twiddle from cosl/sinl of the reduced angle) and, for long
// inputs, a textbook recursive radix-2 FFT with the same exact twiddles. Both
// follow the library's convention: X[k] = scale * sum x[n] e^(sign j 2 pi nk/N).
#pragma once

#include <cmath>
#include <complex>
#include <cstddef>
#include <limits>
#include <vector>

#include "support/vectors.hpp"

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

// Real arithmetic in the O(N^2) loop: a product of std::complex values goes
// through the runtime's check for infinities on every call, which makes long
// references crawl in unoptimised builds.
inline std::vector<cld> dft(const std::vector<cld>& x, int sign, long double scale = 1) {
    const std::size_t n = x.size();
    const std::vector<cld> w = unit_roots(n, sign);
    std::vector<long double> wr(n), wi(n), xr(n), xi(n);
    for (std::size_t m = 0; m < n; ++m) {
        wr[m] = w[m].real();
        wi[m] = w[m].imag();
        xr[m] = x[m].real();
        xi[m] = x[m].imag();
    }
    std::vector<cld> out(n);
    for (std::size_t k = 0; k < n; ++k) {
        long double sr = 0, si = 0;
        for (std::size_t m = 0, idx = 0; m < n; ++m) {  // idx = m·k mod n
            sr += xr[m] * wr[idx] - xi[m] * wi[idx];
            si += xr[m] * wi[idx] + xi[m] * wr[idx];
            idx += k;
            if (idx >= n) idx -= n;
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

namespace detail {
inline void radix2(cld* x, std::size_t n, std::size_t stride, const std::vector<cld>& w, cld* tmp) {
    if (n == 1) return;
    const std::size_t h = n / 2;
    for (std::size_t i = 0; i < h; ++i) { tmp[i] = x[2 * i]; tmp[h + i] = x[2 * i + 1]; }
    for (std::size_t i = 0; i < n; ++i) x[i] = tmp[i];
    radix2(x, h, stride * 2, w, tmp);
    radix2(x + h, h, stride * 2, w, tmp);
    for (std::size_t k = 0; k < h; ++k) {
        const cld e = x[k], o = x[h + k] * w[k * stride];
        x[k] = e + o;
        x[h + k] = e - o;
    }
}
}  // namespace detail

// Power-of-two lengths only.
inline std::vector<cld> fft(std::vector<cld> x, int sign, long double scale = 1) {
    const std::size_t n = x.size();
    const std::vector<cld> w = unit_roots(n, sign);
    std::vector<cld> tmp(n);
    detail::radix2(x.data(), n, 1, w, tmp.data());
    for (auto& v : x) v *= scale;
    return x;
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
    long double e = 0, r = 0;
    for (std::size_t i = 0; i < want.size() && i < got.size(); ++i) {
        e += std::norm(got[i] - want[i]);
        r += std::norm(want[i]);
    }
    if (got.size() != want.size()) return 1e300;
    return r > 0 ? static_cast<double>(std::sqrt(e / r)) : static_cast<double>(std::sqrt(e));
}

}  // namespace ref
