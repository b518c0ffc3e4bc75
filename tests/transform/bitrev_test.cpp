#include "support/vectors.hpp"

#include "support/api_fft.hpp"

using namespace zt;

template <class T> class BitrevTest : public ::testing::Test {};
TYPED_TEST_SUITE(BitrevTest, Precisions);

namespace {
int reversed(int i, int bits) {
    int r = 0;
    for (int k = 0; k < bits; ++k) r |= ((i >> k) & 1) << (bits - 1 - k);
    return r;
}
}  // namespace

// Against the reversal computed bit by bit, up to lengths whose swap lists the
// blocked walk of long data is compared with (fft_kernel_test).
TYPED_TEST(BitrevTest, PermutesPairsOrScalarsAndIsItsOwnInverse) {
    using T = TypeParam;
    for (int bits : {0, 1, 3, 6, 9, 11}) {
        const int n = 1 << bits;
        for (int complex = 0; complex < 2; ++complex) {
            const int w = complex ? 2 : 1;
            const auto in = random_scalars<T>(static_cast<std::size_t>(n) * w, bits);
            Owned<T> o(in, complex != 0, T(3));
            ASSERT_EQ(api::bitrev(o.get()), 0);
            const auto out = o.scalars();
            for (int i = 0; i < n; ++i)
                for (int p = 0; p < w; ++p) ASSERT_EQ(out[i * w + p], in[reversed(i, bits) * w + p]);
            EXPECT_EQ(o->delta, T(3));
            EXPECT_EQ(o->points, n);
            ASSERT_EQ(api::bitrev(o.get()), 0);
            EXPECT_EQ(o.scalars(), in);
        }
    }
}

TYPED_TEST(BitrevTest, ScaleMultipliesEverySampleOnce) {
    using T = TypeParam;
    for (int bits : {0, 2, 5, 8}) {
        const int n = 1 << bits;
        for (int complex = 0; complex < 2; ++complex) {
            Owned<T> o(std::vector<T>(static_cast<std::size_t>(n) * (complex ? 2 : 1), T(1)), complex != 0);
            ASSERT_EQ(api::bitrev_scale(o.get()), 0);
            for (T x : o.scalars()) ASSERT_EQ(x, T(1) / T(n));
        }
        const auto in = random_scalars<T>(2 * n, 40 + bits);
        Owned<T> a(in, true), b(in, true);
        ASSERT_EQ(api::bitrev_scale(a.get()), 0);
        ASSERT_EQ(api::bitrev(b.get()), 0);
        auto scaled = b.scalars();
        for (T& x : scaled) x /= T(n);   // exact: n is a power of two
        EXPECT_EQ(a.scalars(), scaled);
    }
}
