// One-port and two-port correction: random devices measured through random
// error terms by the textbook models come back inside [start, stop) only, also
// in place; the array and range rules; the singular systems.

#include <cfloat>

#include "support/api_netcal.hpp"
#include "support/netcal_ref.hpp"

using namespace zt;

namespace {

using Trace = std::vector<double>;
constexpr double kUnwritten = 12345.0;

Trace filled(std::size_t n, double re, double im = 0) {
    Trace t(2 * n, im);
    for (std::size_t i = 0; i < n; ++i) t[2 * i] = re;
    return t;
}
Trace unwritten(std::size_t n) { return filled(n, kUnwritten, kUnwritten); }
bool close(LC got, LC want, long double tol) { return std::abs(got - want) <= tol * std::fmax(1.0L, std::abs(want)); }
// Points outside [start, stop) still hold kUnwritten.
bool untouched_outside(const Trace& t, int start, int stop) {
    for (std::size_t i = 0; i < t.size(); ++i)
        if ((int(i / 2) < start || int(i / 2) >= stop) && t[i] != kUnwritten) return false;
    return true;
}

}  // namespace

// Correct1Port inverts the one-port model. The enhanced response's S11 is the
// same, less l S21^2 when the low byte of the flag asks for the load match;
// its S21 = r m21 / ((r + s d) t) with d = m11 - directivity.
TEST(OnePortTest, CorrectionsAgreeWithTheClosedFormsInsideTheRangeOnly) {
    const int n = 40, start = 3, stop = 37;
    const Trace d = random_points(n, 1, -0.1, 0.1), s = random_points(n, 2, -0.3, 0.3),
                r = random_points(n, 3, -0.2, 0.2, 1.0), m = random_points(n, 4), l = random_points(n, 5, -0.3, 0.3),
                t = random_points(n, 6, -0.2, 0.2, 0.9), m21 = random_points(n, 7);
    Trace out = unwritten(n), in_place = m;
    ASSERT_EQ(Correct1Port(d.data(), s.data(), r.data(), m.data(), out.data(), start, stop), stop - start);
    ASSERT_EQ(Correct1Port(d.data(), s.data(), r.data(), in_place.data(), in_place.data(), start, stop), stop - start);
    EXPECT_TRUE(untouched_outside(out, start, stop));
    for (const int flag : {0, 1, 0x100, 0x2FF}) {
        const bool with_load = (flag & 0xFF) != 0;
        Trace c11 = unwritten(n), c21 = c11;
        ASSERT_EQ(ApplyEnhancedResponse(d.data(), s.data(), r.data(), with_load ? l.data() : nullptr, t.data(),
                                        m.data(), m21.data(), c11.data(), c21.data(), start, stop, flag), stop - start);
        EXPECT_TRUE(untouched_outside(c11, start, stop) && untouched_outside(c21, start, stop));
        for (int j = start; j < stop; ++j) {
            const LC s11 = one_port_corrected(lc(m, j), lc(d, j), lc(s, j), lc(r, j));
            const LC s21 = lc(r, j) * lc(m21, j) / ((lc(r, j) + lc(s, j) * (lc(m, j) - lc(d, j))) * lc(t, j));
            EXPECT_TRUE(close(lc(out, j), s11, 8 * DBL_EPSILON) && lc(in_place, j) == lc(out, j)) << j;
            EXPECT_TRUE(close(lc(c21, j), s21, 16 * DBL_EPSILON)) << j;
            EXPECT_TRUE(close(lc(c11, j), s11 - (with_load ? lc(l, j) * s21 * s21 : LC(0)), 16 * DBL_EPSILON)) << j;
        }
    }
}

