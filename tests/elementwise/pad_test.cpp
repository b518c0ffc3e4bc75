#include <climits>
#include <cstdlib>

#include "support/api_binary.hpp"
#include "support/binary_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

namespace {

template <class T> class PadTest : public ::testing::Test {};
TYPED_TEST_SUITE(PadTest, Precisions);

// zpad appends zeros and never shortens: a length not above the current one
// leaves the block where it is; zero clears the samples and keeps the shape.
TYPED_TEST(PadTest, ZpadAppendsZeroSamples) {
    using T = TypeParam;
    for (bool complex : {false, true}) {
        for (int m : {0, 1, 4, 5}) {
            for (int n : {-1, m / 2, m, m + 6}) {
                const int w = complex ? 2 : 1;
                const auto s = random_scalars<T>(static_cast<std::size_t>(m) * w, m + 1, 1, 2);
                Owned<T> v(s, complex, T(0.25));
                T* block = v->data;
                ASSERT_EQ(api::zpad(v.get(), n), 0);
                auto want = s;
                want.resize(static_cast<std::size_t>(std::max(m, n)) * w, T(0));
                EXPECT_EQ(std::tuple(v.scalars(), v->complex, v->delta), std::tuple(want, complex ? 1 : 0, T(0.25)));
                if (n <= m) EXPECT_EQ(v->data, block);
                ASSERT_EQ(api::zero(v.get()), 0);
                EXPECT_EQ(std::tuple(v.scalars(), v->points), std::tuple(std::vector<T>(want.size(), T(0)), std::max(m, n)));
            }
        }
    }
}

// Every placement and scaling for odd and even lengths, against a plain
// placement; then unzpad returns the original samples.
TYPED_TEST(PadTest, Zpad2PlacesAndScalesAndUnzpadUndoesIt) {
    using T = TypeParam;
    for (bool complex : {false, true}) {
        for (auto [m, n] : {std::pair<int, int>{5, 8}, {4, 8}, {5, 9}, {4, 9}, {1, 2}, {2, 3}, {6, 7}}) {
            for (int place : {0x000, 0x100, 0x200, 0x300}) {
                for (int scaling : {0, 1, 2}) {
                    const int w = complex ? 2 : 1;
                    const auto s = random_scalars<T>(static_cast<std::size_t>(m) * w, m * 31 + n, 1, 2);
                    Owned<T> v(s, complex);
                    ASSERT_EQ(api::zpad2(v.get(), n, place | scaling), 0);
                    const long double ratio = static_cast<long double>(n) / m;
                    const long double f = scaling == 0 ? ratio : scaling == 1 ? std::sqrt(ratio) : 1;
                    const auto want = scalars_of(padded(samples(s, complex), n, place, f), complex);
                    EXPECT_TRUE(near_all(v.scalars(), want, tol<T>(2)))
                        << m << " -> " << n << " flags " << std::hex << (place | scaling);
                    ASSERT_EQ(api::unzpad(v.get(), m, place | scaling), 0);
                    EXPECT_TRUE(near_all(v.scalars(), s, tol<T>(4))) << m << " <- " << n << " flags " << std::hex << (place | scaling);
                }
            }
        }
    }
}

TYPED_TEST(PadTest, Zpad2FromEmptyGivesZerosAndNeverShortens) {
    using T = TypeParam;
    Owned<T> e;
    ASSERT_EQ(api::zpad2(e.get(), 4, 0x100), 0);
    EXPECT_EQ(e.scalars(), std::vector<T>(4, T(0)));
    Owned<T> v({1, 2, 3});
    ASSERT_EQ(api::zpad2(v.get(), 3, 0x3), 0);  // not longer: nothing decoded, nothing changed
    ASSERT_EQ(api::unzpad(v.get(), 3, 0x3), 0);
    EXPECT_EQ(v.scalars(), (std::vector<T>{1, 2, 3}));
}

// Bad flags: zpad2 refuses after the growth (new length, zeros after the old
// samples); unzpad refuses before touching anything.
TYPED_TEST(PadTest, BadFlags) {
    using T = TypeParam;
    for (int flags : {0x3, 0x400, 0x700, 0x103}) {
        Owned<T> v({1, 2, 3});
        EXPECT_EQ(api::zpad2(v.get(), 5, flags), -1);
        EXPECT_EQ(v.scalars(), (std::vector<T>{1, 2, 3, 0, 0}));
        EXPECT_EQ(api::unzpad(v.get(), 2, flags), -1);
        EXPECT_EQ(v.scalars(), (std::vector<T>{1, 2, 3, 0, 0}));
    }
    Owned<T> v({1, 2, 3});
    EXPECT_EQ(api::unzpad(v.get(), -1, 0), -1);
    EXPECT_EQ(v->points, 3);
}

// A length whose scalars cannot be counted in 32 bits fails like a failed
// allocation: no storage is left in the record (the old block is dropped, not
// freed), so later calls refuse the record instead of reading past its block.
TYPED_TEST(PadTest, GrowthBeyondCountableStorageFailsWithoutStorage) {
    using T = TypeParam;
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
