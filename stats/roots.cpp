// All complex roots of a polynomial by Aberth-Ehrlich iteration.
#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdlib>

#include "stats/poly.hpp"

namespace zf {
namespace poly {

namespace {

constexpr double kEps = DBL_EPSILON;
constexpr int kSweeps = 500;

// p, p' and the scale sum |a_k| |z|^k of one evaluation.
struct Value { Cx p, dp; double bound; };

// s = a + b exactly as s + e.
inline void two_sum(double a, double b, double& s, double& e) noexcept {
    s = a + b;
    const double bb = s - a;
    e = (a - (s - bb)) + (b - bb);
}

// p(z) by compensated Horner (the rounding error of every step carried in a
// second Horner sum), so that p is as accurate as if evaluated in twice the
// precision; p'(z) by plain Horner; bound = sum |a_k| |z|^k. With `rev` the
// coefficients are taken in reverse order (q(w) = sum a[d-k] w^k).
Value evaluate(const Cx* a, int d, Cx z, bool rev) noexcept {
    auto c = [&](int k) { return rev ? a[d - k] : a[k]; };
    const double zr = z.real(), zi = z.imag(), r = std::abs(z);
    double sr = c(d).real(), si = c(d).imag();
    Cx err = 0, dp = 0;
    double b = std::abs(c(d));
    for (int k = d - 1; k >= 0; --k) {
        dp = dp * z + Cx(sr, si);
        const double p1 = sr * zr, e1 = std::fma(sr, zr, -p1);
        const double p2 = si * zi, e2 = std::fma(si, zi, -p2);
        const double p3 = sr * zi, e3 = std::fma(sr, zi, -p3);
        const double p4 = si * zr, e4 = std::fma(si, zr, -p4);
        double re, e5, im, e6, e7, e8;
        two_sum(p1, -p2, re, e5);
        two_sum(p3, p4, im, e6);
        two_sum(re, c(k).real(), sr, e7);
        two_sum(im, c(k).imag(), si, e8);
        err = err * z + Cx(e1 - e2 + e5 + e7, e3 + e4 + e6 + e8);
        b = b * r + std::abs(c(k));
    }
    return {Cx(sr, si) + err, dp, b};
}

// The Newton correction p(z) / p'(z), and whether p(z) is within the
// rounding error of the compensated evaluation. Outside the unit circle it is
// taken from z^d q(1/z), which does not overflow: p / p' = z / (d - w q'(w) / q(w)).
Cx correction(const Cx* a, int d, Cx z, bool& small) noexcept {
    const bool outside = std::abs(z) > 1;
    const Cx w = outside ? Cx(1) / z : z;
    const Value v = evaluate(a, d, w, outside);
    small = std::abs(v.p) <= 4 * d * kEps * kEps * v.bound;
    if (v.p == Cx(0)) return 0;
    if (!outside) return v.dp == Cx(0) ? Cx(0) : v.p / v.dp;
    const Cx den = Cx(d) - w * v.dp / v.p;
    return den == Cx(0) ? Cx(0) : z / den;
}

// |p(z)| relative to its scale sum |a_k| |z|^k.
double residual(const Cx* a, int d, Cx z) noexcept {
    const bool outside = std::abs(z) > 1;
    const Value v = evaluate(a, d, outside ? Cx(1) / z : z, outside);
    return v.bound > 0 ? std::abs(v.p) / v.bound : 0;
}

// Starting points: for each edge of the upper convex hull of (k, log|a_k|),
// as many points as the edge is long, evenly on the circle whose radius the
// edge's slope gives, turned by an offset that differs from edge to edge.
void start(const Cx* a, int d, Cx* z, int* hull) noexcept {
    int m = 0;
    auto l = [&](int k) { return std::log(std::abs(a[k])); };
    for (int k = 0; k <= d; ++k) {
        if (a[k] == Cx(0)) continue;
        while (m >= 2) {
            const int k0 = hull[m - 2], k1 = hull[m - 1];
            if ((l(k1) - l(k0)) * (k - k0) <= (l(k) - l(k0)) * (k1 - k0)) --m; else break;
        }
        hull[m++] = k;
    }
    const double two_pi = 6.283185307179586;
    int at = 0;
    for (int e = 0; e + 1 < m; ++e) {
        const int count = hull[e + 1] - hull[e];
        const double u = std::exp((l(hull[e]) - l(hull[e + 1])) / count);
        for (int j = 0; j < count; ++j)
            z[at++] = std::polar(u, two_pi * j / count + two_pi * e / d + 0.7);
    }
}

}  // namespace

int roots(const Cx* a, int d, bool real, Cx* z) noexcept {
    if (d <= 0) return 0;
    if (d == 1) {
        z[0] = -a[0] / a[1];
        return 0;
    }
    const std::size_t n = static_cast<std::size_t>(d) + 1;
    void* block = std::malloc(n * (sizeof(int) + sizeof(double) + sizeof(bool)));
    if (!block) return -1;
    double* last = static_cast<double*>(block);
    int* hull = reinterpret_cast<int*>(last + n);
    bool* done = reinterpret_cast<bool*>(hull + n);
    start(a, d, z, hull);
    std::fill(done, done + d, false);
    std::fill(last, last + d, HUGE_VAL);
    // A root is done once p(z) is within Horner's rounding error and its
    // correction no longer shrinks (or is at the last bit of z).
    for (int sweep = 0; sweep < kSweeps; ++sweep) {
        int open = 0;
        for (int i = 0; i < d; ++i) {
            if (done[i]) continue;
            bool small = false;
            const Cx c = correction(a, d, z[i], small);
            Cx s = 0;
            for (int j = 0; j < d; ++j)
                if (j != i && z[i] != z[j]) s += Cx(1) / (z[i] - z[j]);
            const Cx den = Cx(1) - c * s;
            const Cx w = den == Cx(0) ? c : c / den;
            const double step = std::abs(w);
            if (!std::isfinite(step) || step <= 2 * kEps * std::abs(z[i]) || (small && step >= last[i])) {
                done[i] = true;
                continue;
            }
            last[i] = step;
            ++open;
            z[i] -= w;
        }
        if (open == 0) break;
    }
    std::free(block);
    for (int i = 0; i < d; ++i) {
        // Polish: one Newton step, kept only when it lowers the residual.
        bool small = false;
        const Cx t = z[i] - correction(a, d, z[i], small);
        if (std::isfinite(t.real()) && std::isfinite(t.imag()) && residual(a, d, t) < residual(a, d, z[i])) z[i] = t;
    }
    if (real) {
        // Complex roots of real coefficients come in conjugate pairs: a root
        // whose mirror image has no partner nearer than the mirror itself is real.
        for (int i = 0; i < d; ++i) {
            if (z[i].imag() == 0) continue;
            double near = HUGE_VAL;
            for (int j = 0; j < d; ++j)
                if (j != i) near = std::fmin(near, std::abs(std::conj(z[i]) - z[j]));
            if (near > std::fabs(z[i].imag())) z[i] = z[i].real();
        }
    }
    return 0;
}

}  // namespace poly
}  // namespace zf
