#include <numeric>
#include <tuple>

#include "support/window_ref.hpp"

using namespace zt;
using ref::LD;

template <class T> class WindowTest : public ::testing::Test {};
TYPED_TEST_SUITE(WindowTest, Precisions);

namespace {
// Windows a random vector with the call and compares with the data times the
// reference window w, rotated left by N/2 when rotate.
template <class T, class Call> void check(Call call, const std::vector<LD>& w, bool rotate, double rel, unsigned seed) {
    const auto data = random_scalars<T>(w.size(), seed, 0.5, 1.5);
    const std::size_t n = data.size(), h = rotate ? n / 2 : 0;
    std::vector<LD> want(n);
    for (std::size_t i = 0; i < n; ++i) want[i] = data[(i + h) % n] * w[(i + h) % n];
    Owned<T> v(data, false, T(0.25));
    ASSERT_EQ(call(v.get()), 0);
    EXPECT_EQ(v->delta, T(0.25));
    EXPECT_TRUE(near_all(v.scalars(), want, rel));
}
}  // namespace

// Every kind in every normalisation, symmetric where the kind allows it, and
// the width windows, against the references; the scale of each normalised
// window and the noise bandwidth against the same references.
TYPED_TEST(WindowTest, EveryKindAndItsScaleMatchTheirFormulas) {
    using T = TypeParam;
    const auto cat = ref::catalogue();
    const auto sum = [](const std::vector<LD>& w) { return std::accumulate(w.begin(), w.end(), LD(0)); };
    unsigned seed = 0;
    for (int kind = 0; kind < 25; ++kind)
        for (int opt : {0, 4, 8})
            for (double width : opt == 8 ? std::vector<double>{10, 9, 7.5, 1, 16, 40} : std::vector<double>{0})
                for (int n : opt == 8 ? std::vector<int>{16, 17} : std::vector<int>{1, 2, 3, 4, 5, 7, 8, 16, 255, 4096}) {
                    if ((opt == 4 && kind < 14) || (opt == 8 && kind != 0 && kind != 2 && kind != 3 && kind != 8 && kind != 13)) continue;
                    SCOPED_TRACE(testing::Message() << "kind " << kind << " flags " << opt << " N " << n << " width " << width);
                    const std::vector<LD> w[3] = {ref::window(cat[kind], n, opt, width), ref::window(cat[kind], n, opt | 1, width),
                                                  ref::window(cat[kind], n, opt | 2, width)};
                    for (int norm = 0; norm < 3; ++norm) {
                        const int turn = ++seed % 2 ? 32 : 16;   // no rotation, or (for kind 0) rotation
                        // The cosine rows of one kind are given to 7 .. 15 digits: the normalised rows agree with the peak
                        // row to that; the angle advanced by addition over 1024 samples costs a few hundred double epsilons.
                        const double rel = cat[kind].type != 'c' ? tol<T>(64) : norm != 2 ? 2e-6 : std::max(tol<T>(64), 1e-12);
                        check<T>([&](Vec<T>* v) { return api::window2(v, kind, opt | norm | turn, T(width)); }, w[norm], turn == 16, rel, seed);
                    }
                    if (sum(w[2]) < 1e-6) continue;   // a window of (nearly) nothing has no scale
                    const double rel = std::max(2e-6, tol<T>(256)), a = sum(w[0]) / sum(w[2]), r = sum(w[1]) / sum(w[2]);
                    T got[3];
                    ASSERT_EQ(api::window2_scale(&got[0], kind, opt, n, T(width)) + api::window2_scale(&got[1], kind, opt | 1, n, T(width)), 0);
                    EXPECT_NEAR(got[0], a, rel * a);
                    EXPECT_NEAR(got[1], r, rel * r);
                    if (opt == 4) continue;   // the noise bandwidth is that of the periodic window
                    ASSERT_EQ(opt == 0 ? api::window_enbw(&got[2], kind, n) : api::window2_enbw(&got[2], kind, n, T(width)), 0);
                    EXPECT_NEAR(got[2], a * a / (r * r), rel * a * a / (r * r));
                }
}

