#include "support/vectors.hpp"

#include <cstdint>
#include <limits>

#include "support/api_fft.hpp"
#include "support/dft_ref.hpp"
#include "support/records.hpp"

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
            ASSERT_EQ(api::fft(o.get(), dir == 0 ? 0 : bits % 2 ? 1 : 7), 0);  // any nonzero direction is the inverse
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

// Two points by hand; one point changes only the spacing; the spacing becomes
// that of the other domain (huge for 0, a non-number stays one).
TYPED_TEST(FftTest, ShortTransformsAndSpacing) {
    using T = TypeParam;
    Owned<T> o(std::vector<T>{3, 5}, false, T(0.5)), r(std::vector<T>{3, 5});
    ASSERT_EQ(api::fft(o.get(), 0), 0);  // a real vector is widened
    EXPECT_EQ(o.scalars(), (std::vector<T>{4, 0, -1, 0}));
    EXPECT_EQ(o->delta, T(1));
    ASSERT_EQ(api::fft(o.get(), 1), 0);
    EXPECT_EQ(o.scalars(), (std::vector<T>{3, 0, 5, 0}));
    ASSERT_EQ(api::rfft(r.get()), 0);
    EXPECT_EQ(r.scalars(), (std::vector<T>{4, 0, -1, 0}));
    ASSERT_EQ(api::irfft(r.get()), 0);
    EXPECT_EQ(r.scalars(), (std::vector<T>{3, 5}));
    EXPECT_EQ(r->delta, T(1));
    for (int op = 0; op < 4; ++op) {
        Owned<T> one(op == 3 ? std::vector<T>{7, 9} : std::vector<T>{7}, op == 3, T(4));  // one bin back to one sample
        ASSERT_EQ(op == 3 ? api::irfft(one.get()) : op == 2 ? api::rfft(one.get()) : api::fft(one.get(), op), 0);
        EXPECT_EQ(one->complex, 0);
        EXPECT_EQ(one.scalars(), std::vector<T>{7});
        if (op < 3) EXPECT_EQ(one->delta, T(0.25));
    }
    Owned<T> c(random_scalars<T>(16, 9), true, T(0.5));
    ASSERT_EQ(api::fft(c.get(), 0), 0);
    EXPECT_EQ(c->delta, T(0.25));  // 1 / (8 * 0.5)
    c->delta = T(0);
    ASSERT_EQ(api::fft(c.get(), 1), 0);
    EXPECT_EQ(c->delta, Traits<T>::huge);
    c->delta = std::numeric_limits<T>::quiet_NaN();
    ASSERT_EQ(api::fft(c.get(), 0), 0);
    EXPECT_TRUE(std::isnan(c->delta));
    Owned<T> h(random_scalars<T>(8, 10), false, T(0.125));
    ASSERT_EQ(api::rfft(h.get()), 0);
    EXPECT_EQ(std::tuple(h->points, h->delta), std::tuple(5, T(1)));
    h->delta = T(0.25);
    ASSERT_EQ(api::irfft(h.get()), 0);
    EXPECT_EQ(std::tuple(h->points, h->delta), std::tuple(8, T(0.5)));
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
    for (auto f : {+[](Vec<T>* v) { return api::fft(v, 0); }, +[](Vec<T>* v) { return api::fft(v, 1); }, api::rfft, api::irfft,
                   api::bitrev, api::bitrev_scale})
        expect_refuses_unreadable<T>(f);
    for (int n : {0, 3, 6, 12, 24}) {
        for (int complex = 0; complex < 2; ++complex) {
            const auto in = random_scalars<T>(complex ? 2 * n : n, 5);
            Owned<T> o(in, complex != 0, T(2));
            EXPECT_EQ(api::fft(o.get(), 0), -1);
            EXPECT_EQ(api::fft(o.get(), 1), -1);
            EXPECT_EQ(api::rfft(o.get()), -1);
            EXPECT_EQ(api::bitrev(o.get()), -1);
            EXPECT_EQ(api::bitrev_scale(o.get()), -1);
            EXPECT_EQ(std::tuple(o.scalars(), o->complex, o->delta), std::tuple(in, complex, T(2)));
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
}

TYPED_TEST(FftTest, ComplexTransformWorksInWrappedCallerStorage) {
    using T = TypeParam;
    auto in = random_scalars<T>(64, 11);
    std::vector<T> mine = in;
    Vec<T> v = borrow(mine.data(), 32);
    v.complex = 1;
    ASSERT_EQ(api::fft(&v, 0), 0);
    EXPECT_EQ(v.data, mine.data());   // transformed where it lies
    EXPECT_EQ(v.alloc, 0);
    Owned<T> o(in, true);
    ASSERT_EQ(api::fft(o.get(), 0), 0);
    EXPECT_EQ(mine, o.scalars());

    // A real wrapped array is widened into storage of the record's own.
    std::vector<T> reals = random_scalars<T>(16, 12), keep = reals;
    Vec<T> w = borrow(reals.data(), 16);
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
