#include "support/api_resample.hpp"
#include "support/records.hpp"
#include "support/resample_ref.hpp"

using namespace zt;

template <class T> class ResampleTest : public ::testing::Test {};
TYPED_TEST_SUITE(ResampleTest, Precisions);

// Decimation against every factor-th sample, fed in random blocks with one
// phase: the next kept index, relative to the next block.
TYPED_TEST(ResampleTest, DecimationKeepsEveryFactorthSampleAcrossBlocks) {
    using T = TypeParam;
    for (int w : {1, 2})
        for (int factor : {0, 1, 3, 4}) {
            const int n = 150, f = std::max(factor, 1);
            const auto x = random_scalars<T>(n * w, factor + w);
            Owned<T> phase;
            std::vector<T> want;
            for (int k = 0; k < n; k += f) want.insert(want.end(), x.begin() + k * w, x.begin() + (k + 1) * w);
            EXPECT_EQ(stream(x, w, factor, [&](Vec<T>* in, Vec<T>* out, int fed) {
                in->delta = T(0.5);
                ASSERT_EQ(api::deci(in, out, factor, phase.get()), 0);
                EXPECT_EQ(std::tuple(out->delta, phase->data[0]), std::tuple(T(0.5) * f, T((f - fed % f) % f)));
            }), want);
        }
}

// The builders against the series evaluated directly.
TYPED_TEST(ResampleTest, KernelTablesFollowTheirSeries) {
    using T = TypeParam;
    const auto a = random_scalars<T>(6, 3);
    Owned<T> series(a), cosk, powk;
    cosk->points = powk->points = 66;
    ASSERT_EQ(api::rsmp_cos(cosk.get(), series.get()) | api::rsmp_pcos(powk.get(), series.get()), 0);
    for (int e = 1; e <= 65; ++e) {
        const double th = 2 * M_PI * (e - 33) / 64.0;
        double c = a[1], p = a[1];
        for (int k = 2; k < 6; ++k) c += a[k] * std::cos((k - 1) * th), p += a[k] * std::pow(std::cos(th), k - 1);
        EXPECT_TRUE(std::fabs(cosk->data[e] - c) + std::fabs(powk->data[e] - p) < tol<T>(64)) << e;
    }
}

// Both modes, real and complex input, against the plain loop; then the same
// signal in random blocks with one history joins to the whole output, and the
// history holds the last K samples, the position and the block's count.
TYPED_TEST(ResampleTest, TableResamplingMatchesPlainLoopAndStreams) {
    using T = TypeParam;
    Owned<T> kern;
    kern->points = 13314;
    ASSERT_EQ(api::rsmp_table(kern.get(), 4), 0);
    for (auto [w, mode] : {std::pair{1, 0}, {1, 1}, {2, 1}})
        for (T ratio : {T(0.37), T(1), T(2.6)}) {
            const auto x = random_scalars<T>(300 * w, w * 7 + mode);
            Owned<T> in(x, w == 2), out, hist;
            out->points = 2000;
            ASSERT_EQ(api::rsmp(in.get(), out.get(), mode, kern.get(), ratio, nullptr), 0);
            const auto want = ref_rsmp<T>(x, w, kern->data, 13, 1024, mode, ratio);
            EXPECT_TRUE(near_all(out.scalars(), want, tol<T>(64)));
            EXPECT_TRUE(near_all(stream(x, w, w + mode, [&](Vec<T>* blk, Vec<T>* part, int) {
                part->points = 2000;
                ASSERT_EQ(api::rsmp(blk, part, mode, kern.get(), ratio, hist.get()), 0);
                EXPECT_EQ(hist->data[14 * w], T(blk->points));
            }), want, tol<T>(64)));
            EXPECT_EQ(std::vector<T>(hist->data, hist->data + 13 * w), std::vector<T>(x.end() - 13 * w, x.end()));
        }
}

// A call stopped by the capacity reports the samples it accounts for (two
// outputs a sample from -13 on: the 31st window starts at 2); with the rest
// fed next the stream goes on. The output may be the input record.
TYPED_TEST(ResampleTest, CapacityStopsAndOutputMayBeInput) {
    using T = TypeParam;
    const auto x = random_scalars<T>(200, 5);
    Owned<T> in(x), out, hist, more, rest(std::vector<T>(x.begin() + 15, x.end()));
    out->points = more->points = 1000;
    ASSERT_EQ(api::rsmp2(in.get(), out.get(), 1, 4, T(0.5), nullptr), 0);
    const auto whole = out.scalars();
    out->points = 30;
    ASSERT_EQ(api::rsmp2(in.get(), out.get(), 1, 4, T(0.5), hist.get()), 0);
    ASSERT_EQ(hist->data[14], T(15));
    auto got = out.scalars();
    ASSERT_EQ(api::rsmp2(rest.get(), more.get(), 1, 4, T(0.5), hist.get()), 0);
    got.insert(got.end(), more->data, more->data + more->points);
    EXPECT_TRUE(near_all(got, whole, tol<T>(16)));
    out->points = 200;
    ASSERT_FALSE(api::rsmp2(in.get(), out.get(), 1, 4, T(2.5), nullptr) || api::rsmp2(in.get(), in.get(), 1, 4, T(2.5), nullptr));
    EXPECT_EQ(std::tuple(in.scalars(), in->delta), std::tuple(out.scalars(), T(2.5)));
}

