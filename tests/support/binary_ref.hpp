// Plain references for the binary operations and the rearrangement, editing
// and calculus functions: samples as std::complex<long double> (a real record
// gives imaginary part 0), loops written straight from the definitions.
#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <vector>

namespace zt {

using Cx = std::complex<long double>;

// The samples of a scalar list, pairs when complex.
template <class T> std::vector<Cx> samples(const std::vector<T>& s, bool complex) {
    std::vector<Cx> out;
    if (complex) {
        for (std::size_t k = 0; k + 1 < s.size(); k += 2) out.emplace_back(s[k], s[k + 1]);
    } else {
        for (T x : s) out.emplace_back(x, 0.0L);
    }
    return out;
}

// Back to scalars: pairs when complex, real parts only otherwise.
inline std::vector<long double> scalars_of(const std::vector<Cx>& z, bool complex) {
    std::vector<long double> out;
    for (const Cx& c : z) {
        out.push_back(c.real());
        if (complex) out.push_back(c.imag());
    }
    return out;
}

// Ascending order of the sort: real by value; complex by squared magnitude,
// then real part, then imaginary part.
inline bool sort_before(const Cx& a, const Cx& b) {
    const long double ma = std::norm(a), mb = std::norm(b);
    if (ma != mb) return ma < mb;
    if (a.real() != b.real()) return a.real() < b.real();
    return a.imag() < b.imag();
}

// Rotation to the right by r samples: sample k moves to (k + r) mod n.
template <class S> std::vector<S> rotated_right(const std::vector<S>& x, std::size_t r) {
    const std::size_t n = x.size();
    std::vector<S> out(n);
    for (std::size_t k = 0; k < n; ++k) out[(k + r) % n] = x[k];
    return out;
}

}  // namespace zt
