#include "support/api_trace.hpp"
#include "support/trace_ref.hpp"

using namespace zt;

template <class T> class TraceSmoothTest : public ::testing::Test {};
TYPED_TEST_SUITE(TraceSmoothTest, Precisions);

// Empty ranges first, then the aperture (odd, at least 3) and the range; a
// refusal writes nothing, and both smoothings judge alike.
TYPED_TEST(TraceSmoothTest, RangeAndApertureChecks) {
    using T = TypeParam;
    const int cases[][4] = {{3, 3, 5, 0},  {0, 0, 2, 0},  {0, 8, 2, -1}, {0, 8, 4, -1}, {0, 8, 1, -1}, {0, 8, -3, -1},
                            {0, 8, 3, 8},  {-1, 8, 3, -1}, {6, 3, 3, -1}, {1, 0, 3, -1}, {0, -2, 3, -1}};  // start, stop, aperture, status
    const auto src = random_scalars<T>(16, 2);
    for (const auto& c : cases) {
        std::vector<T> dst(16, T(-99));
        EXPECT_EQ(api::smooth(src.data(), dst.data(), 8, c[0], c[1], c[2], 0, 0), c[3]) << c[0] << " " << c[1] << " " << c[2];
        EXPECT_EQ(api::smooth_cpx(src.data(), dst.data(), 8, c[0], c[1], c[2]), c[3]) << c[0] << " " << c[1] << " " << c[2];
        if (c[3] <= 0) EXPECT_EQ(dst, std::vector<T>(16, T(-99)));
    }
    T dst[8];
    EXPECT_EQ(std::tuple(api::smooth(static_cast<const T*>(nullptr), dst, 8, 0, 8, 3, 0, 0),
                         api::smooth(src.data(), static_cast<T*>(nullptr), 8, 0, 8, 3, 1, 1),
                         api::smooth_cpx(src.data(), static_cast<T*>(nullptr), 8, 0, 8, 3)), std::tuple(-1, -1, -1));
}

// Real traces (an offset keeps drift of a running sum visible; phase mode on
// values without wraps is the plain average) and complex ones (angles in one
// quadrant; the window of one point at either trace end exchanges the real
// and imaginary parts) against the moving-average references.
TYPED_TEST(TraceSmoothTest, MatchesMovingAverageReferences) {
    using T = TypeParam;
    struct Case { int total, start, stop, aperture, edge, phase, cpx; };
    const Case cases[] = {
        {40, 0, 40, 3, 0, 0, 0}, {40, 0, 40, 9, 0, 0, 0}, {40, 0, 40, 5, 1, 0, 0}, {40, 5, 30, 7, 0, 0, 0},
        {40, 5, 30, 7, 1, 0, 0}, {40, 12, 40, 5, 0, 0, 0}, {40, 12, 40, 11, 1, 0, 0}, {40, 0, 12, 5, 1, 0, 0},
        {40, 3, 9, 3, 0, 0, 0}, {3000, 0, 3000, 9, 0, 0, 0}, {50, 0, 50, 7, 0, 1, 0}, {50, 0, 50, 7, 1, 1, 0},
        {50, 0, 50, 3, 0, 0, 1}, {50, 0, 50, 7, 0, 0, 1}, {50, 4, 31, 5, 0, 0, 1}, {50, 20, 50, 9, 0, 0, 1},
        {2000, 0, 2000, 5, 0, 0, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.total << " " << c.start << " " << c.stop << " " << c.aperture << " " << c.edge
                                          << " " << c.phase << " " << c.cpx);
        const auto src = c.cpx     ? random_scalars<T>(2 * c.total, 7 + c.start, 0.2, 1.0)
                         : c.phase ? random_scalars<T>(c.total, 9, -0.5, 0.5)
                                   : random_scalars<T>(c.total, 100 + c.start, 1000.0, 1001.0);
        std::vector<T> dst(src.size(), T(-99));
        std::vector<ref::ld> want(src.size(), -99);
        const int count = ref::smooth(src, want, c.total, c.start, c.stop, c.aperture, c.edge != 0, c.cpx != 0);
        EXPECT_EQ(c.cpx ? api::smooth_cpx(src.data(), dst.data(), c.total, c.start, c.stop, c.aperture)
                        : api::smooth(src.data(), dst.data(), c.total, c.start, c.stop, c.aperture, c.phase, c.edge), count);
        EXPECT_TRUE(near_all(dst, want, c.phase ? tol<T>(4) : std::max(tol<T>(4), 1e-12)));
    }
    // A jump down and back up: -3.1 counts as 2 pi - 3.1 (the wrapped ramp
    // below only ever steps down across the wrap).
    const std::vector<T> jump = {T(3.1), T(3.1), T(-3.1), T(3.1)};
    std::vector<T> dst(4);
    EXPECT_EQ(api::smooth(jump.data(), dst.data(), 4, 0, 4, 3, 1, 0), 4);
    const double m = (3.1 + 3.1 + (2 * M_PI - 3.1)) / 3;
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
