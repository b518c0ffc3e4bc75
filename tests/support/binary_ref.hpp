// Plain references for the rearrangement, editing and calculus functions and
// the polynomial product: samples as std::complex<long double> (a real record
// gives imaginary part 0), loops written straight from the definitions.
#pragma once

#include <algorithm>
#include <cstddef>

#include "support/records.hpp"

namespace zt {

// Ascending order of the sort: real by value; complex by squared magnitude,
// then real part, then imaginary part.
inline bool sort_before(const Cx& a, const Cx& b) {
    const long double ma = std::norm(a), mb = std::norm(b);
    if (ma != mb) return ma < mb;
    if (a.real() != b.real()) return a.real() < b.real();
    return a.imag() < b.imag();
}

// Full linear convolution of two coefficient lists.
inline std::vector<Cx> poly_product(const std::vector<Cx>& a, const std::vector<Cx>& b) {
    if (a.empty() || b.empty()) return {};
    std::vector<Cx> out(a.size() + b.size() - 1);
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < b.size(); ++j) out[i + j] += a[i] * b[j];
    return out;
}

// Zero padding to n samples by placement, each old sample multiplied by f:
// 0 front, 0x100 centre (one further right when n is even and m odd), 0x200
// end, 0x300 spectrum split (the first ceil(m/2) samples stay, the rest go to the end).
inline std::vector<Cx> padded(const std::vector<Cx>& x, std::size_t n, int place, long double f) {
    const std::size_t m = x.size(), head = (m + 1) / 2;
    const std::size_t start = place == 0x200 ? n - m : place == 0x100 ? (n - m) / 2 + (n % 2 == 0 && m % 2 == 1) : 0;
    std::vector<Cx> out(n);
    for (std::size_t k = 0; k < m; ++k) out[place != 0x300 ? start + k : k < head ? k : n - (m - k)] = x[k] * f;
    return out;
}

// Phase unwrapping against the mean of the last w outputs, in the record's
// precision and in the documented order of operations (w != 1): the reference
// is S / k while the window fills, then S * (1 / w); S gains each output and,
// once the window is full, then loses the output w places earlier. A sample
// within pi of its reference is kept as it is; otherwise it becomes the
// reference plus the difference reduced by fmod into [-pi, pi].
template <class T> std::vector<T> unwrapped_window(std::vector<T> x, int w) {
    const T pi = static_cast<T>(3.141592653589793), two_pi = static_cast<T>(6.283185307179586);
    const T inv = w == 0 ? T(0) : T(1) / static_cast<T>(w);
    T s = 0;
    for (std::size_t k = 0; k < x.size(); ++k) {
        const bool filling = k < static_cast<std::size_t>(w);
        const T ref = filling ? (k == 0 ? T(0) : s / static_cast<T>(k)) : s * inv;
        const T d = x[k] - ref;
        if (d < -pi || d > pi) {
            const T r = std::fmod(d, two_pi);
            x[k] = ref + (r > pi ? r - two_pi : r < -pi ? r + two_pi : r);
        }
        s += x[k];
        if (!filling) s -= x[k - w];
    }
    return x;
}

}  // namespace zt
