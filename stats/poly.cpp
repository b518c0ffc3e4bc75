// Polynomials, lowest power first: evaluation, the solution of p(x) = y
// nearest a starting point, all roots, and the coefficients from the roots.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "stats/poly.hpp"

namespace zf {
namespace {

using poly::Cx;

// A block of complex scratch freed on every exit.
struct Buffer {
    Cx* p;
    explicit Buffer(std::size_t n) noexcept : p(static_cast<Cx*>(std::malloc((n ? n : 1) * sizeof(Cx)))) {}
    ~Buffer() { std::free(p); }
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;
};

// Sample k of a record as a complex number.
template <class T> Cx at(const Vec<T>& v, int k) noexcept {
    return v.complex ? Cx(v.data[2 * k], v.data[2 * k + 1]) : Cx(v.data[k]);
}

// A value limited to the guard of the precision (not-a-number kept).
template <class T> T sat(double v) noexcept {
    const double g = Traits<T>::huge;
    return static_cast<T>(v > g ? g : (v < -g ? -g : v));
}

// Makes out n samples (complex or real) from z.
template <class T> int store(Vec<T>* out, const Cx* z, int n, int complex) noexcept {
    out->points = n;
    out->complex = complex;
    if (alloc<T>(out) != 0) return -1;
    for (int k = 0; k < n; ++k) {
        if (complex) {
            out->data[2 * k] = sat<T>(z[k].real());
            out->data[2 * k + 1] = sat<T>(z[k].imag());
        } else {
            out->data[k] = sat<T>(z[k].real());
        }
    }
    return 0;
}

// The coefficients of p less y into a, and the degree left once the zero
// leading coefficients are dropped (-1 when every coefficient is 0).
template <class T> int load(const Vec<T>& p, Cx y, Cx* a) noexcept {
    for (int k = 0; k < p.points; ++k) a[k] = at<T>(p, k);
    if (p.points > 0) a[0] -= y;
    int d = p.points - 1;
    while (d >= 0 && a[d] == Cx(0)) --d;
    return d;
}

// All roots of a (degree d >= 0): the zero roots of the low zero coefficients
// exactly, the others by poly::roots.
int all_roots(const Cx* a, int d, bool real, Cx* z) noexcept {
    int s = 0;
    while (s < d && a[s] == Cx(0)) z[s++] = 0;
    if (poly::roots(a + s, d - s, real, z + s) != 0) return -1;
    std::sort(z, z + d, [](Cx u, Cx v) { return u.real() < v.real() || (u.real() == v.real() && u.imag() < v.imag()); });
    return 0;
}

// Whether the real part of z is a root of the real coefficients a to
// rounding: |q(x)| within Horner's error bound 2 d eps sum |a_k| |x|^k (a
// multiple root comes back as a close complex pair, yet solves q = 0 on the line).
bool real_to_rounding(const Cx* a, int d, Cx z) noexcept {
    if (z.imag() == 0) return true;
    const double x = z.real();
    double q = a[d].real(), b = std::fabs(q);
    for (int k = d - 1; k >= 0; --k) {
        q = q * x + a[k].real();
        b = b * std::fabs(x) + std::fabs(a[k].real());
    }
    return std::fabs(q) <= 2 * d * Traits<double>::eps * b;
}

// The solution of q = 0 nearest x0 among the roots (real ones only when asked).
// -1 when there is none (or scratch fails); every x solves q = 0 when d < 0.
int nearest(const Cx* a, int d, bool real_poly, bool real_only, Cx x0, Cx& best) noexcept {
    if (d < 0) { best = x0; return 0; }
    if (d == 0) return -1;
    Buffer z(static_cast<std::size_t>(d));
    if (!z.p || all_roots(a, d, real_poly, z.p) != 0) return -1;
    int pick = -1;
    for (int k = 0; k < d; ++k)
        if (real_only && real_to_rounding(a, d, z.p[k])) z.p[k] = z.p[k].real();
    for (int k = 0; k < d; ++k)
        if ((!real_only || z.p[k].imag() == 0) && (pick < 0 || std::abs(z.p[k] - x0) < std::abs(z.p[pick] - x0))) pick = k;
    if (pick < 0) return -1;
    best = z.p[pick];
    return 0;
}

// q(x) of real coefficients and its derivative.
void real_value(const Cx* a, int d, double x, double& q, double& dq) noexcept {
    q = a[d].real();
    dq = 0;
    for (int k = d - 1; k >= 0; --k) {
        dq = dq * x + q;
        q = q * x + a[k].real();
    }
}

// Polishes a simple real root r: a sign change of q is sought in a few
// doubling steps around r, and Newton steps inside that bracket replace
// themselves by bisection when they would leave it. A root of even
// multiplicity (no sign change) is kept as it is.
double polish(const Cx* a, int d, double r) noexcept {
    double q, dq, lo = 0, hi = 0, qlo = 0, qh = 0;
    bool found = false;
    for (double h = 4 * Traits<double>::eps * std::fmax(1.0, std::fabs(r)); !found && h < 1e-6 * std::fmax(1.0, std::fabs(r)); h *= 2) {
        lo = r - h;
        hi = r + h;
        real_value(a, d, lo, qlo, dq);
        real_value(a, d, hi, qh, dq);
        found = (qlo < 0) != (qh < 0) || qlo == 0 || qh == 0;
    }
    if (!found) return r;
    if (qlo == 0) return lo;
    if (qh == 0) return hi;
    double x = r;
    for (int it = 0; it < 100; ++it) {
        real_value(a, d, x, q, dq);
        if (q == 0) return x;
        if ((q < 0) == (qlo < 0)) lo = x; else hi = x;
        double next = dq != 0 ? x - q / dq : 0.5 * (lo + hi);
        if (!(next > lo && next < hi)) next = 0.5 * (lo + hi);
        if (next == x || hi - lo <= 2 * Traits<double>::eps * std::fabs(x)) return next;
        x = next;
    }
    return x;
}

}  // namespace

template <class T> int peval(const Vec<T>* p, const Vec<T>* x, Vec<T>* out) noexcept {
    if (!readable<T>(p) || !readable<T>(x) || !writable<T>(out)) return -1;
    const int n = p->points, m = x->points;
    const int complex = p->complex || x->complex;
    Buffer v(static_cast<std::size_t>(m));
    if (!v.p) return -1;
    if (!complex) {
        for (int k = 0; k < m; ++k) {
            const double t = x->data[k];
            double r = 0;
            for (int i = n - 1; i >= 0; --i) r = r * t + p->data[i];
            v.p[k] = r;
        }
    } else {
        for (int k = 0; k < m; ++k) {
            const Cx t = at<T>(*x, k);
            Cx r = 0;
            for (int i = n - 1; i >= 0; --i) r = r * t + at<T>(*p, i);
            v.p[k] = r;
        }
    }
    const T delta = x->delta;
    if (store<T>(out, v.p, m, complex) != 0) return -1;
    out->delta = delta;
    return 0;
}

template <class T> int psolve(const Vec<T>* p, T y, T x0, Vec<T>* out) noexcept {
    if (!readable<T>(p) || !writable<T>(out) || p->complex || std::isnan(y) || std::isnan(x0)) return -1;
    Buffer a(static_cast<std::size_t>(p->points));
    if (!a.p) return -1;
    const int d = load<T>(*p, Cx(y), a.p);
    Cx r;
    if (nearest(a.p, d, true, true, Cx(x0), r) != 0) return -1;
    if (d > 0) r = polish(a.p, d, r.real());
    return store<T>(out, &r, 1, 0);
}

template <class T> int pcsolve(const Vec<T>* p, T y_re, T y_im, T x0_re, T x0_im, Vec<T>* out) noexcept {
    if (!readable<T>(p) || !writable<T>(out)) return -1;
    if (std::isnan(y_re) || std::isnan(y_im) || std::isnan(x0_re) || std::isnan(x0_im)) return -1;
    Buffer a(static_cast<std::size_t>(p->points));
    if (!a.p) return -1;
    const int d = load<T>(*p, Cx(y_re, y_im), a.p);
    Cx r;
    if (nearest(a.p, d, !p->complex && y_im == 0, false, Cx(x0_re, x0_im), r) != 0) return -1;
    return store<T>(out, &r, 1, 1);
}

template <class T> int proots(const Vec<T>* p, Vec<T>* out) noexcept {
    if (!readable<T>(p) || !writable<T>(out)) return -1;
    Buffer a(static_cast<std::size_t>(p->points));
    if (!a.p) return -1;
    const int d = load<T>(*p, Cx(0), a.p);
    if (d < 0) return -1;   // no polynomial, or the zero polynomial
    Buffer z(static_cast<std::size_t>(d));
    if (!z.p || all_roots(a.p, d, !p->complex, z.p) != 0) return -1;
    return store<T>(out, z.p, d, 1);
}

template <class T> int pztoc(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int n = v->points;
    if (n == 0x7fffffff) return -1;
    Buffer c(static_cast<std::size_t>(n) + 1);
    if (!c.p) return -1;
    c.p[0] = 1;
    for (int i = 0; i < n; ++i) {
        const Cx r = at<T>(*v, i);
        c.p[i + 1] = c.p[i];
        for (int k = i; k >= 1; --k) c.p[k] = c.p[k - 1] - r * c.p[k];
        c.p[0] = -r * c.p[0];
    }
    return store<T>(v, c.p, n + 1, v->complex);
}

template int peval<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int psolve<double>(const Vec<double>*, double, double, Vec<double>*) noexcept;
template int pcsolve<double>(const Vec<double>*, double, double, double, double, Vec<double>*) noexcept;
template int proots<double>(const Vec<double>*, Vec<double>*) noexcept;
template int pztoc<double>(Vec<double>*) noexcept;

template int peval<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;
template int psolve<float>(const Vec<float>*, float, float, Vec<float>*) noexcept;
template int pcsolve<float>(const Vec<float>*, float, float, float, float, Vec<float>*) noexcept;
template int proots<float>(const Vec<float>*, Vec<float>*) noexcept;
template int pztoc<float>(Vec<float>*) noexcept;

}  // namespace zf
