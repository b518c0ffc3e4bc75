// Plain references of decimation and table-driven resampling, written from the
// formulas with one sum per output and no shortcuts.
#pragma once

#include <cmath>
#include <vector>

namespace zt {

// Table resampling of x (n samples of w scalars) with K carried samples hist
// and start position mu: output = sum_j s(i + j) T(Q (j - mu)), T read at the
// integer part of u (mode 0) or interpolated linearly (mode 1).
template <class T>
std::vector<double> ref_rsmp(const std::vector<T>& x, int w, const std::vector<T>& hist, T mu, const T* tab,
                             int k, int q, int mode, T ratio, int cap) {
    const long n = static_cast<long>(x.size()) / w;
    auto s = [&](long m, int c) { return static_cast<double>(m < 0 ? hist[(k + m) * w + c] : x[m * w + c]); };
    std::vector<double> y;
    long i = -k;
    for (int out = 0; out < cap; ++out) {
        while (mu > 0) { mu -= 1; ++i; }
        if (i > n - k) break;
        for (int c = 0; c < w; ++c) {
            double acc = 0;
            for (int j = 0; j < k; ++j) {
                const T u = static_cast<T>(q) * (static_cast<T>(j) - mu);  // in the twin's precision
                const long a = static_cast<long>(std::floor(u));
                const double t = mode == 0 ? tab[1 + a] : tab[1 + a] + (u - a) * (tab[2 + a] - tab[1 + a]);
                acc += s(i + j, c) * t;
            }
            y.push_back(acc);
        }
        mu += ratio;
    }
    return y;
}

}  // namespace zt
