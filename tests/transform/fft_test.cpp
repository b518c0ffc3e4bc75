#include "support/vectors.hpp"

#include "support/api_fft.hpp"
#include "support/dft_ref.hpp"
#include "support/records.hpp"

using namespace zt;
using ref::cld;

template <class T> class FftTest : public ::testing::Test {};
TYPED_TEST_SUITE(FftTest, Precisions);

// Both complex directions (any nonzero direction is the inverse), the real
// transform and its inverse from the spectrum held as T, for every power of
// two up to 2^13 and 2^16, against the long-double reference; the spacing
// becomes that of the other domain. The inverse real transform ignores the
// imaginary parts at DC and Nyquist and takes a real record as real bins.
TYPED_TEST(FftTest, TransformsMeetTheRmsErrorBound) {
    using T = TypeParam;
    for (int bits : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 16}) {
        const int n = 1 << bits, m = n / 2 + 1;
        const double bound = 2 * static_cast<double>(Traits<T>::eps) * bits;
        SCOPED_TRACE(n);
        for (int dir : {0, bits % 2 ? 1 : 7}) {
            const auto in = random_scalars<T>(2 * n, 100 + bits);
            Owned<T> o(in, true, T(0.5));
            ASSERT_EQ(api::fft(o.get(), dir), 0);
            EXPECT_EQ(shape(o.v), std::tuple(n, 1, T(2) / T(n)));
            const auto want = ref::fft(ref::from_pairs(in), dir ? 1 : -1, dir ? 1.0L : 1.0L / n);
            EXPECT_LE(ref::rms_rel_error(ref::from_pairs(o.scalars()), want), bound) << "direction " << dir;
        }
        const auto in = random_scalars<T>(n, 200 + bits);
        Owned<T> o(in, false, T(0.5));
        ASSERT_EQ(api::rfft(o.get()), 0);
        EXPECT_EQ(shape(o.v), std::tuple(m, 1, T(2) / T(n)));
        EXPECT_GE(o->alloc, 2 * n);
        auto want = ref::fft(ref::from_reals(in), -1, 1.0L / n);
        want.resize(m);
        EXPECT_LE(ref::rms_rel_error(ref::from_pairs(o.scalars()), want), bound);
        ASSERT_EQ(std::tuple(o->data[1], o->data[n + 1]), std::tuple(T(0), T(0)));   // DC and Nyquist are real
        const auto bins = o.scalars();
        for (int real = 0; real < 2; ++real) {
            std::vector<cld> full(n);
            std::vector<T> re(m);
            for (int k = 0; k < m; ++k) re[k] = bins[2 * k], full[k] = cld(re[k], real ? 0 : bins[2 * k + 1]);
            for (int k = 1; k < n / 2; ++k) full[n - k] = std::conj(full[k]);
            Owned<T> b(real ? re : bins, !real, T(0.25));
            if (!real) b->data[1] = T(5), b->data[n + 1] = T(-3);
            ASSERT_EQ(api::irfft(b.get()), 0);
            EXPECT_EQ(shape(b.v), std::tuple(n, 0, T(4) / T(n)));
            EXPECT_LE(ref::rms_rel_error(ref::from_reals(b.scalars()), ref::fft(full, 1)), bound) << "real bins " << real;
        }
    }
}

// One point changes only the spacing; a spacing of 0 becomes huge, a
// non-number stays one.
TYPED_TEST(FftTest, ShortTransformsAndSpacing) {
    using T = TypeParam;
    for (int op = 0; op < 4; ++op) {
        Owned<T> one(op == 3 ? std::vector<T>{7, 9} : std::vector<T>{7}, op == 3, T(4));  // one bin back to one sample
        ASSERT_EQ(op == 3 ? api::irfft(one.get()) : op == 2 ? api::rfft(one.get()) : api::fft(one.get(), op), 0);
        EXPECT_EQ(std::tuple(one.scalars(), one->complex, one->delta), std::tuple(std::vector<T>{7}, 0, T(0.25))) << op;
    }
    Owned<T> c(random_scalars<T>(16, 9), true, T(0));
    ASSERT_EQ(api::fft(c.get(), 1), 0);
    EXPECT_EQ(c->delta, Traits<T>::huge);
    c->delta = std::numeric_limits<T>::quiet_NaN();
    ASSERT_EQ(api::fft(c.get(), 0), 0);
    EXPECT_TRUE(std::isnan(c->delta));
}

