#include "elementwise/bessel.hpp"

#include <cmath>

#include "elementwise/unary.hpp"

#if defined(_WIN32)
// The Windows C runtime spells the Bessel functions with a leading underscore,
// and its header hides them in strict standard mode.
extern "C" {
__declspec(dllimport) double __cdecl _j0(double);
__declspec(dllimport) double __cdecl _j1(double);
__declspec(dllimport) double __cdecl _y0(double);
__declspec(dllimport) double __cdecl _y1(double);
}
#endif

namespace zf {

namespace {

#if defined(_WIN32)
inline double c_j0(double x) noexcept { return ::_j0(x); }
inline double c_j1(double x) noexcept { return ::_j1(x); }
inline double c_y0(double x) noexcept { return ::_y0(x); }
inline double c_y1(double x) noexcept { return ::_y1(x); }
#else
inline double c_j0(double x) noexcept { return ::j0(x); }
inline double c_j1(double x) noexcept { return ::j1(x); }
inline double c_y0(double x) noexcept { return ::y0(x); }
inline double c_y1(double x) noexcept { return ::y1(x); }
#endif

// Coefficients of the two forms of I0, worked out in extended precision at
// compile time and rounded once:
//   series[k] = 1 / (k!)^2                  (the powers of (x/2)^2)
//   asymptotic[k] = ((2k - 1)!!)^2 / k!     (the powers of 1 / (8x))
struct I0Coefficients {
    double series[34];
    double asymptotic[22];
};

constexpr I0Coefficients make_i0_coefficients() {
    I0Coefficients c{};
    long double s = 1.0L;
    for (int k = 0; k < 34; ++k) {
        if (k > 0) s /= static_cast<long double>(k) * k;
        c.series[k] = static_cast<double>(s);
    }
    long double a = 1.0L;
    for (int k = 0; k < 22; ++k) {
        if (k > 0) a *= static_cast<long double>(2 * k - 1) * (2 * k - 1) / k;
        c.asymptotic[k] = static_cast<double>(a);
    }
    return c;
}

constexpr I0Coefficients i0_coefficients = make_i0_coefficients();

template <std::size_t N> inline double horner(const double (&c)[N], double x) noexcept {
    double sum = c[N - 1];
    for (std::size_t k = N - 1; k-- > 0;) sum = sum * x + c[k];
    return sum;
}

// The float twins work in double and store floats.
template <class T, class F> int bessel(Vec<T>* v, F f) noexcept {
    return real_only<T>(v, [f](T x) { return static_cast<T>(f(static_cast<double>(x))); });
}

}  // namespace

double bessel_i0(double x) noexcept {
    const double a = std::fabs(x);
    if (a <= 20.0) {
        const double h = a / 2;
        return horner(i0_coefficients.series, h * h);
    }
    const double p = horner(i0_coefficients.asymptotic, 0.125 / a);
    return std::exp(a) * p / std::sqrt(Traits<double>::two_pi * a);
}

template <class T> int besj0(Vec<T>* v) noexcept { return bessel<T>(v, c_j0); }
template <class T> int besj1(Vec<T>* v) noexcept { return bessel<T>(v, c_j1); }
template <class T> int besy0(Vec<T>* v) noexcept {
    return bessel<T>(v, [](double x) { return x > 0 ? c_y0(x) : 0.0; });
}
template <class T> int besy1(Vec<T>* v) noexcept {
    return bessel<T>(v, [](double x) { return x > 0 ? c_y1(x) : 0.0; });
}

template <class T> int besi0(Vec<T>* v) noexcept {
    const T limit = Traits<T>::exp_limit, huge = Traits<T>::huge;
    return real_only<T>(v, [=](T x) {
        return (x > limit || x < -limit) ? huge : static_cast<T>(bessel_i0(static_cast<double>(x)));
    });
}

template <class T> int unavailable(Vec<T>*) noexcept { return -1; }

template int besj0<double>(Vec<double>*) noexcept;
template int besj1<double>(Vec<double>*) noexcept;
template int besy0<double>(Vec<double>*) noexcept;
template int besy1<double>(Vec<double>*) noexcept;
template int besi0<double>(Vec<double>*) noexcept;
template int unavailable<double>(Vec<double>*) noexcept;

template int besj0<float>(Vec<float>*) noexcept;
template int besj1<float>(Vec<float>*) noexcept;
template int besy0<float>(Vec<float>*) noexcept;
template int besy1<float>(Vec<float>*) noexcept;
template int besi0<float>(Vec<float>*) noexcept;
template int unavailable<float>(Vec<float>*) noexcept;

}  // namespace zf
