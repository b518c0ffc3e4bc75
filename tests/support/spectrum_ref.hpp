// Plain references for the spectra and correlation: direct sums in long double.
#pragma once

#include <complex>
#include <vector>

namespace ref {

using cld = std::complex<long double>;

// Samples of a record's scalars as complex values (a real record has imaginary parts 0).
template <class T> std::vector<cld> samples(const std::vector<T>& s, bool complex) {
    std::vector<cld> z;
    for (std::size_t i = 0; i < s.size(); i += complex ? 2 : 1)
        z.emplace_back(s[i], complex ? s[i + 1] : T(0));
    return z;
}

// r[k] = scale sum_{j < length} conj(a[j]) b[j + k], k = 0 .. |b| - length.
inline std::vector<cld> correlate(const std::vector<cld>& a, const std::vector<cld>& b, int length, long double scale) {
    std::vector<cld> r;
    for (std::size_t k = 0; k + length <= b.size(); ++k) {
        cld s = 0;
        for (int j = 0; j < length; ++j) s += std::conj(a[j]) * b[j + k];
        r.push_back(s * scale);
    }
    return r;
}

}  // namespace ref
