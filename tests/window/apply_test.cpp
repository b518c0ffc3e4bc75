#include <cmath>
#include <functional>

#include "support/window_ref.hpp"

using namespace zt;
using ref::LD;

template <class T> class WindowTest : public ::testing::Test {};
TYPED_TEST_SUITE(WindowTest, Precisions);

namespace {

// data times the window, rotated left by N/2 when rotate.
template <class T> std::vector<LD> windowed(const std::vector<T>& data, const std::vector<LD>& w, bool rotate) {
    const std::size_t n = data.size(), h = rotate ? n / 2 : 0;
    std::vector<LD> out(n);
    for (std::size_t i = 0; i < n; ++i) out[i] = data[(i + h) % n] * w[(i + h) % n];
    return out;
}

// The cosine rows of one kind are given to 7 .. 15 digits, so the normalised
// rows agree with the peak row to that.
template <class T> double tolerance(const ref::Shape& s, int flags) {
    return std::max(s.type == 'c' && (flags & 3) != 2 ? 2e-6 : 0.0, tol<T>(64));
}

// Windows a random vector with the call and compares with the reference.
template <class T, class Call>
void check(Call call, const std::vector<LD>& w, bool rotate, double rel, unsigned seed) {
    const auto data = random_scalars<T>(w.size(), seed, 0.5, 1.5);
    Owned<T> v(data, false, T(0.25));
    ASSERT_EQ(call(v.get()), 0);
    EXPECT_EQ(v->delta, T(0.25));
    EXPECT_TRUE(near_all(v.scalars(), windowed(data, w, rotate), rel));
}

}  // namespace

TYPED_TEST(WindowTest, EveryKindInEveryNormalisationMatchesItsFormula) {
    using T = TypeParam;
    const auto cat = ref::catalogue();
    unsigned seed = 0;
    for (int kind = 0; kind < 25; ++kind)
        for (int flags : {0, 1, 2, 4, 5, 6})
            for (int n : {1, 2, 3, 4, 5, 7, 8, 16, 255, 1024}) {
                if ((flags & 4) && kind < 14) continue;
                const int turn = ++seed % 2 ? 32 : 16;   // no rotation, or (for kind 0) rotation
                SCOPED_TRACE(testing::Message() << "kind " << kind << " flags " << (flags | turn) << " N " << n);
                check<T>([&](Vec<T>* v) { return api::window(v, kind, flags | turn); }, ref::window(cat[kind], n, flags),
                         turn == 16, tolerance<T>(cat[kind], flags), seed);
                check<T>([&](Vec<T>* v) { return api::window(v, kind, flags); }, ref::window(cat[kind], n, flags),
                         kind != 0, tolerance<T>(cat[kind], flags), seed);
            }
}

TYPED_TEST(WindowTest, WidthSpansTheGivenSamples) {
    using T = TypeParam;
    const auto cat = ref::catalogue();
    for (int kind : {0, 2, 3, 9, 13})
        for (int norm : {0, 1, 2})
            for (int n : {16, 17})
                for (double width : {10.0, 9.0, 7.5, 1.0, 16.0, 40.0}) {
                    SCOPED_TRACE(testing::Message() << "kind " << kind << " norm " << norm << " N " << n << " width " << width);
                    check<T>([&](Vec<T>* v) { return api::window2(v, kind, norm | 8 | 32, T(width)); },
                             ref::window(cat[kind], n, norm | 8, width), false, tolerance<T>(cat[kind], norm), kind);
                }
}

