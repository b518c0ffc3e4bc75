// Second derivatives of the interpolating cubic spline at its knots, under a
// chosen end condition at each end, by one tridiagonal solve.
#include <cstdlib>

#include "interp/interp.hpp"

namespace zf {
namespace {

// Scratch of the solve, freed on every exit.
template <class A> struct Scratch {
    A* p = nullptr;
    explicit Scratch(std::size_t n) noexcept : p(static_cast<A*>(std::malloc(n * sizeof(A)))) {}
    ~Scratch() { std::free(p); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
};

enum End { kNotAKnot = 0, kSlope = 1, kCurvature = 2, kNatural = 3 };

// The single cubic through four knots: p'' = 2 f[x0,x1,x2] + 2 f[x0..x3] (3x - x0 - x1 - x2)
// from the divided differences.
template <class A> void single_cubic(const A* x, const A* y, A* s) noexcept {
    const A f01 = (y[1] - y[0]) / (x[1] - x[0]), f12 = (y[2] - y[1]) / (x[2] - x[1]),
            f23 = (y[3] - y[2]) / (x[3] - x[2]);
    const A f012 = (f12 - f01) / (x[2] - x[0]), f123 = (f23 - f12) / (x[3] - x[1]);
    const A f0123 = (f123 - f012) / (x[3] - x[0]);
    for (int k = 0; k < 4; ++k) s[k] = 2 * f012 + 2 * f0123 * (3 * x[k] - x[0] - x[1] - x[2]);
}

// The spline system on the knots that remain after a not-a-knot end has taken
// out its neighbour (x[1] or x[n-2]); the removed second derivative lies on
// the straight line between its neighbours'. Returns false for a zero pivot.
template <class A>
bool solve(const A* x, const A* y, int n, A d0, A dn, int c0, int cn, A* s, A* w) noexcept {
    int* idx = reinterpret_cast<int*>(w + 4 * static_cast<std::size_t>(n));   // room for n ints
    int m = 0;
    for (int i = 0; i < n; ++i)
        if (!((i == 1 && c0 == kNotAKnot) || (i == n - 2 && cn == kNotAKnot))) idx[m++] = i;
    A* sub = w;
    A* diag = w + n;
    A* sup = w + 2 * n;
    A* rhs = w + 3 * n;
    auto X = [&](int r) { return x[idx[r]]; };
    auto Y = [&](int r) { return y[idx[r]]; };
    // First row.
    if (c0 == kNotAKnot) {
        const A h1 = x[1] - x[0], h2 = x[2] - x[1], H = h1 + h2, a = h1 / H, b = h2 / H;
        diag[0] = b * b * b - b;
        sup[0] = a * a * a - a;
        rhs[0] = 6 / (H * H) * (y[1] - (h2 * y[0] + h1 * y[2]) / H);
    } else if (c0 == kSlope) {
        const A h = X(1) - X(0);
        diag[0] = 2;
        sup[0] = 1;
        rhs[0] = 6 / h * ((Y(1) - Y(0)) / h - d0);
    } else {
        diag[0] = 1;
        sup[0] = 0;
        rhs[0] = c0 == kCurvature ? d0 : A(0);
    }
    // Continuity of the slope at every remaining interior knot.
    for (int r = 1; r < m - 1; ++r) {
        const A hi = X(r) - X(r - 1), hn = X(r + 1) - X(r);
        sub[r] = hi / hn;
        diag[r] = 2 * (hi / hn + 1);
        sup[r] = 1;
        rhs[r] = 6 / hn * ((Y(r + 1) - Y(r)) / hn - (Y(r) - Y(r - 1)) / hi);
    }
    // Last row, the mirror of the first.
    const int l = m - 1;
    if (cn == kNotAKnot) {
        const A h1 = x[n - 2] - x[n - 3], h2 = x[n - 1] - x[n - 2], H = h1 + h2, a = h1 / H, b = h2 / H;
        sub[l] = b * b * b - b;
        diag[l] = a * a * a - a;
        rhs[l] = 6 / (H * H) * (y[n - 2] - (h2 * y[n - 3] + h1 * y[n - 1]) / H);
    } else if (cn == kSlope) {
        const A h = X(l) - X(l - 1);
        sub[l] = 1;
        diag[l] = 2;
        rhs[l] = 6 / h * (dn - (Y(l) - Y(l - 1)) / h);
    } else {
        sub[l] = 0;
        diag[l] = 1;
        rhs[l] = cn == kCurvature ? dn : A(0);
    }
    // Forward elimination and back substitution, no pivoting.
    for (int r = 1; r < m; ++r) {
        if (diag[r - 1] == 0) return false;
        const A f = sub[r] / diag[r - 1];
        diag[r] -= f * sup[r - 1];
        rhs[r] -= f * rhs[r - 1];
    }
    if (diag[l] == 0) return false;
    s[idx[l]] = rhs[l] / diag[l];
    for (int r = l - 1; r >= 0; --r) s[idx[r]] = (rhs[r] - sup[r] * s[idx[r + 1]]) / diag[r];
    if (c0 == kNotAKnot) s[1] = (s[0] * (x[2] - x[1]) + s[2] * (x[1] - x[0])) / (x[2] - x[0]);
    if (cn == kNotAKnot)
        s[n - 2] = (s[n - 3] * (x[n - 1] - x[n - 2]) + s[n - 1] * (x[n - 2] - x[n - 3])) / (x[n - 1] - x[n - 3]);
    return true;
}

}  // namespace

template <class T>
int cspline_2d(const Vec<T>* x, const Vec<T>* y, Vec<T>* y2, T d0, T dn, int cond0, int condn) noexcept {
    using A = typename Traits<T>::Acc;
    if (!readable<T>(x) || !readable<T>(y) || !writable<T>(y2)) return -1;
    if (x->complex || y->complex) return -1;
    const int n = x->points;
    if (y->points != n || n < 4) return -1;
    if (cond0 < kNotAKnot || cond0 > kNatural || condn < kNotAKnot || condn > kNatural) return -1;
    for (int i = 1; i < n; ++i)
        if (!(x->data[i] > x->data[i - 1])) return -1;   // zero, negative or NaN interval
    // Knots, values, the result and the work rows (four of n values and n indices).
    const std::size_t un = static_cast<std::size_t>(n);
    Scratch<A> block(8 * un);
    if (!block.p) return -1;
    A* kx = block.p;
    A* ky = kx + un;
    A* s = ky + un;
    A* w = s + un;
    for (int i = 0; i < n; ++i) {
        kx[i] = x->data[i];
        ky[i] = y->data[i];
    }
    if (n == 4 && cond0 == kNotAKnot && condn == kNotAKnot)
        single_cubic(kx, ky, s);
    else if (!solve(kx, ky, n, A(d0), A(dn), cond0, condn, s, w))
        return -1;
    const T delta = static_cast<T>((A(x->delta) + A(y->delta)) / 2);
    y2->points = n;
    y2->complex = 0;
    if (alloc<T>(y2) != 0) return -1;
    for (int i = 0; i < n; ++i) y2->data[i] = static_cast<T>(s[i]);
    y2->delta = delta;
    return 0;
}

template int cspline_2d<double>(const Vec<double>*, const Vec<double>*, Vec<double>*, double, double, int, int) noexcept;
template int cspline_2d<float>(const Vec<float>*, const Vec<float>*, Vec<float>*, float, float, int, int) noexcept;

}  // namespace zf
