#include "elementwise/arith.hpp"

#include <cmath>

#include "core/libm.hpp"
#include "elementwise/unary.hpp"

namespace zf {

namespace {

template <class T> inline T real_sqrt(T x) noexcept { return x >= T(0) ? std::sqrt(x) : T(0); }

// Principal square root of (re, im): r = sqrt(|z|) with |z| saturated at huge,
// angle halved.
template <class T> inline void complex_sqrt(T& re, T& im) noexcept {
    const T m = (beyond(re) || beyond(im)) ? Traits<T>::huge : std::sqrt(re * re + im * im);
    const T r = std::sqrt(m);
    if (r <= T(0)) {
        re = T(0);
        im = T(0);
        return;
    }
    const T theta = std::atan2(im, re) / T(2);
    T s, c;
    libm::sincos(theta, &s, &c);
    re = r * c;
    im = r * s;
}

}  // namespace

template <class T> int abs(Vec<T>* v) noexcept {
    return real_only<T>(v, [](T x) { return std::fabs(x); });
}

template <class T> int neg(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    map_scalars(v->data, v->data, scalars<T>(*v), [](T x) { return -x; });
    return 0;
}

template <class T> int scale(Vec<T>* v, T factor) noexcept {
    if (!readable<T>(v)) return -1;
    map_scalars(v->data, v->data, scalars<T>(*v), [factor](T x) { return x * factor; });
    return 0;
}

template <class T> int cscale(Vec<T>* v, T a, T b) noexcept {
    return to_complex<T>(
        v, [a, b](T x, T& re, T& im) { re = x * a; im = x * b; },
        [a, b](T& re, T& im) {
            const T r = re * a - im * b;
            im = im * a + re * b;
            re = r;
        });
}

template <class T> int offset(Vec<T>* v, T off) noexcept {
    if (!readable<T>(v)) return -1;
    T* d = v->data;
    if (v->complex) {
        const std::size_t n = static_cast<std::size_t>(v->points);
        for (std::size_t k = 0; k < n; ++k) d[2 * k] += off;
    } else {
        map_scalars(d, d, scalars<T>(*v), [off](T x) { return x + off; });
    }
    return 0;
}

template <class T> int recip(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const T huge = Traits<T>::huge;
    T* d = v->data;
    if (v->complex) {
        map_pairs(d, d, static_cast<std::size_t>(v->points), [huge](T& re, T& im) {
            const T m = saturated_norm(re, im);
            const T s = m <= T(0) ? huge : T(1) / m;
            re = re * s;
            im = -im * s;
        });
    } else {
        map_scalars(d, d, scalars<T>(*v), [huge](T x) { return x == T(0) ? huge : T(1) / x; });
    }
    return 0;
}

template <class T> int square(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    T* d = v->data;
    if (v->complex) {
        map_pairs(d, d, static_cast<std::size_t>(v->points), [](T& re, T& im) {
            const T a = clamp_huge(re), b = clamp_huge(im);
            re = a * a - b * b;
            im = T(2) * a * b;
        });
    } else {
        map_scalars(d, d, scalars<T>(*v), [](T x) { return saturated_square(x); });
    }
    return 0;
}

template <class T> int sqrt(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    T* d = v->data;
    if (v->complex) map_pairs(d, d, static_cast<std::size_t>(v->points), [](T& re, T& im) { complex_sqrt(re, im); });
    else map_scalars(d, d, scalars<T>(*v), [](T x) { return real_sqrt(x); });
    return 0;
}

template <class T> int sqrt(const Vec<T>* src, Vec<T>* dst) noexcept {
    const T* in = nullptr;
    if (!readable<T>(src)) return -1;
    const bool complex = src->complex != 0;
    if (size_output<T>(src, dst, complex ? 1 : 0, &in) != 0) return -1;
    if (complex) map_pairs(in, dst->data, static_cast<std::size_t>(dst->points), [](T& re, T& im) { complex_sqrt(re, im); });
    else map_scalars(in, dst->data, scalars<T>(*dst), [](T x) { return real_sqrt(x); });
    return 0;
}

template <class T> int conj(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    if (v->complex) {
        T* d = v->data;
        const std::size_t n = static_cast<std::size_t>(v->points);
        for (std::size_t k = 0; k < n; ++k) d[2 * k + 1] = -d[2 * k + 1];
    }
    return 0;
}

template <class T> int timesi(Vec<T>* v) noexcept {
    return to_complex<T>(
        v, [](T x, T& re, T& im) { re = T(0); im = x; },
        [](T& re, T& im) {
            const T r = -im;
            im = re;
            re = r;
        });
}

template <class T> int limit(Vec<T>* v, int reserved, T a, T b, int* clipped) noexcept {
    if (!readable<T>(v)) return -1;
    const T lo = a <= b ? a : b, hi = a <= b ? b : a;
    T* d = v->data;
    const std::size_t n = scalars<T>(*v);
    int changed = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const T x = d[i];
        const bool above = x > hi, below = x < lo;  // NaN is neither
        changed |= static_cast<int>(above) | static_cast<int>(below);
        d[i] = above ? hi : (below ? lo : x);
    }
    if (clipped) *clipped = changed;
    return 0;
}

template int abs<double>(Vec<double>*) noexcept;
template int neg<double>(Vec<double>*) noexcept;
template int scale<double>(Vec<double>*, double) noexcept;
template int cscale<double>(Vec<double>*, double, double) noexcept;
template int offset<double>(Vec<double>*, double) noexcept;
template int recip<double>(Vec<double>*) noexcept;
template int square<double>(Vec<double>*) noexcept;
template int sqrt<double>(Vec<double>*) noexcept;
template int sqrt<double>(const Vec<double>*, Vec<double>*) noexcept;
template int conj<double>(Vec<double>*) noexcept;
template int timesi<double>(Vec<double>*) noexcept;
template int limit<double>(Vec<double>*, int, double, double, int*) noexcept;

template int abs<float>(Vec<float>*) noexcept;
template int neg<float>(Vec<float>*) noexcept;
template int scale<float>(Vec<float>*, float) noexcept;
template int cscale<float>(Vec<float>*, float, float) noexcept;
template int offset<float>(Vec<float>*, float) noexcept;
template int recip<float>(Vec<float>*) noexcept;
template int square<float>(Vec<float>*) noexcept;
template int sqrt<float>(Vec<float>*) noexcept;
template int sqrt<float>(const Vec<float>*, Vec<float>*) noexcept;
template int conj<float>(Vec<float>*) noexcept;
template int timesi<float>(Vec<float>*) noexcept;
template int limit<float>(Vec<float>*, int, float, float, int*) noexcept;

}  // namespace zf
