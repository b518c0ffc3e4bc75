// Window generation: the shapes of the catalogue at their distances from the
// centre, mirrored about index N/2, and the three normalisations.
#include <cmath>

#include "core/libm.hpp"
#include "elementwise/bessel.hpp"
#include "window/catalogue.hpp"
#include "window/window.hpp"

namespace zf {
namespace win {
namespace {


// Writes f(d) for every sample at distance d from the centre c = n/2: w[c] and
// w[c -+ m] for m up to (n - 1)/2, and for even n the one sample w[0] at
// distance n/2. Symmetric with even n: the samples c - 1 - k and c + k sit at
// distance k + 1/2. f is called with growing distances.
template <class T, class F> void fill(T* w, int n, bool symmetric, F f) noexcept {
    const int c = n / 2;
    if (symmetric && n % 2 == 0) {
        for (int k = 0; k < c; ++k) w[c + k] = w[c - 1 - k] = static_cast<T>(f(k + 0.5));
        return;
    }
    for (int m = 0; m <= (n - 1) / 2; ++m) w[c + m] = w[c - m] = static_cast<T>(f(static_cast<double>(m)));
    if (n % 2 == 0) w[0] = static_cast<T>(f(static_cast<double>(c)));
}

template <class T> void scale_by(T* w, int n, double f) noexcept {
    for (int i = 0; i < n; ++i) w[i] = static_cast<T>(static_cast<double>(w[i]) * f);
}

// Cosine sum of the coefficients a over distances up to h, zero beyond; the
// angle m*delta advances by addition and restarts at m*delta every 1024 samples.
template <class T> void cosine_sum(T* w, int n, const T* a, int terms, double delta, int h) noexcept {
    double edge = 0;   // the sum at distance n/2: cos(k pi) = (-1)^k
    for (int k = 0; k < terms; ++k) edge += (k % 2 ? -1.0 : 1.0) * static_cast<double>(a[k]);
    double theta = 0;
    fill(w, n, false, [&](double d) {
        const int m = static_cast<int>(d);
        if (m > h) return 0.0;
        if (2 * m == n) return edge;
        theta = m % 1024 == 0 ? (m == 0 ? 0.0 : m * delta) : theta + delta;
        double s = 0;
        for (int k = 0; k < terms; ++k) s += static_cast<double>(a[k]) * libm::cos(k * theta);
        return s;
    });
}

}  // namespace

template <class T> double alias_mean(const T* r, int terms, int n) noexcept {
    double s = 0;
    for (int k = 0; k < terms; ++k)
        if (k % n == 0) s += static_cast<double>(r[k]);
    return s;
}

template <class T> double alias_mean_square(const T* r, int terms, int n) noexcept {
    double s = 1;
    for (int k = 1; k < terms; ++k) {
        const double rk = static_cast<double>(r[k]);
        if (2 * k % n == 0) s += rk * rk / 2;
        for (int j = 0; j < k; ++j) {
            const double p = static_cast<double>(r[j]) * rk;
            if ((k - j) % n == 0) s += p;
            if ((k + j) % n == 0) s += p;
        }
    }
    return s;
}

template <class T> void measure(const T* w, int n, double* mean, double* rms) noexcept {
    double s = 0, q = 0;
    for (int i = 0; i < n; ++i) {
        const double x = static_cast<double>(w[i]);
        s += x;
        q += x * x;
    }
    *mean = n > 0 ? s / n : 0;
    *rms = n > 0 ? std::sqrt(q / n) : 0;
}

template <class T> int cosine_window(Vec<T>* v, int n, const T* a, int terms, int norm, bool use_width, double width) noexcept {
    v->points = n;
    v->complex = 0;
    if (alloc<T>(v) != 0) return -1;
    T* w = v->data;
    if (n == 0) return 0;
    if (!use_width) {
        cosine_sum(w, n, a, terms, Traits<double>::two_pi / n, n);
    } else {
        const int whole = floor_tolerant(width);
        const int reach = whole / 2, h = reach < (n - 1) / 2 ? reach : (n - 1) / 2;
        cosine_sum(w, n, a, terms, Traits<double>::two_pi / width, h);
        // An even width ends on the window's own edge, which belongs to the next period.
        if (whole % 2 == 0 && ceil_tolerant(width) == whole && h == reach) w[n / 2 + h] = T(0);
    }
    double factor = 1;
    if (use_width && norm != win_peak) {
        double mean, rms;
        measure(w, n, &mean, &rms);
        const double m = norm == win_mean ? mean / static_cast<double>(a[0]) : rms;
        if (m != 0) factor = 1 / m;
    } else if (norm == win_mean && n < terms) {
        factor = static_cast<double>(a[0]) / alias_mean(a, terms, n);
    } else if (norm == win_rms && n < 2 * terms - 1) {
        factor = 1 / std::sqrt(alias_mean_square(a, terms, n));
    }
    if (factor != 1) scale_by(w, n, factor);
    return 0;
}

template <class T> int shape_window(Vec<T>* v, int n, Shape shape, double p1, double p2, int flags) noexcept {
    v->points = n;
    v->complex = 0;
    if (alloc<T>(v) != 0) return -1;
    T* w = v->data;
    if (n == 0) return 0;
    const int norm = flags & win_norm_mask;
    const bool sym = (flags & win_symmetric) != 0;
    const double len = sym ? n - 1 : n;   // the denominator
    if (n == 1) {
        w[0] = T(1);
        return 0;
    }
    switch (shape) {
    case Shape::triangle: {
        const double nn = static_cast<double>(n) * n;
        double p = 1;
        if (norm == win_mean) p = n % 2 ? 2 * nn / (1 + nn) : 2;
        if (norm == win_rms) p = std::sqrt(3 * nn / (2 + nn));
        const double s = 2 * p / n;
        fill(w, n, false, [&](double d) { return 2 * d >= n ? 0.0 : p - d * s; });
        return 0;   // the peak p is the normalisation
    }
    case Shape::kaiser: {
        const double limit = norm == win_rms ? 230.25850929940458 : 460.51701859880916;
        const double beta = std::fmin(std::fabs(p1), limit), peak = bessel_i0(beta);
        fill(w, n, sym, [&](double d) {
            const double r = 2 * d / len;
            return bessel_i0(beta * std::sqrt(std::fmax(0.0, 1 - r * r))) / peak;
        });
        break;
    }
    case Shape::gauss: {
        const double ls = len * std::fabs(p1);
        fill(w, n, sym, [&](double d) { return ls == 0 ? (d < 1 ? 1.0 : 0.0) : std::exp(-0.5 * d * d / (ls * ls)); });
        break;
    }
    case Shape::sinc: {
        const double span = p1, power = p2;
        fill(w, n, sym, [&](double d) {
            const double x = d * 2 * span / len;
            const double s = x == 0 ? 1.0 : libm::sin(x) / x;
            if (power == 1) return s;
            if (power == 2) return s * s;
            if (power == 0 || x == 0) return 1.0;
            return s > 0 ? std::exp(power * std::log(s)) : 0.0;
        });
        break;
    }
    case Shape::tukey: {
        const double m0 = (1 - p1) * len / 2, step = Traits<double>::two_pi / (len * p1);
        fill(w, n, sym, [&](double d) {
            if (d <= m0) return 1.0;
            if (2 * d == len) return 0.0;
            return 0.5 + 0.5 * libm::cos((d - m0) * step);
        });
        break;
    }
    default:
        return -1;
    }
    if (norm != win_peak) {
        double mean, rms;
        measure(w, n, &mean, &rms);
        const double m = norm == win_mean ? mean : rms;
        if (m != 0) scale_by(w, n, 1 / m);
    }
    return 0;
}

template int cosine_window<double>(Vec<double>*, int, const double*, int, int, bool, double) noexcept;
template int cosine_window<float>(Vec<float>*, int, const float*, int, int, bool, double) noexcept;
template int shape_window<double>(Vec<double>*, int, Shape, double, double, int) noexcept;
template int shape_window<float>(Vec<float>*, int, Shape, double, double, int) noexcept;
template double alias_mean<double>(const double*, int, int) noexcept;
template double alias_mean<float>(const float*, int, int) noexcept;
template double alias_mean_square<double>(const double*, int, int) noexcept;
template double alias_mean_square<float>(const float*, int, int) noexcept;
template void measure<double>(const double*, int, double*, double*) noexcept;
template void measure<float>(const float*, int, double*, double*) noexcept;

}  // namespace win

bool win::accepts(int kind, int flags) noexcept {
    if (kind < 0 || kind >= kinds || (flags & win_norm_mask) == 3) return false;
    const bool sym = (flags & win_symmetric) != 0, wide = (flags & win_width) != 0;
    switch (catalogue[kind].shape) {
    case Shape::uniform:
    case Shape::cosine: return !sym;
    case Shape::triangle: return !sym && !wide;
    default: return !wide;
    }
}

template <class T> int make_window(Vec<T>* w, int n, int kind, int flags, T width) noexcept {
    if (!w || n < 0 || !win::accepts(kind, flags)) return -1;
    const int norm = flags & win_norm_mask;
    const win::KindEntry& e = win::catalogue[kind];
    const bool wide = (flags & win_width) != 0;
    switch (e.shape) {
    case win::Shape::uniform:
        if (wide) {
            w->points = n;
            w->complex = 0;
            if (alloc<T>(w) != 0) return -1;
            int k = ceil_tolerant(static_cast<double>(width));
            k = k < 1 ? 1 : (k > n ? n : k);
            for (int i = 0; i < n; ++i) w->data[i] = i < k ? T(1) : T(0);
            if (n > 0 && norm == win_mean) win::scale_by(w->data, n, static_cast<double>(n) / k);
            if (n > 0 && norm == win_rms) win::scale_by(w->data, n, std::sqrt(static_cast<double>(n) / k));
            return 0;
        }
        return win::cosine_window<T>(w, n, win::rows<T>.r[kind][norm], e.terms, norm, false, 0);
    case win::Shape::cosine:
        return win::cosine_window<T>(w, n, win::rows<T>.r[kind][norm], e.terms, norm, wide, static_cast<double>(width));
    default:
        return win::shape_window<T>(w, n, e.shape, e.p1, e.p2, flags);
    }
}

template int make_window<double>(Vec<double>*, int, int, int, double) noexcept;
template int make_window<float>(Vec<float>*, int, int, int, float) noexcept;

}  // namespace zf
