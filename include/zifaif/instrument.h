/*
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

/* ------------------------------------------------------------------------ */
/* Trace smoothing                                                           */
/* ------------------------------------------------------------------------ */

/* ------------------------------------------------------------------------ */
/* Complex matrix kernels                                                    */
/* ------------------------------------------------------------------------ */

/* Matrices are row-major arrays without padding; a complex element is two
 * doubles, real part first. Not safe on two threads at once. */

/* Inverts the n x n matrix a in place (complex: 2*n*n doubles; Dbl: n*n
 * doubles): 1 when inverted, 0 when singular (a pivot below 2.220446049250313e-12)
 * and a is left untouched; n = 0 gives 1. */
ZF_API int ZF_CDECL invert(double *a, int n);
ZF_API int ZF_CDECL invertDbl(double *a, int n);
/* c (m x p) = a (m x n) * b (n x p): m*p, the number of elements written, or -1
 * with nothing written when n exceeds m (products with n*n > m*n are refused). */
ZF_API int ZF_CDECL MatrixMult(const double *a, const double *b, double *c, int m, int n, int p);
ZF_API int ZF_CDECL MatrixMultDbl(const double *a, const double *b, double *c, int m, int n, int p);
/* The absolute value of x (sign bit cleared). */
ZF_API double ZF_CDECL ABS(double x);

/* ------------------------------------------------------------------------ */
/* One-port and two-port error correction                                    */
/* ------------------------------------------------------------------------ */

/* Every trace is an array of complex points (two doubles, real part first)
 * indexed by point number; a call works on the points [start, stop) of every
 * array. The corrections return stop - start (zero or negative for an empty
 * range, nothing then written), or 0 when a required array is null or start is
 * negative. Compute1PortTerms and Correct2Port share the matrix kernels and are
 * not safe on two threads at once. */

/* One-port error terms from three reflection standards with actual
 * coefficients g1, g2, g3 (open, short, load for instance), measured as m1, m2,
 * m3: m1 receives the directivity, m2 the source match, m3 the reflection
 * tracking. A singular point gets meaningless terms; nothing is reported. */
ZF_API void ZF_CDECL Compute1PortTerms(double *m1, double *m2, double *m3, const double *g1,
                                       const double *g2, const double *g3, int start, int stop);
/* corrected = d / (reflectionTracking + d * sourceMatch), d = measured - directivity. */
ZF_API int ZF_CDECL Correct1Port(const double *directivity, const double *sourceMatch,
                                 const double *reflectionTracking, const double *measured,
                                 double *corrected, int start, int stop);
/* Enhanced-response correction of S11 and S21; either output may be null.
 * loadMatch is read (and must be non-null) only when the low byte of
 * useLoadMatch is nonzero: S11 then loses loadMatch * S21^2. */
ZF_API int ZF_CDECL ApplyEnhancedResponse(const double *directivity, const double *sourceMatch,
                                          const double *reflectionTracking, const double *loadMatch,
                                          const double *transmissionTracking, const double *measuredS11,
                                          const double *measuredS21, double *correctedS11,
                                          double *correctedS21, int start, int stop, int useLoadMatch);
/* Twelve-term two-port correction. Each group of four is in S-parameter order
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
/* Stores the performance-counter frequency in ticks per second
 * (QueryPerformanceFrequency on Windows; elsewhere the monotonic clock's rate,
 * 1000000000 on Linux), then the middle field of six timing records into t1 ..
 * t6. Nothing in the library fills the records: they read 0. Null pointers are
 * skipped. */
ZF_API void ZF_CDECL GetPerfData(long long *frequency, long long *t1, long long *t2, long long *t3,
                                 long long *t4, long long *t5, long long *t6);
/* As GetPerfData, but copies each whole record (three 64-bit values) into
 * r1 .. r6; returns 6, the number of records. */
ZF_API int ZF_CDECL GetPerfData2(long long *frequency, long long *r1, long long *r2, long long *r3,
                                 long long *r4, long long *r5, long long *r6);

#ifdef __cplusplus
}
#endif

#endif /* ZIFAIF_INSTRUMENT_H */
