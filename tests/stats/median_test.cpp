// Median: the ordering of complex samples, and the temporary copy going
// through the allocation hooks.
#include <cstring>

#include "support/stats_fixture.hpp"

using namespace zt;

template <class T> class StatsMedian : public StatsFixture<T> {};
TYPED_TEST_SUITE(StatsMedian, Precisions);

TYPED_TEST(StatsMedian, ComplexSamplesOrderByMagnitudeThenParts) {
    using T = TypeParam;
    // Complex: by squared magnitude, then real part, then imaginary part.
    EXPECT_EQ(this->run(api::median, {T(1), T(0), T(9), T(9), T(0), T(-2)}, true), std::vector<T>({T(0), T(-2)}));
    // Four samples of |z|² 25 ordered by real part: (-5,0) (0,5) (3,4) (4,3).
    EXPECT_EQ(this->run(api::median, {T(3), T(4), T(-5), T(0), T(0), T(5), T(4), T(3)}, true), std::vector<T>({T(1.5), T(4.5)}));
    // Equal magnitude and real part: by imaginary part, (2,-1) before (2,1).
    EXPECT_EQ(this->run(api::median, {T(2), T(1), T(2), T(-1), T(0), T(0)}, true), std::vector<T>({T(2), T(-1)}));
}

TYPED_TEST(StatsMedian, TemporaryIsReleasedThroughTheHooks) {
    using T = TypeParam;
    Owned<T> in(std::vector<T>{T(4), T(1), T(3)}), out(std::vector<T>{T(0)});
    {
        BlockHooks<T> hooks(false);
        ASSERT_EQ(api::median(in.get(), out.get()), 0);
        EXPECT_EQ(BlockHooks<T>::allocs, 1);   // the temporary; the output had room
        EXPECT_EQ(BlockHooks<T>::frees, 1);
    }
    EXPECT_EQ(out.scalars(), std::vector<T>({T(3)}));
}

TYPED_TEST(StatsMedian, FailedTemporaryGivesMinusOneAndLeavesTheOutput) {
    using T = TypeParam;
    Owned<T> in(std::vector<T>{T(4), T(1), T(3)}), out(std::vector<T>{T(8)});
    const Vec<T> before = out.v;
    BlockHooks<T> hooks(true);
    EXPECT_EQ(api::median(in.get(), out.get()), -1);
    EXPECT_EQ(std::memcmp(&before, &out.v, sizeof before), 0);
    EXPECT_EQ(out->data[0], T(8));
}
