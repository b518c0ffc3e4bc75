// Plain references for the transforms: the direct DFT and the direct DCT in
// long double, O(N²), and the error measure the transform tests use.
#pragma once

#include <cmath>
#include <complex>
#include <cstddef>
#include <limits>
#include <vector>

namespace zt {

using cld = std::complex<long double>;

// X[k] = (1/N) Σ x[n] e^(-j2πnk/N) forward; the inverse has e^(+j2πnk/N) and no 1/N.
inline std::vector<cld> dft_ref(const std::vector<cld>& x, bool inverse) {
    const std::size_t n = x.size();
    const long double pi = 3.141592653589793238462643383279502884L;
    // Real arithmetic throughout: complex products of the library runtime take
    // the slow path for infinities on every call.
    std::vector<long double> wr(n), wi(n), xr(n), xi(n);
    for (std::size_t m = 0; m < n; ++m) {
        const long double a = 2 * pi * static_cast<long double>(m) / static_cast<long double>(n);
        wr[m] = std::cos(a);
        wi[m] = inverse ? std::sin(a) : -std::sin(a);
        xr[m] = x[m].real();
        xi[m] = x[m].imag();
    }
    std::vector<cld> out(n);
    for (std::size_t k = 0; k < n; ++k) {
        long double sr = 0, si = 0;
        for (std::size_t i = 0, idx = 0; i < n; ++i) {
            sr += xr[i] * wr[idx] - xi[i] * wi[idx];
            si += xr[i] * wi[idx] + xi[i] * wr[idx];
            idx += k;
            if (idx >= n) idx -= n;
        }
        out[k] = inverse ? cld(sr, si) : cld(sr, si) / static_cast<long double>(n);
    }
    return out;
}

// y[k] = (1/N) Σ x[n] cos(πk(2n + 1)/(2N)); orthonormal: times 2, y[0] times √½ more.
inline std::vector<long double> dct_ref(const std::vector<long double>& x, bool ortho) {
    const std::size_t n = x.size();
    const long double pi = 3.141592653589793238462643383279502884L;
    std::vector<long double> y(n), c(4 * n);
    for (std::size_t m = 0; m < 4 * n; ++m)  // cos of m units of π/(2N)
        c[m] = std::cos(pi * static_cast<long double>(m) / (2 * static_cast<long double>(n)));
    for (std::size_t k = 0; k < n; ++k) {
        long double s = 0;
        for (std::size_t i = 0; i < n; ++i) s += x[i] * c[(k * (2 * i + 1)) % (4 * n)];
        y[k] = s / static_cast<long double>(n);
        if (ortho) y[k] *= k == 0 ? std::sqrt(2.0L) : 2.0L;
    }
    return y;
}

// Interleaved scalars to complex long double values, and back.
template <class T> std::vector<cld> to_cld(const std::vector<T>& s, bool complex) {
    std::vector<cld> out(complex ? s.size() / 2 : s.size());
    for (std::size_t i = 0; i < out.size(); ++i)
        out[i] = complex ? cld(s[2 * i], s[2 * i + 1]) : cld(s[i], 0);
    return out;
}

// RMS of the error relative to the RMS of the exact result.
template <class T> double rms_rel_error(const std::vector<T>& got, bool complex, const std::vector<cld>& want) {
    const std::vector<cld> g = to_cld(got, complex);
    if (g.size() != want.size()) return INFINITY;
    long double err = 0, ref = 0;
    for (std::size_t i = 0; i < g.size(); ++i) {
        err += std::norm(g[i] - want[i]);
        ref += std::norm(want[i]);
    }
    if (ref == 0) return static_cast<double>(std::sqrt(err));
    return static_cast<double>(std::sqrt(err / ref));
}

// The accuracy bound of a transform of length n: 10·ε·log2(n), at least 10·ε.
template <class T> double fft_bound(std::size_t n) {
    const double bits = n > 2 ? std::log2(static_cast<double>(n)) : 1.0;
    return 10.0 * static_cast<double>(std::numeric_limits<T>::epsilon()) * bits;
}

}  // namespace zt
