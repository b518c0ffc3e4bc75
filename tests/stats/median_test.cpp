// Median: the ordering of complex samples, and the temporary copy going
// through the allocation hooks.
#include <cstring>

#include "support/stats_fixture.hpp"

using namespace zt;

template <class T> class StatsMedian : public StatsFixture<T> {};
TYPED_TEST_SUITE(StatsMedian, Precisions);

// Complex samples sort by squared magnitude, then real part, then imaginary part.
TYPED_TEST(StatsMedian, ComplexSamplesOrderByMagnitudeThenParts) {
    this->check({
        {api::median, {1, 0, 9, 9, 0, -2}, true, {0, -2}},
        {api::median, {3, 4, -5, 0, 0, 5, 4, 3}, true, {1.5, 4.5}},  // |z|² 25: (-5,0) (0,5) (3,4) (4,3)
        {api::median, {2, 1, 2, -1, 0, 0}, true, {2, -1}},           // (2,-1) before (2,1)
    });
}

// The temporary goes through the hooks; when it cannot be had the call gives
// -1 and leaves the output as it was.
TYPED_TEST(StatsMedian, TemporaryGoesThroughTheHooks) {
    using T = TypeParam;
    Owned<T> in(std::vector<T>{T(4), T(1), T(3)}), out(std::vector<T>{T(8)});
    const Vec<T> before = out.v;
    {
        BlockHooks<T> refuse(true);
        EXPECT_EQ(api::median(in.get(), out.get()), -1);
    }
    EXPECT_EQ(std::memcmp(&before, &out.v, sizeof before), 0);
    EXPECT_EQ(out->data[0], T(8));
    {
        BlockHooks<T> hooks(false);
        ASSERT_EQ(api::median(in.get(), out.get()), 0);
        EXPECT_EQ(BlockHooks<T>::allocs, 1);  // the temporary; the output had room
        EXPECT_EQ(BlockHooks<T>::frees, 1);
    }
    EXPECT_EQ(out.scalars(), std::vector<T>({T(3)}));
}
