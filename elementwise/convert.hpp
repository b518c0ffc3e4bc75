// Conversions between real and complex form, and between rectangular and
// polar form. Results that are real by nature (mag, magsq, phase, real, imag)
// make a complex vector real, packed into its first points scalars with the
// capacity kept; results that are complex by nature (rtoc, rtop) make a real
// vector complex by spreading it in place.
#pragma once

#include "core/vector.hpp"

namespace zf {

template <class T> int rtoc(Vec<T>* v) noexcept;    // (x, 0); complex unchanged
template <class T> int rtop(Vec<T>* v) noexcept;    // (magnitude, phase)
template <class T> int ptor(Vec<T>* v) noexcept;    // (m, phi) -> (m cos phi, m sin phi); real unchanged
template <class T> int real(Vec<T>* v) noexcept;    // re
template <class T> int imag(Vec<T>* v) noexcept;    // im; a real vector becomes zeros
template <class T> int mag(Vec<T>* v) noexcept;     // |x|, hypot(re, im)
template <class T> int magsq(Vec<T>* v) noexcept;   // x^2, re^2 + im^2, huge beyond +-huge
template <class T> int phase(Vec<T>* v) noexcept;   // 0 or pi for reals, atan2(im, re)
template <class T> int mag(const Vec<T>* src, Vec<T>* dst) noexcept;    // mag into dst
template <class T> int magsq(const Vec<T>* src, Vec<T>* dst) noexcept;  // magsq into dst

}  // namespace zf
