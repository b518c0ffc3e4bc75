#include "support/api_fir.hpp"
#include "support/fir_ref.hpp"
#include "support/records.hpp"
#include "filter/fir.hpp"

using namespace zt;

template <class T> class FirFilterTest : public ::testing::Test {};
TYPED_TEST_SUITE(FirFilterTest, Precisions);

namespace {
// Largest |got - want| over the samples, relative to 1 + the sum of |h|.
template <class T> double error(const Owned<T>& got, const std::vector<ref::cl>& want, const std::vector<ref::cl>& h = {}) {
    long double norm = 1, e = 0;
    for (auto& c : h) norm += std::abs(c);
    const auto g = samples(got.scalars(), got.v.complex);
    for (std::size_t k = 0; k < g.size() && g.size() == want.size(); ++k) e = std::max(e, std::abs(g[k] - want[k]));
    return g.size() == want.size() ? static_cast<double>(e / norm) : 1e9;
}
}  // namespace

// Direct sums, FFT convolution (real responses from 46 taps, 36 on complex
// input) and the complex-response kernels against the plain convolution,
// with and without history, out of place and in place; the history then
// holds the last M-1 inputs.
TYPED_TEST(FirFilterTest, MatchesPlainConvolution) {
    using T = TypeParam;
    struct Case { int n, m; bool cx, ch, past, in_place; };
    const Case cases[] = {{50, 1, 0, 0, 1, 0},   {7, 15, 0, 0, 1, 0},   {300, 45, 0, 0, 1, 1}, {300, 46, 0, 0, 1, 0},
                          {3000, 255, 0, 0, 0, 1}, {1030, 1023, 0, 0, 1, 0}, {200, 36, 1, 0, 1, 1}, {9000, 130, 1, 0, 1, 0},
                          {60, 35, 1, 0, 0, 0},   {40, 9, 0, 1, 1, 0},   {40, 60, 1, 1, 1, 1},  {33, 47, 0, 0, 1, 0}};
    for (const Case& c : cases) {
        Owned<T> x(random_scalars<T>(c.n * (c.cx ? 2 : 1), c.n), c.cx), h(random_scalars<T>(c.m * (c.ch ? 2 : 1), c.m), c.ch);
        Owned<T> s(random_scalars<T>((c.m - 1) * (c.cx ? 2 : 1), 7), c.cx), y;
        const auto xs = samples(x.scalars(), c.cx), hs = samples(h.scalars(), c.ch);
        auto seen = samples(s.scalars(), c.cx);
        const auto want = ref::convolve(xs, hs, c.past ? seen : std::vector<ref::cl>{});
        seen.insert(seen.end(), xs.begin(), xs.end());
        Owned<T>& out = c.in_place ? x : y;
        ASSERT_EQ(api::fir(x.get(), out.get(), h.get(), c.past ? s.get() : nullptr), 0);
        EXPECT_LE(error(out, want, hs), tol<T>(40)) << c.n << " x " << c.m;
        if (c.past) EXPECT_LE(error(s, std::vector<ref::cl>(seen.end() - (c.m - 1), seen.end())), 0) << c.m;
    }
}

// Feeding the signal in place in random blocks (0 and 1 among them) with one
// history gives the whole-signal output, across the direct and FFT paths; sfir
// and the hardware filter likewise, the latter (against the difference
// equation of its sections) also with the default history, which
// free_internal sets back to rest.
TYPED_TEST(FirFilterTest, StreamingEqualsWhole) {
    using T = TypeParam;
    const int n = 2500;
    std::mt19937 gen(5);
    for (int op = 0; op < 8; ++op) {
        const bool cx = op % 2;
        Owned<T> x(random_scalars<T>(n * (cx ? 2 : 1), op), cx), h(random_scalars<T>(op < 2 ? 15 : 300, op + 9)), whole, s, s0, part, out;
        auto run = [&](Vec<T>* in, Vec<T>* o, Vec<T>* st) {
            return op >= 6 ? api::hwfilt(in, o, 0, st) : op < 4 ? api::fir(in, o, h.get(), st) : api::sfir(in, o, h.get(), op % 2, op % 2, st);
        };
        ASSERT_EQ(run(x.get(), whole.get(), op >= 6 ? s0.get() : nullptr) | api::free_internal<Vec<T>>(), 0);
        if (op >= 6) EXPECT_LE(error(whole, ref::hardware(samples(x.scalars(), cx))), tol<T>(16));
        for (int at = 0, b = 0; at < n; at += b) {
            b = std::min(n - at, std::uniform_int_distribution<int>(0, 3)(gen) == 0 ? int(gen() % 2) : int(gen() % 700));
            ASSERT_TRUE(!api::subvec(x.get(), part.get(), at, b) && !run(part.get(), part.get(), op == 6 ? nullptr : s.get()) && !api::append(out.get(), part.get()));
        }
        EXPECT_TRUE(near_all(out.scalars(), whole.scalars(), tol<T>(400))) << "case " << op;
        if (op == 7) EXPECT_EQ(std::tuple(s0.v.points, api::hwfilt(x.get(), out.get(), 1, nullptr)), std::tuple(12, -1));
    }
}

