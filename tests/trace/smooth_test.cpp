#include "support/api_trace.hpp"
#include "support/trace_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

template <class T> class TraceSmoothTest : public ::testing::Test {};
TYPED_TEST_SUITE(TraceSmoothTest, Precisions);

TYPED_TEST(TraceSmoothTest, RangeAndApertureChecks) {
    using T = TypeParam;
    struct Case { int start, stop, aperture, status; };
    const Case cases[] = {
        {3, 3, 5, 0}, {0, 0, 2, 0},                                       // empty first
        {0, 8, 2, -1}, {0, 8, 4, -1}, {0, 8, 1, -1}, {0, 8, -3, -1}, {0, 8, 3, 8},
        {-1, 8, 3, -1}, {6, 3, 3, -1}, {1, 0, 3, -1}, {0, -2, 3, -1},
    };
    const auto src = random_scalars<T>(16, 2);
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.start << " " << c.stop << " " << c.aperture);
        std::vector<T> dst(16, T(-99));
        EXPECT_EQ(api::smooth(src.data(), dst.data(), 8, c.start, c.stop, c.aperture, 0, 0), c.status);
        EXPECT_EQ(api::smooth_cpx(src.data(), dst.data(), 8, c.start, c.stop, c.aperture), c.status);
        if (c.status <= 0) EXPECT_EQ(dst, std::vector<T>(16, T(-99)));
    }
    T dst[8];
    EXPECT_EQ(api::smooth(static_cast<const T*>(nullptr), dst, 8, 0, 8, 3, 0, 0), -1);
    EXPECT_EQ(api::smooth(src.data(), static_cast<T*>(nullptr), 8, 0, 8, 3, 1, 1), -1);
    EXPECT_EQ(api::smooth_cpx(src.data(), static_cast<T*>(nullptr), 8, 0, 8, 3), -1);
}

// Phase mode on values without wraps is the plain average.
TYPED_TEST(TraceSmoothTest, PlainMatchesMovingAverageReference) {
    using T = TypeParam;
    struct Case { int total, start, stop, aperture, edge, phase; };
    const Case cases[] = {
        {40, 0, 40, 3, 0, 0}, {40, 0, 40, 9, 0, 0}, {40, 0, 40, 5, 1, 0}, {40, 5, 30, 7, 0, 0}, {40, 5, 30, 7, 1, 0},
        {40, 12, 40, 5, 0, 0}, {40, 12, 40, 11, 1, 0}, {40, 0, 12, 5, 1, 0}, {40, 3, 9, 3, 0, 0}, {3000, 0, 3000, 9, 0, 0},
        {50, 0, 50, 7, 0, 1}, {50, 0, 50, 7, 1, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.total << " " << c.start << " " << c.stop << " " << c.aperture << " " << c.edge << " " << c.phase);
        // An offset keeps drift of the running sum visible.
        const auto src = c.phase ? random_scalars<T>(c.total, 9, -0.5, 0.5) : random_scalars<T>(c.total, 100 + c.start, 1000.0, 1001.0);
        std::vector<T> dst(c.total, T(-99));
        std::vector<ref::ld> want(c.total, -99);
        const int count = ref::smooth_plain(src, want, c.total, c.start, c.stop, c.aperture, c.edge != 0);
        EXPECT_EQ(api::smooth(src.data(), dst.data(), c.total, c.start, c.stop, c.aperture, c.phase, c.edge), count);
        EXPECT_TRUE(near_all(dst, want, c.phase ? tol<T>(4) : std::max(tol<T>(2), 1e-12)));
    }
}

TYPED_TEST(TraceSmoothTest, PhaseModeUnwrapsEachWindow) {
    using T = TypeParam;
    const std::vector<T> jump = {T(3.1), T(3.1), T(-3.1), T(3.1)};
    std::vector<T> dst(4);
    EXPECT_EQ(api::smooth(jump.data(), dst.data(), 4, 0, 4, 3, 1, 0), 4);
    const double m = (3.1 + 3.1 + (2 * M_PI - 3.1)) / 3;  // -3.1 counts as 2 pi - 3.1
    EXPECT_TRUE(near_all(dst, std::vector<double>{3.1, m, m, 3.1}, tol<T>(4)));

    // A wrapped linear ramp smooths to itself: every window is symmetric.
    const int n = 60;
    std::vector<T> ramp(n), out(n);
    for (int i = 0; i < n; ++i) ramp[i] = T(ref::wrapped(0.9L * i - 2));
    EXPECT_EQ(api::smooth(ramp.data(), out.data(), n, 0, n, 5, 1, 0), n);
    for (int i = 0; i < n; ++i) {
        EXPECT_LE(std::fabs(out[i]), T(M_PI)) << i;
        EXPECT_NEAR(double(ref::wrapped(out[i] - (0.9L * i - 2))), 0.0, 30 * tol<T>()) << i;
    }
}

TYPED_TEST(TraceSmoothTest, ComplexMatchesMagnitudeAngleReference) {
    using T = TypeParam;
    struct Case { int total, start, stop, aperture; };
    const Case cases[] = {{50, 0, 50, 3}, {50, 0, 50, 7}, {50, 4, 31, 5}, {50, 20, 50, 9}, {2000, 0, 2000, 5}};
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.total << " " << c.start << " " << c.stop << " " << c.aperture);
        const auto src = random_scalars<T>(2 * c.total, 7 + c.start, 0.2, 1.0);  // angles stay in one quadrant
        std::vector<T> dst(2 * c.total, T(-99));
        std::vector<ref::ld> want(2 * c.total, -99);
        const int count = ref::smooth_complex(src, want, c.total, c.start, c.stop, c.aperture);
        EXPECT_EQ(api::smooth_cpx(src.data(), dst.data(), c.total, c.start, c.stop, c.aperture), count);
        EXPECT_TRUE(near_all(dst, want, std::max(tol<T>(4), 1e-12)));
    }
    // A window of one point exchanges the real and imaginary parts.
    const std::vector<T> z = {T(0.25), T(-2), 1, 1};
    std::vector<T> one(4, T(-99));
    EXPECT_EQ(api::smooth_cpx(z.data(), one.data(), 2, 0, 1, 3), 1);
    EXPECT_TRUE(near_all(one, std::vector<double>{-2, 0.25, -99, -99}, tol<T>(4)));
}
