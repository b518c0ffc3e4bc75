#include "support/vectors.hpp"

#include "support/api_fft.hpp"
#include "support/dft_ref.hpp"
#include "transform/fft_kernel.hpp"
#include "transform/tables.hpp"

using namespace zt;

template <class T> class FftKernelTest : public ::testing::Test {};
TYPED_TEST_SUITE(FftKernelTest, Precisions);

// The kernels chosen for this processor against the portable ones: the
// complex pass at every length it handles up to 2^14, also on a half-length
// transform read from a longer table (as the real transforms do), and the
// split and join passes of the real transforms up to 2^13.
TYPED_TEST(FftKernelTest, DispatchedKernelsMatchPortable) {
    using T = TypeParam;
    const auto vec = zf::vector_dif<T>();
    if (!vec || !zf::vector_split<T>() || !zf::vector_join<T>()) GTEST_SKIP() << "no vector kernel on this processor";
    const int w = zf::vector_width<T>();
    for (int n = 4; n <= (1 << 14); n *= 2)
        for (int tn : {n, 2 * n}) {
            const T* tw = zf::twiddles<T>(tn);
            const T* lv = zf::level_twiddles<T>(n, tw, tn, w);
            ASSERT_TRUE(tw && lv);
            for (int inverse = 0; inverse < 2; ++inverse) {
                auto a = random_scalars<T>(2 * n, n + inverse), b = a;
                zf::dif_portable<T>(a.data(), n, tw, tn / n, inverse != 0);
                vec(b.data(), n, lv, inverse != 0);
                EXPECT_LE(ref::rms_rel_error(ref::from_pairs(b), ref::from_pairs(a)), 2 * static_cast<double>(Traits<T>::eps) * std::log2(n))
                    << "n = " << n << " table " << tn << (inverse ? " inverse" : " forward");
            }
            for (int join = 0; join < 2 && tn == n && n >= 4 * w && n <= (1 << 13); ++join) {
                auto a = random_scalars<T>(n + 2, n + join), b = a;
                const auto pass = join ? zf::join_real<T> : zf::split_real<T>;
                pass(a.data(), n, tw, nullptr);
                pass(b.data(), n, tw, lv + 2 * (n - 4 * w));
                a.resize(join ? n : n + 2), b.resize(a.size());
                EXPECT_TRUE(near_all(b, a, tol<T>(8))) << "n = " << n << (join ? " join" : " split");
            }
        }
}

// The blocked walk of long data, scalars or pairs, and the vectorised reversal
// of pairs, against the swap lists, exactly.
TYPED_TEST(FftKernelTest, ReversalsMatchSwapLists) {
    using T = TypeParam;
    const auto rev = zf::vector_reverse<T>();
    for (int bits = 4; bits <= 14; ++bits)
        for (int width = 1; width <= 2; ++width)
            for (int scale = 0; scale < 2; ++scale) {
                auto a = random_scalars<T>(static_cast<std::size_t>(width) << bits, bits), b = a, c = a;
                const T f = T(1) / static_cast<T>(1 << bits);
                if (scale) zf::swap_pairs_scale<T>(a.data(), zf::swap_list<T>(bits), zf::fixed_list<T>(bits), width, f);
                else zf::swap_pairs<T>(a.data(), zf::swap_list<T>(bits), width);
                if (bits >= 8) zf::reverse_blocked<T>(b.data(), bits, width, scale != 0, f);
                if (rev && width == 2) rev(c.data(), bits, scale != 0, f);
                EXPECT_TRUE((bits < 8 || a == b) && (!rev || width == 1 || a == c)) << "bits " << bits << " width " << width << " scale " << scale;
            }
}

// Every triple against (cos t, -cos t - sin t, sin t - cos t) computed
// directly; the re-seeded recurrence keeps long tables as accurate as short
// ones. The first entry and the 45-degree one are exact constants.
TYPED_TEST(FftKernelTest, TwiddleEntriesHoldBothRotationsAsThreeMultiplicationTriples) {
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
TYPED_TEST(FftKernelTest, TwiddleAndReversalCachesHoldOneTablePerLengthKeptUntilFreeInternal) {
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
