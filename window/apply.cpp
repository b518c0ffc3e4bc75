// Windowing a vector in place: the cached catalogue windows, the parametrised
// windows generated for one call, and the windows of FIR design. The product
// is rotated left by N/2 (centre sample first) in the same pass as the
// multiplication when N is even.
#include <algorithm>
#include <cmath>

#include "elementwise/rearrange.hpp"
#include "window/catalogue.hpp"
#include "window/window.hpp"

namespace zf {
namespace {

// d <- d * w, then rotated left by n/2 when rotate.
template <class T> void multiply(T* __restrict d, const T* __restrict w, int n, bool rotate) noexcept {
    const int h = n / 2;
    if (rotate && n % 2 == 0) {
        for (int i = 0; i < h; ++i) {
            const T a = d[i] * w[i], b = d[i + h] * w[i + h];
            d[i] = b;
            d[i + h] = a;
        }
        return;
    }
    for (int i = 0; i < n; ++i) d[i] *= w[i];
    if (rotate) std::rotate(d, d + h, d + n);
}

// A real record to window; flags with a normalisation.
template <class T> bool windowable(const Vec<T>* v, int flags) noexcept {
    return readable<T>(v) && !v->complex && (flags & win_norm_mask) != 3;
}

// Generates a shape for this call only and applies it.
template <class T> int apply_shape(Vec<T>* v, win::Shape shape, double p1, double p2, int flags) noexcept {
    if (!windowable<T>(v, flags) || (flags & win_width)) return -1;
    if (v->points == 0) return 0;
    Temp<T> w;
    if (win::shape_window<T>(w.get(), v->points, shape, p1, p2, flags) != 0) return -1;
    multiply(v->data, w->data, v->points, !(flags & win_no_rotate));
    return 0;
}

constexpr int fir_flags = win_peak | win_symmetric | win_no_rotate;   // 38

}  // namespace

template <class T> int window2(Vec<T>* v, int kind, int flags, T width) noexcept {
    if (!windowable<T>(v, flags) || kind < 0 || kind >= win::kinds) return -1;
    if (kind == 0 && !(flags & win_width)) return (flags & win_rotate) ? swap_halves2<T>(v) : 0;
    if (!win::accepts(kind, flags)) return -1;
    if (v->points == 0) return 0;
    const T* w = cached_window<T>(kind, flags, v->points, width);
    if (!w) return -1;
    multiply(v->data, w, v->points, kind == 0 ? (flags & win_rotate) != 0 : !(flags & win_no_rotate));
    return 0;
}

template <class T> int window(Vec<T>* v, int kind, int flags) noexcept {
    if (flags & win_width) return -1;
    return window2<T>(v, kind, flags, T(0));
}

template <class T> int window_cos(Vec<T>* v, const Vec<T>* coef) noexcept {
    if (!windowable<T>(v, 0) || !readable<T>(coef) || coef->complex) return -1;
    if (v->points == 0) return 0;
    Temp<T> w;
    if (win::cosine_window<T>(w.get(), v->points, coef->data, coef->points, win_peak, false, 0) != 0) return -1;
    multiply(v->data, w->data, v->points, true);
    return 0;
}

template <class T> int window_gauss(Vec<T>* v, T sigma, int flags) noexcept {
    return apply_shape<T>(v, win::Shape::gauss, sigma, 0, flags);
}
template <class T> int window_kaiser(Vec<T>* v, T beta, int flags) noexcept {
    return apply_shape<T>(v, win::Shape::kaiser, beta, 0, flags);
}
template <class T> int window_sinc(Vec<T>* v, T span, T power, int flags) noexcept {
    return apply_shape<T>(v, win::Shape::sinc, span, power, flags);
}
template <class T> int window_tukey(Vec<T>* v, T taper, int flags) noexcept {
    return apply_shape<T>(v, win::Shape::tukey, taper, 0, flags);
}

template <class T> int window_fir(Vec<T>* v, int kind, T param) noexcept {
    if (!windowable<T>(v, 0)) return -1;
    const double n = v->points, p = param, half_pi = Traits<double>::pi / 2;
    switch (kind) {
    case 100:
        if (p <= 0 || n < 1) return 0;
        return apply_shape<T>(v, win::Shape::gauss, 1 / (n * Traits<double>::pi * p), 0, fir_flags);
    case 101: {
        const double a = 14.36 * p * (n - 1) + 7.95;
        const double beta = a > 50 ? 0.1102 * (a - 8.7) : a > 21 ? 0.5842 * std::pow(a - 21, 0.4) + 0.07886 * (a - 21) : 0;
        return apply_shape<T>(v, win::Shape::kaiser, beta, 0, fir_flags);
    }
    case 102: {
        const double x = n * p, k = 0.62;
        return apply_shape<T>(v, win::Shape::sinc, half_pi / k, x * k, fir_flags);
    }
    case 103: {
        const double x = 1.12 * n * p;
        const double k = x <= 0 ? 1e100 : x <= 1.25 ? 0.386 / x + 0.453 : x < 5 ? 0.774 - 0.0251 * x : 0.648;
        return apply_shape<T>(v, win::Shape::sinc, half_pi / k, x * k, fir_flags);
    }
    default:
        return window<T>(v, kind, fir_flags);
    }
}

template int window2<double>(Vec<double>*, int, int, double) noexcept;
template int window<double>(Vec<double>*, int, int) noexcept;
template int window_cos<double>(Vec<double>*, const Vec<double>*) noexcept;
template int window_gauss<double>(Vec<double>*, double, int) noexcept;
template int window_kaiser<double>(Vec<double>*, double, int) noexcept;
template int window_sinc<double>(Vec<double>*, double, double, int) noexcept;
template int window_tukey<double>(Vec<double>*, double, int) noexcept;
template int window_fir<double>(Vec<double>*, int, double) noexcept;

template int window2<float>(Vec<float>*, int, int, float) noexcept;
template int window<float>(Vec<float>*, int, int) noexcept;
template int window_cos<float>(Vec<float>*, const Vec<float>*) noexcept;
template int window_gauss<float>(Vec<float>*, float, int) noexcept;
template int window_kaiser<float>(Vec<float>*, float, int) noexcept;
template int window_sinc<float>(Vec<float>*, float, float, int) noexcept;
template int window_tukey<float>(Vec<float>*, float, int) noexcept;
template int window_fir<float>(Vec<float>*, int, float) noexcept;

}  // namespace zf
