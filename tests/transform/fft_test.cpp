#include "support/vectors.hpp"

#include <cstdint>
#include <limits>

#include "support/api_fft.hpp"
#include "support/dft_ref.hpp"

using namespace zt;
using ref::cld;

template <class T> class FftTest : public ::testing::Test {};
TYPED_TEST_SUITE(FftTest, Precisions);

namespace {

// The exact transform of the data the record holds (as T), in long double.
inline std::vector<cld> exact(const std::vector<cld>& x, int sign, long double scale) {
    return x.size() <= 256 ? ref::dft(x, sign, scale) : ref::fft(x, sign, scale);
}

// Lengths 2 .. 2^12, then a long one.
const int kBits[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 16};

template <class T> double bound(int n) {
    return 2 * static_cast<double>(Traits<T>::eps) * std::log2(static_cast<double>(n));
}

}  // namespace

// Forward and inverse complex transforms of random data for every power of two
// up to 2^16, against the long-double reference.
TYPED_TEST(FftTest, ComplexTransformsMeetTheRmsErrorBound) {
    using T = TypeParam;
    for (int bits : kBits) {
        const int n = 1 << bits;
        for (int dir = 0; dir < (bits > 12 ? 1 : 2); ++dir) {
            const auto in = random_scalars<T>(2 * n, 100 + bits);
            Owned<T> o(in, true);
            ASSERT_EQ(api::fft(o.get(), dir), 0);
            EXPECT_EQ(o->points, n);
            EXPECT_EQ(o->complex, 1);
            const auto want = exact(ref::from_pairs(in), dir == 0 ? -1 : 1, dir == 0 ? 1.0L / n : 1.0L);
            EXPECT_LE(ref::rms_rel_error(ref::from_pairs(o.scalars()), want), bound<T>(n))
                << "n = " << n << (dir ? " inverse" : " forward");
        }
    }
}

TYPED_TEST(FftTest, RealTransformsMeetTheRmsErrorBound) {
    using T = TypeParam;
    for (int bits : kBits) {
        const int n = 1 << bits;
        const auto in = random_scalars<T>(n, 200 + bits);
        Owned<T> o(in);
        ASSERT_EQ(api::rfft(o.get()), 0);
        ASSERT_EQ(o->points, n / 2 + 1);
        EXPECT_EQ(o->complex, 1);
        EXPECT_GE(o->alloc, 2 * n);
        auto want = exact(ref::from_reals(in), -1, 1.0L / n);
        want.resize(n / 2 + 1);
        EXPECT_LE(ref::rms_rel_error(ref::from_pairs(o.scalars()), want), bound<T>(n)) << "n = " << n;
        EXPECT_EQ(o.v.data[1], T(0));   // DC and Nyquist are real
        EXPECT_EQ(o.v.data[n + 1], T(0));

        // The inverse from a spectrum held as T, against the exact inverse.
        const auto bins = o.scalars();
        std::vector<cld> full(n);
        for (int k = 0; k <= n / 2; ++k) full[k] = cld(bins[2 * k], bins[2 * k + 1]);
        full[0].imag(0);
        full[n / 2].imag(0);
        for (int k = 1; k < n / 2; ++k) full[n - k] = std::conj(full[k]);
        const auto back = exact(full, 1, 1);
        ASSERT_EQ(api::irfft(o.get()), 0);
        ASSERT_EQ(o->points, n);
        EXPECT_EQ(o->complex, 0);
        EXPECT_LE(ref::rms_rel_error(ref::from_reals(o.scalars()), back), bound<T>(n)) << "n = " << n;
    }
}

// The two references agree with each other.
TEST(DftReference, FastAndDirectAgree) {
    const auto x = ref::from_pairs(random_scalars<double>(2 * 512, 77));
    EXPECT_LE(ref::rms_rel_error(ref::fft(x, -1, 0.5L), ref::dft(x, -1, 0.5L)), 1e-17);
}

