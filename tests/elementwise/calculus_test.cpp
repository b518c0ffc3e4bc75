#include "support/api_binary.hpp"
#include "support/arith_ref.hpp"
#include "support/binary_ref.hpp"

using namespace zt;

namespace {

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
                EXPECT_TRUE(near_samples(samples(v.scalars(), complex), want, tol<T>(integ ? n : 8))) << integ << " " << n;
            }
        }
    }
    Owned<T> z({1, 3}, false, T(0));
    ASSERT_EQ(api::differ(z.get()), 0);
    EXPECT_EQ(z.scalars(), (std::vector<T>{Traits<T>::huge, 2 * Traits<T>::huge}));
}

// (1+i) + (2-i) x + (3+0.5i) x^2 differentiates to (2-i) + (6+i) x; one
// coefficient leaves none.
TYPED_TEST(CalculusTest, PdifferExamples) {
    using T = TypeParam;
    check_hand<T>({{api::pdiffer, {1, 2, 3}, false, {2, 6}}, {api::pdiffer, {1, 1, 2, -1, 3, 0.5}, true, {2, -1, 6, 1}},
                   {api::pdiffer, {7}, false, {}}, {api::pdiffer, {}, false, {}}});
}

// Crossing times of the level, interpolated, in units of delta (which becomes
// 1). Touching the level counts where the pair starts on it: 0.5 <= 0.5 < 1.
TYPED_TEST(CalculusTest, EdgeFindsInterpolatedCrossingTimes) {
    using T = TypeParam;
    const std::vector<T> s{0, 1, 0, 1};
    const std::tuple<std::vector<T>, int, std::vector<T>> cases[] = {
        {s, 1, {2, 10}}, {s, 2, {6}}, {s, 3, {2, 6, 10}}, {s, 0, {}}, {{T(0.5), 1, T(0.5), 0}, 3, {0, 8}}, {{3}, 3, {}}};
    for (const auto& [in, mode, want] : cases) {
        Owned<T> v(in, false, T(4));
        ASSERT_EQ(api::edge(v.get(), mode, T(0.5)), 0);
        EXPECT_EQ(std::tuple(v.scalars(), v->delta), std::tuple(want, T(1))) << mode;
    }
}

TYPED_TEST(CalculusTest, RefusesComplexInputNegativeWindowAndUnreadableRecords) {
    using T = TypeParam;
    Owned<T> c({1, 2}, true), r({1, 2});
    EXPECT_EQ(std::tuple(api::edge(c.get(), 1, T(0)), api::unwrap(c.get()), api::unwrap_wnd(c.get(), 2), api::unwrap_wnd(r.get(), -1)),
              std::tuple(-1, -1, -1, -1));
    int (*ops[])(Vec<T>*) = {api::differ, api::pdiffer, api::integ, api::unwrap, [](Vec<T>* v) { return api::unwrap_wnd(v, 2); },
                             [](Vec<T>* v) { return api::edge(v, 3, T(0)); }};
    for (auto f : ops) expect_refuses_unreadable<T>(f);
}

// The windowed unwrap follows the documented arithmetic to the last bit: a
// random phase track (most samples wrapped) against the step-by-step reference;
// the plain unwrap (judged against the previous output) comes within rounding.
TYPED_TEST(CalculusTest, UnwrapWindowedMatchesDocumentedArithmetic) {
    using T = TypeParam;
    const auto s = random_scalars<T>(2000, 21, -20, 20);
    for (int w : {-1, 0, 1, 2, 3, 7, 64, 5000}) {
        Owned<T> v(s);
        ASSERT_EQ(w < 0 ? api::unwrap(v.get()) : api::unwrap_wnd(v.get(), w), 0);
        if (w == 1 || w < 0) EXPECT_TRUE(near_all(v.scalars(), unwrapped_window(s, 1), tol<T>(64))) << w;
        else EXPECT_EQ(v.scalars(), unwrapped_window(s, w)) << w;
    }
}

}  // namespace
