// Instrument trace helpers on plain arrays: scaling, extremum searches, axes,
// display formats, byte conversion and smoothing. Each routine is one template
// over the element type T (double for the vfpd_* entry points, float for
// vfps_*). Unless a comment says otherwise the arithmetic runs in double and a
// float result is rounded once when it is stored, so the twins share every
// constant and differ only in the width of what they read and write.
//
// Point ranges are half-open [start, stop). The routines trust their
// arguments as instrument code expects, with one exception: a null pointer,
// a negative start or a reversed range never makes them read or write outside
// the caller's arrays; they then do nothing and return the "nothing found"
// value named at each routine.
#pragma once

namespace zf {

// Scaling -------------------------------------------------------------------

// data[i] *= factor for i in [0, n).
template <class T> void trace_mul(T factor, T* data, int n) noexcept;

// dst[i] = (src[i] - lo) * scale + imin truncated to a 32-bit integer, with
// scale = (imax - imin) / (hi - lo) held in T and the rest evaluated in double;
// no clamping, out-of-range values become INT_MIN. Returns the last stored
// integer, or imax - imin when nothing is stored (n < 1 or a null array).
template <class T> int scale_to_int(const T* src, int n, T lo, T hi, int* dst, int imin, int imax) noexcept;

// dst[i] = (src[i] - lo) * ((out_hi - out_lo) / (hi - lo)) + out_lo; src may be dst.
template <class T> void scale_to_fp(const T* src, int n, T lo, T hi, T* dst, T out_lo, T out_hi) noexcept;

// Extrema --------------------------------------------------------------------

// Index of the first largest element of [start, stop); start when the range
// holds at most one element; -1 for null data or a negative start.
template <class T> int find_max(const T* data, int start, int stop) noexcept;

// Index of the first element after start that is below the largest finite T
// and smallest among data[start+1 .. stop-1]; data[start] itself is never
// compared, so start comes back when no later element qualifies (start = -1
// thus searches from data[0]). -1 for null data or a start below -1.
template <class T> int find_min(const T* data, int start, int stop) noexcept;

// As find_max / find_min over [start, stop) without [excl_from, excl_to),
// but both start from a real element: start itself when the range is empty
// and start lies outside the band; -1 when start lies in the band and the band
// reaches stop, for null data and when the first element to read (start, or
// excl_to for a start in the band) has a negative index.
template <class T> int find_max2(const T* data, int start, int stop, int excl_from, int excl_to) noexcept;
template <class T> int find_min2(const T* data, int start, int stop, int excl_from, int excl_to) noexcept;

// Both extremes of [start, stop) in one pass (the first of equal extremes).
// Returns 1 (both indices start when the range holds at most one value), or 0
// when start > stop, a pointer is null, or start < 0 with more than one value.
template <class T> int find_min_max(const T* data, int start, int stop, int* imax, int* imin) noexcept;

// Axes -----------------------------------------------------------------------

// Linearly spaced data[0 .. n-1] from first to last. Returns n when n < 2,
// else n - 1; 0 (nothing written) for null data.
template <class T> int expand_linear(T* data, int n, T first, T last) noexcept;

// Logarithmically spaced data[0 .. n-1] from first to last; nothing unless
// n > 0, first > 0, last > 0 and data is not null.
template <class T> void expand_log(T* data, int n, T first, T last) noexcept;

// Display formats ------------------------------------------------------------

// Unwrapped phase of the complex points [start, stop) of src into dst (radians,
// or degrees when degrees is non-zero); continues the turn count of dst[0 ..
// start-1] so a trace can be unwrapped in consecutive chunks. Returns stop;
// nothing is written for a null array, a negative start or stop < start.
template <class T> int unwrap_phase(const T* src, int start, int stop, T* dst, int degrees) noexcept;

// Converts the complex points [start, stop) of src into display values:
// 0 log magnitude, 1 linear magnitude, 2 phase in degrees, 3 unwrapped phase in
// degrees, 4 standing-wave ratio, 5 return loss; any other code writes nothing.
template <class T> void format_buffer(int code, const T* src, T* dst, int start, int stop) noexcept;

// Raw bytes ------------------------------------------------------------------

// Copies count elements of T from the byte address base + offset into
// dst[dst_start ..], reversing the bytes of each when swap is non-zero.
// Returns 0; nothing is copied for count < 1, a null source address, a null
// dst or a negative dst_start.
template <class T> int byte_copy_to_fp(int offset, const void* base, T* dst, int dst_start, int count, int swap) noexcept;

// The byte permutation of the exported byte swap: returns -1 when width is 0,
// nbytes < width, nbytes is not a multiple of width, nbytes is negative or buf
// is null, else nbytes. It permutes only the first element of buf, once per
// element of the buffer.
int byte_swap(void* buf, int nbytes, unsigned width) noexcept;

// Smoothing ------------------------------------------------------------------

// Moving average with an odd aperture >= 3 over the points [start, stop) of
// a trace of total points (plain, or phase in radians with local unwrapping;
// edge non-zero clamps the window at the trace ends instead of shrinking it).
// Returns the number of points written, 0 for start == stop, -1 for a bad
// range or aperture or a null array.
template <class T> int smooth(const T* src, T* dst, int total, int start, int stop, int aperture, int phase, int edge) noexcept;

// Moving average of the complex points [start, stop) as magnitude and angle.
// Results as smooth.
template <class T> int smooth_cpx(const T* src, T* dst, int total, int start, int stop, int aperture) noexcept;

// Circle fit -----------------------------------------------------------------

// Centre (two values), radius and RMS geometric residual (may be null) of the
// circle best fitting the complex points [start, stop): an algebraic fit
// refined by geometric least squares. Returns the number of points fitted, or
// -1 with nothing written for a null array, a bad range, fewer than three
// points, or points on a straight line.
template <class T> int circle_fit(const T* trace, int start, int stop, T* centre, T* radius, T* residual) noexcept;

}  // namespace zf
