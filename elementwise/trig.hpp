// Trigonometric and hyperbolic functions in place, on real vectors only: a
// complex vector is refused with -1 and left unchanged.
#pragma once

#include "core/vector.hpp"

namespace zf {

template <class T> int cos(Vec<T>* v) noexcept;
template <class T> int sin(Vec<T>* v) noexcept;
template <class T> int tan(Vec<T>* v) noexcept;
template <class T> int atan(Vec<T>* v) noexcept;
template <class T> int acos(Vec<T>* v) noexcept;    // 0 outside [-1, 1]
template <class T> int asin(Vec<T>* v) noexcept;    // 0 outside [-1, 1]
template <class T> int cosh(Vec<T>* v) noexcept;    // huge beyond the exponent limit
template <class T> int sinh(Vec<T>* v) noexcept;    // +-huge beyond the exponent limit
template <class T> int tanh(Vec<T>* v) noexcept;
template <class T> int sinc(Vec<T>* v) noexcept;    // sin(x) / x, 1 at 0

}  // namespace zf
