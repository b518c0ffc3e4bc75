#include "support/vectors.hpp"

#include "support/api_dft.hpp"
#include "support/dft_ref.hpp"
#include "support/records.hpp"

using namespace zt;

namespace {

template <class T> class HilbertTest : public ::testing::Test {};
TYPED_TEST_SUITE(HilbertTest, Precisions);

// Against the direct DFT with the bins turned by ∓90° (Hilbert: DC and the
// Nyquist bin of an even length cleared) or one-sided (analytic: positive
// bins doubled, DC and Nyquist kept once), for real and complex input. The
// Hilbert transform of a real vector stays real, the analytic signal is
// complex; both keep the spacing.
TYPED_TEST(HilbertTest, MatchTheTurnedAndOneSidedSpectra) {
    using T = TypeParam;
    for (int n : {9, 10, 11, 12, 15, 16, 32, 64, 1000})
        for (int cx = 0; cx < 2; ++cx) {
            SCOPED_TRACE(::testing::Message() << "n=" << n << " complex=" << cx);
            const std::vector<T> x = random_scalars<T>((1 + cx) * n, 80 + n);
            auto H = ref::forward(samples(x, cx)), Z = H;
            for (int k = 0; k < n; ++k) {
                const int side = k == 0 || 2 * k == n ? 0 : 2 * k < n ? 1 : -1;
                H[k] *= ref::cld(0, -side);
                Z[k] *= static_cast<long double>(1 + side);
            }
            for (int op = 0; op < 2; ++op) {
                Owned<T> v(x, cx, T(0.1));
                ASSERT_EQ(op ? api::analytic(v.get()) : api::hilbert(v.get()), 0);
                EXPECT_EQ(std::tuple(v->points, v->complex), std::tuple(n, int(op || cx)));
                EXPECT_NEAR(v->delta, 0.1, 0.1 * tol<T>());
                EXPECT_LE(ref::rms_rel_error(samples(v.scalars(), op || cx), ref::inverse(op ? Z : H)), 2 * ref::dft_bound<T>(n)) << op;
            }
        }
}

// No samples: nothing to do. One sample: no frequency but DC, so the
// transform is 0 and the analytic signal is the sample itself.
TYPED_TEST(HilbertTest, EdgeLengthsAndBadRecords) {
    using T = TypeParam;
    expect_refuses_unreadable<T>(api::hilbert);
    expect_refuses_unreadable<T>(api::analytic);
    Owned<T> empty, one(std::vector<T>{T(2.5)}), two(std::vector<T>{T(2.5)});
    ASSERT_EQ(api::hilbert(empty.get()) | api::analytic(empty.get()) | api::hilbert(one.get()) | api::analytic(two.get()), 0);
    EXPECT_EQ(empty->points, 0);
    EXPECT_EQ(one.scalars(), std::vector<T>{T(0)});
    EXPECT_EQ(two.scalars(), (std::vector<T>{T(2.5), T(0)}));
}

}  // namespace
