#include <limits>

#include "support/api_trace.hpp"
#include "support/trace_ref.hpp"

using namespace zt;

template <class T> class TraceAxisTest : public ::testing::Test {};
TYPED_TEST_SUITE(TraceAxisTest, Precisions);

// Short axes, counts and refusals; the log axis needs positive ends and points.
TYPED_TEST(TraceAxisTest, AxesMatchReferenceCountsAndRefusals) {
    using T = TypeParam;
    const T u = -99, nan = std::numeric_limits<T>::quiet_NaN();
    struct Case { bool log; int n; T first, last; int count; std::vector<T> after; };
    const Case cases[] = {
        {false, 0, 1, 2, 0, {u, u, u}}, {false, -3, 1, 2, -3, {u, u, u}}, {false, 1, 1, 2, 1, {1, u, u}},
        {false, 2, 5, 3, 1, {5, 3, u}}, {false, 3, -1, 2, 2, {-1, T(0.5), 2}}, {true, 3, 0, 10, 0, {u, u, u}},
        {true, 3, 10, -1, 0, {u, u, u}}, {true, 3, nan, 10, 0, {u, u, u}}, {true, 0, 1, 10, 0, {u, u, u}},
        {true, 1, 2, 10, 0, {2, u, u}}, {true, 2, 2, 10, 0, {2, 10, u}},
    };
    for (const Case& c : cases) {
        std::vector<T> d(3, u);
        if (c.log) api::expand_log(d.data(), c.n, c.first, c.last);
        else EXPECT_EQ(api::expand_linear(d.data(), c.n, c.first, c.last), c.count);
        EXPECT_EQ(d, c.after) << c.log << " " << c.n;
    }
    EXPECT_EQ(api::expand_linear(static_cast<T*>(nullptr), 4, T(0), T(1)), 0);
    api::expand_log(static_cast<T*>(nullptr), 3, T(1), T(10));
    // Relative error of the log axis' 10^x grows with |x| (here up to 10); its
    // ends are exact, as is the linear axis' last point. The log axis descends.
    for (bool log : {false, true}) {
        const int n = log ? 61 : 1001;
        const T first = log ? T(8.5e9) : T(1.0e6), last = log ? T(300e3) : T(3.5e9);
        std::vector<T> d(n);
        std::vector<ref::ld> want(n);
        log ? api::expand_log(d.data(), n, first, last) : void(api::expand_linear(d.data(), n, first, last));
        for (int i = 0; i < n; ++i)
            want[i] = log ? first * std::pow(ref::ld(last) / first, ref::ld(i) / (n - 1)) : first + (ref::ld(last) - first) * i / (n - 1);
        EXPECT_TRUE(near_all(d, want, (log ? 10 * std::log(10.0) : 1) * tol<T>(2))) << log;
        EXPECT_EQ(std::tuple(d.front(), d.back()), std::tuple(first, last)) << log;
    }
}