TYPED_TEST(WindowTest, ParametrisedAndFirWindowsMatchTheirFormulas) {
    using T = TypeParam;
    const LD pi = 3.141592653589793238L;
    const ref::Shape shapes[] = {{'k', 5}, {'k', 0}, {'g', 0.2L}, {'g', 0}, {'s', 2, 1.5L}, {'s', 1, 2}, {'y', 0.5L}, {'y', 0}};
    for (const ref::Shape& s : shapes)
        for (int flags : {0, 1, 2, 4, 5, 6, 38})
            for (int n : {1, 2, 7, 8, 64}) {
                SCOPED_TRACE(testing::Message() << s.type << s.p1 << " flags " << flags << " N " << n);
                check<T>([&](Vec<T>* v) { return api::window_shape(v, s.type, T(s.p1), T(s.p2), flags); },
                         ref::window(s, n, flags), !(flags & 32), tol<T>(64), n);
            }
    // Design windows for a 31-tap filter: Gaussian of bandwidth b, Kaiser for
    // a transition width, and the two sinc rules.
    const int n = 31;
    for (double p : {0.05, 0.1, 0.3}) {
        const LD a = 14.36L * p * (n - 1) + 7.95L;
        const LD beta = a > 50 ? 0.1102L * (a - 8.7L) : a > 21 ? 0.5842L * std::pow(a - 21, 0.4L) + 0.07886L * (a - 21) : 0;
        const LD x = 1.12L * n * p, k = x <= 1.25L ? 0.386L / x + 0.453L : x < 5 ? 0.774L - 0.0251L * x : 0.648L;
        const std::pair<int, ref::Shape> cases[] = {{100, {'g', 1 / (n * pi * p)}},
                                                    {101, {'k', beta}},
                                                    {102, {'s', pi / 2 / 0.62L, n * p * 0.62L}},
                                                    {103, {'s', pi / 2 / k, x * k}}};
        for (const auto& [kind, s] : cases) {
            SCOPED_TRACE(testing::Message() << "fir kind " << kind << " parameter " << p);
            check<T>([&](Vec<T>* v) { return api::window_fir(v, kind, T(p)); }, ref::window(s, n, 6), false, tol<T>(256), kind);
        }
    }
    check<T>([&](Vec<T>* v) { return api::window_fir(v, 100, T(0)); }, std::vector<LD>(n, 1), false, 0, 1);
    check<T>([&](Vec<T>* v) { return api::window_fir(v, 20, T(0)); }, ref::window(ref::catalogue()[20], n, 6), false, tol<T>(64), 1);
    // Caller's cosine coefficients, used as given and always rotated.
    const ref::Shape c{'c', 0, 0, {0.3L, 0.4L, 0.2L, 0.1L}};
    for (int m : {1, 3, 8, 100}) {
        Owned<T> coef({T(0.3), T(0.4), T(0.2), T(0.1)});
        check<T>([&](Vec<T>* v) { return api::window_cos(v, coef.get()); }, ref::window(c, m, 2), true, tol<T>(16), m);
    }
}

TYPED_TEST(WindowTest, RefusalsLeaveTheVectorUnchanged) {
    using T = TypeParam;
    const std::vector<T> in{T(1), T(2), T(3), T(4)};
    Owned<T> cx({T(1), T(2), T(3), T(4)}, true), coef({T(0.5), T(0.5)}), ccoef({T(0.5), T(0.5)}, true);
    const std::function<int(Vec<T>*)> refused[] = {
        [](Vec<T>* v) { return api::window(v, 2, 3); },       [](Vec<T>* v) { return api::window(v, 25, 0); },
        [](Vec<T>* v) { return api::window(v, -1, 0); },      [](Vec<T>* v) { return api::window(v, 100, 0); },
        [](Vec<T>* v) { return api::window(v, 2, 4); },       [](Vec<T>* v) { return api::window(v, 13, 4); },
        [](Vec<T>* v) { return api::window(v, 1, 4); },       [](Vec<T>* v) { return api::window2(v, 1, 8, T(2)); },
        [](Vec<T>* v) { return api::window2(v, 14, 8, T(2)); }, [](Vec<T>* v) { return api::window(v, 2, 8); },
        [](Vec<T>* v) { return api::window2(v, 0, 12, T(2)); }, [](Vec<T>* v) { return api::window_fir(v, 2, T(0)); },
        [](Vec<T>* v) { return api::window_fir(v, 1, T(0)); }, [](Vec<T>* v) { return api::window_shape(v, 'g', T(1), T(0), 8); },
        [](Vec<T>* v) { return api::window_shape(v, 'k', T(1), T(0), 3); },
        [&](Vec<T>* v) { return api::window_cos(v, ccoef.get()); }};
    for (const auto& call : refused) {
        Owned<T> v(in);
        EXPECT_EQ(call(v.get()), -1);
        EXPECT_EQ(v.scalars(), in);
        EXPECT_EQ(call(cx.get()), -1);   // complex data: refused for every kind, 0 included
        EXPECT_EQ(call(nullptr), -1);
    }
    EXPECT_EQ(api::window(cx.get(), 0, 0), -1);
    EXPECT_EQ(api::window_cos(cx.get(), coef.get()), -1);
    Owned<T> empty;   // no samples: success, nothing to do
    EXPECT_EQ(api::window(empty.get(), 9, 0), 0);
    EXPECT_EQ(api::window_cos(empty.get(), coef.get()), 0);
    // Kind 0 without width only rotates; the symmetric flag changes nothing there.
    Owned<T> u(in);
    EXPECT_EQ(api::window(u.get(), 0, 4 | 16), 0);
    EXPECT_EQ(u.scalars(), (std::vector<T>{T(3), T(4), T(1), T(2)}));
}