TYPED_TEST(FftTest, RejectsBadRecordsAndLengthsLeavingThemUnchanged) {
    using T = TypeParam;
    for (auto f : {+[](Vec<T>* v) { return api::fft(v, 0); }, api::rfft, api::irfft, api::bitrev, api::bitrev_scale})
        expect_refuses_unreadable<T>(f);
    for (int n : {0, 7, 6, 12, 24})   // irfft: M bins need 2(M - 1) to be a power of two
        for (int complex = 0; complex < 2; ++complex) {
            const auto in = random_scalars<T>(complex ? 2 * n : n, 5);
            Owned<T> o(in, complex != 0, T(2));
            EXPECT_EQ(api::fft(o.get(), 0) + api::fft(o.get(), 1) + api::rfft(o.get()) + api::irfft(o.get()) + api::bitrev(o.get()) + api::bitrev_scale(o.get()), -6);
            EXPECT_EQ(std::tuple(o.scalars(), o->complex, o->delta), std::tuple(in, complex, T(2))) << n;
        }
    Owned<T> c(random_scalars<T>(16, 7), true);
    EXPECT_EQ(api::rfft(c.get()), -1);   // the input must be real
}

// Against the reversal computed bit by bit, pairs or scalars, up to lengths
// whose swap lists the blocked walk of long data is compared with
// (fft_kernel_test); the scaling form also divides every sample by N once.
TYPED_TEST(FftTest, BitReversalPermutesScalesAndIsItsOwnInverse) {
    using T = TypeParam;
    for (int bits : {0, 1, 2, 3, 5, 6, 8, 9, 11})
        for (int w = 1, n = 1 << bits; w <= 2; ++w) {
            const auto in = random_scalars<T>(static_cast<std::size_t>(n) * w, bits);
            Owned<T> o(in, w == 2, T(3)), s(in, w == 2);
            ASSERT_EQ(api::bitrev(o.get()) | api::bitrev_scale(s.get()), 0);
            const auto out = o.scalars(), scaled = s.scalars();
            for (int i = 0, r = 0; i < n * w; ++i, r = 0) {
                for (int k = 0; k < bits; ++k) r |= ((i / w >> k) & 1) << (bits - 1 - k);
                ASSERT_EQ(std::tuple(out[i], scaled[i]), std::tuple(in[r * w + i % w], in[r * w + i % w] / T(n))) << n << " " << w << " " << i;
            }
            EXPECT_EQ(std::tuple(o->delta, o->points), std::tuple(T(3), n));
            ASSERT_EQ(api::bitrev(o.get()), 0);
            EXPECT_EQ(o.scalars(), in);
        }
}

TEST(CfFft, TransformsComplexArraysInPlaceAndRefusesRealOnes) {
    const auto in = random_scalars<double>(128, 13);
    std::vector<double> arr = in, reals = {1, 2, 3, 4};
    Owned<double> o(in, true);
    ASSERT_EQ(cf_dspi_fft(arr.data(), 64, 1, 0) + dspi_fft(o.get(), 0), 0);
    EXPECT_EQ(arr, o.scalars());
    ASSERT_EQ(cf_dspi_fft(arr.data(), 64, 1, 1), 0);
    EXPECT_TRUE(near_all(arr, in, 1e-14));
    EXPECT_EQ(cf_dspi_fft(reals.data(), 4, 0, 0) + cf_dspi_fft(reals.data(), 3, 1, 0) + cf_dspi_fft(nullptr, 4, 1, 0), -3);
    EXPECT_EQ(reals, (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(cf_dspi_fft(reals.data(), 1, 0, 0), 0);   // one real point: nothing to widen
    EXPECT_EQ(reals[0], 1.0);
}
