// The mixed-radix plans of lengths with no prime factor above 7: their cache
// and their vector passes (the results themselves are checked against the
// direct DFT with the other lengths).
#include "support/vectors.hpp"

#include "core/cpu.hpp"
#include "support/api_dft.hpp"
#include "support/dft_ref.hpp"
#include "transform/mixed_radix.hpp"

using namespace zt;

namespace {

template <class T> class MixedRadixTest : public ::testing::Test {};
TYPED_TEST_SUITE(MixedRadixTest, Precisions);

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
