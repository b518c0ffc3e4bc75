// Plain references for the descriptive statistics: textbook formulas in long
// double (two-pass central moments, direct sums and products, sorting),
// written without the shifts, blocks and guards of the library so that they
// check it independently.
#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <string>
#include <tuple>
#include <vector>

#include "support/vectors.hpp"

namespace zr {

using L = long double;
using R = std::vector<L>;
using C = std::complex<L>;

inline L norm2(C z) { return z.real() * z.real() + z.imag() * z.imag(); }

// The statistic `name` of the samples of s (pairs when complex), at least one;
// the result's scalars (two when the result is complex). The central moments
// are taken about the mean of the samples relative to the first one (exact in
// long double), so that offsets far above the spread do not limit them.
template <class T> R stat(const std::string& name, const std::vector<T>& s, bool complex) {
    std::vector<C> z = zt::samples(s, complex);
    const L n = L(z.size());
    auto out = [&](C r) { return complex ? R{r.real(), r.imag()} : R{r.real()}; };
    C sum = 0, mu = 0, prod = 1, inv = 0;
    L power = 0, logs = 0, m2 = 0, m3 = 0, m4 = 0;
    for (C x : z) sum += x, mu += x - z[0], prod *= x, inv += L(1) / x, power += norm2(x), logs += std::log(std::abs(x));
    mu /= n;
    for (C x : z) m2 += norm2(x - z[0] - mu) / n, m3 += std::pow((x - z[0] - mu).real(), L(3)) / n, m4 += std::pow((x - z[0] - mu).real(), L(4)) / n;
    const L var = m2 * (name.rfind("samp", 0) == 0 && n >= 2 ? n / (n - 1) : 1);  // the sample forms need two samples
    // Extremes: the first sample of smallest or largest value (squared magnitude when complex).
    auto key = [&](C x) { return (name == "min" ? -1 : 1) * (complex ? norm2(x) : x.real()); };
    const C extreme = *std::max_element(z.begin(), z.end(), [&](C a, C b) { return key(a) < key(b); });
    // Median: complex samples sort by squared magnitude, then real part, then imaginary part.
    std::sort(z.begin(), z.end(), [](C a, C b) { return std::tuple(norm2(a), a.real(), a.imag()) < std::tuple(norm2(b), b.real(), b.imag()); });
    const std::size_t h = z.size() / 2;
    if (name == "sum") return out(sum);
    if (name == "mean") return out(sum / n);
    if (name == "min" || name == "max") return out(extreme);
    if (name == "median") return out(z.size() % 2 ? z[h] : (z[h - 1] + z[h]) / L(2));
    if (name == "magsq_sum") return {power};
    if (name == "rms") return {std::sqrt(power / n)};
    if (name == "pop_var" || name == "samp_var") return {var};
    if (name == "pop_stddev" || name == "samp_stddev") return {std::sqrt(var)};
    if (name == "skew") return {m2 > 0 ? m3 / std::pow(m2, L(1.5)) : 0};   // 0 without spread,
    if (name == "excess") return {m2 > 0 ? m4 / (m2 * m2) - 3 : -3};        // but -3 for the kurtosis
    // Geometric mean: real, exp of the mean logarithm; complex, the principal n-th root of the product.
    if (name == "gmean") return out(complex ? std::polar(std::pow(std::abs(prod), 1 / n), std::arg(prod) / n) : C(std::exp(logs / n)));
    return out(n / inv);   // harmonic mean
}

}  // namespace zr
