#include <cmath>
#include <limits>

#include "support/api_resample.hpp"
#include "support/resample_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

namespace {

template <class T> class ResampleTest : public ::testing::Test {};
TYPED_TEST_SUITE(ResampleTest, Precisions);

// Decimation against every factor-th sample, fed in random blocks with one phase.
TYPED_TEST(ResampleTest, DecimationKeepsEveryFactorthSampleAcrossBlocks) {
    using T = TypeParam;
    for (int w : {1, 2})
        for (int factor : {0, 1, 3, 4}) {
            const int n = 150, f = std::max(factor, 1);
            const auto x = random_scalars<T>(n * w, factor + w);
            Owned<T> phase, out;
            std::vector<T> got;
            int at = 0;
            for (int b : blocks(n, factor)) {
                Owned<T> in(std::vector<T>(x.begin() + at * w, x.begin() + (at + b) * w), w == 2, T(0.5));
                ASSERT_EQ(api::deci(in.get(), out.get(), factor, phase.get()), 0);
                EXPECT_EQ(out->delta, T(0.5) * f);
                for (T s : out.scalars()) got.push_back(s);
                at += b;
                EXPECT_EQ(phase->data[0], T((f - at % f) % f));  // next kept index, relative to the next block
            }
            std::vector<T> want;
            for (int k = 0; k < n; k += f) want.insert(want.end(), x.begin() + k * w, x.begin() + (k + 1) * w);
            EXPECT_EQ(got, want);
        }
}

// The builders against the series evaluated directly; the stored kernels have
// a gain of about 1 at zero frequency (every Q-th entry sums to about 1).
TYPED_TEST(ResampleTest, KernelTablesFollowTheirSeries) {
    using T = TypeParam;
    const auto a = random_scalars<T>(6, 3);
    Owned<T> series(a), cosk, powk;
    cosk->points = powk->points = 66;
    ASSERT_EQ(api::rsmp_cos(cosk.get(), series.get()), 0);
    ASSERT_EQ(api::rsmp_pcos(powk.get(), series.get()), 0);
    for (int e = 1; e <= 65; ++e) {
        const double th = 2 * M_PI * (e - 33) / 64.0;
        double c = a[1], p = a[1];
        for (int k = 2; k < 6; ++k) c += a[k] * std::cos((k - 1) * th), p += a[k] * std::pow(std::cos(th), k - 1);
        EXPECT_NEAR(cosk->data[e], c, tol<T>(64)) << e;
        EXPECT_NEAR(powk->data[e], p, tol<T>(64)) << e;
    }
    const int points[] = {8194, 13314, 2050, 10242, 13314}, lengths[] = {8, 13, 8, 10, 13};
    for (int which = 0; which < 5; ++which) {
        Owned<T> kern;
        kern->points = points[which];
        ASSERT_EQ(api::rsmp_table(kern.get(), which), 0);
        const int q = (points[which] - 2) / lengths[which];
        EXPECT_EQ(kern->data[0], T(lengths[which]));
        for (int phase : {0, q / 3, q / 2}) {
            double sum = 0;
            for (int j = 0; j < lengths[which]; ++j) sum += kern->data[1 + phase + j * q];
            EXPECT_NEAR(sum, 1.0, 5e-2) << which;
        }
    }
}

// Both modes, real and complex input, against the plain loop; then the same
// signal in random blocks with one history joins to the whole output.
TYPED_TEST(ResampleTest, TableResamplingMatchesPlainLoopAndStreams) {
    using T = TypeParam;
    Owned<T> kern;
    kern->points = 13314;
    ASSERT_EQ(api::rsmp_table(kern.get(), 4), 0);
    for (int w : {1, 2})
        for (int mode : {0, 1})
            for (T ratio : {T(0.37), T(1), T(2.6)}) {
                if (w == 2 && mode == 0) continue;
                const int n = 300;
                const auto x = random_scalars<T>(n * w, w * 7 + mode);
                Owned<T> in(x, w == 2), out;
                out->points = 2000;
                ASSERT_EQ(api::rsmp(in.get(), out.get(), mode, kern.get(), ratio, nullptr), 0);
                const auto want = ref_rsmp<T>(x, w, std::vector<T>(13 * w), T(0), kern->data, 13, 1024, mode, ratio, 2000);
                EXPECT_TRUE(near_all(out.scalars(), want, tol<T>(64))) << w << mode << ratio;
                Owned<T> hist, part;
                std::vector<T> got;
                int at = 0;
                for (int b : blocks(n, w + mode)) {
                    Owned<T> blk(std::vector<T>(x.begin() + at * w, x.begin() + (at + b) * w), w == 2);
                    part->points = 2000;
                    ASSERT_EQ(api::rsmp(blk.get(), part.get(), mode, kern.get(), ratio, hist.get()), 0);
                    for (T s : part.scalars()) got.push_back(s);
                    at += b;
                    EXPECT_EQ(hist->points, 15);
                    EXPECT_EQ(hist->data[14 * w], T(b));
                }
                EXPECT_TRUE(near_all(got, want, tol<T>(64)));
                // The carried window is the last 13 samples of the signal.
                EXPECT_EQ(std::vector<T>(hist->data, hist->data + 13 * w), std::vector<T>(x.end() - 13 * w, x.end()));
            }
}

// A stopped call reports the samples it accounts for; with the rest fed again
// the stream goes on. The output may be the input record.
TYPED_TEST(ResampleTest, CapacityStopsAndOutputMayBeInput) {
    using T = TypeParam;
    const auto x = random_scalars<T>(200, 5);
    Owned<T> in(x), out, hist;
    out->points = 1000;
    ASSERT_EQ(api::rsmp2(in.get(), out.get(), 1, 4, T(0.5), nullptr), 0);
    const auto whole = out.scalars();
    out->points = 30;
    ASSERT_EQ(api::rsmp2(in.get(), out.get(), 1, 4, T(0.5), hist.get()), 0);
    ASSERT_EQ(out->points, 30);
    const int used = static_cast<int>(hist->data[14]);
    EXPECT_EQ(used, 15);  // two outputs a sample from -13 on: the 31st window starts at sample 2
    auto got = out.scalars();
    Owned<T> rest(std::vector<T>(x.begin() + used, x.end())), more;
    more->points = 1000;
    ASSERT_EQ(api::rsmp2(rest.get(), more.get(), 1, 4, T(0.5), hist.get()), 0);
    for (T s : more.scalars()) got.push_back(s);
    EXPECT_TRUE(near_all(got, whole, tol<T>(16)));
    out->points = 200;  // in place: fewer samples than the input gives
    ASSERT_EQ(api::rsmp2(in.get(), out.get(), 1, 4, T(2.5), nullptr), 0);
    ASSERT_EQ(api::rsmp2(in.get(), in.get(), 1, 4, T(2.5), nullptr), 0);
    EXPECT_EQ(in.scalars(), out.scalars());
    EXPECT_EQ(in->delta, T(2.5));
}

// Refusals: nothing is produced and nothing crashes.
TYPED_TEST(ResampleTest, BadArgumentsAreRefused) {
    using T = TypeParam;
    Owned<T> in(random_scalars<T>(40, 1)), cin(random_scalars<T>(40, 1), true), out, hist(std::vector<T>(10)), kern, bad;
    kern->points = 2050;
    ASSERT_EQ(api::rsmp_table(kern.get(), 2), 0);
    bad->points = 2049;
    const T nan = std::numeric_limits<T>::quiet_NaN();
    EXPECT_EQ(api::rsmp_table(bad.get(), 5), -1);
    EXPECT_EQ(api::rsmp_table(bad.get(), 3), -1);
    EXPECT_EQ(api::rsmp_cos(kern.get(), kern.get()), -1);
    EXPECT_EQ(api::rsmp_pcos(bad.get(), cin.get()), -1);
    EXPECT_EQ(api::deci(nullptr, out.get(), 2, nullptr), -1);
    EXPECT_EQ(api::deci(in.get(), out.get(), 2, in.get()), -1);
    EXPECT_EQ(api::rsmp(in.get(), out.get(), 1, kern.get(), T(-1), nullptr), -1);
    EXPECT_EQ(api::rsmp(in.get(), out.get(), 1, kern.get(), nan, nullptr), -1);
    EXPECT_EQ(api::rsmp(in.get(), out.get(), 2, kern.get(), T(1), nullptr), -1);
    EXPECT_EQ(api::rsmp(cin.get(), out.get(), 0, kern.get(), T(1), nullptr), -1);
    EXPECT_EQ(api::rsmp(in.get(), out.get(), 1, kern.get(), T(1), in.get()), -1);
    EXPECT_EQ(api::rsmp(in.get(), kern.get(), 1, kern.get(), T(1), nullptr), -1);
    EXPECT_EQ(api::rsmp(in.get(), out.get(), 1, kern.get(), T(1), nullptr), 0);
    kern->data[0] = T(7);  // 2048 entries are no whole number per sample
    EXPECT_EQ(api::rsmp(in.get(), out.get(), 1, kern.get(), T(1), nullptr), -1);
    hist->data[8] = T(-1);  // position at -1 (K = 8)
    kern->data[0] = T(8);
    EXPECT_EQ(api::rsmp(in.get(), out.get(), 1, kern.get(), T(1), hist.get()), -1);
}

}  // namespace