TYPED_TEST(FftTest, ImpulseGivesFlatSpectrumAndRotatingPhasorOneBin) {
    using T = TypeParam;
    Owned<T> o(std::vector<T>{1, 0, 0, 0, 0, 0, 0, 0});
    ASSERT_EQ(api::fft(o.get(), 0), 0);
    std::vector<double> eighth(16);
    for (int k = 0; k < 8; ++k) eighth[2 * k] = 0.125;
    EXPECT_TRUE(near_all(o.scalars(), eighth, tol<T>()));

    // e^(+j 2 pi n/N) lands in bin 1 with the forward kernel e^-j.
    const int n = 32;
    std::vector<T> s(2 * n);
    for (int m = 0; m < n; ++m) {
        s[2 * m] = static_cast<T>(std::cos(2 * M_PI * m / n));
        s[2 * m + 1] = static_cast<T>(std::sin(2 * M_PI * m / n));
    }
    o.set(s, true);
    ASSERT_EQ(api::fft(o.get(), 0), 0);
    std::vector<double> bin1(2 * n);
    bin1[2] = 1;
    EXPECT_TRUE(near_all(o.scalars(), bin1, tol<T>(20)));
}

TYPED_TEST(FftTest, LinearityAndShift) {
    using T = TypeParam;
    const int n = 256;
    const auto a = random_scalars<T>(2 * n, 1), b = random_scalars<T>(2 * n, 2);
    const T alpha = T(0.75), beta = T(-1.5);
    std::vector<T> mix(2 * n), shifted(2 * n);
    for (int i = 0; i < 2 * n; ++i) mix[i] = alpha * a[i] + beta * b[i];
    const int shift = 5;
    for (int m = 0; m < n; ++m) {
        shifted[2 * ((m + shift) % n)] = a[2 * m];
        shifted[2 * ((m + shift) % n) + 1] = a[2 * m + 1];
    }
    Owned<T> fa(a, true), fb(b, true), fm(mix, true), fs(shifted, true);
    for (auto* o : {&fa, &fb, &fm, &fs}) ASSERT_EQ(api::fft(o->get(), 0), 0);
    const auto A = ref::from_pairs(fa.scalars()), B = ref::from_pairs(fb.scalars());
    const auto M = ref::from_pairs(fm.scalars()), S = ref::from_pairs(fs.scalars());
    std::vector<cld> lin(n), sh(n);
    for (int k = 0; k < n; ++k) {
        lin[k] = static_cast<long double>(alpha) * A[k] + static_cast<long double>(beta) * B[k];
        const long double ang = -2 * ref::pi_l * shift * k / n;
        sh[k] = A[k] * cld(std::cos(ang), std::sin(ang));
    }
    EXPECT_LE(ref::rms_rel_error(M, lin), 4 * bound<T>(n));
    EXPECT_LE(ref::rms_rel_error(S, sh), 4 * bound<T>(n));
}

TYPED_TEST(FftTest, InverseOfForwardReturnsInput) {
    using T = TypeParam;
    for (int n : {4, 8, 64, 1024}) {
        const auto in = random_scalars<T>(2 * n, n);
        Owned<T> o(in, true, T(0.25));
        ASSERT_EQ(api::fft(o.get(), 0), 0);
        ASSERT_EQ(api::fft(o.get(), 7), 0);   // any nonzero direction is the inverse
        EXPECT_TRUE(near_all(o.scalars(), in, tol<T>(4 * std::log2(n))));
        EXPECT_EQ(o->delta, T(0.25));
    }
}

TYPED_TEST(FftTest, RealTransformEqualsComplexTransformOfRealData) {
    using T = TypeParam;
    for (int n : {2, 4, 8, 16, 512}) {
        const auto in = random_scalars<T>(n, 3 * n);
        Owned<T> r(in), c(in);
        ASSERT_EQ(api::rfft(r.get()), 0);
        ASSERT_EQ(api::fft(c.get(), 0), 0);   // a real vector is widened
        ASSERT_EQ(c->complex, 1);
        auto full = c.scalars();
        full.resize(n + 2);
        EXPECT_TRUE(near_all(r.scalars(), full, tol<T>(4 * std::log2(n)))) << "n = " << n;
    }
}

TYPED_TEST(FftTest, TwoPointTransforms) {
    using T = TypeParam;
    Owned<T> o(std::vector<T>{3, 5}, false, T(0.5));
    ASSERT_EQ(api::fft(o.get(), 0), 0);
    EXPECT_EQ(o.scalars(), (std::vector<T>{4, 0, -1, 0}));
    EXPECT_EQ(o->delta, T(1));
    ASSERT_EQ(api::fft(o.get(), 1), 0);
    EXPECT_EQ(o.scalars(), (std::vector<T>{3, 0, 5, 0}));

    Owned<T> r(std::vector<T>{3, 5});
    ASSERT_EQ(api::rfft(r.get()), 0);
    EXPECT_EQ(r.scalars(), (std::vector<T>{4, 0, -1, 0}));
    ASSERT_EQ(api::irfft(r.get()), 0);
    EXPECT_EQ(r.scalars(), (std::vector<T>{3, 5}));
    EXPECT_EQ(r->delta, T(1));
}

