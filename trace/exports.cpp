// C entry points of the trace helpers: one line each, double then float, in header order.
#include <zifaif/instrument.h>

#include "trace/trace.hpp"

using namespace zf;

extern "C" {

ZF_API void ZF_CDECL vfpdbMul(double f, double* d, int n) noexcept { trace_mul<double>(f, d, n); }
ZF_API void ZF_CDECL vfpsbMul(float  f, float*  d, int n) noexcept { trace_mul<float>(f, d, n); }
ZF_API int ZF_CDECL vfpdb_ScaleToInt(const double* s, int n, double lo, double hi, int* d, int imin, int imax) noexcept { return scale_to_int<double>(s, n, lo, hi, d, imin, imax); }
ZF_API int ZF_CDECL vfpsb_ScaleToInt(const float*  s, int n, float  lo, float  hi, int* d, int imin, int imax) noexcept { return scale_to_int<float>(s, n, lo, hi, d, imin, imax); }
ZF_API void ZF_CDECL vfpdb_ScaleToFP(const double* s, int n, double lo, double hi, double* d, double olo, double ohi) noexcept { scale_to_fp<double>(s, n, lo, hi, d, olo, ohi); }
ZF_API void ZF_CDECL vfpsb_ScaleToFP(const float*  s, int n, float  lo, float  hi, float*  d, float  olo, float  ohi) noexcept { scale_to_fp<float>(s, n, lo, hi, d, olo, ohi); }
ZF_API int ZF_CDECL vfpd_FindMax(const double* d, int start, int stop) noexcept { return find_max<double>(d, start, stop); }
ZF_API int ZF_CDECL vfps_FindMax(const float*  d, int start, int stop) noexcept { return find_max<float>(d, start, stop); }
ZF_API int ZF_CDECL vfpd_FindMax2(const double* d, int start, int stop, int from, int to) noexcept { return find_max2<double>(d, start, stop, from, to); }
ZF_API int ZF_CDECL vfps_FindMax2(const float*  d, int start, int stop, int from, int to) noexcept { return find_max2<float>(d, start, stop, from, to); }
ZF_API int ZF_CDECL vfpd_FindMin(const double* d, int start, int stop) noexcept { return find_min<double>(d, start, stop); }
ZF_API int ZF_CDECL vfps_FindMin(const float*  d, int start, int stop) noexcept { return find_min<float>(d, start, stop); }
ZF_API int ZF_CDECL vfpd_FindMin2(const double* d, int start, int stop, int from, int to) noexcept { return find_min2<double>(d, start, stop, from, to); }
ZF_API int ZF_CDECL vfps_FindMin2(const float*  d, int start, int stop, int from, int to) noexcept { return find_min2<float>(d, start, stop, from, to); }
ZF_API int ZF_CDECL vfpd_FindMinMax(const double* d, int start, int stop, int* imax, int* imin) noexcept { return find_min_max<double>(d, start, stop, imax, imin); }
ZF_API int ZF_CDECL vfps_FindMinMax(const float*  d, int start, int stop, int* imax, int* imin) noexcept { return find_min_max<float>(d, start, stop, imax, imin); }
ZF_API int ZF_CDECL vfpd_ExpandLinear(double* d, int n, double first, double last) noexcept { return expand_linear<double>(d, n, first, last); }
ZF_API int ZF_CDECL vfps_ExpandLinear(float*  d, int n, float  first, float  last) noexcept { return expand_linear<float>(d, n, first, last); }
ZF_API void ZF_CDECL vfpd_ExpandLog(double* d, int n, double first, double last) noexcept { expand_log<double>(d, n, first, last); }
ZF_API void ZF_CDECL vfps_ExpandLog(float*  d, int n, float  first, float  last) noexcept { expand_log<float>(d, n, first, last); }
ZF_API void ZF_CDECL vfpd_UnwrapPhase(const double* s, int start, int stop, double* d, int deg) noexcept { unwrap_phase<double>(s, start, stop, d, deg); }
ZF_API int  ZF_CDECL vfps_UnwrapPhase(const float*  s, int start, int stop, float*  d, int deg) noexcept { return unwrap_phase<float>(s, start, stop, d, deg); }
ZF_API void ZF_CDECL vfpd_FormatBuffer(int code, const double* s, double* d, int start, int stop) noexcept { format_buffer<double>(code, s, d, start, stop); }
ZF_API void ZF_CDECL vfps_FormatBuffer(int code, const float*  s, float*  d, int start, int stop) noexcept { format_buffer<float>(code, s, d, start, stop); }
ZF_API int ZF_CDECL vfpd_ByteCopyToFP(int off, const void* base, double* d, int at, int count, int swap) noexcept { return byte_copy_to_fp<double>(off, base, d, at, count, swap); }
ZF_API int ZF_CDECL vfps_ByteCopyToFP(int off, const void* base, float*  d, int at, int count, int swap) noexcept { return byte_copy_to_fp<float>(off, base, d, at, count, swap); }
ZF_API int ZF_CDECL vfp_ByteSwap(void* buf, int nbytes, unsigned width) noexcept { return byte_swap(buf, nbytes, width); }
ZF_API int ZF_CDECL vfp_ByteSwapDummy(void* buf, int nbytes, unsigned width) noexcept { return byte_swap(buf, nbytes, width); }
ZF_API int ZF_CDECL vfpd_Smooth(const double* s, double* d, int total, int start, int stop, int ap, int phase, int edge) noexcept { return smooth<double>(s, d, total, start, stop, ap, phase, edge); }
ZF_API int ZF_CDECL vfps_Smooth(const float*  s, float*  d, int total, int start, int stop, int ap, int phase, int edge) noexcept { return smooth<float>(s, d, total, start, stop, ap, phase, edge); }
ZF_API int ZF_CDECL vfpd_SmoothCpx(const double* s, double* d, int total, int start, int stop, int ap) noexcept { return smooth_cpx<double>(s, d, total, start, stop, ap); }
ZF_API int ZF_CDECL vfps_SmoothCpx(const float*  s, float*  d, int total, int start, int stop, int ap) noexcept { return smooth_cpx<float>(s, d, total, start, stop, ap); }

ZF_API int ZF_CDECL vfpd_CircleFit(const double* z, int start, int stop, double* centre, double* radius, double* residual) noexcept { return circle_fit<double>(z, start, stop, centre, radius, residual); }
ZF_API int ZF_CDECL vfps_CircleFit(const float*  z, int start, int stop, float*  centre, float*  radius, float*  residual) noexcept { return circle_fit<float>(z, start, stop, centre, radius, residual); }

}  // extern "C"
