#include <cstdlib>

#include "core/random.hpp"
#include "support/api_binary.hpp"
#include "support/binary_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

namespace {

const int kLengths[] = {0, 1, 2, 3, 5, 2047, 2048, 2049};

template <class T> class RearrangeTest : public ::testing::Test {};
TYPED_TEST_SUITE(RearrangeTest, Precisions);

TYPED_TEST(RearrangeTest, ReverseMovesWholeSamples) {
    using T = TypeParam;
    for (bool complex : {false, true}) {
        for (int n : kLengths) {
            const auto s = random_scalars<T>(static_cast<std::size_t>(n) * (complex ? 2 : 1), n + 1);
            Owned<T> v(s, complex);
            ASSERT_EQ(api::rev(v.get()), 0);
            auto want = samples(s, complex);
            std::reverse(want.begin(), want.end());
            EXPECT_TRUE(near_all(v.scalars(), scalars_of(want, complex), 0)) << n << " " << complex;
        }
    }
}

TYPED_TEST(RearrangeTest, ShiftDropsLeadingSamples) {
    using T = TypeParam;
    for (bool complex : {false, true}) {
        const int n = 7;
        const auto s = random_scalars<T>(n * (complex ? 2 : 1), 3);
        for (int k : {-2, 0, 1, 3, 7, 12}) {
            Owned<T> v(s, complex, T(0.5));
            ASSERT_EQ(api::shift(v.get(), k), 0);
            auto want = samples(s, complex);
            if (k > 0) want.erase(want.begin(), want.begin() + std::min(k, n));
            EXPECT_TRUE(near_all(v.scalars(), scalars_of(want, complex), 0)) << k;
            EXPECT_EQ(v->complex, complex ? 1 : 0);
            EXPECT_EQ(v->delta, T(0.5));
        }
    }
}

// Swapping halves is a rotation to the right by points/2; the second form
// undoes it for every length.
TYPED_TEST(RearrangeTest, SwapHalvesRotatesAndSecondFormUndoesIt) {
    using T = TypeParam;
    for (bool complex : {false, true}) {
        for (int n : {0, 1, 2, 3, 4, 5, 8, 9, 2049}) {
            const auto s = random_scalars<T>(static_cast<std::size_t>(n) * (complex ? 2 : 1), n + 7);
            Owned<T> v(s, complex);
            ASSERT_EQ(api::swap_halves(v.get()), 0);
            const auto want = rotated_right(samples(s, complex), static_cast<std::size_t>(n / 2));
            EXPECT_TRUE(near_all(v.scalars(), scalars_of(want, complex), 0)) << n;
            ASSERT_EQ(api::swap_halves2(v.get()), 0);
            EXPECT_EQ(v.scalars(), s) << n;
        }
    }
}

TYPED_TEST(RearrangeTest, SwapHalvesOfFiveSamples) {
    using T = TypeParam;
    Owned<T> v({0, 1, 2, 3, 4});
    ASSERT_EQ(api::swap_halves(v.get()), 0);
    EXPECT_EQ(v.scalars(), (std::vector<T>{3, 4, 0, 1, 2}));
    ASSERT_EQ(api::swap_halves2(v.get()), 0);
    EXPECT_EQ(v.scalars(), (std::vector<T>{0, 1, 2, 3, 4}));
}

TYPED_TEST(RearrangeTest, SortMatchesReferenceOrder) {
    using T = TypeParam;
    for (bool complex : {false, true}) {
        for (int n : kLengths) {
            // Few distinct values, so that ties in magnitude and in real part occur.
            auto s = random_scalars<T>(static_cast<std::size_t>(n) * (complex ? 2 : 1), n + 11, -3, 3);
            for (T& x : s) x = std::round(x);
            Owned<T> v(s, complex);
            ASSERT_EQ(api::sort(v.get()), 0);
            auto want = samples(s, complex);
            if (complex) std::stable_sort(want.begin(), want.end(), sort_before);
            else std::stable_sort(want.begin(), want.end(), [](const Cx& a, const Cx& b) { return a.real() < b.real(); });
            EXPECT_TRUE(near_all(v.scalars(), scalars_of(want, complex), 0)) << n << " " << complex;
        }
    }
}

TYPED_TEST(RearrangeTest, SortBreaksMagnitudeTiesByRealThenImaginaryPart) {
    using T = TypeParam;
    Owned<T> v({0, 1, 1, 0, 0, -1, -1, 0, 0.5, 0}, true);
    ASSERT_EQ(api::sort(v.get()), 0);
    EXPECT_EQ(v.scalars(), (std::vector<T>{0.5, 0, -1, 0, 0, -1, 0, 1, 1, 0}));
}

// A part beyond the saturation value counts as magnitude huge, so it sorts
// before a sample whose true squared magnitude exceeds huge.
TYPED_TEST(RearrangeTest, SortClampsHugeParts) {
    using T = TypeParam;
    const T huge = Traits<T>::huge;
    const T big = static_cast<T>(std::sqrt(static_cast<double>(huge)) * 10);  // |z|^2 = 100 huge
    Owned<T> v({big, 0, 2 * huge, 0, 1, 1}, true);
    ASSERT_EQ(api::sort(v.get()), 0);
    EXPECT_EQ(v.scalars(), (std::vector<T>{1, 1, 2 * huge, 0, big, 0}));
}

TYPED_TEST(RearrangeTest, SortPutsNanLastWithoutHarm) {
    using T = TypeParam;
    const T nan = std::numeric_limits<T>::quiet_NaN();
    std::vector<T> s = random_scalars<T>(200, 5);
    for (std::size_t k = 0; k < s.size(); k += 7) s[k] = nan;
    Owned<T> v(s);
    ASSERT_EQ(api::sort(v.get()), 0);
    const auto got = v.scalars();
    const auto first_nan = std::find_if(got.begin(), got.end(), [](T x) { return std::isnan(x); });
    EXPECT_TRUE(std::is_sorted(got.begin(), first_nan));
    EXPECT_TRUE(std::all_of(first_nan, got.end(), [](T x) { return std::isnan(x); }));
    EXPECT_EQ(got.end() - first_nan, 29);
}

// The shuffle is the forward swap walk with j = draw mod (points - i); with the
// generator seeded alike, a reference walk gives the same permutation.
TYPED_TEST(RearrangeTest, ShuffleIsTheSeededSwapWalk) {
    using T = TypeParam;
    for (bool complex : {false, true}) {
        for (int n : {0, 1, 2, 3, 2049}) {
            const auto s = random_scalars<T>(static_cast<std::size_t>(n) * (complex ? 2 : 1), n + 2);
            Owned<T> v(s, complex);
            zf::random_seed(1234);
            ASSERT_EQ(api::shuffle(v.get()), 0);
            zf::random_seed(1234);
            auto want = samples(s, complex);
            for (int i = 0; i + 1 < n; ++i) {
                const int j = zf::random31() % (n - i);
                std::swap(want[i], want[i + j]);
            }
            EXPECT_TRUE(near_all(v.scalars(), scalars_of(want, complex), 0)) << n;
            // And it is a permutation: the sorted samples are unchanged.
            auto got = samples(v.scalars(), complex), had = samples(s, complex);
            std::sort(got.begin(), got.end(), sort_before);
            std::sort(had.begin(), had.end(), sort_before);
            EXPECT_EQ(got, had);
        }
    }
}

TYPED_TEST(RearrangeTest, BadRecordsAreRefused) {
    using T = TypeParam;
    Vec<T> bad;
    api::init(&bad);
    bad.points = -1;
    EXPECT_EQ(api::rev(&bad), -1);
    EXPECT_EQ(api::sort(&bad), -1);
    EXPECT_EQ(api::shuffle(&bad), -1);
    EXPECT_EQ(api::swap_halves(&bad), -1);
    EXPECT_EQ(api::shift(&bad, 1), -1);
    EXPECT_EQ(api::rev(static_cast<Vec<T>*>(nullptr)), -1);
    bad.points = 3;  // samples but no data
    EXPECT_EQ(api::sort(&bad), -1);
    EXPECT_EQ(api::swap_halves2(&bad), -1);
}

TEST(RandomGenerator, CombinesThreeDrawsOfRand) {
    std::srand(99);
    std::vector<long> want;
    for (int i = 0; i < 100; ++i) {
        const int a = std::rand() & 0x7FFF, b = std::rand() & 1, c = std::rand() & 0x7FFF;
        want.push_back(a * 65536L + b * 32768L + c);
    }
    zf::random_seed(99);
    for (int i = 0; i < 100; ++i) ASSERT_EQ(zf::random31(), want[i]) << i;
    EXPECT_TRUE(zf::random_seeded());
}

}  // namespace