// The impulse response of sfir is the expanded half: mirrored, negated with
// negate, the shared centre once with odd (and unnegated). The fixed sets
// expanded by sfir (odd = 1): 101 is a lowpass passing to 0.2 and stopping
// from 0.3 cycles per sample; 100 and 102 have the stated gains.
TYPED_TEST(FirFilterTest, HalfResponseExpansionAndFixedSets) {
    using T = TypeParam;
    const std::vector<std::vector<T>> want = {{1, 2, 2, 1, 0}, {1, 2, 1, 0, 0}, {1, 2, -2, -1, 0}, {1, 2, -1, 0, 0}};
    for (int f = 0; f < 4; ++f) {
        Owned<T> x({1, 0, 0, 0, 0}), half({1, 2}), y;
        ASSERT_EQ(api::sfir(x.get(), y.get(), half.get(), f % 2, f / 2, nullptr), 0);
        EXPECT_EQ(y.scalars(), want[f]) << f;
    }
    struct Set { int which, taps; double f, gain, tol; };
    for (const Set& s : {Set{101, 39, 0.0, 1, 1e-3}, {101, 39, 0.2, 1, 0.01}, {101, 39, 0.3, 0, 3.5e-4}, {101, 39, 0.4, 0, 3.5e-4},
                         {101, 39, 0.5, 0, 3.5e-4}, {100, 23, 0.0, 1, 1e-3}, {100, 23, 0.22, 0.09, 0.02}, {100, 23, 0.5, 2, 0.05},
                         {102, 9, 0.0, 1, 1e-3}, {102, 9, 0.5, 1.42, 0.01}}) {
        Owned<T> half, x(std::vector<T>(64)), y;
        ASSERT_EQ(api::fir2(half.get(), s.which), 0);
        x.v.data[0] = 1;
        ASSERT_EQ(api::sfir(x.get(), y.get(), half.get(), 1, 0, nullptr), 0);
        auto h = y.scalars();
        EXPECT_EQ(h[s.taps], 0);
        h.resize(s.taps);
        EXPECT_NEAR(std::abs(ref::response(h, s.f)), s.gain, s.tol) << s.which << " at " << s.f;
    }
    Owned<T> v;
    EXPECT_EQ(api::fir2(v.get(), 103), -1);
}

// Refusals leave the records alone: null records, an input or output that is
// the history, an output that is the coefficients; no coefficients copy the
// input; every failed allocation returns -1 and leaks nothing.
TYPED_TEST(FirFilterTest, RefusalsAndAllocationFailures) {
    using T = TypeParam;
    Owned<T> x(random_scalars<T>(300, 1)), h(random_scalars<T>(60, 2)), y, s(random_scalars<T>(59, 3));
    Vec<T>* none = nullptr;
    for (int r : {api::fir(none, y.get(), h.get(), s.get()), api::fir(x.get(), none, h.get(), s.get()),
                  api::fir(x.get(), y.get(), none, s.get()), api::fir(s.get(), y.get(), h.get(), s.get()),
                  api::fir(x.get(), s.get(), h.get(), s.get()), api::fir(x.get(), h.get(), h.get(), s.get()),
                  api::sfir(x.get(), y.get(), none, 0, 0, s.get()), api::hwfilt(s.get(), y.get(), 0, s.get())})
        EXPECT_EQ(r, -1);
    EXPECT_EQ(std::tuple(y.v.points, s.v.points), std::tuple(0, 59));
    Owned<T> no_taps;
    EXPECT_EQ(api::fir(x.get(), y.get(), no_taps.get(), none), 0);
    EXPECT_EQ(y.scalars(), x.scalars());
    using Hooks = CountingHooks<T>;
    for (int fail = 1, done = 0; !done; ++fail) {
        ASSERT_EQ(api::free_internal<Vec<T>>(), 0);
        Owned<T> in(random_scalars<T>(300, 1));
        {
            typename Hooks::Installed hooks(fail);
            Owned<T> c, out, st;
            c.v.points = 60;
            const int r = api::fir(c.get(), 3, 0.1, 0) == 0 && api::fir(in.get(), out.get(), c.get(), st.get()) == 0 &&
                          api::sfir(in.get(), in.get(), c.get(), 1, 0, st.get()) == 0 && api::hwfilt(in.get(), 0) == 0;
            done = r && Hooks::calls < fail;
            ASSERT_EQ(api::free_internal<Vec<T>>(), 0);
        }
        EXPECT_EQ(Hooks::live, 0) << fail;
    }
}

// The kernel chosen for this processor against the portable one, at odd
// lengths, tails and unaligned starts, real and interleaved complex.
TYPED_TEST(FirFilterTest, DispatchedKernelMatchesPortable) {
    using T = TypeParam;
    const auto x = random_scalars<T>(3000, 1), g = random_scalars<T>(70, 2);
    for (int s = 1; s <= 2; ++s)
        for (int m : {1, 7, 70})
            for (int n : {0, 1, 15, 131, 1000}) {
                std::vector<T> a(n + 1), b(n + 1);
                zf::conv_portable<T>(x.data() + 3, g.data(), m, s, a.data() + 1, n);
                zf::conv_kernel<T>()(x.data() + 3, g.data(), m, s, b.data() + 1, n);
                EXPECT_TRUE(near_all(b, a, tol<T>(2 * m))) << s << " " << m << " " << n;
            }
}
