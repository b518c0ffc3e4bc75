// Exponentials, logarithms and decibels in place. Overflow saturates at
// Traits<T>::huge; arguments below the smallest normal number (Traits<T>::tiny)
// give the logarithm of tiny instead of -infinity or NaN.
#pragma once

#include "core/vector.hpp"

namespace zf {

template <class T> int exp(Vec<T>* v) noexcept;             // e^x
template <class T> int exp10(Vec<T>* v) noexcept;           // 10^x as e^(x ln 10)
template <class T> int log(Vec<T>* v) noexcept;             // natural logarithm
template <class T> int log10(Vec<T>* v) noexcept;           // base-10 logarithm
template <class T> int db(Vec<T>* v, T factor) noexcept;    // factor * log10(x)

}  // namespace zf
