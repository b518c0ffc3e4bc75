// Plain references for the matrix kernels and the error correction: long
// double arithmetic, textbook formulas, random complex data.
#pragma once

#include "support/vectors.hpp"

namespace zt {

using LC = std::complex<long double>;

// Points of a trace as interleaved doubles, converted; element i of a matrix
// of width 2 (complex) or 1 (real) doubles per element.
inline LC lc(const std::vector<double>& v, std::size_t i) { return {v[2 * i], v[2 * i + 1]}; }
inline LC element(const std::vector<double>& a, std::size_t i, int width) { return width == 2 ? lc(a, i) : LC(a[i], 0); }
inline void put(std::vector<double>& v, std::size_t i, LC z) { v[2 * i] = double(z.real()), v[2 * i + 1] = double(z.imag()); }

// n complex points (2n doubles), each part uniform in [lo, hi) plus centre on the real part.
inline std::vector<double> random_points(std::size_t n, unsigned seed, double lo = -1.0, double hi = 1.0, double centre = 0.0) {
    std::vector<double> v = random_scalars<double>(2 * n, seed, lo, hi);
    for (std::size_t i = 0; i < v.size(); i += 2) v[i] += centre;
    return v;
}

// Matrices as long double complex, row-major; real matrices have zero imaginary parts.
using LMat = std::vector<LC>;

inline LMat to_lmat(const std::vector<double>& a, int width) {
    LMat m(a.size() / width);
    for (std::size_t i = 0; i < m.size(); ++i) m[i] = element(a, i, width);
    return m;
}

// m x p product by the triple loop.
inline LMat product(const LMat& a, const LMat& b, int m, int n, int p) {
    LMat c(static_cast<std::size_t>(m) * p);
    for (int i = 0; i < m; ++i)
        for (int j = 0; j < p; ++j) {
            LC s = 0;
            for (int k = 0; k < n; ++k) s += a[i * n + k] * b[k * p + j];
            c[i * p + j] = s;
        }
    return c;
}

// Largest element magnitude.
inline long double max_abs(const LMat& a) {
    long double m = 0;
    for (const LC& z : a) m = std::fmax(m, std::abs(z));
    return m;
}

// One-port error model: the reading of a standard of reflection g through the
// terms e00 (directivity), e11 (source match), e10e01 (reflection tracking).
inline LC one_port_measured(LC g, LC e00, LC e11, LC e10e01) { return e00 + e10e01 * g / (LC(1) - e11 * g); }
// Its inverse, the corrected reflection.
inline LC one_port_corrected(LC m, LC e00, LC e11, LC e10e01) { return (m - e00) / (e10e01 + e11 * (m - e00)); }

// The four readings (S11, S12, S21, S22) of a device with S-parameters s
// through the twelve error terms, given in Correct2Port's order: tracking,
// match, offset, each at positions S11, S12, S21, S22.
inline void two_port_measured(const LC s[4], const LC e[12], LC m[4]) {
    const LC &erf = e[0], &etr = e[1], &etf = e[2], &err = e[3];  // reflection and transmission tracking
    const LC &esf = e[4], &elr = e[5], &elf = e[6], &esr = e[7];  // source and load match
    const LC &edf = e[8], &exr = e[9], &exf = e[10], &edr = e[11];  // directivity and isolation
    const LC ds = s[0] * s[3] - s[2] * s[1];
    const LC df = LC(1) - esf * s[0] - elf * s[3] + esf * elf * ds;
    const LC dr = LC(1) - esr * s[3] - elr * s[0] + esr * elr * ds;
    m[0] = edf + erf * (s[0] - elf * ds) / df;
    m[1] = exr + etr * s[1] / dr;
    m[2] = exf + etf * s[2] / df;
    m[3] = edr + err * (s[3] - elr * ds) / dr;
}

}  // namespace zt
