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

/* ------------------------------------------------------------------------ */
/* One-port and two-port error correction                                    */
/* ------------------------------------------------------------------------ */

#ifdef __cplusplus
}
#endif

#endif /* ZIFAIF_INSTRUMENT_H */
