// Plain references of the interpolations: the whole spline system in the
// textbook rows solved densely, and evaluation by a linear scan.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

namespace ref {

// Gaussian elimination with partial pivoting of the n x n row-major system a s = b.
inline std::vector<double> dense_solve(std::vector<double> a, std::vector<double> b) {
    const std::size_t n = b.size();
    for (std::size_t c = 0; c < n; ++c) {
        std::size_t p = c;
        for (std::size_t r = c + 1; r < n; ++r) if (std::fabs(a[r * n + c]) > std::fabs(a[p * n + c])) p = r;
        for (std::size_t k = 0; k < n; ++k) std::swap(a[c * n + k], a[p * n + k]);
        std::swap(b[c], b[p]);
        for (std::size_t r = c + 1; r < n; ++r) {
            const double f = a[r * n + c] / a[c * n + c];
            for (std::size_t k = c; k < n; ++k) a[r * n + k] -= f * a[c * n + k];
            b[r] -= f * b[c];
        }
    }
    for (std::size_t c = n; c-- > 0;) {
        for (std::size_t k = c + 1; k < n; ++k) b[c] -= a[c * n + k] * b[k];
        b[c] /= a[c * n + c];
    }
    return b;
}

// Spline second derivatives: slope continuity inside; at each end a continuous
// third derivative (0), a slope (1), a second derivative (2) or zero (3).
inline std::vector<double> spline_2d(const std::vector<double>& x, const std::vector<double>& y, double d0, double dn, int c0, int cn) {
    const std::size_t n = x.size();
    std::vector<double> a(n * n, 0.0), b(n, 0.0);
    auto h = [&](std::size_t i) { return x[i] - x[i - 1]; };
    auto m = [&](std::size_t i) { return (y[i] - y[i - 1]) / h(i); };
    for (std::size_t i = 1; i + 1 < n; ++i) {
        a[i * n + i - 1] = h(i), a[i * n + i] = 2 * (h(i) + h(i + 1)), a[i * n + i + 1] = h(i + 1);
        b[i] = 6 * (m(i + 1) - m(i));
    }
    // End row r with neighbours r + e, r + 2e, interval between r and r + e: hr, next hn.
    auto end = [&](std::size_t r, long e, double hr, double hn, double slope, double d, int c) {
        if (c == 0) a[r * n + r] = -1 / hr, a[r * n + r + e] = 1 / hr + 1 / hn, a[r * n + r + 2 * e] = -1 / hn;
        else if (c == 1) a[r * n + r] = 2 * hr, a[r * n + r + e] = hr, b[r] = 6 * (e > 0 ? slope - d : d - slope);
        else a[r * n + r] = 1, b[r] = c == 2 ? d : 0;
    };
    end(0, 1, h(1), h(2), m(1), d0, c0);
    end(n - 1, -1, h(n - 1), h(n - 2), m(n - 1), dn, cn);
    return dense_solve(a, b);
}

// f(v) in mode 0 (hold), 1 (linear), 3 (parabola on the nearest knot) or 5
// (spline with second derivatives s); clamped outside the knots when asked.
inline double eval(const std::vector<double>& x, const std::vector<double>& y, const std::vector<double>& s, int mode, bool clamp, double v) {
    const std::size_t n = x.size();
    if (clamp && v < x[0]) return y[0];
    if (clamp && v >= x[n - 1]) return y[n - 1];
    if (mode == 0) {
        std::size_t k = 0;
        for (std::size_t i = 0; i < n; ++i) if (x[i] <= v) k = i;
        return y[k];
    }
    std::size_t j = 1;   // interval [x[j-1], x[j]] holding v, end intervals outside
    while (j + 1 < n && x[j] <= v) ++j;
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
