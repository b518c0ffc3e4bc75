// C entry points of the matrix kernels and the error correction: one line
// each, in header order. Complex arrays arrive as interleaved doubles.
#include <zifaif/instrument.h>

#include <cmath>

#include "netcal/circular.hpp"
#include "netcal/correct.hpp"
#include "netcal/matrix.hpp"

using zf::Cx;
using zf::points;

extern "C" {

ZF_API int ZF_CDECL invert(double* a, int n) noexcept { return zf::invert<Cx>(points(a), n); }
ZF_API int ZF_CDECL invertDbl(double* a, int n) noexcept { return zf::invert<double>(a, n); }
ZF_API int ZF_CDECL MatrixMult(const double* a, const double* b, double* c, int m, int n, int p) noexcept { return zf::matrix_mult<Cx>(points(a), points(b), points(c), m, n, p); }
ZF_API int ZF_CDECL MatrixMultDbl(const double* a, const double* b, double* c, int m, int n, int p) noexcept { return zf::matrix_mult<double>(a, b, c, m, n, p); }
ZF_API double ZF_CDECL ABS(double x) noexcept { return std::fabs(x); }

ZF_API void ZF_CDECL Compute1PortTerms(double* m1, double* m2, double* m3, const double* g1, const double* g2, const double* g3, int start, int stop) noexcept { zf::compute_1port_terms(points(m1), points(m2), points(m3), points(g1), points(g2), points(g3), start, stop); }
ZF_API int ZF_CDECL Correct1Port(const double* d, const double* s, const double* r, const double* meas, double* out, int start, int stop) noexcept { return zf::correct_1port(points(d), points(s), points(r), points(meas), points(out), start, stop); }
ZF_API int ZF_CDECL ApplyEnhancedResponse(const double* d, const double* s, const double* r, const double* l, const double* t, const double* m11, const double* m21, double* c11, double* c21, int start, int stop, int use_load) noexcept { return zf::apply_enhanced_response(points(d), points(s), points(r), points(l), points(t), points(m11), points(m21), points(c11), points(c21), start, stop, use_load); }
ZF_API int ZF_CDECL Correct2Port(const double* t11, const double* t12, const double* t21, const double* t22, const double* e11, const double* e12, const double* e21, const double* e22, const double* o11, const double* o12, const double* o21, const double* o22, const double* m11, const double* m12, const double* m21, const double* m22, double* c11, double* c12, double* c21, double* c22, int start, int stop) noexcept { return zf::correct_2port({{points(t11), points(t12), points(t21), points(t22)}, {points(e11), points(e12), points(e21), points(e22)}, {points(o11), points(o12), points(o21), points(o22)}, {points(m11), points(m12), points(m21), points(m22)}, {points(c11), points(c12), points(c21), points(c22)}}, start, stop); }
ZF_API void ZF_CDECL GetPerfData(long long* f, long long* t1, long long* t2, long long* t3, long long* t4, long long* t5, long long* t6) noexcept { zf::get_perf_data(f, t1, t2, t3, t4, t5, t6); }
ZF_API int ZF_CDECL GetPerfData2(long long* f, long long* r1, long long* r2, long long* r3, long long* r4, long long* r5, long long* r6) noexcept { return zf::get_perf_data2(f, r1, r2, r3, r4, r5, r6); }

ZF_API int ZF_CDECL CircularInterpolation(const double* freq, const double* pts, int n, const double* new_freq, double* new_pts, int m) noexcept { return zf::circular_interpolation(freq, pts, n, new_freq, new_pts, m); }
ZF_API int ZF_CDECL InterpolateCircular(const double* freq, const double* pts, double f, double* result) noexcept { return zf::interpolate_circular(freq, pts, f, result); }

}  // extern "C"
