#include "support/vectors.hpp"

#include "support/api_fft.hpp"
#include "support/dft_ref.hpp"
#include "transform/tables.hpp"

using namespace zt;

template <class T> class TwiddleTest : public ::testing::Test {};
TYPED_TEST_SUITE(TwiddleTest, Precisions);

// Every triple against (cos t, -cos t - sin t, sin t - cos t) computed
// directly; the re-seeded recurrence keeps long tables as accurate as short
// ones. The first entry and the 45-degree one are exact constants.
TYPED_TEST(TwiddleTest, EntriesHoldBothRotationsAsThreeMultiplicationTriples) {
    using T = TypeParam;
    for (int n : {4, 8, 16, 32, 1024, 4096, 1 << 16}) {
        const T* t = zf::twiddles<T>(n);
        ASSERT_NE(t, nullptr);
        for (int k = 0; k < n / 4; ++k)
            for (int r = 0; r < 2; ++r) {
                const long double a = 2 * ref::pi_l * k * (r ? 3 : 1) / n, c = std::cos(a), s = std::sin(a);
                const T* e = t + 6 * k + 3 * r;
                ASSERT_TRUE(std::fabs(e[0] - c) <= tol<T>(1.5) && std::fabs(e[1] + c + s) <= tol<T>(2) && std::fabs(e[2] - s + c) <= tol<T>(2))
                    << n << " " << k << " " << r;
            }
        EXPECT_EQ(std::vector<T>(t, t + 6), (std::vector<T>{1, -1, -1, 1, -1, -1}));
        if (n > 4) EXPECT_EQ(std::vector<T>(t + 6 * (n / 8), t + 6 * (n / 8) + 3), (std::vector<T>{T(0.7071067811865476), T(-1.4142135623730951), 0}));
    }
}

// One table per length (3N/2 scalars) and one pair of lists per bit count,
// found rather than rebuilt, all kept until the release; each precision keeps
// its own.
TYPED_TEST(TwiddleTest, OneTablePerLengthKeptUntilFreeInternal) {
    using T = TypeParam;
    using Other = std::conditional_t<sizeof(T) == 8, float, double>;
    ASSERT_EQ(api::free_internal<Vec<T>>() | api::free_internal<Vec<Other>>(), 0);
    const auto& cache = zf::twiddle_cache<T>();
    const auto& swaps = zf::swap_cache<T>();
    for (int n : {8, 16, 8}) {
        Owned<T> o(random_scalars<T>(2 * n, n), true);
        ASSERT_EQ(api::fft(o.get(), 0), 0);
    }
    ASSERT_EQ(std::tuple(cache.count, swaps.count, zf::fixed_cache<T>().count, zf::twiddle_cache<Other>().count), std::tuple(2, 2, 2, 0));
    EXPECT_EQ(std::tuple(cache.entries[0].key, cache.entries[1].key, swaps.entries[0].key, swaps.entries[1].key), std::tuple(12, 24, 3, 4));
    EXPECT_EQ(zf::twiddles<T>(8), cache.entries[0].table);   // found, not rebuilt
    ASSERT_EQ(api::free_internal<Vec<T>>(), 0);
    EXPECT_EQ(std::tuple(cache.count, cache.entries, swaps.count, zf::fixed_cache<T>().count), std::tuple(0, nullptr, 0, 0));
    Owned<T> o(random_scalars<T>(16, 1), true);
    ASSERT_EQ(api::fft(o.get(), 1), 0);
    ASSERT_EQ(std::tuple(cache.count, swaps.count), std::tuple(1, 1));
    EXPECT_EQ(cache.entries[0].key, 12);
}
