#include "support/api_resample.hpp"
#include "support/records.hpp"
#include "support/resample_ref.hpp"

using namespace zt;

namespace {

template <class T> class ResamplerTest : public ::testing::Test {};
TYPED_TEST_SUITE(ResamplerTest, Precisions);

// A sine of f cycles per sample.
template <class T> std::vector<T> tone(int n, double f) {
    std::vector<T> x(n);
    for (int k = 0; k < n; ++k) x[k] = static_cast<T>(std::sin(2 * M_PI * f * k));
    return x;
}

// Ratios split into octaves and a remainder, with the start-up skips worked
// out by hand: ceil(35 / r) + 19 when the fractional stage runs. Refused
// set-ups store nothing.
TYPED_TEST(ResamplerTest, SetupSplitsTheRatio) {
    using T = TypeParam;
    struct Case { double ratio; int force, octaves; double rest; int oskip, fskip; };
    for (const Case& c : {Case{5, 0, 2, 1.25, 33, 47}, {4, 0, 2, 1, 33, 0}, {4, 1, 2, 1, 33, 54}, {-3, 0, 0, 1, 0, 0},
                          {0.8, 0, 0, 0.8, 0, 63}, {1.0 / 3, 0, 0, 1.0 / 3, 0, 124}, {7.5, 0, 2, 1.875, 33, 38}}) {
        api::Resampler<T> r(static_cast<T>(c.ratio), c.force);
        ASSERT_EQ(r.status, 0);
        EXPECT_EQ(std::tuple(r.c.octaves, r.c.ratio, r.c.octave_skip, r.c.fraction_skip, r.s.octave_pending, r.s.fraction_pending, r.s.stages),
                  std::tuple(c.octaves, static_cast<T>(c.rest), c.oskip, c.fskip, c.oskip, c.fskip, c.octaves)) << c.ratio;
        for (int k = 0; k < c.octaves; ++k) EXPECT_EQ(r.s.stage_history[k].points + r.s.stage_phase[k].points, 39);
        EXPECT_EQ(r.s.prefilter_history.points + r.s.kernel_history.points + r.s.halfband_history.points, 22 + 15 + 38);
        EXPECT_EQ(api::coef_setup(&r.c, T(2), 0, &r) + api::coef_setup(&r.c, T(NAN), 0, nullptr), -2);
        EXPECT_EQ(r.c.octaves, c.octaves);
    }
}

// The output is the resampled tone: the fitted tone at f times the ratio
// leaves only the kernels' error; the spacing follows the ratio.
TYPED_TEST(ResamplerTest, OutputIsTheResampledTone) {
    using T = TypeParam;
    for (double ratio : {0.8, 1.0 / 3, 1.25, 2.5, 5.0}) {
        api::Resampler<T> r(static_cast<T>(ratio));
        Owned<T> in(tone<T>(6000, 0.05), false, T(0.5)), out;
        out->points = static_cast<int>(6000 / ratio) + 2;
        ASSERT_EQ(r.run(in.get(), out.get()), 0);
        double amp, snr = snr_db(out.scalars(), 0.05 * ratio, 200, amp);
        EXPECT_GT(snr, sizeof(T) == 8 ? 110 : 60) << ratio;
        EXPECT_TRUE(std::fabs(amp - 1) < 5e-3 && out->points > 6000 / ratio - 150 && std::fabs(out->delta - 0.5 * ratio) < 1e-6);
    }
}

// Blocks of random sizes, 0 and 1 among them, with one state give the output
// of one call on the whole signal; for a ratio of 1 the output is the input.
TYPED_TEST(ResamplerTest, StreamingEqualsWhole) {
    using T = TypeParam;
    for (int w : {1, 2})
        for (double ratio : {0.7, 1.0, 2.5, 4.0, 6.3}) {
            const auto x = random_scalars<T>(1500 * w, w);
            Owned<T> in(x, w == 2), whole, scratch;
            api::Resampler<T> a(static_cast<T>(ratio)), b(static_cast<T>(ratio));
            whole->points = 3040;
            ASSERT_EQ(a.run(in.get(), whole.get()), 0);
            if (ratio == 1.0) EXPECT_EQ(whole.scalars(), x);
            const auto got = stream(x, w, w, [&](Vec<T>* blk, Vec<T>* part, int) {
                part->points = static_cast<int>(blk->points / ratio) + 40;
                ASSERT_EQ(b.run(blk, part, scratch.get()), 0);
            });
            EXPECT_TRUE(near_all(got, whole.scalars(), tol<T>(64))) << ratio;
        }
}

// Null records, refused scratch; a lone block without state drops nothing
// (300 / 2.5 outputs, cut to 100). Allocation failing at each point in turn
// returns -1 and leaks nothing.
TYPED_TEST(ResamplerTest, RefusalsAndAllocationFailures) {
    using T = TypeParam;
    Owned<T> in(tone<T>(300, 0.1)), out, cin(tone<T>(1000, 0.01), true);
    api::Resampler<T> r(T(2.5));
    EXPECT_EQ(api::coef_setup(static_cast<decltype(&r.c)>(nullptr), T(2), 0, nullptr) + r.run(in.get(), out.get(), in.get()) + r.run(nullptr, out.get()), -3);
    out->points = 100;
    EXPECT_EQ(api::hrsmp(in.get(), out.get(), nullptr, &r.c, static_cast<decltype(&r.s)>(nullptr)), 0);
    EXPECT_EQ(out->points, 100);
    using Hooks = CountingHooks<T>;
    for (int fail = 1, rc = -1; rc != 0 && fail < 500; ++fail) {
        {
            typename Hooks::Installed hooks(fail);
            api::Resampler<T> h(T(5.3), 0, 1);
            Owned<T> cout;
            cout->points = 100;
            rc = h.status | h.run(cin.get(), cout.get());
        }
        EXPECT_TRUE(Hooks::live == 0 && (rc == 0) == (Hooks::calls < fail)) << fail;
    }
}

}  // namespace
