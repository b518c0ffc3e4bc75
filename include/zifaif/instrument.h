/**
 * @file
 * zifaif instrument routines on plain arrays: trace helpers (vfpd_* on doubles,
 * vfps_* on floats), complex matrix kernels and network-analyser error
 * correction. Complex points are two doubles, real part first; point ranges
 * are half-open [start, stop). All use the caller-pops (C) convention and are
 * exported under their plain names. Compiles as C99 and as C++.
 */
#ifndef ZIFAIF_INSTRUMENT_H
#define ZIFAIF_INSTRUMENT_H

#include <zifaif/dsp.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------------------ */
/* Trace scaling, conversion and extrema                                     */
/* ------------------------------------------------------------------------ */
/* Arrays of n values, or of complex points stored as (re, im) pairs; ranges
 * are [start, stop) by point index and every output is caller-sized. The float
 * twins compute in double and round each stored value once. These routines
 * trust their arguments, except that a null pointer, a negative start or a
 * reversed range never makes them read or write outside the arrays: they then
 * write nothing and answer as named below. The searches answer start without
 * reading when their range holds at most one value, and -1 (FindMinMax 0) for
 * null data or when the first value they read would lie before data[0] (a
 * negative start, except that FindMin never reads data[start] and the band
 * searches never read a start inside the band). */

/** data[i] *= factor for i in [0, n); nothing for n <= 0. */
ZF_API void ZF_CDECL vfpdbMul(double factor, double *data, int n);
ZF_API void ZF_CDECL vfpsbMul(float factor, float *data, int n);
/** dst[i] = (int)((src[i] - lo) * ((imax - imin) / (hi - lo)) + imin), truncated,
 * unclamped (INT_MIN outside the int range; the float twin rounds the factor to
 * float). Returns the last stored value, or imax - imin when n < 1 or a pointer
 * is null (nothing stored). */
ZF_API int ZF_CDECL vfpdb_ScaleToInt(const double *src, int n, double lo, double hi, int *dst, int imin, int imax);
ZF_API int ZF_CDECL vfpsb_ScaleToInt(const float *src, int n, float lo, float hi, int *dst, int imin, int imax);
/** dst[i] = (src[i] - lo) * ((outHi - outLo) / (hi - lo)) + outLo for i in [0, n); src may be dst. */
ZF_API void ZF_CDECL vfpdb_ScaleToFP(const double *src, int n, double lo, double hi, double *dst, double outLo, double outHi);
ZF_API void ZF_CDECL vfpsb_ScaleToFP(const float *src, int n, float lo, float hi, float *dst, float outLo, float outHi);
/** Index of the first largest value in [start, stop); start when the range holds
 * at most one value. */
ZF_API int ZF_CDECL vfpd_FindMax(const double *data, int start, int stop);
ZF_API int ZF_CDECL vfps_FindMax(const float *data, int start, int stop);
/** As FindMax, skipping [exclFrom, exclTo): a start inside that band moves to
 * exclTo, and -1 comes back when exclTo >= stop. */
ZF_API int ZF_CDECL vfpd_FindMax2(const double *data, int start, int stop, int exclFrom, int exclTo);
ZF_API int ZF_CDECL vfps_FindMax2(const float *data, int start, int stop, int exclFrom, int exclTo);
/** Index of the first smallest value in [start + 1, stop); data[start] is never
 * compared, and start comes back when no later value is below the type's
 * largest finite value. */
ZF_API int ZF_CDECL vfpd_FindMin(const double *data, int start, int stop);
ZF_API int ZF_CDECL vfps_FindMin(const float *data, int start, int stop);
/** As FindMax2 for the smallest value; unlike FindMin it starts from data[start]. */
ZF_API int ZF_CDECL vfpd_FindMin2(const double *data, int start, int stop, int exclFrom, int exclTo);
ZF_API int ZF_CDECL vfps_FindMin2(const float *data, int start, int stop, int exclFrom, int exclTo);
/** Indices of the first largest and first smallest value of [start, stop) (both
 * start when the range holds at most one value). Returns 1, or 0 when
 * start > stop or a pointer is null. */
