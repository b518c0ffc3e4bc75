#include "support/api_trace.hpp"
#include "support/trace_ref.hpp"

using namespace zt;

template <class T> class TraceExtremaTest : public ::testing::Test {};
TYPED_TEST_SUITE(TraceExtremaTest, Precisions);

// What the random ranges do not reach: empty and reversed ranges, values at
// the top of the range, null data, negative starts. FindMin never reads
// data[start], and the band searches never read a start inside the band, so a
// negative start there still searches the array; e is exactly as long as the
// trace, so a read before it shows under ASan.
TYPED_TEST(TraceExtremaTest, HandCasesOnEmptyRangesNullDataAndNegativeStarts) {
    using T = TypeParam;
    const T big = std::numeric_limits<T>::max(), inf = std::numeric_limits<T>::infinity();
    const std::vector<T> c = {2, 7, 7}, d = {-1, big, inf}, e = {5, 1, 2, T(0.5), 7, 3, 9, -1};
    enum { Max, Min, Max2, Min2 };
    struct Case { int kind; const T* data; int start, stop, from, to, want; };
    const Case cases[] = {
        {Max, c.data(), 2, 2, 0, 0, 2}, {Max, c.data(), 2, 0, 0, 0, 2}, {Min, c.data(), 2, 0, 0, 0, 2},  // reversed: start
        {Max2, c.data(), 2, 2, 0, 1, 2},     // empty range outside the band
        {Min, d.data(), 0, 3, 0, 0, 0},      // nothing below the largest finite value after start
        {Max, nullptr, 0, 3, 0, 0, -1}, {Min, nullptr, 0, 3, 0, 0, -1}, {Max2, nullptr, 0, 3, 1, 2, -1},
        {Min, e.data(), -1, 4, 0, 0, 3},     // smallest of 5, 1, 2, 0.5
        {Min, e.data(), -1, 1, 0, 0, 0},     // 5 is below the largest finite value
        {Min, e.data(), -1, 0, 0, 0, -1},    // nothing after start: start
        {Min, e.data(), -2, 4, 0, 0, -1},    // would read data[-1]
        {Max2, e.data(), -3, 8, -5, 2, 6}, {Min2, e.data(), -3, 8, -5, 2, 7},  // begin at data[2]
        {Max2, e.data(), -3, 5, -5, 0, 4}, {Min2, e.data(), -3, 5, -5, 0, 3},  // begin at data[0]
        {Max2, e.data(), -3, 8, -5, -1, -1},  // would begin at data[-1]
        {Min2, e.data(), -1, 8, 0, 3, -1},    // start outside the band
    };
    for (const Case& k : cases) {
        const int got = k.kind == Max    ? api::find_max(k.data, k.start, k.stop)
                        : k.kind == Min  ? api::find_min(k.data, k.start, k.stop)
                        : k.kind == Max2 ? api::find_max2(k.data, k.start, k.stop, k.from, k.to)
                                         : api::find_min2(k.data, k.start, k.stop, k.from, k.to);
        EXPECT_EQ(got, k.want) << k.kind << ": " << k.start << " " << k.stop << " " << k.from << " " << k.to;
    }
}

TYPED_TEST(TraceExtremaTest, SearchesMatchReferenceOnRandomRangesAndBands) {
    using T = TypeParam;
    auto data = random_scalars<T>(64, 3, -6.0, 6.0);
    for (auto& x : data) x = std::floor(x);  // small integers, so that equal extremes are common
    std::mt19937 gen(17);
    std::uniform_int_distribution<int> pos(0, 63);
    for (int trial = 0; trial < 2000; ++trial) {
        const int start = pos(gen), stop = pos(gen) + 1, from = pos(gen), to = pos(gen) + 1;
        if (stop <= start) continue;
        SCOPED_TRACE(::testing::Message() << start << " " << stop << " " << from << " " << to);
        EXPECT_EQ(api::find_max(data.data(), start, stop), ref::first_extreme(data, start, stop, 0, 0, true));
        const int m = ref::first_extreme(data, start + 1, stop, 0, 0, false);
        EXPECT_EQ(api::find_min(data.data(), start, stop), m < 0 ? start : m);
        int imax = -9, imin = -9;
        EXPECT_EQ(api::find_min_max(data.data(), start, stop, &imax, &imin), 1);
        EXPECT_EQ(std::tuple(imax, imin), std::tuple(ref::first_extreme(data, start, stop, 0, 0, true), ref::first_extreme(data, start, stop, 0, 0, false)));
        // The band searches look at exactly the indices outside the band.
        EXPECT_EQ(api::find_max2(data.data(), start, stop, from, to), ref::first_extreme(data, start, stop, from, to, true));
        EXPECT_EQ(api::find_min2(data.data(), start, stop, from, to), ref::first_extreme(data, start, stop, from, to, false));
    }
}

// A missing output or data, or a reversed range, answers 0 with nothing
// written. A range of at most one value answers start for both, even a
// negative one; more values from a negative start would read before the array.
TYPED_TEST(TraceExtremaTest, MinMaxArgumentChecks) {
    using T = TypeParam;
    const std::vector<T> d = {4, 2, 6};
    struct Case { const T* data; int start, stop, missing, status, index; };  // missing: 1 the max output, 2 the min output
    const Case cases[] = {{d.data(), 2, 1, 0, 0, -9},  {d.data(), 0, 3, 1, 0, -9},  {d.data(), 0, 3, 2, 0, -9},
                          {nullptr, 0, 3, 0, 0, -9},   {d.data(), -1, -1, 0, 1, -1}, {d.data(), -1, 0, 0, 1, -1},
                          {d.data(), -7, -6, 0, 1, -7}, {d.data(), 1, 2, 0, 1, 1},   {d.data(), 2, 2, 0, 1, 2},
                          {d.data(), -1, 2, 0, 0, -9}};
    for (const Case& c : cases) {
        int imax = -9, imin = -9;
        EXPECT_EQ(api::find_min_max(c.data, c.start, c.stop, c.missing == 1 ? nullptr : &imax, c.missing == 2 ? nullptr : &imin), c.status);
        EXPECT_EQ(std::tuple(imax, imin), std::tuple(c.index, c.index)) << c.start << " " << c.stop << " " << c.missing;
    }
}
