// The circle best fitting a complex trace (a resonator's locus in the
// reflection plane, for instance): an algebraic fit of the whole circle
// family gives the start, and Levenberg-Marquardt steps on the geometric
// distances refine it. The work runs on coordinates centred on the points'
// mean and scaled by their spread, in double for both twins.
#include <cmath>
#include <cstddef>

#include "trace/trace.hpp"

namespace zf {
namespace {

struct Circle { double a, b, r; };

// Taubin's algebraic fit on the centred, scaled points (x, y): the root of
// its characteristic cubic nearest 0 by Newton's method. False when the
// points lie on a line (no finite circle).
template <class P> bool algebraic(P pt, int n, Circle& c) noexcept {
    double mxx = 0, myy = 0, mxy = 0, mxz = 0, myz = 0, mzz = 0;
    for (int i = 0; i < n; ++i) {
        double x, y;
        pt(i, x, y);
        const double z = x * x + y * y;
        mxx += x * x, myy += y * y, mxy += x * y, mxz += x * z, myz += y * z, mzz += z * z;
    }
    mxx /= n, myy /= n, mxy /= n, mxz /= n, myz /= n, mzz /= n;
    const double mz = mxx + myy, cov = mxx * myy - mxy * mxy, var = mzz - mz * mz;
    const double a3 = 4 * mz, a2 = -3 * mz * mz - mzz;
    const double a1 = var * mz + 4 * cov * mz - mxz * mxz - myz * myz;
    const double a0 = mxz * (mxz * myy - myz * mxy) + myz * (myz * mxx - mxz * mxy) - var * cov;
    double x = 0, y = a0;
    for (int it = 0; it < 100; ++it) {
        const double dy = a1 + x * (2 * a2 + 3 * a3 * x);
        const double xn = x - y / dy;
        if (xn == x || !std::isfinite(xn)) break;
        const double yn = a0 + xn * (a1 + xn * (a2 + xn * a3));
        if (std::fabs(yn) >= std::fabs(y)) break;
        x = xn, y = yn;
    }
    const double det = 2 * (x * x - x * mz + cov);
    c.a = (mxz * (myy - x) - myz * mxy) / det;
    c.b = (myz * (mxx - x) - mxz * mxy) / det;
    c.r = std::sqrt(c.a * c.a + c.b * c.b + mz);
    // Within about 1e-8 of a straight line the centre runs away: no circle.
    return std::isfinite(c.r) && c.r < 1e8;
}

// Sum of squared geometric distances from the circle.
template <class P> double cost(P pt, int n, const Circle& c) noexcept {
    double f = 0;
    for (int i = 0; i < n; ++i) {
        double x, y;
        pt(i, x, y);
        const double d = std::hypot(x - c.a, y - c.b) - c.r;
        f += d * d;
    }
    return f;
}

// Levenberg-Marquardt on the distances d_i = |p_i - centre| - r, with the
// normal equations damped on their diagonal; returns the final cost.
template <class P> double geometric(P pt, int n, Circle& c) noexcept {
    double f = cost(pt, n, c), lambda = 1e-3;
    for (int it = 0; it < 200 && lambda < 1e12; ++it) {
        double m[3][3] = {}, g[3] = {};
        for (int i = 0; i < n; ++i) {
            double x, y;
            pt(i, x, y);
            const double rho = std::hypot(x - c.a, y - c.b);
            const double j[3] = {rho > 0 ? -(x - c.a) / rho : 0, rho > 0 ? -(y - c.b) / rho : 0, -1};
            const double d = rho - c.r;
            for (int p = 0; p < 3; ++p) {
                g[p] += j[p] * d;
                for (int q = 0; q < 3; ++q) m[p][q] += j[p] * j[q];
            }
        }
        // (M + lambda diag M) s = -g by Cramer's rule.
        double a[3][3];
        for (int p = 0; p < 3; ++p)
            for (int q = 0; q < 3; ++q) a[p][q] = m[p][q] + (p == q ? lambda * m[p][p] : 0);
        auto det3 = [](double (*k)[3]) {
            return k[0][0] * (k[1][1] * k[2][2] - k[1][2] * k[2][1]) - k[0][1] * (k[1][0] * k[2][2] - k[1][2] * k[2][0]) +
                   k[0][2] * (k[1][0] * k[2][1] - k[1][1] * k[2][0]);
        };
        const double det = det3(a);
        if (!(std::fabs(det) > 0)) break;
        double s[3];
        for (int col = 0; col < 3; ++col) {
            double k[3][3];
            for (int p = 0; p < 3; ++p)
                for (int q = 0; q < 3; ++q) k[p][q] = q == col ? -g[p] : a[p][q];
            s[col] = det3(k) / det;
        }
        const Circle t{c.a + s[0], c.b + s[1], c.r + s[2]};
        const double ft = cost(pt, n, t);
        if (ft < f) {
            const bool settled = f - ft <= 1e-15 * f;
            c = t, f = ft, lambda *= 0.1;
            if (settled) break;
        } else {
            lambda *= 10;
        }
    }
    return f;
}

}  // namespace

template <class T> int circle_fit(const T* trace, int start, int stop, T* centre, T* radius, T* residual) noexcept {
    if (!trace || !centre || !radius || start < 0 || stop - start < 3) return -1;
    const int n = stop - start;
    const T* z = trace + 2 * static_cast<std::ptrdiff_t>(start);
    double mx = 0, my = 0;
    for (int i = 0; i < n; ++i) mx += z[2 * i], my += z[2 * i + 1];
    mx /= n, my /= n;
    double spread = 0;
    for (int i = 0; i < n; ++i) spread += (z[2 * i] - mx) * (z[2 * i] - mx) + (z[2 * i + 1] - my) * (z[2 * i + 1] - my);
    spread = std::sqrt(spread / n);
    if (!(spread > 0) || !std::isfinite(spread)) return -1;   // coincident points, or not numbers
    auto pt = [&](int i, double& x, double& y) {
        x = (z[2 * i] - mx) / spread;
        y = (z[2 * i + 1] - my) / spread;
    };
    Circle c;
    if (!algebraic(pt, n, c)) return -1;
    const double f = geometric(pt, n, c);
    centre[0] = static_cast<T>(mx + c.a * spread);
    centre[1] = static_cast<T>(my + c.b * spread);
    *radius = static_cast<T>(std::fabs(c.r) * spread);
    if (residual) *residual = static_cast<T>(std::sqrt(f / n) * spread);
    return n;
}

template int circle_fit<double>(const double*, int, int, double*, double*, double*) noexcept;
template int circle_fit<float>(const float*, int, int, float*, float*, float*) noexcept;

}  // namespace zf
