#include "support/api_trace.hpp"
#include "support/trace_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

template <class T> class TraceAxisTest : public ::testing::Test {};
TYPED_TEST_SUITE(TraceAxisTest, Precisions);

TYPED_TEST(TraceAxisTest, LinearAxisCountsAndShortAxes) {
    using T = TypeParam;
    std::vector<T> d(4, T(-99));
    EXPECT_EQ(api::expand_linear(d.data(), 0, T(1), T(2)), 0);
    EXPECT_EQ(api::expand_linear(d.data(), -3, T(1), T(2)), -3);
    EXPECT_EQ(d, std::vector<T>(4, T(-99)));
    EXPECT_EQ(api::expand_linear(d.data(), 1, T(1), T(2)), 1);
    EXPECT_EQ(d, (std::vector<T>{1, -99, -99, -99}));
    EXPECT_EQ(api::expand_linear(d.data(), 2, T(5), T(3)), 1);
    EXPECT_EQ(d, (std::vector<T>{5, 3, -99, -99}));
    EXPECT_EQ(api::expand_linear(d.data(), 4, T(-1), T(2)), 3);
    EXPECT_EQ(d, (std::vector<T>{-1, 0, 1, 2}));
    EXPECT_EQ(api::expand_linear(static_cast<T*>(nullptr), 4, T(0), T(1)), 0);
}

// Relative error of the log axis' 10^x grows with |x| (here up to 10); its
// ends are exact, as is the linear axis' last point.
TYPED_TEST(TraceAxisTest, AxesMatchReferenceWithExactEnds) {
    using T = TypeParam;
    for (bool log : {false, true}) {
        const int n = log ? 61 : 1001;
        const T first = log ? T(300e3) : T(1.0e6), last = log ? T(8.5e9) : T(3.5e9);
        std::vector<T> d(n);
        std::vector<ref::ld> want(n);
        if (log) api::expand_log(d.data(), n, first, last);
        else api::expand_linear(d.data(), n, first, last);
        for (int i = 0; i < n; ++i)
            want[i] = log ? first * std::pow(ref::ld(last) / first, ref::ld(i) / (n - 1))
                          : first + (ref::ld(last) - first) * i / (n - 1);
        EXPECT_TRUE(near_all(d, want, (log ? 10 * std::log(10.0) : 1) * tol<T>(2))) << log;
        if (log) EXPECT_EQ(d.front(), first);
        EXPECT_EQ(d.back(), last) << log;
    }
    // Descending decades.
    std::vector<T> dec(5);
    api::expand_log(dec.data(), 5, T(1e4), T(1));
    EXPECT_TRUE(near_all(dec, std::vector<double>{1e4, 1e3, 1e2, 1e1, 1}, tol<T>(40)));
}

TYPED_TEST(TraceAxisTest, LogAxisNeedsPositiveEndsAndPoints) {
    using T = TypeParam;
    std::vector<T> d(3, T(-99));
    api::expand_log(d.data(), 3, T(0), T(10));
    api::expand_log(d.data(), 3, T(10), T(-1));
    api::expand_log(d.data(), 3, T(std::nan("")), T(10));
    api::expand_log(d.data(), 0, T(1), T(10));
    api::expand_log(static_cast<T*>(nullptr), 3, T(1), T(10));
    EXPECT_EQ(d, std::vector<T>(3, T(-99)));
    api::expand_log(d.data(), 1, T(2), T(10));
    EXPECT_EQ(d, (std::vector<T>{2, -99, -99}));
    api::expand_log(d.data(), 2, T(2), T(10));
    EXPECT_EQ(d, (std::vector<T>{2, 10, -99}));
}
