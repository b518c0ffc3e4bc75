// Network-analyser error correction over arrays of complex points, point by
// point over a half-open range [start, stop) that indexes every array alike.
#pragma once

#include "netcal/matrix.hpp"

namespace zf {

// The caller's interleaved (re, im) doubles seen as complex points.
inline Cx* points(double* p) noexcept { return reinterpret_cast<Cx*>(p); }
inline const Cx* points(const double* p) noexcept { return reinterpret_cast<const Cx*>(p); }

// One-port terms from three reflection standards: m1, m2, m3 hold the raw
// readings of the standards whose actual coefficients are g1, g2, g3 and
// receive directivity, source match and reflection tracking. A singular point
// gets the terms of the partly reduced system. Does nothing when an array is
// null or the range is empty or starts below 0.
void compute_1port_terms(Cx* m1, Cx* m2, Cx* m3, const Cx* g1, const Cx* g2, const Cx* g3,
                         int start, int stop) noexcept;

// corrected = d / (tracking + d * sourceMatch), d = measured - directivity.
// stop - start; 0 for a null array or a range starting below 0.
int correct_1port(const Cx* directivity, const Cx* source_match, const Cx* tracking,
                  const Cx* measured, Cx* corrected, int start, int stop) noexcept;

// Enhanced-response correction of S11 and S21; either output may be null,
// load_match is read (and required) only when the low byte of use_load_match
// is nonzero. stop - start; 0 for a missing input or a range starting below 0.
int apply_enhanced_response(const Cx* directivity, const Cx* source_match, const Cx* tracking,
                            const Cx* load_match, const Cx* transmission_tracking,
                            const Cx* measured_s11, const Cx* measured_s21, Cx* corrected_s11,
                            Cx* corrected_s21, int start, int stop, int use_load_match) noexcept;

// The arrays of the twelve-term two-port correction, each group indexed by
// S-parameter position p = 2r + c: S11, S12, S21, S22.
struct TwoPortArrays {
    const Cx* tracking[4];   // reflection / transmission tracking
    const Cx* match[4];      // source match on the diagonal, load match off it
    const Cx* offset[4];     // directivity on the diagonal, isolation (may be null) off it
    const Cx* measured[4];
    Cx* corrected[4];        // null: that S-parameter is not written
};

// Corrected = N * M^-1 per point, N = (measured - offset) / tracking and
// M = N * match + I; a singular M is used as the inversion left it.
// stop - start; 0 when a required array is null or the range starts below 0.
int correct_2port(const TwoPortArrays& t, int start, int stop) noexcept;

// The per-point two-port kernels behind correct_2port, for the tests that
// compare them. The portable one corrects the points [start, stop). The two
// vector ones correct the eight points from start with results identical to
// the portable kernel's; each runs only on a processor with its instruction
// set (have_avx2, have_avx512), inside the caller's rounding guard.
void correct_2port_portable(const TwoPortArrays& t, int start, int stop) noexcept;
void correct_2port_x8_avx2(const TwoPortArrays& t, int start) noexcept;
void correct_2port_x8_avx512(const TwoPortArrays& t, int start) noexcept;
bool have_avx2() noexcept;
bool have_avx512() noexcept;

// The performance-counter frequency in ticks per second (QueryPerformanceFrequency
// on Windows, the monotonic clock's tick rate elsewhere).
long long perf_frequency() noexcept;
// Stores the frequency, then the middle field of the timing records R3, R4,
// R2, R5, R1 and R0 in that order into t1 .. t6. Null pointers are skipped.
void get_perf_data(long long* frequency, long long* t1, long long* t2, long long* t3, long long* t4,
                   long long* t5, long long* t6) noexcept;
// As get_perf_data, but copies each whole record (three 64-bit fields);
// returns 6, the number of records.
int get_perf_data2(long long* frequency, long long* r1, long long* r2, long long* r3, long long* r4,
                  long long* r5, long long* r6) noexcept;

}  // namespace zf
