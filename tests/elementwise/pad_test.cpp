#include <climits>

#include "support/api_binary.hpp"
#include "support/binary_ref.hpp"

using namespace zt;

namespace {

template <class T> class PadTest : public ::testing::Test {};
TYPED_TEST_SUITE(PadTest, Precisions);

// zpad is zpad2 at the front without scaling (flags 0x002 below). A length not
// above the current one changes nothing, not even the block; zero clears the
// samples and keeps the shape.
TYPED_TEST(PadTest, ShorterPaddingChangesNothingAndZeroKeepsTheShape) {
    using T = TypeParam;
    for (bool complex : {false, true}) {
        const auto s = random_scalars<T>(10, 3, 1, 2);
        Owned<T> v(s, complex, T(0.25));
        T* block = v->data;
        const int m = v->points;
        EXPECT_EQ(std::tuple(api::zpad(v.get(), -1), api::zpad(v.get(), m / 2), api::zpad(v.get(), m)), std::tuple(0, 0, 0));
        EXPECT_EQ(std::tuple(v.scalars(), v->data), std::tuple(s, block));
        ASSERT_EQ(api::zero(v.get()), 0);
        EXPECT_EQ(std::tuple(v.scalars(), shape(v.v)), std::tuple(std::vector<T>(10, T(0)), std::tuple(m, complex ? 1 : 0, T(0.25))));
    }
}

// Every placement and scaling for odd and even lengths, against a plain
// placement; then unzpad returns the original samples. From no samples zpad2
// gives zeros; a length not above the current one changes nothing.
TYPED_TEST(PadTest, Zpad2PlacesAndScalesAndUnzpadUndoesIt) {
    using T = TypeParam;
    for (int w : {1, 2}) {
        for (auto [m, n] : {std::pair<int, int>{5, 8}, {4, 8}, {5, 9}, {4, 9}, {1, 2}, {2, 3}, {6, 7}, {0, 4}, {3, 3}}) {
            for (int place = 0; place < 0x400; place += 0x100) {
                for (int flags = place; flags < place + 3; ++flags) {
                    SCOPED_TRACE(::testing::Message() << m << " <-> " << n << " flags " << std::hex << flags);
                    const auto s = random_scalars<T>(static_cast<std::size_t>(m) * w, m * 31 + n, 1, 2);
                    Owned<T> v(s, w == 2);
                    ASSERT_EQ(api::zpad2(v.get(), n, flags), 0);
                    const long double ratio = m ? static_cast<long double>(n) / m : 1, scaling = flags & 3;
                    const long double f = scaling == 0 ? ratio : scaling == 1 ? std::sqrt(ratio) : 1;
                    EXPECT_TRUE(near_samples(samples(v.scalars(), w == 2), padded(samples(s, w == 2), n, place, f), tol<T>(2)));
                    ASSERT_EQ(api::unzpad(v.get(), m, flags), 0);
                    EXPECT_TRUE(near_all(v.scalars(), s, tol<T>(4)));
                }
            }
        }
    }
}

// Bad flags: zpad2 refuses after the growth (new length, zeros after the old
// samples); unzpad refuses before touching anything, as for a negative length.
// Neither decodes the flags when the length does not change.
TYPED_TEST(PadTest, BadFlagsAndUncountableGrowth) {
    using T = TypeParam;
    for (int flags : {0x3, 0x400, 0x700, 0x103}) {
        Owned<T> v({1, 2, 3});
        EXPECT_EQ(api::zpad2(v.get(), 3, flags), 0);  // not longer: nothing decoded
        EXPECT_EQ(api::zpad2(v.get(), 5, flags), -1);
        EXPECT_EQ(api::unzpad(v.get(), 5, flags), 0);
        EXPECT_EQ(api::unzpad(v.get(), 2, flags), -1);
        EXPECT_EQ(api::unzpad(v.get(), -1, 0), -1);
        EXPECT_EQ(v.scalars(), (std::vector<T>{1, 2, 3, 0, 0}));
    }
    // A length whose scalars cannot be counted in 32 bits fails like a failed
    // allocation: no storage is left in the record (the old block is dropped, not
    // freed), so later calls refuse the record instead of reading past its block.
    for (int flags : {-1, 0x000, 0x300}) {
        Owned<T> v({1, 2, 3, 4}, true);
        T* block = v->data;
        const int n = INT_MAX / 2 + 1;  // 2n scalars overflow the 32-bit capacity
        EXPECT_EQ(flags < 0 ? api::zpad(v.get(), n) : api::zpad2(v.get(), n, flags), -1);
        EXPECT_EQ(std::tuple(v->points, v->data, v->alloc), std::tuple(n, nullptr, 0));
        EXPECT_EQ(std::tuple(api::rev(v.get()), api::zero(v.get())), std::tuple(-1, -1));
        std::free(block);
    }
}

}  // namespace