TYPED_TEST(FftTest, OnePointChangesOnlyDelta) {
    using T = TypeParam;
    for (int dir = 0; dir < 2; ++dir) {
        Owned<T> o(std::vector<T>{7}, false, T(4));
        ASSERT_EQ(api::fft(o.get(), dir), 0);
        EXPECT_EQ(o->complex, 0);
        EXPECT_EQ(o.scalars(), std::vector<T>{7});
        EXPECT_EQ(o->delta, T(0.25));
    }
    Owned<T> r(std::vector<T>{7}, false, T(4));
    ASSERT_EQ(api::rfft(r.get()), 0);
    EXPECT_EQ(r->complex, 0);
    EXPECT_EQ(r->delta, T(0.25));
    Owned<T> c(std::vector<T>{7, 9}, true, T(4));   // one bin back to one sample
    ASSERT_EQ(api::irfft(c.get()), 0);
    EXPECT_EQ(c->complex, 0);
    EXPECT_EQ(c.scalars(), std::vector<T>{7});
}

TYPED_TEST(FftTest, DeltaBecomesSpacingOfTheOtherDomain) {
    using T = TypeParam;
    Owned<T> o(random_scalars<T>(16, 9), true, T(0.5));
    ASSERT_EQ(api::fft(o.get(), 0), 0);
    EXPECT_EQ(o->delta, T(0.25));   // 1 / (8 * 0.5)
    o->delta = T(0);
    ASSERT_EQ(api::fft(o.get(), 1), 0);
    EXPECT_EQ(o->delta, Traits<T>::huge);
    EXPECT_EQ(static_cast<double>(Traits<float>::huge), 999999986991104.0);
    o->delta = std::numeric_limits<T>::quiet_NaN();
    ASSERT_EQ(api::fft(o.get(), 0), 0);
    EXPECT_TRUE(std::isnan(o->delta));

    Owned<T> r(random_scalars<T>(8, 10), false, T(0.125));
    ASSERT_EQ(api::rfft(r.get()), 0);
    EXPECT_EQ(r->points, 5);
    EXPECT_EQ(r->delta, T(1));
    r->delta = T(0.25);
    ASSERT_EQ(api::irfft(r.get()), 0);
    EXPECT_EQ(r->points, 8);
    EXPECT_EQ(r->delta, T(0.5));
}

TYPED_TEST(FftTest, InverseRealTransformIgnoresImaginaryDcAndNyquistAndTakesRealBins) {
    using T = TypeParam;
    // Bins 0 .. 4 of a length-8 spectrum: x[n] = sum over the symmetric spectrum.
    const std::vector<T> bins = {1, 5, 0.5, -0.25, 0, 2, -1, 0.5, 0.75, -3};
    auto expect = [&](const std::vector<T>& b, bool complex_bins) {
        std::vector<long double> want(8);
        for (int n = 0; n < 8; ++n) {
            long double s = 0;
            for (int k = 0; k <= 4; ++k) {
                const long double re = complex_bins ? b[2 * k] : b[k], im = complex_bins ? b[2 * k + 1] : 0;
                const long double a = 2 * ref::pi_l * ((n * k) % 8) / 8;
                const long double term = re * std::cos(a) - im * std::sin(a);
                s += (k == 0 || k == 4) ? term : 2 * term;
            }
            want[n] = s;
        }
        return want;
    };
    Owned<T> c(bins, true);
    ASSERT_EQ(api::irfft(c.get()), 0);
    EXPECT_TRUE(near_all(c.scalars(), expect(bins, true), tol<T>(16)));
    const std::vector<T> reals = {1, 0.5, 0, -1, 0.75};
    Owned<T> r(reals);
    ASSERT_EQ(api::irfft(r.get()), 0);
    EXPECT_TRUE(near_all(r.scalars(), expect(reals, false), tol<T>(16)));
}

