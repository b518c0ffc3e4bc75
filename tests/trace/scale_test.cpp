#include <climits>

#include "support/api_trace.hpp"
#include "support/trace_ref.hpp"

using namespace zt;

template <class T> class TraceScaleTest : public ::testing::Test {};
TYPED_TEST_SUITE(TraceScaleTest, Precisions);

TYPED_TEST(TraceScaleTest, MulScalesTheFirstNValuesOnly) {
    using T = TypeParam;
    std::vector<T> d = {1, -2, T(0.5), 4, 8};
    api::trace_mul(T(-3), d.data(), 3);
    api::trace_mul(T(7), d.data(), -4);
    api::trace_mul(T(2), static_cast<T*>(nullptr), 5);
    EXPECT_EQ(d, (std::vector<T>{-3, 6, T(-1.5), 4, 8}));
}

// lo 0, hi 10 onto 0 .. 100: a factor of 10, the integer offset added before
// truncation. The float twin holds the factor in single precision: 1e7 / 3
// becomes 3333333.25, and 10 * that truncates one lower than in double. With
// nothing to store the answer is the span, wrapping in 32 bits.
TYPED_TEST(TraceScaleTest, ScaleToIntTruncatesTowardZeroWithoutClamping) {
    using T = TypeParam;
    const std::vector<T> src = {T(0.49), T(-0.49), T(5), T(20), T(-7.25), T(1e9), std::nanf(""), T(10)};
    std::vector<int> dst(10, 12345);
    EXPECT_EQ(api::scale_to_int(src.data(), 7, T(0), T(10), dst.data(), 0, 100), INT_MIN);
    EXPECT_EQ(api::scale_to_int(src.data() + 2, 1, T(0), T(10), &dst[7], -1000, -900), -950);
    api::scale_to_int(&src[7], 1, T(0), T(3), &dst[8], 0, 10000000);
    const int tenth = sizeof(T) == 4 ? 33333332 : 33333333;
    EXPECT_EQ(dst, (std::vector<int>{4, -4, 50, 200, -72, INT_MIN, INT_MIN, -950, tenth, 12345}));
    const T* none = nullptr;
    EXPECT_EQ(std::tuple(api::scale_to_int(src.data(), 0, T(0), T(1), &dst[9], 3, 10),
                         api::scale_to_int(src.data(), 0, T(0), T(1), &dst[9], -2, INT_MAX),
                         api::scale_to_int(none, 4, T(0), T(1), &dst[9], 0, 5),
                         api::scale_to_int(src.data(), 1, T(0), T(1), nullptr, 0, 5)), std::tuple(7, -INT_MAX, 5, 5));
    EXPECT_EQ(dst[9], 12345);
}

// Both scalings against the plain formulas on random traces; ScaleToFP in place.
TYPED_TEST(TraceScaleTest, ScalingsMatchReferenceOnRandomTraces) {
    using T = TypeParam;
    const auto src = random_scalars<T>(500, 11, -3.0, 5.0);
    const T lo = T(-1.5), hi = T(2.25);
    const int imin = -2000, imax = 30000, n = int(src.size());
    std::vector<int> dst(src.size());
    api::scale_to_int(src.data(), n, lo, hi, dst.data(), imin, imax);
    const ref::ld scale = static_cast<T>(static_cast<double>(imax - imin) / (static_cast<double>(hi) - lo));
    for (int i = 0; i < n; ++i) {
        const ref::ld v = (ref::ld(src[i]) - lo) * scale + imin;
        if (std::fabs(v - std::round(v)) < 1e-6L) continue;  // too close to an integer to decide
        EXPECT_EQ(dst[i], static_cast<int>(std::trunc(v))) << "at " << i;
    }
    std::vector<T> out(src.size()), in_place = src;
    std::vector<ref::ld> want(src.size());
    api::scale_to_fp(src.data(), n, T(-3), T(5), out.data(), T(3), T(-7));
    api::scale_to_fp(in_place.data(), n, T(-3), T(5), in_place.data(), T(3), T(-7));
    for (int i = 0; i < n; ++i) want[i] = (ref::ld(src[i]) + 3) * (-10.0L / 8) + 3;
    EXPECT_TRUE(near_all(out, want, tol<T>(8) * 10));
    EXPECT_EQ(in_place, out);
}
