#include "support/vectors.hpp"

#include "support/api_dft.hpp"
#include "support/dft_ref.hpp"
#include "support/records.hpp"

using namespace zt;

namespace {

template <class T> class HilbertTest : public ::testing::Test {};
TYPED_TEST_SUITE(HilbertTest, Precisions);

// Against the direct DFT with the bins turned by ∓90°, for complex input.
TYPED_TEST(HilbertTest, ComplexInputMatchesReference) {
    using T = TypeParam;
    for (int n : {9, 10, 32}) {
        SCOPED_TRACE(n);
        const std::vector<T> x = random_scalars<T>(2 * n, 80 + n);
        auto X = ref::forward(ref::from_pairs(x));
        for (int k = 0; k < n; ++k) {
            if (k == 0 || 2 * k == n) X[k] = 0;
            else X[k] *= 2 * k < n ? ref::cld(0, -1) : ref::cld(0, 1);
        }
        const auto want = ref::inverse(X);
        Owned<T> v(x, true);
        ASSERT_EQ(api::hilbert(v.get()), 0);
        EXPECT_TRUE(v->complex);
        EXPECT_LE(ref::rms_rel_error(ref::from_pairs(v.scalars()), want), 2 * ref::dft_bound<T>(n));
    }
}

// For real input: the Hilbert transform stays real with its spacing, the
// analytic signal has the input as real part, the Hilbert transform as
// imaginary part, and no energy left at negative frequencies.
TYPED_TEST(HilbertTest, AnalyticSignalSpectrumIsOneSided) {
    using T = TypeParam;
    for (int n : {11, 12, 15, 16, 64, 1000}) {
        SCOPED_TRACE(n);
        const std::vector<T> x = random_scalars<T>(n, 90 + n);
        Owned<T> a(x), h(x, false, T(0.1));
        ASSERT_EQ(api::analytic(a.get()), 0);
        ASSERT_EQ(api::hilbert(h.get()), 0);
        EXPECT_FALSE(h->complex);
        ASSERT_EQ(h->points, n);
        EXPECT_NEAR(h->delta, 0.1, 0.1 * tol<T>());
        const std::vector<T> z = a.scalars(), h_of_x = h.scalars();
        std::vector<T> parts(2 * n);
        for (int i = 0; i < n; ++i) parts[2 * i] = x[i], parts[2 * i + 1] = h_of_x[i];
        EXPECT_TRUE(near_all(z, parts, 4 * ref::dft_bound<T>(n)));

        const auto X = ref::forward(ref::from_reals(x));
        const auto Z = ref::forward(ref::from_pairs(z));
        for (int k = 0; k < n; ++k) {
            const ref::cld want = k == 0 || 2 * k == n ? X[k] : 2 * k < n ? 2.0L * X[k] : ref::cld(0);
            EXPECT_NEAR(static_cast<double>(std::abs(Z[k] - want)), 0.0, 8 * ref::dft_bound<T>(n)) << "bin " << k;
        }
    }
}

TYPED_TEST(HilbertTest, EdgeLengthsAndBadRecords) {
    using T = TypeParam;
    expect_refuses_unreadable<T>(api::hilbert);
    expect_refuses_unreadable<T>(api::analytic);
    Owned<T> empty, one(std::vector<T>{T(2.5)}), two(std::vector<T>{T(2.5)});
    EXPECT_EQ(api::hilbert(empty.get()), 0);
    EXPECT_EQ(api::analytic(empty.get()), 0);
    EXPECT_EQ(empty->points, 0);
    // One sample: no frequency but DC, so the transform is 0 and the analytic
    // signal is the sample itself.
    ASSERT_EQ(api::hilbert(one.get()), 0);
    ASSERT_EQ(api::analytic(two.get()), 0);
    EXPECT_EQ(one.scalars(), std::vector<T>{T(0)});
    EXPECT_EQ(two.scalars(), (std::vector<T>{T(2.5), T(0)}));
}

}  // namespace
