#include "elementwise/trig.hpp"

#include <cmath>

#include "core/libm.hpp"
#include "elementwise/unary.hpp"
#include "elementwise/vmath.hpp"

namespace zf {

namespace {
// Sine or cosine in place, over blocks by the vector kernels when there are some.
template <class T> int sine_or_cosine(Vec<T>* v, bool cosine) noexcept {
    const VecMath<T>* k = vecmath<T>();
    if (!k) return real_only<T>(v, [=](T x) { return cosine ? libm::cos(x) : libm::sin(x); });
    if (!readable<T>(v) || v->complex) return -1;
    k->sin_cos(v->data, scalars<T>(*v), cosine);
    return 0;
}
}  // namespace

template <class T> int cos(Vec<T>* v) noexcept { return sine_or_cosine<T>(v, true); }
template <class T> int sin(Vec<T>* v) noexcept { return sine_or_cosine<T>(v, false); }
template <class T> int tan(Vec<T>* v) noexcept { return real_only<T>(v, [](T x) { return libm::tan(x); }); }
template <class T> int atan(Vec<T>* v) noexcept { return real_only<T>(v, [](T x) { return std::atan(x); }); }

template <class T> int acos(Vec<T>* v) noexcept {
    return real_only<T>(v, [](T x) { return (x >= T(-1) && x <= T(1)) ? std::acos(x) : T(0); });
}
template <class T> int asin(Vec<T>* v) noexcept {
    return real_only<T>(v, [](T x) { return (x >= T(-1) && x <= T(1)) ? std::asin(x) : T(0); });
}

template <class T> int cosh(Vec<T>* v) noexcept {
    const T limit = Traits<T>::exp_limit, huge = Traits<T>::huge;
    return real_only<T>(v, [=](T x) { return (x > limit || x < -limit) ? huge : std::cosh(x); });
}
template <class T> int sinh(Vec<T>* v) noexcept {
    const T limit = Traits<T>::exp_limit, huge = Traits<T>::huge;
    return real_only<T>(v, [=](T x) { return x > limit ? huge : (x < -limit ? -huge : std::sinh(x)); });
}
template <class T> int tanh(Vec<T>* v) noexcept { return real_only<T>(v, [](T x) { return std::tanh(x); }); }

template <class T> int sinc(Vec<T>* v) noexcept {
    return real_only<T>(v, [](T x) { return x == T(0) ? T(1) : libm::sin(x) / x; });
}

template int cos<double>(Vec<double>*) noexcept;
template int sin<double>(Vec<double>*) noexcept;
template int tan<double>(Vec<double>*) noexcept;
template int atan<double>(Vec<double>*) noexcept;
template int acos<double>(Vec<double>*) noexcept;
template int asin<double>(Vec<double>*) noexcept;
template int cosh<double>(Vec<double>*) noexcept;
template int sinh<double>(Vec<double>*) noexcept;
template int tanh<double>(Vec<double>*) noexcept;
template int sinc<double>(Vec<double>*) noexcept;

template int cos<float>(Vec<float>*) noexcept;
template int sin<float>(Vec<float>*) noexcept;
template int tan<float>(Vec<float>*) noexcept;
template int atan<float>(Vec<float>*) noexcept;
template int acos<float>(Vec<float>*) noexcept;
template int asin<float>(Vec<float>*) noexcept;
template int cosh<float>(Vec<float>*) noexcept;
template int sinh<float>(Vec<float>*) noexcept;
template int tanh<float>(Vec<float>*) noexcept;
template int sinc<float>(Vec<float>*) noexcept;

}  // namespace zf
