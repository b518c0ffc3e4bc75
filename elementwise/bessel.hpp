// Special functions in place on real vectors: Bessel functions of the first
// and second kind (orders 0 and 1), the modified Bessel function I0, and the
// reserved entry points that are declared but not provided.
#pragma once

#include "core/vector.hpp"

namespace zf {

// I0(x), the modified Bessel function of the first kind of order 0: the power
// series (34 terms) up to |x| = 20, the asymptotic expansion (22 terms) above.
// No guard: the callers decide what happens for large arguments.
double bessel_i0(double x) noexcept;

template <class T> int besj0(Vec<T>* v) noexcept;
template <class T> int besj1(Vec<T>* v) noexcept;
template <class T> int besy0(Vec<T>* v) noexcept;    // 0 for x <= 0
template <class T> int besy1(Vec<T>* v) noexcept;    // 0 for x <= 0
template <class T> int besi0(Vec<T>* v) noexcept;    // huge beyond the exponent limit
// The reserved entry points (error function, its complement, gamma and
// log-gamma): always -1, nothing changed.
template <class T> int unavailable(Vec<T>* v) noexcept;

}  // namespace zf
