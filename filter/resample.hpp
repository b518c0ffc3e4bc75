// Decimation and resampling: plain decimation with a carried phase, kernel
// tables built from cosine series, table-driven resampling with a carried
// history, and the streaming resampler kept in a coefficient and a state
// record (octave stages of half-band filtering and decimation by two, then one
// fractional stage). Every function validates its records first and returns
// 0, or -1 for a bad argument or a failed allocation.
#pragma once

#include "core/vector.hpp"

#include <cmath>
#include <climits>

namespace zf {

// The handle records of a precision.
template <class T> struct RsmpOf;
template <> struct RsmpOf<double> { using coef = dsph_rsmp_coef;  using state = dsph_rsmp_state; };
template <> struct RsmpOf<float>  { using coef = dspfh_rsmp_coef; using state = dspfh_rsmp_state; };
template <class T> using RsmpCoef = typename RsmpOf<T>::coef;
template <class T> using RsmpState = typename RsmpOf<T>::state;

// The resampler's tolerances: "nearly equal" ratios and the tolerant ceiling
// that takes a value a few rounding steps above an integer as that integer.
template <class T> struct RsmpTol;
template <> struct RsmpTol<double> {
    static constexpr double tiny = 4.450147717014403e-307;
    static constexpr double lo = 0.9999999999999956, hi = 1.0000000000000044;
    static constexpr double ceil_sub = 4.440892098500626e-15, ceil_mul = 0.9999999999999956;
};
template <> struct RsmpTol<float> {
    static constexpr float tiny = 2.350988701644575e-37f;
    static constexpr float lo = 0.9999991655349731f, hi = 1.0000008344650269f;
    static constexpr float ceil_sub = 8.344650268554688e-7f, ceil_mul = 0.9999991655349731f;
};

// Round half up by truncating x + 0.5, clamped to the int range (NaN: INT_MIN).
template <class T> inline int round_half_up(T x) noexcept {
    const double v = static_cast<double>(x) + 0.5;
    if (!(v > -2147483648.0)) return INT_MIN;
    if (v >= 2147483647.0) return INT_MAX;
    return static_cast<int>(v);
}

// Decimation (decimate.cpp).
template <class T> int deci(const Vec<T>* in, Vec<T>* out, int factor, Vec<T>* phase) noexcept;

// Kernel tables (resample_table.cpp): which 0-4 picks a stored series.
template <class T> int rsmp_table(Vec<T>* kernel, int which) noexcept;
template <class T> int rsmp_cos(Vec<T>* kernel, const Vec<T>* series) noexcept;
template <class T> int rsmp_pcos(Vec<T>* kernel, const Vec<T>* series) noexcept;

// Table-driven resampling (resample.cpp).
template <class T> int rsmp(const Vec<T>* in, Vec<T>* out, int mode, const Vec<T>* kernel, T ratio, Vec<T>* history) noexcept;
template <class T> int rsmp2(const Vec<T>* in, Vec<T>* out, int mode, int which, T ratio, Vec<T>* history) noexcept;

// The streaming resampler (resampler.cpp).
template <class T> int rsmp_coef_init(RsmpCoef<T>* c) noexcept;
template <class T> int rsmp_coef_destroy(RsmpCoef<T>* c) noexcept;
template <class T> int rsmp_coef_alloc(RsmpCoef<T>* c, void* reserved) noexcept;
template <class T> int rsmp_coef_setup(RsmpCoef<T>* c, T ratio, int force, void* reserved) noexcept;
template <class T> int rsmp_state_init(RsmpState<T>* s) noexcept;
template <class T> int rsmp_state_destroy(RsmpState<T>* s) noexcept;
template <class T> int rsmp_state_alloc(const RsmpCoef<T>* c, RsmpState<T>* s, int complex) noexcept;
template <class T> int rsmp_state_reset(const RsmpCoef<T>* c, RsmpState<T>* s) noexcept;
template <class T> int hrsmp(const Vec<T>* in, Vec<T>* out, Vec<T>* scratch, const RsmpCoef<T>* c, RsmpState<T>* s) noexcept;

}  // namespace zf
