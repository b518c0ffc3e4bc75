// In-place arithmetic on one vector: scaling and offsets, complex arithmetic by
// a constant, powers, roots and clipping. Each keeps delta and type; results
// beyond the precision's range saturate at Traits<T>::huge.
#pragma once

#include "core/vector.hpp"

namespace zf {

template <class T> int abs(Vec<T>* v) noexcept;                   // |x|; complex refused
template <class T> int neg(Vec<T>* v) noexcept;                   // -x, both parts
template <class T> int scale(Vec<T>* v, T factor) noexcept;       // x * factor, both parts
template <class T> int cscale(Vec<T>* v, T a, T b) noexcept;      // x * (a + ib); real becomes complex
template <class T> int offset(Vec<T>* v, T off) noexcept;         // x + off, real part only
template <class T> int recip(Vec<T>* v) noexcept;                 // 1 / x, huge for 0
template <class T> int square(Vec<T>* v) noexcept;                // x^2, parts clamped to +-huge
template <class T> int sqrt(Vec<T>* v) noexcept;                  // principal root; real x < 0 gives 0
template <class T> int conj(Vec<T>* v) noexcept;                  // (re, -im); real unchanged
template <class T> int timesi(Vec<T>* v) noexcept;                // x * i; real becomes complex
template <class T> int limit(Vec<T>* v, int reserved, T a, T b, int* clipped) noexcept;
template <class T> int sqrt(const Vec<T>* src, Vec<T>* dst) noexcept;  // sqrt into dst

}  // namespace zf
