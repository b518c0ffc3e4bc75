// Signal generators: sinusoids, complex exponentials, lines and noise written
// into a record whose points the caller has set (the generator sizes the
// storage), and a sinusoid added to existing samples. Frequencies are in cycles
// per unit of delta, slopes per unit of delta. 0, or -1 for a null record, a
// refused kind or a failed allocation.
#pragma once

#include "core/vector.hpp"

namespace zf {

// cos(w n + phase), w = 2 pi delta freq; a complex record gets imaginary parts 0.
template <class T> int cos(Vec<T>* v, T freq, T phase) noexcept;
// cos + j sin of the same angle on a complex record; cos on a real one.
template <class T> int cexp(Vec<T>* v, T freq, T phase) noexcept;
// offset + n (delta slope), by repeated addition of the step.
template <class T> int line(Vec<T>* v, T slope, T offset) noexcept;
// Noise of kind 0 uniform, 1 Gaussian, 2 exponential, 3 Laplace (2 and 3 real only).
template <class T> int rand(Vec<T>* v, int kind) noexcept;
// Adds amp cos to the (real parts of the) samples; with bit 0 of flags amp sin
// to the imaginary parts of a complex record.
template <class T> int addcos(Vec<T>* v, int flags, T amp, T freq, T phase) noexcept;

}  // namespace zf
