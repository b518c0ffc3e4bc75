// Plain references of the interpolations: the textbook spline equations as
// residuals, and evaluation by a linear scan.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

namespace ref {

// Largest residual of the spline equations that second derivatives s must
// satisfy: slope continuity inside; at each end a continuous third derivative
// (code 0), the slope d (1), the second derivative d (2) or zero (3).
inline double spline_residual(const std::vector<double>& x, const std::vector<double>& y, const std::vector<double>& s,
                              double d0, double dn, int c0, int cn) {
    const std::size_t n = x.size();
    auto h = [&](std::size_t i) { return x[i] - x[i - 1]; };
    auto m = [&](std::size_t i) { return (y[i] - y[i - 1]) / h(i); };
    double r = 0;
    for (std::size_t i = 1; i + 1 < n; ++i)
        r = std::max(r, std::fabs(h(i) * s[i - 1] + 2 * (h(i) + h(i + 1)) * s[i] + h(i + 1) * s[i + 1] - 6 * (m(i + 1) - m(i))));
    // End k (0 or n-1), its neighbour j, the next one l, and the intervals between them.
    auto end = [&](std::size_t k, std::size_t j, std::size_t l, double hk, double hj, double slope, double d, int c) {
        if (c == 0) return (s[j] - s[k]) / hk - (s[l] - s[j]) / hj;
        if (c == 1) return slope + (k == 0 ? -1.0 : 1.0) * hk * (2 * s[k] + s[j]) / 6 - d;
        return s[k] - (c == 2 ? d : 0.0);
    };
    r = std::max(r, std::fabs(end(0, 1, 2, h(1), h(2), m(1), d0, c0)));
    return std::max(r, std::fabs(end(n - 1, n - 2, n - 3, h(n - 1), h(n - 2), m(n - 1), dn, cn)));
}

// f(v) in mode 0 (hold), 1 (linear), 3 (parabola on the nearest knot) or 5
// (spline with second derivatives s); clamped outside the knots when asked.
inline double eval(const std::vector<double>& x, const std::vector<double>& y, const std::vector<double>& s, int mode, bool clamp, double v) {
    const std::size_t n = x.size();
    if (clamp && (v < x[0] || v >= x[n - 1])) return v < x[0] ? y[0] : y[n - 1];
    std::size_t j = 1;   // interval [x[j-1], x[j]] holding v, end intervals outside
    while (j + 1 < n && x[j] <= v) ++j;
    if (mode == 0) return v < x[0] ? y[0] : (v >= x[n - 1] ? y[n - 1] : y[j - 1]);
    if (mode == 1) return y[j - 1] + (y[j] - y[j - 1]) * (v - x[j - 1]) / (x[j] - x[j - 1]);
    if (mode == 3) {
        std::size_t c = 0;   // nearest knot, first of equals
        for (std::size_t i = 1; i < n; ++i) if (std::fabs(v - x[i]) < std::fabs(v - x[c])) c = i;
        c = std::clamp<std::size_t>(c, 1, n - 2);
        double r = 0;
        for (std::size_t i = c - 1; i <= c + 1; ++i) {
            double l = y[i];
            for (std::size_t k = c - 1; k <= c + 1; ++k) if (k != i) l *= (v - x[k]) / (x[i] - x[k]);
            r += l;
        }
        return r;
    }
    const double hh = x[j] - x[j - 1], A = (x[j] - v) / hh, B = 1 - A;
    return A * y[j - 1] + B * y[j] + ((A * A * A - A) * s[j - 1] + (B * B * B - B) * s[j]) * hh * hh / 6;
}

}  // namespace ref