TYPED_TEST(WindowTest, ParametrisedAndFirWindowsMatchTheirFormulas) {
    using T = TypeParam;
    const LD pi = 3.141592653589793238L;
    for (const ref::Shape& s : {ref::Shape{'k', 5}, {'k', 0}, {'g', 0.2L}, {'g', 0}, {'s', 2, 1.5L}, {'s', 1, 2}, {'y', 0.5L}, {'y', 0}})
        for (int flags : {0, 1, 2, 4, 5, 6, 38})
            for (int n : {1, 2, 7, 8, 64}) {
                SCOPED_TRACE(testing::Message() << s.type << s.p1 << " flags " << flags << " N " << n);
                check<T>([&](Vec<T>* v) { return api::window_shape<T>(v, s.type, T(s.p1), T(s.p2), flags); },
                         ref::window(s, n, flags), !(flags & 32), tol<T>(64), n);
            }
    // Design windows of 31 taps: Gaussian of bandwidth p, Kaiser for a transition width p, the two sinc rules.
    const int n = 31;
    for (double p : {0.05, 0.1, 0.3}) {
        const LD a = 14.36L * p * (n - 1) + 7.95L, x = 1.12L * n * p;
        const LD beta = a > 50 ? 0.1102L * (a - 8.7L) : a > 21 ? 0.5842L * std::pow(a - 21, 0.4L) + 0.07886L * (a - 21) : 0;
        const LD k = x <= 1.25L ? 0.386L / x + 0.453L : x < 5 ? 0.774L - 0.0251L * x : 0.648L;
        for (const auto& [kind, s] : {std::pair(100, ref::Shape{'g', 1 / (n * pi * p)}), {101, {'k', beta}},
                                      {102, {'s', pi / 2 / 0.62L, n * p * 0.62L}}, {103, {'s', pi / 2 / k, x * k}}})
            check<T>([&](Vec<T>* v) { return api::window_fir(v, kind, T(p)); }, ref::window(s, n, 6), false, tol<T>(256), kind);
    }
    check<T>([&](Vec<T>* v) { return api::window_fir(v, 100, T(0)); }, std::vector<LD>(n, 1), false, 0, 1);
    check<T>([&](Vec<T>* v) { return api::window_fir(v, 20, T(0)); }, ref::window(ref::catalogue()[20], n, 6), false, tol<T>(64), 1);
    // Caller's cosine coefficients, used as given and always rotated.
    Owned<T> coef({T(0.3), T(0.4), T(0.2), T(0.1)});
    for (int m : {1, 3, 8, 100})
        check<T>([&](Vec<T>* v) { return api::window_cos(v, coef.get()); },
                 ref::window({'c', 0, 0, {0.3L, 0.4L, 0.2L, 0.1L}}, m, 2), true, tol<T>(16), m);
}

TYPED_TEST(WindowTest, RefusalsLeaveTheVectorUnchanged) {
    using T = TypeParam;
    const std::vector<T> in{T(1), T(2), T(3), T(4)};
    Owned<T> cx(in, true), coef({T(0.5), T(0.5)}), ccoef({T(0.5), T(0.5)}, true), v(in), empty;
    const std::tuple<int, int, char> refused[] = {   // kind, flags, entry (window2, window, fir, shape)
        {2, 3, 'w'}, {25, 0, 'w'}, {-1, 0, 'w'}, {100, 0, 'w'}, {2, 4, 'w'}, {13, 4, 'w'}, {1, 4, 'w'}, {1, 8, 'w'}, {14, 8, 'w'},
        {0, 12, 'w'}, {2, 8, 'W'}, {2, 0, 'f'}, {1, 0, 'f'}, {'g', 8, 's'}, {'k', 3, 's'}, {'y', 11, 's'}, {0, 0, 'c'}};
    for (const auto& [kind, flags, entry] : refused)
        for (Vec<T>* r : {v.get(), cx.get(), static_cast<Vec<T>*>(nullptr)}) {   // complex: refused for kind 0 too
            if (entry == 'c' && r == v.get()) continue;
            EXPECT_EQ(entry == 'w' ? api::window2(r, kind, flags, T(2)) : entry == 'W' ? api::window(r, kind, flags)
                      : entry == 'f' ? api::window_fir(r, kind, T(0))
                      : entry == 's' ? api::window_shape<T>(r, char(kind), T(1), T(1), flags) : api::window2(r, kind, flags, T(0)), -1);
            EXPECT_EQ(v.scalars(), in) << kind << " " << flags;
        }
    T s = T(-7), *none = nullptr;
    EXPECT_EQ(api::window2_scale(&s, 99, 2, 8, T(0)) + api::window2_scale(&s, 99, 0, 0, T(0)), 0);   // peak or no points: 1 without further checks
    EXPECT_EQ(s, T(1));
    for (auto [kind, flags] : {std::pair(2, 3), {25, 0}, {-1, 1}, {1, 8}, {14, 9}, {2, 12}}) {
        EXPECT_EQ(api::window2_scale(&s, kind, flags, 8, T(4)), -1) << kind << " " << flags;
        if (kind != 2) EXPECT_EQ(flags & 8 ? api::window2_enbw(&s, kind, 8, T(4)) : api::window_enbw(&s, kind, 8), -1) << kind;
    }
    EXPECT_EQ(s, T(1));   // untouched by the refusals
    EXPECT_EQ(api::window2_scale(none, 2, 0, 8, T(0)) + api::window_enbw(none, 2, 8) + api::window2_enbw(none, 2, 8, T(4)), -3);
    EXPECT_EQ(api::window_scale(&s, 2, 8, 8), -1);
    EXPECT_EQ(api::window_cos(cx.get(), coef.get()) + api::window_cos(v.get(), ccoef.get()), -2);
    EXPECT_EQ(api::window2(empty.get(), 9, 0, T(0)) + api::window_cos(empty.get(), coef.get()), 0);   // no samples: nothing to do
    EXPECT_EQ(api::window2(v.get(), 0, 4 | 16, T(0)), 0);   // kind 0 without width only rotates, symmetric or not
    EXPECT_EQ(v.scalars(), (std::vector<T>{T(3), T(4), T(1), T(2)}));
}
