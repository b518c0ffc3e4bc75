// Descriptive statistics: each operation reduces one vector to one value and
// writes it into an output record of one point that it sizes itself. The
// output may be the input record itself: every result is formed before the
// output is touched.
#pragma once

#include "core/vector.hpp"

namespace zf {

// Output complex as the input: sum, mean, extrema, median, geometric and harmonic mean.
template <class T> int sum(const Vec<T>* in, Vec<T>* out) noexcept;
template <class T> int mean(const Vec<T>* in, Vec<T>* out) noexcept;
template <class T> int min(const Vec<T>* in, Vec<T>* out) noexcept;
template <class T> int max(const Vec<T>* in, Vec<T>* out) noexcept;
template <class T> int median(const Vec<T>* in, Vec<T>* out) noexcept;
template <class T> int gmean(const Vec<T>* in, Vec<T>* out) noexcept;
template <class T> int hmean(const Vec<T>* in, Vec<T>* out) noexcept;

// Real output: power, spread and shape.
template <class T> int magsq_sum(const Vec<T>* in, Vec<T>* out) noexcept;
template <class T> int rms(const Vec<T>* in, Vec<T>* out) noexcept;
template <class T> int pop_var(const Vec<T>* in, Vec<T>* out) noexcept;
template <class T> int samp_var(const Vec<T>* in, Vec<T>* out) noexcept;
template <class T> int pop_stddev(const Vec<T>* in, Vec<T>* out) noexcept;
template <class T> int samp_stddev(const Vec<T>* in, Vec<T>* out) noexcept;
template <class T> int skew(const Vec<T>* in, Vec<T>* out) noexcept;     // real input only
template <class T> int excess(const Vec<T>* in, Vec<T>* out) noexcept;   // real input only

}  // namespace zf