// Refusals: -1, nothing crashes; a table of no whole number of entries per
// sample and a history position below 0 are refused as well.
TYPED_TEST(ResampleTest, BadArgumentsAreRefused) {
    using T = TypeParam;
    Owned<T> in(random_scalars<T>(40, 1)), cin(random_scalars<T>(40, 1), true), out, hist(std::vector<T>(10)), kern, bad;
    kern->points = 2050, bad->points = 2049;
    ASSERT_EQ(api::rsmp_table(kern.get(), 2), 0);
    for (int rc : {api::rsmp_table(bad.get(), 5), api::rsmp_table(bad.get(), 3), api::rsmp_cos(kern.get(), kern.get()),
                   api::rsmp_pcos(bad.get(), cin.get()), api::deci(static_cast<Vec<T>*>(nullptr), out.get(), 2, nullptr),
                   api::deci(in.get(), out.get(), 2, in.get()), api::rsmp(in.get(), out.get(), 1, kern.get(), T(-1), nullptr),
                   api::rsmp(in.get(), out.get(), 1, kern.get(), T(NAN), nullptr), api::rsmp(in.get(), out.get(), 2, kern.get(), T(1), nullptr),
                   api::rsmp(cin.get(), out.get(), 0, kern.get(), T(1), nullptr), api::rsmp(in.get(), out.get(), 1, kern.get(), T(1), in.get()),
                   api::rsmp(in.get(), kern.get(), 1, kern.get(), T(1), nullptr)})
        EXPECT_EQ(rc, -1);
    kern->data[0] = T(7);  // 2048 entries
    const int uneven = api::rsmp(in.get(), out.get(), 1, kern.get(), T(1), nullptr);
    kern->data[0] = T(8), hist->data[8] = T(-1);  // the position (K = 8) at -1
    EXPECT_EQ(uneven + api::rsmp(in.get(), out.get(), 1, kern.get(), T(1), hist.get()), -2);
}

// Ratios split into octaves and a remainder, with the start-up skips worked
// out by hand: ceil(35 / r) + 19 when the fractional stage runs. Refused
// set-ups store nothing.
TYPED_TEST(ResampleTest, ResamplerSetupSplitsTheRatio) {
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

// One call on a tone of 0.05 cycles per sample (complex: the imaginary part a
// quarter period ahead) gives the fitted tone at 0.05 times the ratio with
// only the kernels' error, the spacing following the ratio; for a ratio of 1
// the output is the input. Blocks of random sizes, 0 and 1 among them, with
// one state give the same output.
TYPED_TEST(ResampleTest, ResamplerResamplesAToneAndStreamsLikeOneCall) {
    using T = TypeParam;
    const int n = 3000;
    for (int w : {1, 2})
        for (double ratio : {1.0 / 3, 0.8, 1.0, 1.25, 2.5, 4.0, 5.0}) {
            std::vector<T> x(n * w);
            for (int k = 0; k < n * w; ++k) x[k] = static_cast<T>(std::sin(2 * M_PI * 0.05 * (k / w) + (k % w) * M_PI / 2));
            Owned<T> in(x, w == 2, T(0.5)), whole, scratch;
            api::Resampler<T> a(static_cast<T>(ratio)), b(static_cast<T>(ratio));
            whole->points = static_cast<int>(n / ratio) + 2;
            ASSERT_EQ(a.run(in.get(), whole.get()), 0);
            if (ratio == 1.0) EXPECT_EQ(whole.scalars(), x);
            double amp, snr = snr_db(whole.scalars(), w, 0.05 * ratio, 200, amp);
            EXPECT_GT(snr, sizeof(T) == 8 ? 110 : 60) << ratio;
            EXPECT_TRUE(std::fabs(amp - 1) < 5e-3 && whole->points > n / ratio - 150 && std::fabs(whole->delta - 0.5 * ratio) < 1e-6);
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
TYPED_TEST(ResampleTest, ResamplerRefusalsAndAllocationFailures) {
    using T = TypeParam;
    Owned<T> in(random_scalars<T>(300, 1)), out, cin(random_scalars<T>(1000, 2), true);
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
