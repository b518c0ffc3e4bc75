#include "support/vectors.hpp"

#include <cstdint>

using namespace zt;

template <class T> class AlignmentTest : public ::testing::Test {};
TYPED_TEST_SUITE(AlignmentTest, Precisions);

// Storage the library allocates itself starts on a 64-byte boundary, also
// after growth that keeps the contents, and the contents survive the move.
TYPED_TEST(AlignmentTest, OwnedStorageStartsOnA64ByteBoundaryAndKeepsContents) {
#if defined(_WIN32)
    GTEST_SKIP() << "the Windows C library has no free()-compatible aligned allocation";
#else
    using T = TypeParam;
    auto aligned = [](const void* p) { return reinterpret_cast<std::uintptr_t>(p) % 64 == 0; };
    Owned<T> v;
    for (int n : {1, 3, 100, 1000, 70000, 300000}) {
        const int old = v.v.points;
        v.v.points = n;
        ASSERT_EQ(api::realloc(v.get(), old, 0), 0);
        EXPECT_TRUE(aligned(v.v.data)) << n;
        for (int i = old; i < n; ++i) v.v.data[i] = static_cast<T>(i % 251);
        for (int i = 0; i < n; ++i) ASSERT_EQ(v.v.data[i], static_cast<T>(i % 251)) << n;
    }
    Owned<T> w;
    for (int n : {5, 4097, 200000}) {
        w.v.points = n;
        ASSERT_EQ(api::alloc(w.get()), 0);
        EXPECT_TRUE(aligned(w.v.data)) << n;
    }
#endif
}
