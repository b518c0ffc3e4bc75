// Vector math kernels: the hot conversions of the element-wise table over
// whole blocks, in AVX2 and AVX-512 variants (vmath_avx2.cpp, vmath_avx512.cpp)
// behind one run-time choice. Without them the element-wise functions run
// their portable loops over the C math library, unchanged.
//
// Each kernel applies exactly the guards of its element-wise function; the
// values in between are within 1 ulp of the correctly rounded logarithm,
// exponential, arc tangent, hypotenuse, sine or cosine of the kernel's
// argument (double kernels measured at 0.6 ulp at most, 0.75 for subnormal
// exponentials, 0.85 for the hypotenuse, whose bound is 1 ulp without a
// correcting division; float kernels compute in double and round once, 0.51 ulp).
// Decisions: the squared magnitude fed to the complex logarithm is formed in
// the working precision as before (the kernel's accuracy is that of the
// logarithm of that value); the float twins form it in double, which only
// removes a rounding. Lanes whose arguments leave the kernels' range
// (non-finite, or parts beyond 2^±500 for the arc tangent and hypotenuse) are
// handed to the C math library, as the portable loop does; sine and cosine
// hand arguments beyond 1.6e6 to the library's own scalar functions.
#pragma once

#include <cstddef>

namespace zf {

template <class T> struct VecMath {
    // d[i] = d[i] >= tiny ? factor * log(d[i]) : floor; natural or decimal logarithm.
    void (*log)(T* d, std::size_t n, T factor, T floor, bool decimal) noexcept;
    // Pairs in place: parts clamped to +-huge, p = re^2 + im^2; p >= tiny gives
    // (factor * log(p) / 2, atan2(im, re) * angle), else (floor, 0).
    void (*log_pairs)(T* d, std::size_t n, T factor, T floor, T angle, bool decimal) noexcept;
    // d[i] = d[i] > exp_limit ? huge : e^d[i].
    void (*exp)(T* d, std::size_t n) noexcept;
    // Pair k of in becomes out[k]: atan2(im, re), exactly 0 at the origin (in may be out).
    void (*phase)(const T* in, T* out, std::size_t n) noexcept;
    // Pair k of in becomes out[k]: hypot(re, im) (in may be out).
    void (*mag)(const T* in, T* out, std::size_t n) noexcept;
    // d[i] = sin d[i] or cos d[i], as the library's own sine and cosine (core/libm.hpp).
    void (*sin_cos)(T* d, std::size_t n, bool cosine) noexcept;
    // Pairs (m, phi) in place become (m cos phi, m sin phi).
    void (*polar)(T* d, std::size_t n) noexcept;
};

// The kernels for this processor, or null: the portable loops serve.
template <class T> const VecMath<T>* vecmath() noexcept;

// The variants, for the dispatch and for the test that compares them.
extern const VecMath<double> vecmath_avx2_double;
extern const VecMath<float> vecmath_avx2_float;
extern const VecMath<double> vecmath_avx512_double;
extern const VecMath<float> vecmath_avx512_float;

}  // namespace zf
