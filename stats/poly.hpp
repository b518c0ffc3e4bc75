// Histogram, peak search, polynomials and regression: the members of the
// statistics that reduce a vector to a few values or to a short vector.
// Polynomials hold their coefficients lowest power first.
#pragma once

#include <complex>

#include "core/vector.hpp"

namespace zf {

template <class T> int hist(const Vec<T>* in, Vec<T>* out, T lo, T hi, int bins) noexcept;
template <class T> int peak(const Vec<T>* in, Vec<T>* out) noexcept;

template <class T> int peval(const Vec<T>* p, const Vec<T>* x, Vec<T>* out) noexcept;
template <class T> int psolve(const Vec<T>* p, T y, T x0, Vec<T>* out) noexcept;
template <class T> int pcsolve(const Vec<T>* p, T y_re, T y_im, T x0_re, T x0_im, Vec<T>* out) noexcept;
template <class T> int proots(const Vec<T>* p, Vec<T>* out) noexcept;
template <class T> int pztoc(Vec<T>* v) noexcept;

template <class T> int lin_regres(const Vec<T>* y, Vec<T>* out) noexcept;
template <class T> int lin_regres2(const Vec<T>* x, const Vec<T>* y, Vec<T>* out) noexcept;

namespace poly {

using Cx = std::complex<double>;

// The d roots of a[0] + ... + a[d] z^d, a[d] != 0, into z[0 .. d-1], by
// Aberth-Ehrlich iteration from starting points on the circles of the
// Newton polygon, then one polishing Newton step each (kept when it lowers
// |p|). p is evaluated by compensated Horner, as accurately as in twice the
// precision, and a root is taken once its correction stops shrinking within
// that evaluation's rounding error, or reaches the last bit of z. With `real`
// (real coefficients) a root whose mirror image has no partner nearer than
// itself comes back real. -1 only when scratch cannot be allocated.
int roots(const Cx* a, int d, bool real, Cx* z) noexcept;

}  // namespace poly
}  // namespace zf
