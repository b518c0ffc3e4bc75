#include <cmath>

#include "support/api_arith.hpp"
#include "support/arith_ref.hpp"

using namespace zt;
using ref::CL;
using ref::LD;

template <class T> class LogExpTest : public ::testing::Test {};
TYPED_TEST_SUITE(LogExpTest, Precisions);

TYPED_TEST(LogExpTest, MatchesReferenceOnRandomVectors) {
    using T = TypeParam;
    // exp10 works through e^(x ln 10): the rounding of x ln 10 grows with |x|.
    check_all<T>({
        {"exp", [](Vec<T>* v) { return api::exp(v); }, ref::exp<T>, nullptr, [](CL z) { return std::exp(z); }, nullptr,
         -20, 20},
        {"exp10", [](Vec<T>* v) { return api::exp10(v); }, ref::exp10<T>, nullptr,
         [](CL z) { return std::exp(z * ref::ln10); }, nullptr, -8, 8, 64},
        {"log", [](Vec<T>* v) { return api::log(v); }, ref::log<T>, nullptr, [](CL z) { return std::log(z); }, nullptr,
         -0.5, 100},
        {"log10", [](Vec<T>* v) { return api::log10(v); }, [](LD x) { return ref::db<T>(x, 1); }, nullptr,
         [](CL z) { return std::log(z) / ref::ln10; }, nullptr, -0.5, 100},
        {"db10", [](Vec<T>* v) { return api::db(v, T(10)); }, [](LD x) { return ref::db<T>(x, 10); }, nullptr,
         [](CL z) { return 10.0L * std::log(z) / ref::ln10; }, nullptr, -0.5, 1e6},
        {"db20", [](Vec<T>* v) { return api::db(v, T(20)); }, [](LD x) { return ref::db<T>(x, 20); }, nullptr,
         [](CL z) { return 20.0L * std::log(z) / ref::ln10; }, nullptr, -1e-3, 1e-3},
    });
}

TYPED_TEST(LogExpTest, ExpSaturatesAboveItsLimit) {
    using T = TypeParam;
    const T huge = Traits<T>::huge;
    const T above = sizeof(T) == 4 ? T(35) : T(231);  // just past ln(huge)
    Owned<T> v({above, Traits<T>::exp_limit, T(0)});
    ASSERT_EQ(api::exp(v.get()), 0);
    const auto got = v.scalars();
    EXPECT_EQ(got[0], huge);
    EXPECT_NEAR(got[1] / huge, 1.0, 1e-5);  // the limit itself is still computed
    EXPECT_EQ(got[2], T(1));
    Owned<T> c({above, T(0)}, true);
    ASSERT_EQ(api::exp(c.get()), 0);
    EXPECT_EQ(c.scalars(), (std::vector<T>{huge, T(0)}));
}

TYPED_TEST(LogExpTest, DecibelsOfZeroNegativeAndTinyUseTheFloor) {
    using T = TypeParam;
    const LD tiny = sizeof(T) == 4 ? 1.1754943508222875e-38L : 2.2250738585072014e-308L;
    const double floor20 = static_cast<double>(20 * std::log10(tiny));
    const T denormal = Traits<T>::tiny / T(4);
    Owned<T> v({T(0), T(-1), T(1), Traits<T>::tiny, denormal, T(100)});
    ASSERT_EQ(api::db(v.get(), T(20)), 0);
    EXPECT_TRUE(near_all(v.scalars(), std::vector<double>{floor20, floor20, 0, floor20, floor20, 40}, tol<T>()));
    // the complex origin, and parts beyond the guard clamped before squaring
    const T huge = Traits<T>::huge;
    Owned<T> c({T(0), T(0), T(-0.0), denormal, huge * T(8), T(0)}, true);
    ASSERT_EQ(api::db(c.get(), T(20)), 0);
    const double huge_db = static_cast<double>(20 * std::log10(static_cast<LD>(huge)));
    EXPECT_TRUE(near_all(c.scalars(), std::vector<double>{floor20, 0, floor20, 0, huge_db, 0}, tol<T>()));
    Owned<T> l({T(0), T(0)}, true);
    ASSERT_EQ(api::log(l.get()), 0);
    EXPECT_TRUE(near_all(l.scalars(), std::vector<double>{static_cast<double>(std::log(tiny)), 0}, tol<T>()));
}

// A real value below -huge stops exp10 there: that sample and all later ones
// keep their values. Complex input gets the magnitude -huge instead.
TYPED_TEST(LogExpTest, Exp10StopsBelowMinusHuge) {
    using T = TypeParam;
    const T huge = Traits<T>::huge, below = -huge * T(2);
    Owned<T> v({T(1), T(1000), below, T(2), T(-3)});
    ASSERT_EQ(api::exp10(v.get()), 0);
    EXPECT_TRUE(near_all(v.scalars(), std::vector<double>{10, static_cast<double>(huge), static_cast<double>(below), 2, -3}, tol<T>()));
    Owned<T> c({below, T(0), T(2), T(0)}, true);
    ASSERT_EQ(api::exp10(c.get()), 0);
    EXPECT_TRUE(near_all(c.scalars(), std::vector<double>{static_cast<double>(-huge), 0, 100, 0}, tol<T>(16)));
    Owned<T> at({-huge});  // -huge itself is converted
    ASSERT_EQ(api::exp10(at.get()), 0);
    EXPECT_EQ(at.scalars()[0], T(0));
}