ZF_API int ZF_CDECL vfpd_FindMinMax(const double *data, int start, int stop, int *imax, int *imin);
ZF_API int ZF_CDECL vfps_FindMinMax(const float *data, int start, int stop, int *imax, int *imin);
/** data[0 .. n-1] linearly spaced from first to last. Returns n when n < 2, else
 * n - 1 (0 for null data). */
ZF_API int ZF_CDECL vfpd_ExpandLinear(double *data, int n, double first, double last);
ZF_API int ZF_CDECL vfps_ExpandLinear(float *data, int n, float first, float last);
/** data[0 .. n-1] logarithmically spaced from first to last (end points exact);
 * nothing unless n > 0, first > 0 and last > 0. */
ZF_API void ZF_CDECL vfpd_ExpandLog(double *data, int n, double first, double last);
ZF_API void ZF_CDECL vfps_ExpandLog(float *data, int n, float first, float last);
/** dst[i] = unwrapped phase of the complex points [start, stop) of src, in
 * degrees when degrees is non-zero, else radians; continues the turns already
 * in dst[0 .. start-1], so a trace may be unwrapped in consecutive chunks.
 * The float twin returns stop. Nothing is written when stop < start. */
ZF_API void ZF_CDECL vfpd_UnwrapPhase(const double *src, int start, int stop, double *dst, int degrees);
ZF_API int ZF_CDECL vfps_UnwrapPhase(const float *src, int start, int stop, float *dst, int degrees);
/** dst[i] for the complex points [start, stop) of src in display format code:
 * 0 log magnitude (dB), 1 linear magnitude, 2 phase (degrees), 3 unwrapped
 * phase (degrees), 4 standing-wave ratio (1e6 above magnitude 0.999998),
 * 5 return loss (dB); other codes write nothing. A zero point gives -inf dB. */
ZF_API void ZF_CDECL vfpd_FormatBuffer(int code, const double *src, double *dst, int start, int stop);
ZF_API void ZF_CDECL vfps_FormatBuffer(int code, const float *src, float *dst, int start, int stop);
/** dst[dstStart + i] = element i read from the bytes at base + offset (only the
 * sum matters), byte order reversed when swap is non-zero, for i in
 * [0, count). Returns 0; nothing is copied for a null address, a null dst or a
 * negative dstStart. */
ZF_API int ZF_CDECL vfpd_ByteCopyToFP(int offset, const void *base, double *dst, int dstStart, int count, int swap);
ZF_API int ZF_CDECL vfps_ByteCopyToFP(int offset, const void *base, float *dst, int dstStart, int count, int swap);
/** Returns nbytes, or -1 when width is 0, nbytes < width, nbytes is negative or
 * not a multiple of width, or buf is null. Only the first element of buf is
 * permuted, once per element: byte j goes to width-1-j and byte width-1-j to
 * byte 0 for j < width/2 (for width 2 a true swap, toggled per element). */
ZF_API int ZF_CDECL vfp_ByteSwap(void *buf, int nbytes, unsigned width);
ZF_API int ZF_CDECL vfp_ByteSwapDummy(void *buf, int nbytes, unsigned width);

/* ------------------------------------------------------------------------ */
/* Trace smoothing                                                           */
/* ------------------------------------------------------------------------ */
/* Moving averages with an odd aperture >= 3 over the points [start, stop) of
 * a trace of total points; dst is indexed like src and must be another array.
 * Return the number of points written (the scan stops before a window that
 * would reach past stop - 1), 0 for start == stop, -1 for a bad range or
 * aperture or a null array. */

/** Real trace, or phase trace in radians (phase non-zero: each window unwrapped
 * locally, the mean wrapped to [-pi, pi]). edge non-zero keeps the full window
 * with indices clamped to [0, stop - 1] instead of shrinking it near the trace
 * ends, and then finishes a range that ends at the trace end. */
