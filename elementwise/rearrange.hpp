// Rearrangement, editing and calculus over the sample order of one record.
// A complex sample (a pair) always moves as a whole. Every function validates
// its record first and returns 0, or -1 for a bad record or a failed growth.
#pragma once

#include "core/vector.hpp"

namespace zf {

// Order of the samples (rearrange.cpp).
template <class T> int rev(Vec<T>* v) noexcept;                    // reverses the samples
template <class T> int shift(Vec<T>* v, int n) noexcept;           // drops the first n samples
template <class T> int shuffle(Vec<T>* v) noexcept;                // random permutation
template <class T> int sort(Vec<T>* v) noexcept;                   // ascending; complex by |z|^2, re, im
template <class T> int swap_halves(Vec<T>* v) noexcept;            // rotates right by points/2
template <class T> int swap_halves2(Vec<T>* v) noexcept;           // rotates left by points/2

// Length changes with zeros (pad.cpp).
template <class T> int zero(Vec<T>* v) noexcept;                   // every sample 0, shape kept
template <class T> int zpad(Vec<T>* v, int n) noexcept;            // grows to n with zero samples

}  // namespace zf
