#include <climits>

#include "support/api_trace.hpp"
#include "support/trace_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

template <class T> class TraceScaleTest : public ::testing::Test {};
TYPED_TEST_SUITE(TraceScaleTest, Precisions);

TYPED_TEST(TraceScaleTest, MulScalesTheFirstNValuesOnly) {
    using T = TypeParam;
    std::vector<T> d = {1, -2, T(0.5), 4, 8};
    api::trace_mul(T(-3), d.data(), 3);
    EXPECT_EQ(d, (std::vector<T>{-3, 6, T(-1.5), 4, 8}));
    for (int n : {0, -4}) {
        api::trace_mul(T(7), d.data(), n);
        EXPECT_EQ(d, (std::vector<T>{-3, 6, T(-1.5), 4, 8}));
    }
    api::trace_mul(T(2), static_cast<T*>(nullptr), 5);
}

TYPED_TEST(TraceScaleTest, ScaleToIntTruncatesTowardZeroWithoutClamping) {
    using T = TypeParam;
    // lo 0, hi 10 onto 0 .. 100: a factor of 10.
    const std::vector<T> src = {T(0.49), T(-0.49), T(5), T(20), T(-7.25), T(1e9), std::nanf("")};
    std::vector<int> dst(src.size(), 12345);
    const int last = api::scale_to_int(src.data(), int(src.size()), T(0), T(10), dst.data(), 0, 100);
    EXPECT_EQ(dst, (std::vector<int>{4, -4, 50, 200, -72, INT_MIN, INT_MIN}));
    EXPECT_EQ(last, INT_MIN);
    // The integer offset is added before truncation.
    std::vector<int> one(1);
    EXPECT_EQ(api::scale_to_int(src.data() + 2, 1, T(0), T(10), one.data(), -1000, -900), -950);
}

TYPED_TEST(TraceScaleTest, ScaleToIntWithNothingToStoreAnswersTheSpan) {
    using T = TypeParam;
    const T x = 1;
    int dst = 77;
    EXPECT_EQ(api::scale_to_int(&x, 0, T(0), T(1), &dst, 3, 10), 7);
    EXPECT_EQ(api::scale_to_int(&x, -2, T(0), T(1), &dst, 10, 3), -7);
    EXPECT_EQ(api::scale_to_int(&x, 0, T(0), T(1), &dst, -2, INT_MAX), -INT_MAX);  // the span wraps
    EXPECT_EQ(dst, 77);
    EXPECT_EQ(api::scale_to_int(static_cast<const T*>(nullptr), 4, T(0), T(1), &dst, 0, 5), 5);
    EXPECT_EQ(api::scale_to_int(&x, 1, T(0), T(1), nullptr, 0, 5), 5);
}

// The float twin holds the factor in single precision: 1e7 / 3 becomes
// 3333333.25, and 10 * that truncates one lower than in double.
TYPED_TEST(TraceScaleTest, ScaleToIntFactorHasTheElementPrecision) {
    using T = TypeParam;
    const T x = 10;
    int dst = 0;
    api::scale_to_int(&x, 1, T(0), T(3), &dst, 0, 10000000);
    const int want = std::is_same_v<T, float> ? 33333332 : 33333333;
    EXPECT_EQ(dst, want);
}

TYPED_TEST(TraceScaleTest, ScaleToIntMatchesReferenceOnRandomTraces) {
    using T = TypeParam;
    const auto src = random_scalars<T>(500, 11, -3.0, 5.0);
    const T lo = T(-1.5), hi = T(2.25);
    const int imin = -2000, imax = 30000;
    std::vector<int> dst(src.size());
    api::scale_to_int(src.data(), int(src.size()), lo, hi, dst.data(), imin, imax);
    const ref::ld scale = static_cast<T>(static_cast<double>(imax - imin) / (static_cast<double>(hi) - lo));
    for (std::size_t i = 0; i < src.size(); ++i) {
        const ref::ld v = (ref::ld(src[i]) - lo) * scale + imin;
        if (std::fabs(v - std::round(v)) < 1e-6L) continue;  // too close to an integer to decide
        EXPECT_EQ(dst[i], static_cast<int>(std::trunc(v))) << "at " << i;
    }
}

TYPED_TEST(TraceScaleTest, ScaleToFpMapsRangesInPlaceAndOutOfPlace) {
    using T = TypeParam;
    const auto noise = random_scalars<T>(300, 5, -100.0, 100.0);
    std::vector<T> out(noise.size()), in_place = noise;
    api::scale_to_fp(noise.data(), int(noise.size()), T(-100), T(60), out.data(), T(3), T(-7));
    api::scale_to_fp(in_place.data(), int(noise.size()), T(-100), T(60), in_place.data(), T(3), T(-7));
    std::vector<ref::ld> want(noise.size());
    for (std::size_t i = 0; i < noise.size(); ++i) want[i] = (ref::ld(noise[i]) + 100) * (-10.0L / 160) + 3;
    EXPECT_TRUE(near_all(out, want, tol<T>(8) * 10));
    EXPECT_EQ(in_place, out);
}
