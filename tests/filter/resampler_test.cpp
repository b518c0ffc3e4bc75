#include <cmath>
#include <limits>

#include "support/api_resample.hpp"
#include "support/records.hpp"
#include "support/resample_ref.hpp"

using namespace zt;

namespace {

template <class T> class ResamplerTest : public ::testing::Test {};
TYPED_TEST_SUITE(ResamplerTest, Precisions);

// A sine (w = 1) or complex exponential (w = 2) of f cycles per sample.
template <class T> std::vector<T> tone(int n, int w, double f) {
    std::vector<T> x(static_cast<std::size_t>(n) * w);
    for (int k = 0; k < n; ++k) {
        x[k * w] = static_cast<T>(w == 1 ? std::sin(2 * M_PI * f * k) : std::cos(2 * M_PI * f * k));
        if (w == 2) x[k * w + 1] = static_cast<T>(std::sin(2 * M_PI * f * k));
    }
    return x;
}

// Ratios split into octaves and a remainder, with the start-up skips worked
// out by hand: ceil(35 / r) + 19 when the fractional stage runs.
TYPED_TEST(ResamplerTest, SetupSplitsTheRatio) {
    using T = TypeParam;
    struct Case { double ratio; int force, octaves; double rest; int oskip, fskip; };
    for (const Case& c : {Case{5, 0, 2, 1.25, 33, 47}, {4, 0, 2, 1, 33, 0}, {4, 1, 2, 1, 33, 54}, {-3, 0, 0, 1, 0, 0},
                          {0.8, 0, 0, 0.8, 0, 63}, {1.0 / 3, 0, 0, 1.0 / 3, 0, 124}, {7.5, 0, 2, 1.875, 33, 38}}) {
        api::Resampler<T> r(static_cast<T>(c.ratio), c.force);
        ASSERT_EQ(r.status, 0);
        EXPECT_EQ(r.c.octaves, c.octaves);
        EXPECT_EQ(r.c.ratio, static_cast<T>(c.rest));
        EXPECT_EQ(r.c.octave_skip, c.oskip);
        EXPECT_EQ(r.c.fraction_skip, c.fskip) << c.ratio;
        EXPECT_EQ(r.s.octave_pending, c.oskip);
        EXPECT_EQ(r.s.fraction_pending, c.fskip);
        EXPECT_EQ(r.s.stages, c.octaves);
        for (int k = 0; k < c.octaves; ++k) EXPECT_EQ(r.s.stage_history[k].points + r.s.stage_phase[k].points, 39);
        EXPECT_EQ(r.s.prefilter_history.points + r.s.kernel_history.points + r.s.halfband_history.points, 22 + 15 + 38);
        T reserved;
        EXPECT_EQ(api::coef_setup(&r.c, T(2), 0, &reserved), -1);
        EXPECT_EQ(api::coef_setup(&r.c, std::numeric_limits<T>::quiet_NaN(), 0, nullptr), -1);
        EXPECT_EQ(r.c.octaves, c.octaves);  // refusals store nothing
    }
}

// The output is the resampled tone: the fitted tone at f times the ratio
// leaves only the kernels' error; the spacing follows the ratio.
TYPED_TEST(ResamplerTest, OutputIsTheResampledTone) {
    using T = TypeParam;
    for (int w : {1, 2})
        for (double ratio : {0.8, 1.0 / 3, 1.25, 2.5, 5.0}) {
            const int n = 6000;
            api::Resampler<T> r(static_cast<T>(ratio), 0, w == 2);
            Owned<T> in(tone<T>(n, w, 0.05), w == 2, T(0.5)), out;
            out->points = static_cast<int>(n / ratio) + 2;
            ASSERT_EQ(r.run(in.get(), out.get()), 0);
            EXPECT_GT(out->points, n / ratio - 150) << ratio;  // the start-up skips are dropped
            EXPECT_NEAR(out->delta, 0.5 * ratio, 1e-6);
            double amp;
            EXPECT_GT(snr_db(out.scalars(), w, 0.05 * ratio, 200, amp), sizeof(T) == 8 ? 110 : 60) << ratio;
            EXPECT_NEAR(amp, 1.0, 5e-3);
        }
}

// Blocks of random sizes, 0 and 1 among them, with one state give the output
// of one call on the whole signal; for a ratio of 1 the output is the input.
TYPED_TEST(ResamplerTest, StreamingEqualsWhole) {
    using T = TypeParam;
    for (int w : {1, 2})
        for (double ratio : {0.7, 1.0, 2.5, 4.0, 6.3}) {
            const int n = 1500;
            const auto x = random_scalars<T>(n * w, w);
            Owned<T> in(x, w == 2), whole, part, scratch;
            api::Resampler<T> a(static_cast<T>(ratio)), b(static_cast<T>(ratio));
            whole->points = 2 * n + 40;
            ASSERT_EQ(a.run(in.get(), whole.get()), 0);
            if (ratio == 1.0) EXPECT_EQ(whole.scalars(), x);
            std::vector<T> got;
            int at = 0;
            for (int len : blocks(n, w)) {
                Owned<T> blk(std::vector<T>(x.begin() + at * w, x.begin() + (at + len) * w), w == 2);
                part->points = static_cast<int>(len / ratio) + 40;
                ASSERT_EQ(b.run(blk.get(), part.get(), scratch.get()), 0);
                for (T s : part.scalars()) got.push_back(s);
                at += len;
            }
            EXPECT_TRUE(near_all(got, whole.scalars(), tol<T>(64))) << ratio;
        }
}

// Null records, refused scratch, a lone block without state; allocation
// failing at each point in turn returns -1 and leaks nothing.
TYPED_TEST(ResamplerTest, RefusalsAndAllocationFailures) {
    using T = TypeParam;
    Owned<T> in(tone<T>(300, 1, 0.1)), out, cin(tone<T>(500, 2, 0.02), true);
    api::Resampler<T> r(T(2.5));
    EXPECT_EQ(api::coef_setup(static_cast<decltype(&r.c)>(nullptr), T(2), 0, nullptr), -1);
    EXPECT_EQ(r.run(in.get(), out.get(), in.get()), -1);
    EXPECT_EQ(r.run(nullptr, out.get()), -1);
    out->points = 100;
    EXPECT_EQ(r.lone(in.get(), out.get()), 0);
    EXPECT_EQ(out->points, 100);  // nothing dropped without a state: 300 / 2.5 outputs, cut to 100
    for (int fail = 1;; ++fail) {
        using Hooks = CountingHooks<T>;
        int rc;
        {
            typename Hooks::Installed hooks(fail);
            api::Resampler<T> h(T(5.3), 0, 1);
            Owned<T> cout;
            cout->points = 100;
            rc = h.status | h.run(cin.get(), cout.get());
        }
        EXPECT_EQ(Hooks::live, 0) << fail;
        if (Hooks::calls < fail) {
            EXPECT_EQ(rc, 0);
            break;
        }
        EXPECT_EQ(rc, -1) << fail;
    }
}

}  // namespace