// Three distinct standards measured through known terms give the terms back.
TEST(OnePortTest, ComputedTermsAreTheTermsTheStandardsWereMeasuredThrough) {
    const int n = 25, start = 2, stop = 23;
    const Trace e[3] = {random_points(n, 7, -0.1, 0.1), random_points(n, 8, -0.3, 0.3), random_points(n, 9, -0.3, 0.3, 0.8)};
    const Trace g[3] = {random_points(n, 10), random_points(n, 11), random_points(n, 12)}, g0 = g[0];
    Trace m[3] = {unwritten(n), unwritten(n), unwritten(n)};
    for (int i = 0; i < 3; ++i)
        for (int j = start; j < stop; ++j) put(m[i], j, one_port_measured(lc(g[i], j), lc(e[0], j), lc(e[1], j), lc(e[2], j)));
    Compute1PortTerms(m[0].data(), m[1].data(), m[2].data(), g[0].data(), g[1].data(), g[2].data(), start, stop);
    for (int i = 0; i < 3; ++i) {
        for (int j = start; j < stop; ++j) EXPECT_TRUE(close(lc(m[i], j), lc(e[i], j), 1e-12L)) << i << " " << j;
        EXPECT_TRUE(untouched_outside(m[i], start, stop));
    }
    EXPECT_EQ(g[0], g0);
    // Three identical standards make a singular system; the partly reduced
    // matrix is used as it stands. Rows [2, 1, -6], right-hand side 3: column 0
    // scales row 0 to [0.5, 0.5, -3] and leaves rows 1 and 2 at [-1, 0, 0];
    // column 1 has no pivot. x = [1.5 + 1.5 - 9, -3, -3], so directivity
    // x1 = -3, source match -x2 = 3 and tracking x0 - x1*x2 = -15.
    Trace m1 = {3, 0}, m2 = m1, m3 = m1;
    const Trace two = {2, 0};
    Compute1PortTerms(m1.data(), m2.data(), m3.data(), two.data(), two.data(), two.data(), 0, 1);
    EXPECT_EQ(std::tuple(m1, m2, m3), std::tuple(Trace{-3, 0}, Trace{3, 0}, Trace{-15, 0}));
}

// Null required arrays and empty ranges write nothing; a reversed range is -2.
// The enhanced-response outputs are optional, its load match required when
// the low byte of the flag asks for it.
TEST(OnePortTest, NullArraysAndEmptyRangesWriteNothing) {
    const int n = 5;
    const Trace a = random_points(n, 20, -0.5, 0.5, 1.0);
    Trace out = unwritten(n), c21 = out;
    const double* x = a.data();
    double *o = out.data() + 2, *c = c21.data();   // a start of -1 would write out[0]
    for (int missing = 0; missing < 6; ++missing) {
        const double* p[6] = {x, x, x, x, x, x};
        p[missing] = nullptr;
        if (missing < 4) EXPECT_EQ(Correct1Port(p[0], p[1], p[2], p[3], out.data(), 0, n), 0) << missing;
        EXPECT_EQ(ApplyEnhancedResponse(p[0], p[1], p[2], x, p[3], p[4], p[5], out.data(), out.data(), 0, n, 1), 0);
    }
    Compute1PortTerms(nullptr, o, o, x, x, x, 0, 2);
    Compute1PortTerms(o, o, o, o, o, o, -1, 2);
    EXPECT_EQ(std::tuple(Correct1Port(x, x, x, x, nullptr, 0, n), Correct1Port(x, x, x, x, o, 3, 3),
                         Correct1Port(x, x, x, x, o, 3, 1), Correct1Port(x, x, x, x, o, -1, 2)), std::tuple(0, 0, -2, 0));
    EXPECT_EQ(std::tuple(ApplyEnhancedResponse(x, x, x, nullptr, x, x, x, nullptr, nullptr, 0, n, 0),
                         ApplyEnhancedResponse(x, x, x, nullptr, x, x, x, nullptr, c, 0, n, 0),
                         ApplyEnhancedResponse(x, x, x, nullptr, x, x, x, o, c, 0, n, 0x101),
                         ApplyEnhancedResponse(x, x, x, x, x, x, x, o, c, 4, 2, 1)), std::tuple(n, n, 0, -2));
    EXPECT_TRUE(untouched_outside(out, 0, 0));
}

namespace {

// Twelve-term data over n points with the arrays in Correct2Port's order:
// tracking, match, offset, measured, corrected, each S11, S12, S21, S22.
struct TwoPort {
    Trace a[20];
    TwoPort(int n, unsigned seed) {
        const double spread[4] = {0.2, 0.3, 0.05, 0.9}, centre[4] = {0.9, 0, 0, 0};
        for (int i = 0; i < 16; ++i) a[i] = random_points(n, seed + i, -spread[i / 4], spread[i / 4], centre[i / 4]);
        for (int i = 16; i < 20; ++i) a[i] = unwritten(n);
    }
    // Correct2Port over [start, stop), leaving out the arrays of null_mask's set
    // bits; in place, the corrected S-parameters overwrite the measured ones.
    int run(int start, int stop, unsigned null_mask = 0, bool in_place = false) {
        double* p[20];
        for (int i = 0; i < 20; ++i) p[i] = (null_mask >> i) & 1 ? nullptr : a[in_place && i >= 16 ? i - 4 : i].data();
        return Correct2Port(p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8], p[9], p[10], p[11], p[12], p[13],
                            p[14], p[15], p[16], p[17], p[18], p[19], start, stop);
    }
};

}  // namespace

