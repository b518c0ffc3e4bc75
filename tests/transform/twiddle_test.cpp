#include "support/vectors.hpp"

#include "support/api_fft.hpp"
#include "support/dft_ref.hpp"
#include "transform/tables.hpp"

using namespace zt;

template <class T> class TwiddleTest : public ::testing::Test {};
TYPED_TEST_SUITE(TwiddleTest, Precisions);

// Every triple against (cos t, -cos t - sin t, sin t - cos t) computed directly.
TYPED_TEST(TwiddleTest, EntriesHoldBothRotationsAsThreeMultiplicationTriples) {
    using T = TypeParam;
    for (int n : {4, 8, 16, 32, 1024, 4096}) {
        const T* t = zf::twiddles<T>(n);
        ASSERT_NE(t, nullptr);
        for (int k = 0; k < n / 4; ++k) {
            for (int r = 0; r < 2; ++r) {
                const long double a = 2 * ref::pi_l * k * (r ? 3 : 1) / n;
                const long double c = std::cos(a), s = std::sin(a);
                const T* e = t + 6 * k + 3 * r;
                EXPECT_NEAR(e[0], static_cast<double>(c), tol<T>(1)) << n << " " << k << " " << r;
                EXPECT_NEAR(e[1], static_cast<double>(-c - s), tol<T>(2)) << n << " " << k << " " << r;
                EXPECT_NEAR(e[2], static_cast<double>(s - c), tol<T>(2)) << n << " " << k << " " << r;
            }
        }
        for (int i = 0; i < 6; ++i) EXPECT_EQ(t[i], (i == 0 || i == 3) ? T(1) : T(-1));
        if (n > 4) {   // the 45-degree entry is exact constants
            const T* m = t + 6 * (n / 8);
            EXPECT_EQ(m[0], static_cast<T>(0.7071067811865476));
            EXPECT_EQ(m[1], static_cast<T>(-1.4142135623730951));
            EXPECT_EQ(m[2], T(0));
        }
    }
}

// The re-seeded recurrence keeps long tables as accurate as short ones.
TYPED_TEST(TwiddleTest, LongTablesStayAccurate) {
    using T = TypeParam;
    const int n = 1 << 16;
    const T* t = zf::twiddles<T>(n);
    ASSERT_NE(t, nullptr);
    double worst = 0;
    for (int k = 0; k < n / 4; ++k) {
        const long double a = 2 * ref::pi_l * k / n;
        worst = std::fmax(worst, std::fabs(static_cast<double>(t[6 * k] - std::cos(a))));
        worst = std::fmax(worst, std::fabs(static_cast<double>(t[6 * k + 2] - (std::sin(a) - std::cos(a)))));
    }
    EXPECT_LE(worst, tol<T>(1.5));
}

TYPED_TEST(TwiddleTest, OneTablePerLengthKeptUntilFreeInternal) {
    using T = TypeParam;
    ASSERT_EQ(api::free_internal<Vec<T>>(), 0);
    const auto& cache = zf::twiddle_cache<T>();
    EXPECT_EQ(cache.count, 0);
    for (int n : {8, 16, 8}) {
        Owned<T> o(random_scalars<T>(2 * n, n), true);
        ASSERT_EQ(api::fft(o.get(), 0), 0);
    }
    ASSERT_EQ(cache.count, 2);
    EXPECT_EQ(cache.entries[0].key, 12);   // 3N/2 scalars
    EXPECT_EQ(cache.entries[1].key, 24);
    const T* first = cache.entries[0].table;
    EXPECT_EQ(zf::twiddles<T>(8), first);   // found, not rebuilt
    EXPECT_EQ(zf::swap_cache<T>().count, 2);
    EXPECT_EQ(zf::fixed_cache<T>().count, 2);
    EXPECT_EQ(zf::swap_cache<T>().entries[0].key, 3);
    EXPECT_EQ(zf::swap_cache<T>().entries[1].key, 4);

    ASSERT_EQ(api::free_internal<Vec<T>>(), 0);
    EXPECT_EQ(cache.count, 0);
    EXPECT_EQ(cache.entries, nullptr);
    EXPECT_EQ(zf::swap_cache<T>().count, 0);
    EXPECT_EQ(zf::fixed_cache<T>().count, 0);

    Owned<T> o(random_scalars<T>(16, 1), true);
    ASSERT_EQ(api::fft(o.get(), 1), 0);
    ASSERT_EQ(cache.count, 1);
    EXPECT_EQ(cache.entries[0].key, 12);
    EXPECT_EQ(zf::swap_cache<T>().count, 1);
}

// Each precision keeps its own tables.
TEST(TwiddleCaches, PrecisionsAreSeparate) {
    ASSERT_EQ(dsp_free_internal(), 0);
    ASSERT_EQ(dspf_free_internal(), 0);
    Owned<double> d(random_scalars<double>(64, 1), true);
    ASSERT_EQ(dspi_fft(d.get(), 0), 0);
    EXPECT_EQ(zf::twiddle_cache<double>().count, 1);
    EXPECT_EQ(zf::twiddle_cache<float>().count, 0);
    ASSERT_EQ(dsp_free_internal(), 0);
    EXPECT_EQ(zf::twiddle_cache<double>().count, 0);
}
