// Plain reference for the discrete cosine transform, in long double, O(N^2).
#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

namespace ref {

// y[k] = (1/N) Σ x[n] cos(πk(2n + 1)/(2N)); orthonormal: times 2, y[0] times √½ more.
inline std::vector<long double> dct(const std::vector<long double>& x, bool ortho) {
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

}  // namespace ref
