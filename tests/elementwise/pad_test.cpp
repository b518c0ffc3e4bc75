#include "support/api_binary.hpp"
#include "support/binary_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

namespace {

template <class T> class PadTest : public ::testing::Test {};
TYPED_TEST_SUITE(PadTest, Precisions);

TYPED_TEST(PadTest, ZpadAppendsZeroSamples) {
    using T = TypeParam;
    for (bool complex : {false, true}) {
        for (int m : {0, 1, 4, 5}) {
            const int w = complex ? 2 : 1;
            const auto s = random_scalars<T>(static_cast<std::size_t>(m) * w, m + 1, 1, 2);
            Owned<T> v(s, complex, T(0.25));
            ASSERT_EQ(api::zpad(v.get(), m + 6), 0);
            auto want = s;
            want.resize(static_cast<std::size_t>(m + 6) * w, T(0));
            EXPECT_EQ(v.scalars(), want);
            EXPECT_EQ(v->complex, complex ? 1 : 0);
            EXPECT_EQ(v->delta, T(0.25));
        }
    }
}

TYPED_TEST(PadTest, ZpadNeverShortens) {
    using T = TypeParam;
    const std::vector<T> s{1, 2, 3, 4};
    for (int n : {-1, 0, 2, 4}) {
        Owned<T> v(s);
        T* block = v->data;
        ASSERT_EQ(api::zpad(v.get(), n), 0);
        EXPECT_EQ(v.scalars(), s);
        EXPECT_EQ(v->data, block);
    }
}

TYPED_TEST(PadTest, ZeroClearsAndKeepsShape) {
    using T = TypeParam;
    for (bool complex : {false, true}) {
        Owned<T> v(random_scalars<T>(complex ? 14 : 7, 4, 1, 2), complex);
        ASSERT_EQ(api::zero(v.get()), 0);
        EXPECT_EQ(v->points, 7);
        EXPECT_EQ(v.scalars(), std::vector<T>(complex ? 14 : 7, T(0)));
    }
}

}  // namespace
