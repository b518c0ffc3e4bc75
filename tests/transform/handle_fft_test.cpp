// One-call spectra (tones read at amplitude, phase and bin; every flag set
// there and back), every averaging mode against a plain fold, and correlation
// against the direct sum, with scratch records and aliased outputs.
#include <algorithm>

#include "support/api_handle.hpp"
#include "support/vectors.hpp"

using namespace zt;
using cd = std::complex<double>;

namespace {
template <class T> class Spectrum : public ::testing::Test {};
TYPED_TEST_SUITE(Spectrum, Precisions);
template <class V> cd at(const V* v, int i) { return v->complex ? cd(v->data[2 * i], v->data[2 * i + 1]) : cd(v->data[i], 0); }

// With mean normalisation, factor 2 and padding rescaled by M/L, a real tone
// A cos(2 pi bins n/M + phi) reads A e^{j phi} at its bin; two-sided or raw it
// keeps its conjugate at M - bin (halves); a complex tone reads 2A; by the
// length A M/2. The flat-top (kind 9, gain 0) reads off-bin tones within
// 0.01 dB, and delta gives the bins' frequency 1/(M delta).
TYPED_TEST(Spectrum, TonesReadTheirAmplitude) {
    using T = TypeParam;
    struct Case { bool dft; int n, kind, flags; bool complex; double bins, gain; };
    const Case cases[] = {{false, 1024, 0, 0, false, 100, 1}, {false, 1024, 0, 0, true, 100, 2},  {false, 1024, 0, 2, false, 100, 0.5},
                          {false, 1024, 0, 4, false, 100, 512}, {false, 1024, 0, 128, false, 100, 0.5}, {true, 1000, 0, 0, false, 100, 1},
                          {true, 999, 0, 2, true, 7, 1},       {false, 1000, 9, 0, false, 100.37, 0}, {false, 1000, 9, 0, false, 50.5, 0},
                          {true, 1000, 9, 0, false, 333.5, 0}};
    const double a = 1.5, phi = 0.3;
    for (const Case& k : cases) {
        SCOPED_TRACE(::testing::Message() << (k.dft ? "dft " : "fft ") << k.n << " kind " << k.kind << " flags " << k.flags << " complex " << k.complex);
        const int m = k.dft ? k.n : 1024, centre = k.complex || (k.flags & 2) ? m / 2 : 0, bin = static_cast<int>(k.bins);
        std::vector<T> x;
        for (int i = 0; i < k.n * (1 + k.complex); ++i) x.push_back(static_cast<T>(a * std::cos(2 * M_PI * k.bins * (i >> k.complex) / m + phi - (i & k.complex) * M_PI / 2)));
        Owned<T> in(x, k.complex, T(0.001)), out;
        ASSERT_EQ(api::spectrum(k.dft, in.get(), out.get(), 0, T(1), k.kind, k.flags), 0);
        ASSERT_TRUE(out->points == (k.complex || (k.flags & 130) ? m : m / 2 + 1) && std::fabs(out->delta - 1000.0 / m) < tol<T>() * 1000 / m);
        std::vector<double> arr(2 * m + 1, 7.0), want(out->data, out->data + out.scalars().size());  // the plain-array entry: the same, in the result's shape
        if constexpr (sizeof(T) == 8) EXPECT_TRUE(k.dft || (cf_dsph_fft(x.data(), arr.data(), k.n, k.complex, 1.0, k.kind, k.flags) == 0 && std::equal(want.begin(), want.end(), arr.begin()) && arr[want.size()] == 7.0 && cf_dsph_fft(nullptr, nullptr, 4, 0, 1.0, 0, 0) == -1));
        if (k.gain == 0) EXPECT_NEAR(20 * std::log10(std::abs(at(out.get(), bin)) / a), 0.0, 0.01);
        const cd line = std::polar(a * k.gain, phi);
        for (int i = 0; i < out->points && k.gain != 0; ++i) {
            const cd want = i == centre + bin ? line : !k.complex && (k.flags & 130) && i == m - bin - centre ? std::conj(line) : 0.0;
            ASSERT_LE(std::abs(at(out.get(), i) - want), tol<T>(32) * k.n * std::abs(line)) << i;
        }
    }
}

// Forward then inverse (fraction n/1024 cuts the padding off again) gives the
// record times its mean-normalised window, for every flag set; dft alike.
// An unknown window kind and a missing record are refused.
TYPED_TEST(Spectrum, InverseUndoesForward) {
    using T = TypeParam;
    struct Case { bool dft; int n, kind, fwd, inv; bool complex; };
    const Case cases[] = {{false, 1024, 2, 0, 1, false}, {false, 1000, 2, 0, 1, false},  {false, 1000, 4, 2, 3, false},
                          {false, 1000, 0, 2, 35, true}, {false, 1024, 3, 4, 5, false},  {false, 1024, 0, 16, 49, true},
                          {false, 1024, 2, 8, 9, false}, {false, 1024, 2, 128, 129, false}, {false, 1024, 0, 0, 33, true},
                          {true, 1000, 2, 0, 1, false},  {true, 999, 4, 2, 3, false},    {true, 999, 2, 4, 37, true},
                          {true, 1000, 2, 8, 9, false},  {true, 999, 2, 128, 129, true}, {true, 1000, 0, 16, 17, false}};
    for (const Case& k : cases) {
        SCOPED_TRACE(::testing::Message() << (k.dft ? "dft " : "fft ") << k.n << " kind " << k.kind << " flags " << k.fwd);
        Owned<T> in(random_scalars<T>(k.n * (k.complex ? 2 : 1), k.n), k.complex, T(0.5)), bins, back, w(std::vector<T>(k.n, T(1)));
        if (!(k.fwd & 136)) ASSERT_EQ(api::window2(w.get(), k.kind, 32 | 8, T(k.n)), 0);
        ASSERT_EQ(api::spectrum(k.dft, in.get(), bins.get(), 0, T(1), k.kind, k.fwd), 0);
        ASSERT_EQ(api::spectrum(k.dft, bins.get(), back.get(), 0, T(k.n / 1024.0), k.kind, k.inv), 0);
        ASSERT_TRUE(back->points == k.n && (back->complex != 0) == ((k.inv & 162) != 0) && std::fabs(back->delta - 0.5) < tol<T>());
        for (int i = 0; i < k.n; ++i) ASSERT_LE(std::abs(at(back.get(), i) - at(in.get(), i) * double(w->data[i])), tol<T>(64) * std::log2(k.n)) << i;
        EXPECT_EQ(api::spectrum(k.dft, in.get(), bins.get(), 0, T(1), 25, k.fwd & ~136) + api::spectrum(k.dft, in.get(), static_cast<Vec<T>*>(nullptr), 0, T(1), 0, 0), -2);
    }
}

// Expected value of one sample from its values x[0 .. 7] in record order: an
// exponential fold of f(x) with weight w(count), or a closed form.
double fold(const std::vector<double>& x, double (*w)(int), double (*f)(double) = [](double v) { return v; }) {
    double e = f(x[0]);
    for (int k = 1; k < 8; ++k) e += w(k + 1) * (f(x[k]) - e);
    return e;
}
struct AvgCase { int flags, n; double weight, limit; double (*want)(const std::vector<double>&); };
const AvgCase kAvg[] = {
    {1, 0, -1, 0, [](const auto& x) { return fold(x, [](int k) { return 1.0 / k; }); }}, {1 | 16, 0, -1, 3, [](const auto& x) { return fold(x, [](int k) { return 1.0 / std::min(k, 3); }); }},
    {1 | 16, 0, -2, 50, [](const auto& x) { double s = 0; for (double v : x) s += v; return s / 8; }},
    {1, 0, 0.25, 0, [](const auto& x) { return fold(x, [](int) { return 0.25; }); }}, {6, 0, -1, 0, [](const auto& x) { return x[0]; }},
    {2, 0, -1, 0, [](const auto& x) { return *std::max_element(x.begin(), x.end()); }}, {3, 0, -1, 0, [](const auto& x) { return *std::min_element(x.begin(), x.end()); }},
    {4, 0, -1, 0, [](const auto& x) { double s = 0; for (double v : x) s += 1 / v; return 8 / s; }},
    {5, 0, 0.5, 0, [](const auto& x) { return std::exp(fold(x, [](int) { return 0.5; }, [](double v) { return std::log(v); })); }},
    {6, 3, -1, 0, [](const auto& x) { return x[6]; }}, {6, 1, -1, 0, [](const auto& x) { return x[7]; }},  // hold: counts 1, 4, 7; every count
    {0, 0, -1, 0, [](const auto& x) { return x[7]; }}, {9, 0, -1, 0, [](const auto& x) { return x[0]; }},
    {32 | 1, 0, -1, 0, [](const auto& x) { double s = 0; for (double v : x) s += v; return s / 8; }},
};

// Scratch: none, one of its own, the accumulator itself. The input is left alone.
TYPED_TEST(Spectrum, EveryAveragingModeFoldsLikeItsPlainReference) {
    using T = TypeParam;
    for (const AvgCase& c : kAvg) {
        const bool power = c.flags & 32;  // complex records, averaged as |z|^2
        for (int use : {0, 1, 2}) {
            Owned<T> acc, scratch, in[8];
            for (int k = 0; k < 8; ++k) {
                in[k].set(random_scalars<T>(power ? 34 : 17, 10 + k, 0.5, 2.0), power);
                ASSERT_EQ(api::avg(in[k].get(), acc.get(), use == 0 ? nullptr : use == 1 ? scratch.get() : acc.get(), c.flags, k + 1, c.n, T(c.weight), T(c.limit)), 0);
                ASSERT_EQ(in[k].scalars(), random_scalars<T>(power ? 34 : 17, 10 + k, 0.5, 2.0));
            }
            ASSERT_EQ(acc.scalars().size(), 17u);
            for (int i = 0; i < 17; ++i) {
                std::vector<double> x;
                for (auto& r : in) x.push_back(power ? std::norm(at(r.get(), i)) : at(r.get(), i).real());
                ASSERT_NEAR(acc->data[i], c.want(x), tol<T>(64) * c.want(x)) << "sample " << i << " flags " << c.flags << " scratch " << use;
            }
        }
    }
    Owned<T> in(random_scalars<T>(4, 1)), acc(random_scalars<T>(5, 2));
    EXPECT_EQ(api::avg(static_cast<Vec<T>*>(nullptr), acc.get(), nullptr, 1, 2, 0, T(-1), T(0)) + api::avg(in.get(), static_cast<Vec<T>*>(nullptr), nullptr, 1, 2, 0, T(-1), T(0)), -2);
    for (int mode : {1, 2, 3, 4, 5}) EXPECT_EQ(api::avg(in.get(), acc.get(), nullptr, mode, 2, 0, T(-1), T(0)), -1);
}

// Every mix of real and complex inputs, out aliasing a or b, with and without scratch.
TYPED_TEST(Spectrum, CorrelationMatchesDirectSum) {
    using T = TypeParam;
    Owned<T> a(random_scalars<T>(10, 1)), b(random_scalars<T>(12, 2));
    for (int length : {0, -1, 11, 13}) EXPECT_EQ(api::corr(a.get(), b.get(), a.get(), nullptr, length, 0), -1);
    struct Case { int na, nb, length, m; bool ca, cb; int half, alias; };  // alias: 1 out = a, 2 out = b
    const Case cases[] = {{40, 100, 30, 128, false, false, 0, 0}, {7, 64, 7, 64, true, true, 1, 0}, {50, 33, 20, 64, false, true, 0, 1},
                          {20, 129, 5, 256, true, false, 1, 2},   {5, 5, 5, 8, false, false, 0, 2},   {1, 1, 1, 1, true, true, 0, 0}};
    for (const Case& c : cases) {
        for (bool with_scratch : {false, true}) {
            Owned<T> a0(random_scalars<T>(c.na * (c.ca ? 2 : 1), 1), c.ca, T(1)), b0(random_scalars<T>(c.nb * (c.cb ? 2 : 1), 2), c.cb, T(3)), out, scratch;
            a.set(a0.scalars(), c.ca, T(1)), b.set(b0.scalars(), c.cb, T(3));
            Vec<T>* o = c.alias == 1 ? a.get() : c.alias == 2 ? b.get() : out.get();
            ASSERT_EQ(api::corr(a.get(), b.get(), o, with_scratch ? scratch.get() : nullptr, c.length, c.half), 0);
            ASSERT_TRUE(o->points == c.nb - c.length + 1 && (o->complex != 0) == (c.ca || c.cb) && o->delta == T(2));
            for (int k = 0; k < o->points; ++k) {
                cd s = 0;
                for (int j = 0; j < c.length; ++j) s += std::conj(at(a0.get(), j)) * at(b0.get(), j + k);
                ASSERT_LE(std::abs(at(o, k) - s * (c.half ? 0.5 : 1.0) / double(c.m)), tol<T>(16) * std::log2(2.0 * c.m)) << k << " of case " << c.na << " " << c.nb << " scratch " << with_scratch;
            }
        }
    }
}

}  // namespace
