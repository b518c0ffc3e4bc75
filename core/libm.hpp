// The library's own sine and cosine. Every trigonometric value the library
// produces (element-wise functions, polar conversions, twiddle and chirp
// tables, windows, generators) goes through these, so that results agree to
// the bit on every platform whatever the C runtime links in.
//
// Arguments are reduced correctly for every finite double: Cody-Waite with
// π/2 in four pieces below 1.6e6, Payne-Hanek with the binary digits of 2/π
// above, so sin(1e22) = -0.8522008497671888 and values near multiples of π keep
// their full relative accuracy. The double results are within 1 ulp of the
// correctly rounded value (0.6 ulp at most as measured, sine, cosine and
// tangent alike); the float ones are the
// double result rounded once. NaN and infinities give NaN; sin(±0) = ±0.
// Only plain double arithmetic is used (no fused multiply-add, no extended
// precision), so the results are the same on every IEEE machine.
#pragma once

#include <cstdint>

namespace zf {
namespace libm {

double sin(double x) noexcept;
double cos(double x) noexcept;
double tan(double x) noexcept;   // the quotient taken in double-double: within 1 ulp
void sincos(double x, double* s, double* c) noexcept;

float sin(float x) noexcept;
float cos(float x) noexcept;
float tan(float x) noexcept;
void sincos(float x, float* s, float* c) noexcept;

// sin and cos of the angle 2π·p/q (0 <= p, 0 < q < 2^52), a fraction of a turn
// as the tables of the transforms and windows use it: the fraction is folded
// into the first octant exactly and the angle formed in double-double, so the
// results are within 0.56 ulp. When s_lo and c_lo are given they receive the
// next 50 bits (s + s_lo, c + c_lo), for tables that combine sine and cosine
// before their one rounding.
void sincos_turn(std::int64_t p, std::int64_t q, double* s, double* c, double* s_lo = nullptr,
                 double* c_lo = nullptr) noexcept;

}  // namespace libm
}  // namespace zf
