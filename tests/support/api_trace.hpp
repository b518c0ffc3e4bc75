// Test-side overloads of the trace entry points, picked by element type, so
// one typed test reaches both C twins through the real interface.
#pragma once
#include <zifaif/instrument.h>

namespace api {
inline void trace_mul(double f, double* d, int n) { vfpdbMul(f, d, n); }
inline void trace_mul(float f, float* d, int n) { vfpsbMul(f, d, n); }
inline int scale_to_int(const double* s, int n, double lo, double hi, int* d, int a, int b) { return vfpdb_ScaleToInt(s, n, lo, hi, d, a, b); }
inline int scale_to_int(const float* s, int n, float lo, float hi, int* d, int a, int b) { return vfpsb_ScaleToInt(s, n, lo, hi, d, a, b); }
inline void scale_to_fp(const double* s, int n, double lo, double hi, double* d, double a, double b) { vfpdb_ScaleToFP(s, n, lo, hi, d, a, b); }
inline void scale_to_fp(const float* s, int n, float lo, float hi, float* d, float a, float b) { vfpsb_ScaleToFP(s, n, lo, hi, d, a, b); }
inline int find_max(const double* d, int a, int b) { return vfpd_FindMax(d, a, b); }
inline int find_max(const float* d, int a, int b) { return vfps_FindMax(d, a, b); }
inline int find_max2(const double* d, int a, int b, int f, int t) { return vfpd_FindMax2(d, a, b, f, t); }
inline int find_max2(const float* d, int a, int b, int f, int t) { return vfps_FindMax2(d, a, b, f, t); }
inline int find_min(const double* d, int a, int b) { return vfpd_FindMin(d, a, b); }
inline int find_min(const float* d, int a, int b) { return vfps_FindMin(d, a, b); }
inline int find_min2(const double* d, int a, int b, int f, int t) { return vfpd_FindMin2(d, a, b, f, t); }
inline int find_min2(const float* d, int a, int b, int f, int t) { return vfps_FindMin2(d, a, b, f, t); }
inline int find_min_max(const double* d, int a, int b, int* mx, int* mn) { return vfpd_FindMinMax(d, a, b, mx, mn); }
inline int find_min_max(const float* d, int a, int b, int* mx, int* mn) { return vfps_FindMinMax(d, a, b, mx, mn); }
inline int expand_linear(double* d, int n, double a, double b) { return vfpd_ExpandLinear(d, n, a, b); }
inline int expand_linear(float* d, int n, float a, float b) { return vfps_ExpandLinear(d, n, a, b); }
inline void expand_log(double* d, int n, double a, double b) { vfpd_ExpandLog(d, n, a, b); }
inline void expand_log(float* d, int n, float a, float b) { vfps_ExpandLog(d, n, a, b); }
inline void unwrap_phase(const double* s, int a, int b, double* d, int deg) { vfpd_UnwrapPhase(s, a, b, d, deg); }
inline void unwrap_phase(const float* s, int a, int b, float* d, int deg) { vfps_UnwrapPhase(s, a, b, d, deg); }
inline void format_buffer(int c, const double* s, double* d, int a, int b) { vfpd_FormatBuffer(c, s, d, a, b); }
inline void format_buffer(int c, const float* s, float* d, int a, int b) { vfps_FormatBuffer(c, s, d, a, b); }
inline int byte_copy_to_fp(int o, const void* b, double* d, int at, int n, int sw) { return vfpd_ByteCopyToFP(o, b, d, at, n, sw); }
inline int byte_copy_to_fp(int o, const void* b, float* d, int at, int n, int sw) { return vfps_ByteCopyToFP(o, b, d, at, n, sw); }
inline int smooth(const double* s, double* d, int t, int a, int b, int ap, int ph, int e) { return vfpd_Smooth(s, d, t, a, b, ap, ph, e); }
inline int smooth(const float* s, float* d, int t, int a, int b, int ap, int ph, int e) { return vfps_Smooth(s, d, t, a, b, ap, ph, e); }
inline int smooth_cpx(const double* s, double* d, int t, int a, int b, int ap) { return vfpd_SmoothCpx(s, d, t, a, b, ap); }
inline int smooth_cpx(const float* s, float* d, int t, int a, int b, int ap) { return vfps_SmoothCpx(s, d, t, a, b, ap); }
}  // namespace api
