#include "elementwise/logexp.hpp"

#include <cmath>

#include "core/libm.hpp"
#include "elementwise/unary.hpp"
#include "elementwise/vmath.hpp"

namespace zf {

namespace {

// The two logarithms share one plan; they differ in the function and in the
// scale of the angle that forms the imaginary part of a complex logarithm.
struct Natural {
    static constexpr bool decimal = false;
    template <class T> static T of(T x) noexcept { return std::log(x); }
    template <class T> static T angle_scale() noexcept { return T(1); }
};
struct Decimal {
    static constexpr bool decimal = true;
    template <class T> static T of(T x) noexcept { return std::log10(x); }
    template <class T> static T angle_scale() noexcept { return Traits<T>::log10_e; }
};

// factor * log(x) for x >= tiny, else factor * log(tiny). A complex pair has
// its parts clamped to +-huge so that the squares cannot overflow, then
// becomes factor * (log(re^2 + im^2) / 2, angle * angle_scale), or
// (factor * log(tiny), 0) when re^2 + im^2 < tiny.
template <class Log, class T> int logarithm(Vec<T>* v, T factor) noexcept {
    if (!readable<T>(v)) return -1;
    const T tiny = Traits<T>::tiny;
    const T floor = factor * Log::template of<T>(tiny);
    T* d = v->data;
    const VecMath<T>* kernels = vecmath<T>();
    if (v->complex) {
        const T angle = factor * Log::template angle_scale<T>();
        if (kernels) {
            kernels->log_pairs(d, static_cast<std::size_t>(v->points), factor, floor, angle, Log::decimal);
            return 0;
        }
        map_pairs(d, d, static_cast<std::size_t>(v->points), [=](T& re, T& im) {
            const T a = clamp_huge(re), b = clamp_huge(im);
            const T p = a * a + b * b;
            if (p >= tiny) {
                re = factor * Log::template of<T>(p) * T(0.5);
                im = std::atan2(b, a) * angle;
            } else {
                re = floor;
                im = T(0);
            }
        });
    } else if (kernels) {
        kernels->log(d, scalars<T>(*v), factor, floor, Log::decimal);
    } else {
        map_scalars(d, d, scalars<T>(*v), [=](T x) { return x >= tiny ? factor * Log::template of<T>(x) : floor; });
    }
    return 0;
}

// e^x, or huge above the exponent limit.
template <class T> inline T guarded_exp(T x) noexcept { return x > Traits<T>::exp_limit ? Traits<T>::huge : std::exp(x); }

}  // namespace

template <class T> int exp(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    T* d = v->data;
    if (v->complex) {
        map_pairs(d, d, static_cast<std::size_t>(v->points), [](T& re, T& im) {
            const T m = guarded_exp(re);
            T s, c;
            libm::sincos(im, &s, &c);
            re = m * c;
            im = m * s;
        });
    } else if (const VecMath<T>* kernels = vecmath<T>()) {
        kernels->exp(d, scalars<T>(*v));
    } else {
        map_scalars(d, d, scalars<T>(*v), [](T x) { return guarded_exp(x); });
    }
    return 0;
}

// Real input: a value below -huge ends the conversion there, leaving that
// sample and all later ones as they were; this is long-standing behaviour that
// callers may rely on. A complex pair with such a real part gets the magnitude
// -huge instead.
template <class T> int exp10(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const T huge = Traits<T>::huge, limit = Traits<T>::exp10_limit, ln10 = Traits<T>::ln_10;
    T* d = v->data;
    if (v->complex) {
        map_pairs(d, d, static_cast<std::size_t>(v->points), [=](T& re, T& im) {
            const T m = re > limit ? huge : (re < -huge ? -huge : std::exp(re * ln10));
            T s, c;
            libm::sincos(im * ln10, &s, &c);
            re = m * c;
            im = m * s;
        });
    } else {
        const std::size_t n = scalars<T>(*v);
        for (std::size_t i = 0; i < n; ++i) {
            const T x = d[i];
            if (x < -huge) break;
            d[i] = x > limit ? huge : std::exp(x * ln10);
        }
    }
    return 0;
}

template <class T> int log(Vec<T>* v) noexcept { return logarithm<Natural, T>(v, T(1)); }
template <class T> int log10(Vec<T>* v) noexcept { return logarithm<Decimal, T>(v, T(1)); }
template <class T> int db(Vec<T>* v, T factor) noexcept { return logarithm<Decimal, T>(v, factor); }

template int exp<double>(Vec<double>*) noexcept;
template int exp10<double>(Vec<double>*) noexcept;
template int log<double>(Vec<double>*) noexcept;
template int log10<double>(Vec<double>*) noexcept;
template int db<double>(Vec<double>*, double) noexcept;

template int exp<float>(Vec<float>*) noexcept;
template int exp10<float>(Vec<float>*) noexcept;
template int log<float>(Vec<float>*) noexcept;
template int log10<float>(Vec<float>*) noexcept;
template int db<float>(Vec<float>*, float) noexcept;

}  // namespace zf
