#include "support/api_trace.hpp"
#include "support/trace_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

template <class T> class TraceExtremaTest : public ::testing::Test {};
TYPED_TEST_SUITE(TraceExtremaTest, Precisions);

// Small integers, so that equal extremes are common.
template <class T> std::vector<T> coarse_trace(std::size_t n, unsigned seed) {
    auto v = random_scalars<T>(n, seed, -6.0, 6.0);
    for (auto& x : v) x = std::floor(x);
    return v;
}

// What the random ranges do not reach: empty and reversed ranges, values at
// the top of the range, null data.
TYPED_TEST(TraceExtremaTest, SingleSearchesOnEmptyRangesAndNullData) {
    using T = TypeParam;
    const T big = std::numeric_limits<T>::max(), inf = std::numeric_limits<T>::infinity();
    const std::vector<T> c = {2, 7, 7}, d = {-1, big, inf};
    EXPECT_EQ(api::find_max(c.data(), 2, 2), 2);
    EXPECT_EQ(api::find_max(c.data(), 2, 0), 2);  // reversed: start
    EXPECT_EQ(api::find_min(c.data(), 2, 0), 2);
    EXPECT_EQ(api::find_max2(c.data(), 2, 2, 0, 1), 2);  // empty range outside the band
    EXPECT_EQ(api::find_min(d.data(), 0, 3), 0);  // nothing below the largest finite value after start
    EXPECT_EQ(api::find_max(static_cast<const T*>(nullptr), 0, 3), -1);
    EXPECT_EQ(api::find_min(static_cast<const T*>(nullptr), 0, 3), -1);
    EXPECT_EQ(api::find_max2(static_cast<const T*>(nullptr), 0, 3, 1, 2), -1);
}

TYPED_TEST(TraceExtremaTest, SearchesMatchReferenceOnRandomRangesAndBands) {
    using T = TypeParam;
    const auto data = coarse_trace<T>(64, 3);
    std::mt19937 gen(17);
    std::uniform_int_distribution<int> pos(0, 63);
    for (int trial = 0; trial < 2000; ++trial) {
        const int start = pos(gen), stop = pos(gen) + 1, from = pos(gen), to = pos(gen) + 1;
        if (stop <= start) continue;
        const auto all = ref::indices_outside(start, stop, 0, 0);
        const auto after_start = ref::indices_outside(start + 1, stop, 0, 0);
        SCOPED_TRACE(::testing::Message() << start << " " << stop << " " << from << " " << to);
        EXPECT_EQ(api::find_max(data.data(), start, stop), ref::first_extreme(data, all, true));
        const int m = ref::first_extreme(data, after_start, false);
        EXPECT_EQ(api::find_min(data.data(), start, stop), m < 0 ? start : m);
        int imax = -9, imin = -9;
        EXPECT_EQ(api::find_min_max(data.data(), start, stop, &imax, &imin), 1);
        EXPECT_EQ(imax, ref::first_extreme(data, all, true));
        EXPECT_EQ(imin, ref::first_extreme(data, all, false));
        // The band searches look at exactly the indices outside the band.
        const auto kept = ref::indices_outside(start, stop, from, to);
        EXPECT_EQ(api::find_max2(data.data(), start, stop, from, to), ref::first_extreme(data, kept, true));
        EXPECT_EQ(api::find_min2(data.data(), start, stop, from, to), ref::first_extreme(data, kept, false));
    }
}

// FindMin never reads data[start], and a start inside the band is never read
// either: a negative start there still searches the array. The vector is
// exactly as long as the trace, so a read before it shows under ASan.
TYPED_TEST(TraceExtremaTest, SearchesThatSkipStartAcceptANegativeStart) {
    using T = TypeParam;
    const std::vector<T> d = {5, 1, 2, T(0.5), 7, 3, 9, -1};
    EXPECT_EQ(api::find_min(d.data(), -1, 4), 3);  // smallest of 5, 1, 2, 0.5
    EXPECT_EQ(api::find_min(d.data(), -1, 1), 0);  // 5 is below the largest finite value
    EXPECT_EQ(api::find_min(d.data(), -1, 0), -1); // nothing after start: start
    EXPECT_EQ(api::find_min(d.data(), -2, 4), -1); // would read data[-1]
    EXPECT_EQ(api::find_max2(d.data(), -3, 8, -5, 2), 6);  // begins at data[2]
    EXPECT_EQ(api::find_min2(d.data(), -3, 8, -5, 2), 7);
    EXPECT_EQ(api::find_max2(d.data(), -3, 5, -5, 0), 4);  // begins at data[0]
    EXPECT_EQ(api::find_min2(d.data(), -3, 5, -5, 0), 3);
    EXPECT_EQ(api::find_max2(d.data(), -3, 8, -5, -1), -1);  // would begin at data[-1]
    EXPECT_EQ(api::find_min2(d.data(), -1, 8, 0, 3), -1);    // start outside the band
}

TYPED_TEST(TraceExtremaTest, MinMaxArgumentChecks) {
    using T = TypeParam;
    const std::vector<T> d = {4, 2, 6};
    int imax = -9, imin = -9;
    EXPECT_EQ(api::find_min_max(d.data(), 2, 1, &imax, &imin), 0);
    EXPECT_EQ(api::find_min_max(d.data(), 0, 3, nullptr, &imin), 0);
    EXPECT_EQ(api::find_min_max(d.data(), 0, 3, &imax, nullptr), 0);
    EXPECT_EQ(api::find_min_max(static_cast<const T*>(nullptr), 0, 3, &imax, &imin), 0);
    EXPECT_EQ(imax + imin, -18);
    // A range of at most one value answers start for both, even a negative one;
    // more values from a negative start would read before the array.
    for (auto [start, stop] : {std::pair{-1, -1}, {-1, 0}, {-7, -6}, {1, 2}, {2, 2}}) {
        imax = imin = -9;
        EXPECT_EQ(api::find_min_max(d.data(), start, stop, &imax, &imin), 1) << start;
        EXPECT_EQ(imax, start);
        EXPECT_EQ(imin, start);
    }
    imax = imin = -9;
    EXPECT_EQ(api::find_min_max(d.data(), -1, 2, &imax, &imin), 0);
    EXPECT_EQ(imax + imin, -18);
}