// A device measured through the forward twelve-term model comes back; 45
// points give blocks of eight and a tail, from an odd start. In place, each
// corrected S-parameter overwrites its measurement.
TEST(Correct2PortTest, UndoesTheTwelveTermModelInsideTheRangeOnly) {
    const int n = 45, start = 3, stop = 44;
    TwoPort t(n, 100);
    const Trace actual[4] = {random_points(n, 300), random_points(n, 301), random_points(n, 302), random_points(n, 303)};
    for (int j = 0; j < n; ++j) {
        LC s[4], e[12], m[4];
        for (int p = 0; p < 4; ++p) s[p] = lc(actual[p], j);
        for (int i = 0; i < 12; ++i) e[i] = lc(t.a[i], j);
        two_port_measured(s, e, m);
        for (int p = 0; p < 4; ++p) put(t.a[12 + p], j, m[p]);
    }
    ASSERT_EQ(t.run(start, stop), stop - start);
    for (int p = 0; p < 4; ++p) {
        for (int j = start; j < stop; ++j) EXPECT_TRUE(close(lc(t.a[16 + p], j), lc(actual[p], j), 1e-12L)) << p << j;
        EXPECT_TRUE(untouched_outside(t.a[16 + p], start, stop));
    }
    ASSERT_EQ(t.run(start, stop, 0, true), stop - start);
    for (int q = 0; q < 4; ++q)
        EXPECT_TRUE(std::equal(&t.a[12 + q][2 * start], &t.a[12 + q][2 * stop], &t.a[16 + q][2 * start])) << "S" << q;
}

// Null isolation counts as zero and a null output is skipped; every other
// array is required, and empty or reversed ranges write nothing.
TEST(Correct2PortTest, ArrayAndRangeRules) {
    TwoPort zeroed(19, 400), nulled(19, 400), t(10, 500);
    zeroed.a[9] = zeroed.a[10] = filled(19, 0);
    ASSERT_EQ(zeroed.run(0, 19), 19);
    ASSERT_EQ(nulled.run(0, 19, (1u << 9) | (1u << 10) | (1u << 17)), 19);
    EXPECT_TRUE(untouched_outside(nulled.a[17], 0, 0));
    for (int p : {0, 2, 3}) EXPECT_EQ(nulled.a[16 + p], zeroed.a[16 + p]) << "S" << p;
    for (int missing : {0, 1, 2, 3, 4, 5, 6, 7, 8, 11, 12, 13, 14, 15}) EXPECT_EQ(t.run(0, 10, 1u << missing), 0) << missing;
    EXPECT_EQ(std::tuple(t.run(5, 5), t.run(7, 2), t.run(-2, 3)), std::tuple(0, -5, 0));
    for (int p = 16; p < 20; ++p) EXPECT_TRUE(untouched_outside(t.a[p], 0, 0));
}

// With unit tracking, zero offsets and unit load and reverse source match,
// M = N * match + I. Each case runs on one point (portable kernel) and on
// nine (a vector block and a tail).
TEST(Correct2PortTest, SingularMatrixIsUsedAsTheInversionLeftIt) {
    struct Case {
        double measured[4], source_match_fwd, want[4];
    };
    const Case cases[] = {
        // M = [[1, 2], [-1, -2]]: the column-0 magnitudes tie, so the upper row
        // is the pivot; column 0 gives [[1, 2], [1, 0]] and column 1 is
        // singular. N * [[1, 2], [1, 0]] with N = [[0, 2], [-1, -3]].
        {{0, 2, -1, -3}, 0.5, {2, 0, -4, -2}},
        // M = [[0, 5], [0, 4]]: column 0 is singular at once and M is used
        // unchanged: N * M with N = [[-1, 5], [0, 3]].
        {{-1, 5, 0, 3}, 1.0, {0, 15, 0, 12}},
    };
    for (const Case& c : cases) {
        for (const int n : {1, 9}) {
            TwoPort t(n, 700);
            for (int p = 0; p < 4; ++p) {
                t.a[p] = filled(n, 1), t.a[4 + p] = filled(n, p == 0 ? c.source_match_fwd : 1);
                t.a[8 + p] = filled(n, 0), t.a[12 + p] = filled(n, c.measured[p]);
            }
            ASSERT_EQ(t.run(0, n), n);
            for (int p = 0; p < 4; ++p) EXPECT_EQ(t.a[16 + p], filled(n, c.want[p])) << "n=" << n << " S" << p;
        }
    }
}
