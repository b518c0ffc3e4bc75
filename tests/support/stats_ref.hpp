// Plain references for the descriptive statistics: textbook formulas in long
// double (two-pass central moments, direct sums, sorting), written without the
// shifts, blocks and guards of the library so that they check it independently.
// Each takes the scalars of a vector (pairs when complex) and returns the
// result's scalars (two when the result is complex).
#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <vector>

#include "support/vectors.hpp"

namespace zr {

using L = long double;
using R = std::vector<L>;
using C = std::complex<L>;

using zt::samples;
inline R result(C z, bool complex) { return complex ? R{z.real(), z.imag()} : R{z.real()}; }
inline L norm2(C z) { return z.real() * z.real() + z.imag() * z.imag(); }

template <class T> R sum(const std::vector<T>& s, bool complex) {
    C acc = 0;
    for (C z : samples(s, complex)) acc += z;
    return result(acc, complex);
}

template <class T> R mean(const std::vector<T>& s, bool complex) {
    const std::size_t n = samples(s, complex).size();
    R r = sum(s, complex);
    for (L& x : r) x = n ? x / L(n) : 0;
    return r;
}

// The first sample of smallest (sign -1) or largest (sign 1) value, or of
// squared magnitude when complex.
template <class T> R extreme(const std::vector<T>& s, bool complex, int sign) {
    const auto z = samples(s, complex);
    auto key = [&](C x) { return sign * (complex ? norm2(x) : x.real()); };
    C best = z.empty() ? C(0) : z[0];
    for (C x : z)
        if (key(x) > key(best)) best = x;
    return result(best, complex);
}
template <class T> R min(const std::vector<T>& s, bool complex) { return extreme(s, complex, -1); }
template <class T> R max(const std::vector<T>& s, bool complex) { return extreme(s, complex, 1); }

// Middle of the sorted samples; complex ones sorted by squared magnitude, then
// real part, then imaginary part.
template <class T> R median(const std::vector<T>& s, bool complex) {
    auto z = samples(s, complex);
    if (z.empty()) return result(0, complex);
    std::sort(z.begin(), z.end(), [](C a, C b) {
        if (norm2(a) != norm2(b)) return norm2(a) < norm2(b);
        if (a.real() != b.real()) return a.real() < b.real();
        return a.imag() < b.imag();
    });
    const std::size_t m = z.size() / 2;
    return result(z.size() % 2 ? z[m] : (z[m - 1] + z[m]) / L(2), complex);
}

template <class T> R magsq_sum(const std::vector<T>& s, bool complex) {
    L acc = 0;
    for (C z : samples(s, complex)) acc += norm2(z);
    return {acc};
}

template <class T> R rms(const std::vector<T>& s, bool complex) {
    const std::size_t n = samples(s, complex).size();
    return {n ? std::sqrt(magsq_sum(s, complex)[0] / L(n)) : L(0)};
}

// Central moment of order k about the mean (pooled |x - mean|^2 for k = 2).
// The samples are first taken relative to the first one (exact in long
// double), so that offsets far above the spread do not limit the reference.
template <class T> L central(const std::vector<T>& s, bool complex, int k) {
    const auto z = samples(s, complex);
    if (z.empty()) return 0;
    C mu = 0;
    for (C x : z) mu += x - z[0];
    mu /= L(z.size());
    L acc = 0;
    for (C x : z) {
        const C d = (x - z[0]) - mu;
        acc += k == 2 ? norm2(d) : std::pow(d.real(), L(k));
    }
    return acc / L(z.size());
}

template <class T> R pop_var(const std::vector<T>& s, bool complex) { return {central(s, complex, 2)}; }
template <class T> R samp_var(const std::vector<T>& s, bool complex) {
    const L n = L(samples(s, complex).size());
    return {n >= 2 ? central(s, complex, 2) * n / (n - 1) : central(s, complex, 2)};
}
template <class T> R pop_stddev(const std::vector<T>& s, bool complex) { return {std::sqrt(pop_var(s, complex)[0])}; }
template <class T> R samp_stddev(const std::vector<T>& s, bool complex) { return {std::sqrt(samp_var(s, complex)[0])}; }

template <class T> R skew(const std::vector<T>& s, bool) {
    const L m2 = central(s, false, 2);
    return {m2 > 0 ? central(s, false, 3) / std::pow(m2, L(1.5)) : L(0)};
}
template <class T> R excess(const std::vector<T>& s, bool) {
    const L m2 = central(s, false, 2);
    return {m2 > 0 ? central(s, false, 4) / (m2 * m2) - 3 : L(-3)};
}

// Real: exp of the mean logarithm (positive samples). Complex: the principal
// n-th root of the product.
template <class T> R gmean(const std::vector<T>& s, bool complex) {
    const auto z = samples(s, complex);
    if (z.empty()) return result(0, complex);
    const L n = L(z.size());
    if (!complex) {
        L logs = 0;
        for (C x : z) logs += std::log(x.real());
        return {std::exp(logs / n)};
    }
    C p = 1;
    for (C x : z) p *= x;
    return result(std::polar(std::pow(std::abs(p), 1 / n), std::arg(p) / n), true);
}

// n / Σ 1/z.
template <class T> R hmean(const std::vector<T>& s, bool complex) {
    const auto z = samples(s, complex);
    if (z.empty()) return result(0, complex);
    C acc = 0;
    for (C x : z) acc += L(1) / x;
    return result(L(z.size()) / acc, complex);
}

}  // namespace zr
