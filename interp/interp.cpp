// Evaluation at new abscissae: previous-knot hold, linear, quadratic and
// cubic-spline interpolation, with clamping or extrapolation at the ends.
// The abscissae are walked in order with an interval index that only moves
// forward, so m abscissae cost O(n + m) in any order; a smaller abscissa after
// a larger one keeps the interval reached so far (abscissae are meant to
// ascend), and a stop at the clamped end fills every remaining output.
#include <cmath>
#include <cstring>
#include <limits>

#include "interp/interp.hpp"
#include "interp/search.hpp"

namespace zf {
namespace {

// Knots that may be interpolated: strictly increasing and none NaN.
template <class T> bool increasing(const T* x, int n) noexcept {
    if (n >= 1 && std::isnan(x[0])) return false;
    for (int i = 1; i < n; ++i)
        if (!(x[i] > x[i - 1])) return false;
    return true;
}

// The evaluation proper, into o[0 .. m-1]; s holds the second derivatives in
// the cubic mode.
template <class T>
void evaluate(const T* x, const T* y, const T* s, int n, const T* xi, T* o, int m, int mode, bool clamp) noexcept {
    using A = typename Traits<T>::Acc;
    if (n <= 0) {
        for (int k = 0; k < m; ++k) o[k] = T(0);
        return;
    }
    if (n == 1) {
        for (int k = 0; k < m; ++k) {
            const A d = A(xi[k]) - A(x[0]);
            o[k] = mode == kInterpCubic ? static_cast<T>(A(y[0]) + A(0.5) * A(s[0]) * d * d) : y[0];
        }
        return;
    }
    int k = 0;
    if (clamp)
        for (; k < m && xi[k] < x[0]; ++k) o[k] = y[0];
    if (mode != kInterpHold && mode != kInterpLinear && mode != kInterpQuadratic && mode != kInterpCubic) {
        // The reserved modes evaluate nothing: the rest holds the value of the
        // knot that closes the first remaining abscissa's interval.
        const int j = k < m && !std::isnan(xi[k]) ? locate(x, n, xi[k], 1) : 1;
        for (; k < m; ++k) o[k] = y[j];
        return;
    }
    // The walk starts on the interval of the first remaining abscissa.
    int j = k < m && !std::isnan(xi[k]) ? locate(x, n, xi[k], 1) : 1;
    for (; k < m; ++k) {
        const T v = xi[k];
        if (std::isnan(v)) {
            o[k] = std::numeric_limits<T>::quiet_NaN();
            continue;
        }
        while (j < n - 1 && x[j] <= v) ++j;
        const bool past = x[j] <= v;   // at or beyond the last knot
        T fill;                        // the value of every remaining output after a stop
        switch (mode) {
        case kInterpHold:
            if (past) { fill = y[j]; break; }
            o[k] = y[j - 1];
            continue;
        case kInterpLinear: {
            if (past && clamp) { fill = y[j]; break; }
            const A a = A(x[j - 1]), b = A(x[j]), t = A(v);
            o[k] = static_cast<T>((A(y[j]) * (t - a) + A(y[j - 1]) * (b - t)) / (b - a));
            continue;
        }
        case kInterpQuadratic: {
            // Centre: the knot nearest v (a tie goes to the lower), within 1 .. n-2.
            int c = A(v) - A(x[j - 1]) <= A(x[j]) - A(v) ? j - 1 : j;
            c = c < 1 ? 1 : (c > n - 2 ? n - 2 : c);
            if (clamp && x[c + 1] <= v) { fill = y[c + 1]; break; }
            const A h1 = A(x[c]) - A(x[c - 1]), h2 = A(x[c + 1]) - A(x[c]), t = A(v) - A(x[c]);
            const A num = A(y[c - 1]) * h2 * t * (t - h2) - A(y[c]) * (h1 + h2) * (t + h1) * (t - h2) +
                          A(y[c + 1]) * h1 * (t + h1) * t;
            o[k] = static_cast<T>(num / (h1 * h2 * (h1 + h2)));
            continue;
        }
        default: {   // cubic spline
            if (past && clamp) { fill = y[j]; break; }
            const A h = A(x[j]) - A(x[j - 1]), a = A(x[j]) - A(v), b = A(v) - A(x[j - 1]);
            o[k] = static_cast<T>((A(y[j]) * b + A(y[j - 1]) * a) / h +
                                  ((b * b / h - h) * b * A(s[j]) + (a * a / h - h) * a * A(s[j - 1])) / A(6));
            continue;
        }
        }
        for (; k < m; ++k) o[k] = fill;
    }
}

}  // namespace

template <class T>
int interp(const Vec<T>* x, const Vec<T>* y, const Vec<T>* y2, const Vec<T>* xi, Vec<T>* out, int flags) noexcept {
    if (!readable<T>(x) || !readable<T>(y) || !readable<T>(xi) || !writable<T>(out)) return -1;
    if (y2 && !readable<T>(y2)) return -1;
    if (x->complex || y->complex || xi->complex) return -1;
    const int n = x->points, m = xi->points;
    if (y->points != n || !increasing(x->data, n)) return -1;
    int mode = flags & kInterpModeMask;
    if ((mode & 3) == 3 && n < 3) mode = kInterpLinear;   // 3 and 7 need three knots
    Temp<T> own_y2;
    const T* s = nullptr;
    if (mode == kInterpCubic) {
        if (y2) {
            if (y2->complex || y2->points != n) return -1;
            s = y2->data;
        } else {
            if (cspline_2d<T>(x, y, own_y2.get(), T(0), T(0), 0, 0) != 0) return -1;
            s = own_y2->data;
        }
    }
    // An output that shares storage with an input is written through a temporary.
    const bool alias = same_storage<T>(*out, *x) || same_storage<T>(*out, *y) || same_storage<T>(*out, *xi) ||
                       (y2 && same_storage<T>(*out, *y2));
    Temp<T> tmp;
    Vec<T>* dst = alias ? tmp.get() : out;
    const T delta = xi->delta;
    dst->points = m;
    dst->complex = 0;
    if (alloc<T>(dst) != 0) return -1;
    evaluate<T>(x->data, y->data, s, n, xi->data, dst->data, m, mode, (flags & kInterpClamp) != 0);
    if (alias) {
        out->points = m;
        out->complex = 0;
        if (alloc<T>(out) != 0) return -1;
        if (m > 0) std::memcpy(out->data, tmp->data, static_cast<std::size_t>(m) * sizeof(T));
    }
    out->delta = delta;
    return 0;
}

template <class T>
int cspline(const Vec<T>* x, const Vec<T>* y, const Vec<T>* y2, const Vec<T>* xi, Vec<T>* out) noexcept {
    return interp<T>(x, y, y2, xi, out, kInterpCubic);
}

template int interp<double>(const Vec<double>*, const Vec<double>*, const Vec<double>*, const Vec<double>*, Vec<double>*, int) noexcept;
template int cspline<double>(const Vec<double>*, const Vec<double>*, const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;

template int interp<float>(const Vec<float>*, const Vec<float>*, const Vec<float>*, const Vec<float>*, Vec<float>*, int) noexcept;
template int cspline<float>(const Vec<float>*, const Vec<float>*, const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;

}  // namespace zf
