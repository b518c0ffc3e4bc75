// Binary operations: two input records combined sample by sample into an
// output record, which may be the same record as either input. Every function
// returns 0, or -1 for a bad record, a shape it refuses or a failed allocation.
#pragma once

#include "core/vector.hpp"

namespace zf {

// Sample by sample under the binary shape rule: equal lengths (add and sub
// zero-pad the shorter operand instead), the mean spacing, complex when either
// input is; a real operand counts as imaginary part 0.
template <class T> int add(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept;
template <class T> int sub(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept;
template <class T> int mul(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept;
template <class T> int div(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept;
template <class T> int conj_mul(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept;
template <class T> int avg_add(const Vec<T>* a, const Vec<T>* b, Vec<T>* out, T w) noexcept;
template <class T> int min(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept;
template <class T> int max(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept;

// Interleaving a0, b0, a1, b1, ... at twice the rate.
template <class T> int inter(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept;
// One complex record from two real ones.
template <class T> int ritoc(const Vec<T>* re, const Vec<T>* im, Vec<T>* out) noexcept;
// Polynomial product (full linear convolution) of two coefficient records.
template <class T> int pmul(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept;
// out becomes one sample holding sum a_k * b_k (no conjugation).
template <class T> int dot(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept;

}  // namespace zf