TYPED_TEST(FftTest, RejectsBadRecordsAndLengthsLeavingThemUnchanged) {
    using T = TypeParam;
    EXPECT_EQ(api::fft(static_cast<Vec<T>*>(nullptr), 0), -1);
    EXPECT_EQ(api::rfft(static_cast<Vec<T>*>(nullptr)), -1);
    EXPECT_EQ(api::irfft(static_cast<Vec<T>*>(nullptr)), -1);
    EXPECT_EQ(api::bitrev(static_cast<Vec<T>*>(nullptr)), -1);
    EXPECT_EQ(api::bitrev_scale(static_cast<Vec<T>*>(nullptr)), -1);
    for (int n : {0, 3, 6, 12, 24}) {
        for (int complex = 0; complex < 2; ++complex) {
            const auto in = random_scalars<T>(complex ? 2 * n : n, 5);
            Owned<T> o(in, complex != 0, T(2));
            EXPECT_EQ(api::fft(o.get(), 0), -1);
            EXPECT_EQ(api::fft(o.get(), 1), -1);
            EXPECT_EQ(api::rfft(o.get()), -1);
            EXPECT_EQ(api::bitrev(o.get()), -1);
            EXPECT_EQ(api::bitrev_scale(o.get()), -1);
            EXPECT_EQ(o.scalars(), in);
            EXPECT_EQ(o->complex, complex);
            EXPECT_EQ(o->delta, T(2));
        }
    }
    // irfft: M bins need 2(M - 1) to be a power of two.
    for (int m : {0, 4, 6}) {
        const auto in = random_scalars<T>(2 * m, 6);
        Owned<T> o(in, true);
        EXPECT_EQ(api::irfft(o.get()), -1);
        EXPECT_EQ(o.scalars(), in);
    }
    Owned<T> c(random_scalars<T>(16, 7), true);
    EXPECT_EQ(api::rfft(c.get()), -1);   // the input must be real
    Vec<T> bad;
    api::init(&bad);
    bad.points = 8;   // no data
    EXPECT_EQ(api::fft(&bad, 0), -1);
    bad.points = -8;
    EXPECT_EQ(api::bitrev(&bad), -1);
}

TYPED_TEST(FftTest, ComplexTransformWorksInWrappedCallerStorage) {
    using T = TypeParam;
    auto in = random_scalars<T>(64, 11);
    std::vector<T> mine = in;
    Vec<T> v;
    api::init(&v);
    v.data = mine.data();
    v.points = 32;
    v.complex = 1;
    ASSERT_EQ(api::fft(&v, 0), 0);
    EXPECT_EQ(v.data, mine.data());   // transformed where it lies
    EXPECT_EQ(v.alloc, 0);
    Owned<T> o(in, true);
    ASSERT_EQ(api::fft(o.get(), 0), 0);
    EXPECT_EQ(mine, o.scalars());

    // A real wrapped array is widened into storage of the record's own.
    std::vector<T> reals = random_scalars<T>(16, 12), keep = reals;
    Vec<T> w;
    api::init(&w);
    w.data = reals.data();
    w.points = 16;
    ASSERT_EQ(api::rfft(&w), 0);
    EXPECT_NE(w.data, reals.data());
    EXPECT_EQ(reals, keep);
    api::destroy(&w);
}

TEST(CfFft, TransformsComplexArraysInPlaceAndRefusesRealOnes) {
    const auto in = random_scalars<double>(128, 13);
    std::vector<double> arr = in;
    ASSERT_EQ(cf_dspi_fft(arr.data(), 64, 1, 0), 0);
    Owned<double> o(in, true);
    ASSERT_EQ(dspi_fft(o.get(), 0), 0);
    EXPECT_EQ(arr, o.scalars());
    ASSERT_EQ(cf_dspi_fft(arr.data(), 64, 1, 1), 0);
    EXPECT_TRUE(near_all(arr, in, 1e-14));

    std::vector<double> reals = {1, 2, 3, 4};
    EXPECT_EQ(cf_dspi_fft(reals.data(), 4, 0, 0), -1);
    EXPECT_EQ(reals, (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(cf_dspi_fft(reals.data(), 1, 0, 0), 0);   // one real point: nothing to widen
    EXPECT_EQ(reals[0], 1.0);
    EXPECT_EQ(cf_dspi_fft(reals.data(), 3, 1, 0), -1);
    EXPECT_EQ(cf_dspi_fft(nullptr, 4, 1, 0), -1);
}
