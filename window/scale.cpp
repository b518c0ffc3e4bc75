// Scale of a normalised window against the same window at peak 1, and the
// equivalent noise bandwidth: closed forms for the cosine sums (from their
// coefficient rows) and the triangle, a generated and measured window for the
// rest.
#include <cmath>

#include "window/catalogue.hpp"
#include "window/window.hpp"

namespace zf {
namespace {

// The cosine-sum factor from the rows, with the short-length aliasing.
template <class T> double cosine_scale(int kind, int norm, int n) noexcept {
    const int terms = win::catalogue[kind].terms;
    const T* r = win::rows<T>.r[kind][norm];
    const double f = static_cast<double>(r[0]) / static_cast<double>(win::rows<T>.r[kind][win_peak][0]);
    if (norm == win_mean) return n >= terms ? f : f * static_cast<double>(r[0]) / win::alias_mean(r, terms, n);
    return n >= 2 * terms - 1 ? f : f / std::sqrt(win::alias_mean_square(r, terms, n));
}

// The generated peak-1 window, measured.
template <class T> int measured_scale(double* result, int kind, int flags, int n, T width) noexcept {
    Temp<T> w;
    if (make_window<T>(w.get(), n, kind, (flags & (win_symmetric | win_width)) | win_peak, width) != 0) return -1;
    double mean, rms;
    win::measure(w->data, n, &mean, &rms);
    double m = (flags & win_norm_mask) == win_mean ? mean : rms;
    if ((flags & win_norm_mask) == win_mean && kind >= 8 && kind <= 13) m /= static_cast<double>(win::rows<T>.r[kind][win_mean][0]);
    *result = m == 0 || std::isnan(m) ? 0 : 1 / m;
    return 0;
}

template <class T> int scale_of(double* result, int kind, int flags, int n, T width) noexcept {
    const int norm = flags & win_norm_mask;
    if (norm == win_peak || n < 1) {
        *result = 1;
        return 0;
    }
    if (norm == 3 || kind < 0 || kind >= win::kinds) return -1;
    const win::Shape shape = win::catalogue[kind].shape;
    if (!(flags & win_width)) {
        if (shape == win::Shape::triangle) {
            const double nn = static_cast<double>(n) * n;
            *result = norm == win_rms ? std::sqrt(3 * nn / (nn + 2)) : n % 2 ? 2 * nn / (1 + nn) : 2;
            return 0;
        }
        if (shape == win::Shape::uniform || shape == win::Shape::cosine) {
            *result = cosine_scale<T>(kind, norm, n);
            return 0;
        }
    }
    return measured_scale<T>(result, kind, flags, n, width);
}

template <class T> int enbw_of(T* result, int kind, int points, int flags, T width) noexcept {
    double a, r;
    if (!result || scale_of<T>(&a, kind, flags | win_mean, points, width) != 0 ||
        scale_of<T>(&r, kind, flags | win_rms, points, width) != 0 || r == 0)
        return -1;
    *result = static_cast<T>((a / r) * (a / r));
    return 0;
}

}  // namespace

template <class T> int window2_scale(T* result, int kind, int flags, int points, T width) noexcept {
    double s;
    if (!result || scale_of<T>(&s, kind, flags, points, width) != 0) return -1;
    *result = static_cast<T>(s);
    return 0;
}

template <class T> int window_scale(T* result, int kind, int flags, int points) noexcept {
    if (flags & win_width) return -1;
    return window2_scale<T>(result, kind, flags, points, T(0));
}

template <class T> int window_enbw(T* result, int kind, int points) noexcept {
    return enbw_of<T>(result, kind, points, 0, T(0));
}

template <class T> int window2_enbw(T* result, int kind, int points, T width) noexcept {
    return enbw_of<T>(result, kind, points, win_width, width);
}

template int window2_scale<double>(double*, int, int, int, double) noexcept;
template int window_scale<double>(double*, int, int, int) noexcept;
template int window_enbw<double>(double*, int, int) noexcept;
template int window2_enbw<double>(double*, int, int, double) noexcept;
template int window2_scale<float>(float*, int, int, int, float) noexcept;
template int window_scale<float>(float*, int, int, int) noexcept;
template int window_enbw<float>(float*, int, int) noexcept;
template int window2_enbw<float>(float*, int, int, float) noexcept;

}  // namespace zf
