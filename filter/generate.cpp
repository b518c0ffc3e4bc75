#include "filter/generate.hpp"

#include <algorithm>
#include <cmath>

#include "core/libm.hpp"
#include "core/random.hpp"
#include "elementwise/convert.hpp"

namespace zf {

namespace {

// The recurrence runs at most this many rotations from an exact seed.
constexpr int kSeedBlock = 256;

// Calls put(n, cos, sin) for the angle w n + phase, n = 0 .. count-1. Each
// block of kSeedBlock samples starts from the library's cosine and sine of its
// first angle, formed in double (so the single twin's seeds are exact to its
// own precision), and is advanced by rotation through w.
template <class T, class Put> void rotate(int count, double w, double phase, Put put) noexcept {
    double cw, sw;
    libm::sincos(w, &sw, &cw);
    const T c = static_cast<T>(cw), s = static_cast<T>(sw);
    for (int m = 0; m < count; m += kSeedBlock) {
        double ca, sa;
        libm::sincos(m * w + phase, &sa, &ca);
        T x = static_cast<T>(ca), y = static_cast<T>(sa);
        const int end = std::min(count, m + kSeedBlock);
        for (int n = m; n < end; ++n) {
            put(n, x, y);
            const T xn = x * c - y * s;
            y = x * s + y * c;
            x = xn;
        }
    }
}

template <class T> inline double omega(const Vec<T>& v, T freq) noexcept {
    return 6.283185307179586 * static_cast<double>(v.delta) * static_cast<double>(freq);
}

// The second value of the last polar Gaussian pair, per precision.
template <class T> struct GaussCache {
    static bool full;
    static double value;
};
template <class T> bool GaussCache<T>::full = false;
template <class T> double GaussCache<T>::value = 0.0;

// Gaussian of mean 0 and variance 1 by the polar method; every second call
// returns the value kept from the call before.
template <class T> double gauss() noexcept {
    if (GaussCache<T>::full) {
        GaussCache<T>::full = false;
        return GaussCache<T>::value;
    }
    double p, q, s;
    do {
        p = 2.0 * random_uniform() - 1.0;
        q = 2.0 * random_uniform() - 1.0;
        s = p * p + q * q;
    } while (s <= 0.0 || s >= 1.0);
    const double f = std::sqrt(-2.0 * std::log(s) / s);
    GaussCache<T>::value = p * f;
    GaussCache<T>::full = true;
    return q * f;
}

template <class T> inline double exponential() noexcept {
    return -std::log(std::max(random_uniform(), static_cast<double>(Traits<T>::tiny)));
}

// Noise of the given kind into the real samples d[0 .. n-1].
template <class T> void real_noise(T* d, int n, int kind) noexcept {
    for (int k = 0; k < n; ++k) {
        double x;
        switch (kind) {
            case 0: x = 2.0 * random_uniform() - 1.0; break;
            case 1: x = gauss<T>(); break;
            case 2: x = exponential<T>(); break;
            default: x = exponential<T>(); if (random31() & 0x4000) x = -x; break;
        }
        d[k] = static_cast<T>(x);
    }
}

// Uniform in the unit disc (kind 0) or circular Gaussian (kind 1) pairs.
template <class T> void complex_noise(T* d, int n, int kind) noexcept {
    for (int k = 0; k < n; ++k) {
        double x, y;
        if (kind == 0) {
            do {
                x = 2.0 * random_uniform() - 1.0;
                y = 2.0 * random_uniform() - 1.0;
            } while (x * x + y * y >= 1.0);
        } else {
            const double u = std::max(random_uniform(), static_cast<double>(Traits<T>::tiny));
            const double r = std::sqrt(-2.0 * std::log(u));
            const double t = 6.283185307179586 * random_uniform();
            double c, s;
            libm::sincos(t, &s, &c);
            x = r * c;
            y = r * s;
        }
        d[2 * k] = static_cast<T>(x);
        d[2 * k + 1] = static_cast<T>(y);
    }
}

}  // namespace

template <class T> int cos(Vec<T>* v, T freq, T phase) noexcept {
    if (!v) return -1;
    const bool complex = v->complex != 0;
    v->complex = 0;
    if (v->points > 0) {
        if (alloc<T>(v) != 0) return -1;
        T* d = v->data;
        rotate<T>(v->points, omega<T>(*v, freq), phase, [d](int n, T x, T) { d[n] = x; });
    }
    return complex ? rtoc<T>(v) : 0;
}

template <class T> int cexp(Vec<T>* v, T freq, T phase) noexcept {
    if (!v) return -1;
    if (!v->complex) return zf::cos<T>(v, freq, phase);
    if (v->points < 1) return 0;
    if (alloc<T>(v) != 0) return -1;
    T* d = v->data;
    rotate<T>(v->points, omega<T>(*v, freq), phase, [d](int n, T x, T y) {
        d[2 * n] = x;
        d[2 * n + 1] = y;
    });
    return 0;
}

template <class T> int line(Vec<T>* v, T slope, T offset) noexcept {
    if (!v) return -1;
    if (v->points < 1) return 0;
    if (alloc<T>(v) != 0) return -1;
    const T step = v->delta * slope;
    const int w = width<T>(*v);
    T* d = v->data;
    T x = offset;
    for (int n = 0; n < v->points; ++n, x += step) {
        d[w * n] = x;
        if (w == 2) d[2 * n + 1] = T(0);
    }
    return 0;
}

template <class T> int rand(Vec<T>* v, int kind) noexcept {
    if (!v || kind < 0 || kind > 3) return -1;
    if (v->points > 0 && alloc<T>(v) != 0) return -1;
    if (v->complex && kind > 1) return -1;
    if (v->points < 1) return 0;
    if (v->complex)
        complex_noise<T>(v->data, v->points, kind);
    else
        real_noise<T>(v->data, v->points, kind);
    return 0;
}

template <class T> int addcos(Vec<T>* v, int flags, T amp, T freq, T phase) noexcept {
    if (!readable<T>(v)) return -1;
    if (v->points < 1) return 0;
    T* d = v->data;
    const double w = omega<T>(*v, freq);
    if (!v->complex)
        rotate<T>(v->points, w, phase, [d, amp](int n, T x, T) { d[n] += amp * x; });
    else if (flags & 1)
        rotate<T>(v->points, w, phase, [d, amp](int n, T x, T y) {
            d[2 * n] += amp * x;
            d[2 * n + 1] += amp * y;
        });
    else
        rotate<T>(v->points, w, phase, [d, amp](int n, T x, T) { d[2 * n] += amp * x; });
    return 0;
}

template int cos<double>(Vec<double>*, double, double) noexcept;
template int cexp<double>(Vec<double>*, double, double) noexcept;
template int line<double>(Vec<double>*, double, double) noexcept;
template int rand<double>(Vec<double>*, int) noexcept;
template int addcos<double>(Vec<double>*, int, double, double, double) noexcept;

template int cos<float>(Vec<float>*, float, float) noexcept;
template int cexp<float>(Vec<float>*, float, float) noexcept;
template int line<float>(Vec<float>*, float, float) noexcept;
template int rand<float>(Vec<float>*, int) noexcept;
template int addcos<float>(Vec<float>*, int, float, float, float) noexcept;

}  // namespace zf
