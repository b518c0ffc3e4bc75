// Interpolation and splines: evaluation of a sampled function given by
// strictly increasing knots at new abscissae, cubic-spline second
// derivatives, and rate doubling by zero insertion.
#pragma once

#include "core/vector.hpp"

namespace zf {

// Mode bits of interp's flags and the clamping bit.
constexpr int kInterpModeMask = 7;
constexpr int kInterpHold = 0, kInterpLinear = 1, kInterpQuadratic = 3, kInterpCubic = 5;
constexpr int kInterpClamp = 16;

// out[k] = f(xi[k]) by the mode in flags; y2 (may be null) holds the spline's
// second derivatives for the cubic mode.
template <class T>
int interp(const Vec<T>* x, const Vec<T>* y, const Vec<T>* y2, const Vec<T>* xi, Vec<T>* out, int flags) noexcept;
// interp in the cubic mode.
template <class T>
int cspline(const Vec<T>* x, const Vec<T>* y, const Vec<T>* y2, const Vec<T>* xi, Vec<T>* out) noexcept;
// Second derivatives of the interpolating cubic spline at the knots under the
// end conditions cond0 / condn (0 not-a-knot, 1 slope, 2 curvature, 3 natural).
template <class T>
int cspline_2d(const Vec<T>* x, const Vec<T>* y, Vec<T>* y2, T d0, T dn, int cond0, int condn) noexcept;
// Rate doubled in place by zero insertion.
template <class T> int zinter(Vec<T>* v) noexcept;

}  // namespace zf