ZF_API int ZF_CDECL vfpd_Smooth(const double *src, double *dst, int total, int start, int stop, int aperture, int phase, int edge);
ZF_API int ZF_CDECL vfps_Smooth(const float *src, float *dst, int total, int start, int stop, int aperture, int phase, int edge);
/** Complex trace as mean magnitude and mean atan2(re, im) angle (a lone point
 * comes back with re and im exchanged). */
ZF_API int ZF_CDECL vfpd_SmoothCpx(const double *src, double *dst, int total, int start, int stop, int aperture);
ZF_API int ZF_CDECL vfps_SmoothCpx(const float *src, float *dst, int total, int start, int stop, int aperture);

/* ------------------------------------------------------------------------ */
/* Circle fit                                                                */
/* ------------------------------------------------------------------------ */

/** Centre (centre[0] real, centre[1] imaginary), radius and residual of the
 * circle best fitting the complex points [start, stop) of trace (a resonator's
 * reflection locus, for instance): Taubin's algebraic fit, refined by
 * Levenberg-Marquardt steps on the geometric distances |z - centre| - radius.
 * residual (may be null) receives the root mean square of those distances.
 * The float twin computes in double. Returns the number of points fitted
 * (stop - start), or -1 with nothing written for a null trace, centre or
 * radius, a negative start, fewer than three points, points that all
 * coincide or are not numbers, or points on a straight line (within about
 * 1e-8 of their spread). */
ZF_API int ZF_CDECL vfpd_CircleFit(const double *trace, int start, int stop, double *centre, double *radius, double *residual);
ZF_API int ZF_CDECL vfps_CircleFit(const float *trace, int start, int stop, float *centre, float *radius, float *residual);

/* ------------------------------------------------------------------------ */
/* Complex matrix kernels                                                    */
/* ------------------------------------------------------------------------ */

/** Matrices are row-major arrays without padding; a complex element is two
 * doubles, real part first. Not safe on two threads at once. */

/** Inverts the n x n matrix a in place (complex: 2*n*n doubles; Dbl: n*n
 * doubles): 1 when inverted, 0 when singular (a pivot below 2.220446049250313e-12)
 * and a is left untouched; n = 0 gives 1. */
ZF_API int ZF_CDECL invert(double *a, int n);
ZF_API int ZF_CDECL invertDbl(double *a, int n);
/** c (m x p) = a (m x n) * b (n x p): m*p, the number of elements written, or -1
 * with nothing written when n exceeds m (products with n*n > m*n are refused). */
ZF_API int ZF_CDECL MatrixMult(const double *a, const double *b, double *c, int m, int n, int p);
ZF_API int ZF_CDECL MatrixMultDbl(const double *a, const double *b, double *c, int m, int n, int p);
/** The absolute value of x (sign bit cleared). */
ZF_API double ZF_CDECL ABS(double x);

/* ------------------------------------------------------------------------ */
/* One-port and two-port error correction                                    */
/* ------------------------------------------------------------------------ */

/** Every trace is an array of complex points (two doubles, real part first)
 * indexed by point number; a call works on the points [start, stop) of every
 * array. The corrections return stop - start (zero or negative for an empty
 * range, nothing then written), or 0 when a required array is null or start is
 * negative. Compute1PortTerms and Correct2Port share the matrix kernels and are
 * not safe on two threads at once. */

/** One-port error terms from three reflection standards with actual
 * coefficients g1, g2, g3 (open, short, load for instance), measured as m1, m2,
 * m3: m1 receives the directivity, m2 the source match, m3 the reflection
 * tracking. A singular point gets meaningless terms; nothing is reported. */
ZF_API void ZF_CDECL Compute1PortTerms(double *m1, double *m2, double *m3, const double *g1,
                                       const double *g2, const double *g3, int start, int stop);
/** corrected = d / (reflectionTracking + d * sourceMatch), d = measured - directivity. */
ZF_API int ZF_CDECL Correct1Port(const double *directivity, const double *sourceMatch,
                                 const double *reflectionTracking, const double *measured,
                                 double *corrected, int start, int stop);
