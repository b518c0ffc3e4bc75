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

// Placement and scaling flags of zpad2 and unzpad.
enum PadFlags : int {
    pad_scale_mask = 0x3,      // 0: by n/m, 1: by sqrt(n/m), 2: none, 3: invalid
    pad_scale_none = 0x2,
    pad_scale_sqrt = 0x1,
    pad_place_mask = 0x700,
    pad_place_front = 0x000,   // old samples first, zeros after
    pad_place_centre = 0x100,  // old samples in the middle
    pad_place_end = 0x200,     // zeros first, old samples last
    pad_place_split = 0x300,   // a spectrum in transform order: zeros in the middle
};
// Grows to n samples, the old m samples placed and rescaled by the flags.
// Invalid flags return -1 after the growth (the new length stays, zeros after
// the old samples).
template <class T> int zpad2(Vec<T>* v, int n, int flags) noexcept;
// The inverse of zpad2: shrinks to n samples taken from the same place with
// the inverse rescaling. Invalid flags return -1 with the record unchanged.
template <class T> int unzpad(Vec<T>* v, int n, int flags) noexcept;

// Calculus (calculus.cpp).
template <class T> int differ(Vec<T>* v) noexcept;                 // first difference / delta
template <class T> int pdiffer(Vec<T>* v) noexcept;                // derivative of a polynomial
template <class T> int integ(Vec<T>* v) noexcept;                  // running sum times delta
template <class T> int edge(Vec<T>* v, int mode, T level) noexcept;  // times of level crossings
template <class T> int unwrap(Vec<T>* v) noexcept;                 // phase against the previous output
template <class T> int unwrap_wnd(Vec<T>* v, int w) noexcept;      // phase against the mean of w outputs

}  // namespace zf
