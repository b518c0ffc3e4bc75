// The DFT of lengths with no prime factor above 7, through the C entry
// points, against the direct DFT.
#include "support/vectors.hpp"

#include <map>

#include "core/cpu.hpp"
#include "support/api_dft.hpp"
#include "support/dft_ref.hpp"
#include "transform/mixed_radix.hpp"

using namespace zt;

namespace {

template <class T> class MixedRadixTest : public ::testing::Test {};
TYPED_TEST_SUITE(MixedRadixTest, Precisions);

const int kLengths[] = {6, 7, 10, 12, 15, 30, 45, 49, 60, 81, 100, 125, 210, 243, 1000, 1536, 3000};

// Random pairs exact in both precisions.
std::vector<float> input(int n) { return random_scalars<float>(2 * static_cast<std::size_t>(n), 11 + n); }

// The direct DFT of input(n) for direction 0 (forward with 1/N), 1 (inverse)
// and 2 (standing for any other value: the forward sum without 1/N), once.
const std::vector<ref::cld>& direct(int n, int dir) {
    static std::map<std::pair<int, int>, std::vector<ref::cld>> memo;
    auto it = memo.find({n, dir});
    if (it != memo.end()) return it->second;
    const auto x = ref::from_pairs(input(n));
    return memo[{n, dir}] = dir == 0 ? ref::forward(x) : dir == 1 ? ref::inverse(x) : ref::dft(x, -1);
}

TYPED_TEST(MixedRadixTest, MatchesDirectDftInEveryDirection) {
    using T = TypeParam;
    for (int n : kLengths) {
        const auto xf = input(n);
        for (int dir : {0, 1, 2, -5}) {
            SCOPED_TRACE(::testing::Message() << "n=" << n << " direction=" << dir);
            Owned<T> v(std::vector<T>(xf.begin(), xf.end()), true, T(0.5));
            ASSERT_EQ(api::dft(v.get(), dir), 0);
            EXPECT_EQ(v->points, n);
            EXPECT_LE(ref::rms_rel_error(ref::from_pairs(v.scalars()), direct(n, dir == -5 ? 2 : dir)),
                      ref::dft_bound<T>(n));
            EXPECT_NEAR(v->delta, 2.0 / n, 2.0 / n * tol<T>());
        }
    }
}

// Forward then inverse gives the input back; a real input comes back complex.
TYPED_TEST(MixedRadixTest, InverseOfForwardRestoresTheInput) {
    using T = TypeParam;
    for (int n : kLengths) {
        const auto x = random_scalars<T>(static_cast<std::size_t>(n), 3 + n);
        Owned<T> v(x, false, T(0.25));
        ASSERT_EQ(api::dft(v.get(), 0), 0);
        ASSERT_EQ(api::dft(v.get(), 1), 0);
        ASSERT_TRUE(v->complex);
        EXPECT_LE(ref::rms_rel_error(ref::from_pairs(v.scalars()), ref::from_reals(x)), ref::dft_bound<T>(n)) << n;
        EXPECT_NEAR(v->delta, 0.25, 0.25 * tol<T>());
    }
}

// The plan serves one length: a prime length between two calls (chirp-z) or a
// release of the caches changes nothing in the results; the release rebuilds.
TYPED_TEST(MixedRadixTest, SameResultsAfterAPrimeLengthAndAfterRelease) {
    using T = TypeParam;
    const auto x = random_scalars<T>(2000, 5);
    Owned<T> first(x, true), again(x, true), after(x, true), prime(random_scalars<T>(2 * 1009, 6), true);
    ASSERT_EQ(api::dft(first.get(), 0), 0);
    ASSERT_EQ(api::dft(prime.get(), 0), 0);
    const int builds = zf::mixed_plan_builds<T>();
    ASSERT_EQ(api::dft(again.get(), 0), 0);
    EXPECT_EQ(zf::mixed_plan_builds<T>(), builds);
    ASSERT_EQ(api::free_internal<Vec<T>>(), 0);
    ASSERT_EQ(api::dft(after.get(), 0), 0);
    EXPECT_EQ(zf::mixed_plan_builds<T>(), builds + 1);
    EXPECT_EQ(again.scalars(), first.scalars());
    EXPECT_EQ(after.scalars(), first.scalars());
}

// The AVX2/FMA passes agree with the portable ones up to rounding. The
// lengths run every lane-wise pass, with tails, in both lane widths (4, 8):
// first passes of radix 8 (240, 1000) and 4 (60), middle passes of radix 2,
// 3 (240), 4, 7 (1568), 5 (1000) and 8 (1536), last passes of radix 3, 5, 7.
TYPED_TEST(MixedRadixTest, VectorPassesMatchPortablePasses) {
    using T = TypeParam;
    if (!zf::cpu_has_avx2_fma()) GTEST_SKIP() << "no AVX2/FMA";
    for (int n : {5, 60, 98, 240, 1000, 1536, 1568}) {
        const zf::MixedPlan<T>* plan = zf::mixed_plan<T>(n);
        ASSERT_NE(plan, nullptr);
        std::vector<T> a = random_scalars<T>(2 * static_cast<std::size_t>(n), n), b = a, work(4 * n);
        for (bool inverse : {false, true}) {
            zf::mixed_run_portable(*plan, a.data(), work.data(), inverse, T(0.5));
            zf::mixed_run_avx2(*plan, b.data(), work.data(), inverse, T(0.5));
            EXPECT_LE(ref::rms_rel_error(ref::from_pairs(b), ref::from_pairs(a)), ref::dft_bound<T>(n)) << n;
        }
    }
}

}  // namespace
