#include "support/vectors.hpp"

#include "support/api_dft.hpp"
#include "support/dct_ref.hpp"
#include "support/dft_ref.hpp"
#include "support/records.hpp"

using namespace zt;

namespace {

template <class T> class DctTest : public ::testing::Test {};
TYPED_TEST_SUITE(DctTest, Precisions);

// Odd, even, power-of-two and chirp-z lengths, and more than 256 twiddles;
// plain and orthonormal scaling. The inverse restores the input and spacing.
TYPED_TEST(DctTest, ForwardMatchesDirectDctAndInverseUndoesIt) {
    using T = TypeParam;
    for (int n : {1, 2, 3, 5, 8, 12, 100, 257, 1024, 1500})
        for (int flags : {0, 2}) {
            SCOPED_TRACE(::testing::Message() << "n=" << n << " flags=" << flags);
            const std::vector<T> x = random_scalars<T>(n, 40 + n);
            const auto want = ref::dct(std::vector<long double>(x.begin(), x.end()), flags == 2);
            Owned<T> v(x, false, T(0.5));
            ASSERT_EQ(api::dct(v.get(), flags), 0);
            ASSERT_EQ(std::tuple(v->points, v->complex), std::tuple(n, 0));
            EXPECT_LE(ref::rms_rel_error(ref::from_reals(v.scalars()), std::vector<ref::cld>(want.begin(), want.end())), ref::dft_bound<T>(n));
            EXPECT_NEAR(v->delta, 1.0 / n, tol<T>() / n);  // 1/(2N·0.5)
            ASSERT_EQ(api::dct(v.get(), flags | 1), 0);
            ASSERT_EQ(std::tuple(v->points, v->complex), std::tuple(n, 0));
            EXPECT_LE(ref::rms_rel_error(ref::from_reals(v.scalars()), ref::from_reals(x)), 2 * ref::dft_bound<T>(n));
            EXPECT_NEAR(v->delta, 0.5, 0.5 * tol<T>());
        }
}

// Complex input is refused; an empty vector changes only its spacing.
TYPED_TEST(DctTest, BadInputAndEmptyVector) {
    using T = TypeParam;
    expect_refuses_unreadable<T>([](Vec<T>* v) { return api::dct(v, 0); });
    Owned<T> c(random_scalars<T>(8, 1), true), empty;
    EXPECT_EQ(api::dct(c.get(), 0) + api::dct(c.get(), 1), -2);
    empty->delta = T(4);
    ASSERT_EQ(api::dct(empty.get(), 0), 0);
    EXPECT_EQ(empty->delta, T(0.125));
    empty->delta = T(0);
    ASSERT_EQ(api::dct(empty.get(), 0), 0);
    EXPECT_EQ(empty->delta, Traits<T>::huge);
}

}  // namespace
