#include "support/records.hpp"
#include "support/window_ref.hpp"

using namespace zt;

template <class T> class WindowCacheTest : public ::testing::Test {};
TYPED_TEST_SUITE(WindowCacheTest, Precisions);

// Windows seen through counting hooks: a miss allocates the slot's storage
// (lengths grow, so every generation needs a new block), a hit allocates nothing.
TYPED_TEST(WindowCacheTest, HitsReplacesCyclicallyAndReleases) {
    using T = TypeParam;
    using H = CountingHooks<T>;
    const auto hann = ref::catalogue()[2];
    Owned<T> v(std::vector<T>(40, T(1)));   // room for every length: only windows allocate below
    ASSERT_EQ(api::free_internal<Vec<T>>(), 0);
    typename H::Installed hooks;
    auto request = [&](int n) {   // windows n ones; returns the blocks allocated
        v.set(std::vector<T>(n, T(1)));
        const int before = H::allocs;
        EXPECT_EQ(api::window(v.get(), 2, 1 | 32), 0);
        EXPECT_TRUE(near_all(v.scalars(), ref::window(hann, n, 1), tol<T>(64))) << n;
        return H::allocs - before;
    };
    for (int n = 8; n <= 24; ++n) EXPECT_EQ(request(n), 1) << n;   // 17 misses: the last one takes slot 0
    for (int n = 24; n >= 9; --n) EXPECT_EQ(request(n), 0) << n;   // slots 1 .. 15 and the new slot 0 hit
    EXPECT_EQ(request(25), 1);                                     // the next miss replaces slot 1 (9 points)
    for (int n = 10; n <= 25; ++n) EXPECT_EQ(request(n), 0) << n;
    EXPECT_EQ(H::live, 16);
    EXPECT_EQ(api::free_internal<Vec<T>>(), 0);
    EXPECT_EQ(H::live, 0);
    EXPECT_EQ(request(9), 1);                                      // rebuilt after the release
    v.set(std::vector<T>(30, T(1)));
    H::fail_at = H::calls + 1;                                     // the next generation fails ...
    EXPECT_EQ(api::window(v.get(), 2, 1), -1);
    EXPECT_EQ(v.scalars(), std::vector<T>(30, T(1)));
    EXPECT_EQ(request(30), 1);                                     // ... and leaves no window under its key
    H::fail_at = H::calls + 1;                                     // so does the temporary of a parametrised window
    EXPECT_EQ(api::window_shape<T>(v.get(), 'k', T(5), T(0), 0), -1);
    EXPECT_EQ(api::free_internal<Vec<T>>(), 0);
    EXPECT_EQ(H::live, 0);
}