/** Enhanced-response correction of S11 and S21; either output may be null.
 * loadMatch is read (and required) only when the low byte of useLoadMatch is
 * nonzero: S11 then loses loadMatch * S21^2. */
ZF_API int ZF_CDECL ApplyEnhancedResponse(const double *directivity, const double *sourceMatch,
                                          const double *reflectionTracking, const double *loadMatch,
                                          const double *transmissionTracking, const double *measuredS11,
                                          const double *measuredS21, double *correctedS11,
                                          double *correctedS21, int start, int stop, int useLoadMatch);
/** Twelve-term two-port correction. Each group of four is in S-parameter order
 * S11, S12, S21, S22: tracking (reflection forward, transmission reverse,
 * transmission forward, reflection reverse), match (source forward, load
 * reverse, load forward, source reverse), offset (directivity forward,
 * isolation reverse, isolation forward, directivity reverse; the isolations may
 * be null for zero), measured, and corrected (each may be null: not written). */
ZF_API int ZF_CDECL Correct2Port(const double *tracking11, const double *tracking12,
                                 const double *tracking21, const double *tracking22,
                                 const double *match11, const double *match12,
                                 const double *match21, const double *match22,
                                 const double *offset11, const double *offset12,
                                 const double *offset21, const double *offset22,
                                 const double *measured11, const double *measured12,
                                 const double *measured21, const double *measured22,
                                 double *corrected11, double *corrected12,
                                 double *corrected21, double *corrected22, int start, int stop);
/** Stores the performance-counter frequency in ticks per second
 * (QueryPerformanceFrequency on Windows; elsewhere the monotonic clock's rate,
 * 1000000000 on Linux), then the middle field of six timing records into t1 ..
 * t6. Nothing in the library fills the records: they read 0. Null pointers are
 * skipped. */
ZF_API void ZF_CDECL GetPerfData(long long *frequency, long long *t1, long long *t2, long long *t3,
                                 long long *t4, long long *t5, long long *t6);
/** As GetPerfData, but copies each whole record (three 64-bit values) into
 * r1 .. r6; returns 6, the number of records. */
ZF_API int ZF_CDECL GetPerfData2(long long *frequency, long long *r1, long long *r2, long long *r3,
                                 long long *r4, long long *r5, long long *r6);

/* ------------------------------------------------------------------------ */
/* Circular interpolation                                                    */
/* ------------------------------------------------------------------------ */

/* Interpolation of complex traces (calibration error terms, for instance) along
 * the circle through three neighbouring points instead of straight lines: the
 * new point lies on that circle at the angle a parabola through the three
 * points' angles against frequency gives, so points on a circle whose angle is
 * at most quadratic in frequency come back to rounding. Three points that are
 * collinear (the sine of the turn at the middle one below 1.5e-8) or
 * coincide fall back to the straight line through the two points around the
 * frequency. Frequencies must be strictly increasing (no NaN). */
/** Resamples the whole trace: the n points (complex, at freq) at the m
 * frequencies newFreq into newPoints (another array), each from the three
 * points centred on the trace point nearest it (the lower on a tie; the first
 * or last three at the ends); two points give the straight line, one point a
 * constant; frequencies at or beyond either end take that end's point, and a
 * NaN frequency gives a NaN point. newFreq may be in any order. Returns m, or
 * -1 with nothing written for a null array, n < 1, m < 0 or bad freq. */
ZF_API int ZF_CDECL CircularInterpolation(const double *freq, const double *points, int n, const double *newFreq, double *newPoints, int m);
/** One point: the value at frequency f (which may lie outside freq[0] ..
 * freq[2]: the arc is extended) from the three points (complex, at freq[0] <
 * freq[1] < freq[2]) into result (one complex point). Returns 1 along the arc,
 * 0 along the straight line (collinear points), -1 with nothing written for a
 * null pointer, bad freq or a NaN f. */
ZF_API int ZF_CDECL InterpolateCircular(const double *freq, const double *points, double f, double *result);

#ifdef __cplusplus
}
#endif

#endif /* ZIFAIF_INSTRUMENT_H */
