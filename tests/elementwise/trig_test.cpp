#include <cmath>

#include "support/api_arith.hpp"
#include "support/arith_ref.hpp"

using namespace zt;
using ref::LD;

template <class T> class TrigTest : public ::testing::Test {};
TYPED_TEST_SUITE(TrigTest, Precisions);

TYPED_TEST(TrigTest, MatchesReferenceOnRandomVectors) {
    using T = TypeParam;
    check_all<T>({
        real_only<T>("cos", api::cos, [](LD x) { return std::cos(x); }, -10, 10),
        real_only<T>("sin", api::sin, [](LD x) { return std::sin(x); }, -10, 10),
        real_only<T>("tan", api::tan, [](LD x) { return std::tan(x); }, -1.5, 1.5),
        real_only<T>("atan", api::atan, [](LD x) { return std::atan(x); }, -20, 20),
        real_only<T>("acos", api::acos, [](LD x) { return ref::inverse_trig(x, std::acos); }, -1.5, 1.5),
        real_only<T>("asin", api::asin, [](LD x) { return ref::inverse_trig(x, std::asin); }, -1.5, 1.5),
        real_only<T>("cosh", api::cosh, ref::cosh<T>, -10, 10),
        real_only<T>("sinh", api::sinh, ref::sinh<T>, -10, 10),
        real_only<T>("tanh", api::tanh, [](LD x) { return std::tanh(x); }, -5, 5),
        real_only<T>("sinc", api::sinc, ref::sinc, -10, 10),
    });
}

TYPED_TEST(TrigTest, GuardsAndSpecialPoints) {
    using T = TypeParam;
    const T huge = Traits<T>::huge, above = sizeof(T) == 4 ? T(35) : T(231);
    Owned<T> c({above, -above});
    ASSERT_EQ(api::cosh(c.get()), 0);
    EXPECT_EQ(c.scalars(), (std::vector<T>{huge, huge}));
    Owned<T> s({above, -above});
    ASSERT_EQ(api::sinh(s.get()), 0);
    EXPECT_EQ(s.scalars(), (std::vector<T>{huge, -huge}));
    Owned<T> a({T(1.5), T(-1.5), T(1), T(-1)});
    ASSERT_EQ(api::acos(a.get()), 0);
    EXPECT_TRUE(near_all(a.scalars(), std::vector<double>{0, 0, 0, 3.141592653589793}, tol<T>()));
    // sinc carries no factor pi: at pi it is sin(pi)/pi, not 0
    const T pi = Traits<T>::pi;
    Owned<T> sc({T(0), pi});
    ASSERT_EQ(api::sinc(sc.get()), 0);
    EXPECT_EQ(sc.scalars()[0], T(1));
    EXPECT_EQ(sc.scalars()[1], std::sin(pi) / pi);
    EXPECT_NE(sc.scalars()[1], T(0));
}
