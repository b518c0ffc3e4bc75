// One-call spectra: tones read at their amplitude, phase and bin; every flag
// set survives the way there and back (the record times its window).
#include <cmath>

#include "support/api_spectrum.hpp"
#include "support/vectors.hpp"

using namespace zt;

namespace {

template <class T> class Spectrum : public ::testing::Test {};
TYPED_TEST_SUITE(Spectrum, Precisions);

// A tone A e^{j phi} (complex) or A cos (real) at `bins` cycles per M samples.
template <class T> std::vector<T> tone(int n, int m, double bins, bool complex, double a, double phi) {
    std::vector<T> x;
    for (int i = 0; i < n; ++i) {
        const double t = 2 * M_PI * bins * i / m + phi;
        x.push_back(static_cast<T>(a * std::cos(t)));
        if (complex) x.push_back(static_cast<T>(a * std::sin(t)));
    }
    return x;
}

// With mean normalisation, factor 2 and padding rescaled by M/L the line of a
// real tone reads its amplitude and phase; two-sided it splits into halves at
// M/2 +- k; by the length it reads A L/2. The flat-top reads an off-bin tone
// within 0.01 dB and 1/(M delta) gives the bins' frequency.
TYPED_TEST(Spectrum, TonesReadTheirAmplitude) {
    using T = TypeParam;
    struct Case { bool dft; int n, kind, flags; bool complex; double bins; int bin; double re, im, db; };
    const double a = 1.5, phi = 0.3, c = a * std::cos(phi), s = a * std::sin(phi);
    const Case cases[] = {
        {false, 1024, 0, 0, false, 100, 100, c, s, 0},        {false, 1024, 0, 0, true, 100, 612, 2 * c, 2 * s, 0},
        {false, 1024, 0, 2, false, 100, 612, c / 2, s / 2, 0},
        {false, 1024, 0, 4, false, 100, 100, 512 * c, 512 * s, 0}, {false, 1024, 0, 128, false, 100, 100, c / 2, s / 2, 0},
        {true, 1000, 0, 0, false, 100, 100, c, s, 0},         {true, 999, 0, 2, true, 7, 506, c, s, 0},
        {false, 1000, 9, 0, false, 100.37, 100, 0, 0, 0.01},  {false, 1000, 9, 0, false, 50.5, 50, 0, 0, 0.01},
        {true, 1000, 9, 0, false, 333.5, 333, 0, 0, 0.01},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(::testing::Message() << (k.dft ? "dft " : "fft ") << k.n << " kind " << k.kind << " flags " << k.flags);
        const int m = k.dft ? k.n : 1024;
        Owned<T> in(tone<T>(k.n, m, k.bins, k.complex, a, phi), k.complex, T(0.001)), out;
        ASSERT_EQ(api::spectrum(k.dft, in.get(), out.get(), 0, T(1), k.kind, k.flags), 0);
        ASSERT_EQ(out->points, !k.complex && !(k.flags & 130) ? m / 2 + 1 : m);
        EXPECT_NEAR(out->delta, 1000.0 / m, tol<T>() * 1000 / m);
        const T* x = out->data;
        if (k.db > 0) {  // flat-top: the largest bin reads A
            EXPECT_NEAR(20 * std::log10(std::hypot(x[2 * k.bin], x[2 * k.bin + 1]) / a), 0.0, k.db);
            continue;
        }
        const double scale = std::fmax(1.0, std::hypot(k.re, k.im));
        for (int i = 0; i < out->points; ++i) {
            // A real tone's conjugate line when all M bins are kept.
            const bool mirror = !k.complex && (k.flags & 130) && i == m - k.bin;
            ASSERT_NEAR(x[2 * i], i == k.bin || mirror ? k.re : 0.0, tol<T>(32) * k.n * scale) << i;
            ASSERT_NEAR(x[2 * i + 1], i == k.bin ? k.im : mirror ? -k.im : 0.0, tol<T>(32) * k.n * scale) << i;
        }
    }
}

// Forward then inverse (fraction L/M cuts the padding off again) gives the
// record times its mean-normalised window, for every flag set; dft alike.
TYPED_TEST(Spectrum, InverseUndoesForward) {
    using T = TypeParam;
    struct Case { bool dft; int n, kind, fwd, inv; bool complex; };
    const Case cases[] = {
        {false, 1024, 2, 0, 1, false}, {false, 1000, 2, 0, 1, false}, {false, 1000, 4, 2, 3, false},
        {false, 1000, 0, 2, 35, true}, {false, 1024, 3, 4, 5, false}, {false, 1024, 0, 16, 49, true},
        {false, 1024, 2, 8, 9, false}, {false, 1024, 2, 128, 129, false}, {false, 1024, 0, 0, 33, true},
        {true, 1000, 2, 0, 1, false},  {true, 999, 4, 2, 3, false},     {true, 999, 2, 4, 37, true},
        {true, 1000, 2, 8, 9, false},  {true, 999, 2, 128, 129, true},  {true, 1000, 0, 16, 17, false},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(::testing::Message() << (k.dft ? "dft " : "fft ") << k.n << " kind " << k.kind << " flags " << k.fwd);
        const auto x = random_scalars<T>(k.n * (k.complex ? 2 : 1), k.n);
        Owned<T> in(x, k.complex, T(0.5)), spec, back, w(std::vector<T>(k.n, T(1)));
        if (!(k.fwd & 136)) ASSERT_EQ(api::window2(w.get(), k.kind, 32 | 8, T(k.n)), 0);
        ASSERT_EQ(api::spectrum(k.dft, in.get(), spec.get(), 0, T(1), k.kind, k.fwd), 0);
        ASSERT_EQ(api::spectrum(k.dft, spec.get(), back.get(), 0, T(k.n / 1024.0), k.kind, k.inv), 0);
        ASSERT_EQ(back->points, k.n);
        EXPECT_NEAR(back->delta, 0.5, tol<T>());
        const bool cx = back->complex != 0;
        ASSERT_EQ(cx, (k.inv & 162) != 0);
        std::vector<T> want;
        for (int i = 0; i < k.n; ++i) {
            want.push_back(x[k.complex ? 2 * i : i] * w->data[i]);
            if (cx) want.push_back(k.complex ? x[2 * i + 1] * w->data[i] : T(0));
        }
        EXPECT_TRUE(near_all(back.scalars(), want, tol<T>(64) * std::log2(k.n)));
    }
}

TYPED_TEST(Spectrum, RefusesMissingRecordsAndUnknownWindows) {
    using T = TypeParam;
    Owned<T> in(random_scalars<T>(16, 1)), out;
    for (bool dft : {false, true}) {
        EXPECT_EQ(api::spectrum(dft, static_cast<Vec<T>*>(nullptr), out.get(), 0, T(1), 0, 0), -1);
        EXPECT_EQ(api::spectrum(dft, in.get(), static_cast<Vec<T>*>(nullptr), 0, T(1), 0, 0), -1);
        EXPECT_EQ(api::spectrum(dft, in.get(), out.get(), 0, T(1), 25, 0), -1);
    }
}

// The plain-array entry gives what the record entry gives, in the result's shape.
TEST(SpectrumArrays, MatchRecordEntry) {
    for (int flags : {0, 2, 1}) {
        const auto x = random_scalars<double>((flags == 2 ? 2 : 1) * 1000, 4);
        Owned<double> in(x, flags == 2), out;
        std::vector<double> got(2048 + 2, 7.0);
        ASSERT_EQ(cf_dsph_fft(x.data(), got.data(), 1000, flags == 2, 1.0, 9, flags), 0);
        ASSERT_EQ(dsph_fft(in.get(), out.get(), 0, 1.0, 9, flags), 0);
        const auto want = out.scalars();
        EXPECT_TRUE(near_all(std::vector<double>(got.begin(), got.begin() + want.size()), want, 0.0));
        EXPECT_EQ(got[want.size()], 7.0);
    }
    EXPECT_EQ(cf_dsph_fft(nullptr, nullptr, 4, 0, 1.0, 0, 0), -1);
}

}  // namespace
