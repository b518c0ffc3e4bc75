#include "support/api_binary.hpp"
#include "support/binary_ref.hpp"
#include "support/records.hpp"
#include "support/vectors.hpp"

using namespace zt;

namespace {

const long double kPi = 3.141592653589793238462643383279502884L;

template <class T> class CalculusTest : public ::testing::Test {};
TYPED_TEST_SUITE(CalculusTest, Precisions);

// differ: first difference over delta; integ: running sum times delta.
TYPED_TEST(CalculusTest, DifferAndIntegMatchReference) {
    using T = TypeParam;
    for (bool integ : {false, true}) {
        for (bool complex : {false, true}) {
            for (int n : {0, 1, 2, 2049}) {
                const auto s = random_scalars<T>(static_cast<std::size_t>(n) * (complex ? 2 : 1), n);
                Owned<T> v(s, complex, T(0.25));
                ASSERT_EQ(integ ? api::integ(v.get()) : api::differ(v.get()), 0);
                const auto x = samples(s, complex);
                std::vector<Cx> want;
                Cx sum = 0;
                for (int k = 0; k < n; ++k)
                    want.push_back(integ ? (sum += x[k] * 0.25L) : (x[k] - (k ? x[k - 1] : Cx(0))) * 4.0L);
                EXPECT_TRUE(near_all(v.scalars(), scalars_of(want, complex), tol<T>(integ ? n : 8))) << integ << " " << n;
            }
        }
    }
    Owned<T> z({1, 3}, false, T(0));
    ASSERT_EQ(api::differ(z.get()), 0);
    EXPECT_EQ(z.scalars(), (std::vector<T>{Traits<T>::huge, 2 * Traits<T>::huge}));
}

TYPED_TEST(CalculusTest, PdifferDifferentiatesPolynomial) {
    using T = TypeParam;
    Owned<T> p({1, 2, 3});
    ASSERT_EQ(api::pdiffer(p.get()), 0);
    EXPECT_EQ(p.scalars(), (std::vector<T>{2, 6}));
    Owned<T> c({1, 1, 2, -1, 3, 0.5}, true);  // (1+i) + (2-i) x + (3+0.5i) x^2
    ASSERT_EQ(api::pdiffer(c.get()), 0);
    EXPECT_EQ(c.scalars(), (std::vector<T>{2, -1, 6, 1}));
    Owned<T> one({7}), none;
    ASSERT_EQ(api::pdiffer(one.get()), 0);
    EXPECT_EQ(one->points, 0);
    ASSERT_EQ(api::pdiffer(none.get()), 0);
    EXPECT_EQ(none->points, 0);
}

TYPED_TEST(CalculusTest, EdgeFindsInterpolatedCrossingTimes) {
    using T = TypeParam;
    const std::vector<T> s{0, 1, 0, 1};
    for (auto [mode, want] : {std::pair<int, std::vector<T>>{1, {1, 5}}, {2, {3}}, {3, {1, 3, 5}}, {0, {}}}) {
        Owned<T> v(s, false, T(2));
        ASSERT_EQ(api::edge(v.get(), mode, T(0.5)), 0);
        EXPECT_EQ(v.scalars(), want) << mode;
        EXPECT_EQ(v->delta, T(1));
    }
    // Touching the level counts where the pair starts on it: 0.5 <= 0.5 < 1.
    Owned<T> touch({T(0.5), 1, T(0.5), 0});
    ASSERT_EQ(api::edge(touch.get(), 3, T(0.5)), 0);
    EXPECT_EQ(touch.scalars(), (std::vector<T>{0, 2}));
    Owned<T> one({3}, false, T(4));
    ASSERT_EQ(api::edge(one.get(), 3, T(0)), 0);
    EXPECT_EQ(one->points, 0);
    EXPECT_EQ(one->delta, T(1));
}

// Hand-worked unwraps; w < 0 is the plain unwrap. With w = 2 the third sample
// is judged against (0 + 3) / 2; with w = 0 every reference is 0, so each
// sample is merely wrapped into [-pi, pi].
TYPED_TEST(CalculusTest, UnwrapExamples) {
    using T = TypeParam;
    const long double p2 = 2 * kPi;
    const std::tuple<int, std::vector<T>, std::vector<long double>, double> cases[] = {
        {-1, {3, -3}, {3, p2 - 3}, 4}, {-1, {4}, {4 - p2}, 4}, {2, {0, 3, -3}, {0, 3, p2 - 3}, 4},
        {0, {1, 4, -4, 7}, {1, 4 - p2, p2 - 4, 7 - p2}, 8}};
    for (const auto& [w, in, want, ulps] : cases) {
        Owned<T> v(in);
        ASSERT_EQ(w < 0 ? api::unwrap(v.get()) : api::unwrap_wnd(v.get(), w), 0);
        EXPECT_TRUE(near_all(v.scalars(), want, tol<T>(ulps))) << w;
    }
    // w = 3: each sample lies within pi of the mean of the (up to) three
    // outputs before it, though not always of the previous output alone.
    const std::vector<T> calm{T(0.5), 3, T(4.5), 0, T(-0.6)};
    Owned<T> m(calm), plain(calm);
    ASSERT_EQ(api::unwrap_wnd(m.get(), 3), 0);
    EXPECT_EQ(m.scalars(), calm);
    ASSERT_EQ(api::unwrap(plain.get()), 0);
    EXPECT_NE(plain.scalars(), calm);
    // w = 1 is the plain unwrap, bit for bit.
    const auto s = random_scalars<T>(300, 4, -20, 20);
    Owned<T> a(s), b(s);
    ASSERT_EQ(api::unwrap_wnd(a.get(), 1), 0);
    ASSERT_EQ(api::unwrap(b.get()), 0);
    EXPECT_EQ(a.scalars(), b.scalars());
}

TYPED_TEST(CalculusTest, RefusesComplexInputNegativeWindowAndUnreadableRecords) {
    using T = TypeParam;
    Owned<T> c({1, 2}, true), r({1, 2});
    EXPECT_EQ(api::edge(c.get(), 1, T(0)), -1);
    EXPECT_EQ(api::unwrap(c.get()), -1);
    EXPECT_EQ(api::unwrap_wnd(c.get(), 2), -1);
    EXPECT_EQ(api::unwrap_wnd(r.get(), -1), -1);
    expect_refuses_unreadable<T>([](Vec<T>* v) { return api::differ(v); });
    expect_refuses_unreadable<T>([](Vec<T>* v) { return api::unwrap_wnd(v, 2); });
}

// The windowed unwrap follows the documented arithmetic to the last bit: a
// random phase track (most samples wrapped) against the step-by-step reference;
// the plain unwrap (judged against the previous output) comes within rounding.
TYPED_TEST(CalculusTest, UnwrapWindowedMatchesDocumentedArithmetic) {
    using T = TypeParam;
    const auto s = random_scalars<T>(2000, 21, -20, 20);
    for (int w : {0, 2, 3, 7, 64, 5000}) {
        Owned<T> v(s);
        ASSERT_EQ(api::unwrap_wnd(v.get(), w), 0);
        EXPECT_EQ(v.scalars(), unwrapped_window(s, w)) << w;
    }
    Owned<T> plain(s);
    ASSERT_EQ(api::unwrap(plain.get()), 0);
    EXPECT_TRUE(near_all(plain.scalars(), unwrapped_window(s, 1), tol<T>(64)));
}

}  // namespace
