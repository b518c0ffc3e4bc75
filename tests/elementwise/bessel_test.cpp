#include "support/api_arith.hpp"
#include "support/arith_ref.hpp"

using namespace zt;
using ref::LD;

template <class T> class SpecialTest : public ::testing::Test {};
TYPED_TEST_SUITE(SpecialTest, Precisions);

TYPED_TEST(SpecialTest, MatchesReferenceAndGuards) {
    using T = TypeParam;
    const T above = sizeof(T) == 4 ? T(35) : T(231), huge = Traits<T>::huge;
    check_hand<T>({{api::besi0, {0, above, -above}, false, {1, huge, huge}}, {api::besy0, {0, -1}, false, {0, 0}},
                   {api::besy1, {0, -1}, false, {0, 0}}});
#if defined(_WIN32)
    GTEST_SKIP() << "the Windows C runtime has no long-double j0l, j1l, y0l, y1l to serve as reference";
#else
    const double i0_range = sizeof(T) == 4 ? 30 : 200;
    check_all<T>({
        real_only<T>("besj0", api::besj0, [](LD x) { return j0l(x); }, -30, 30, 64),
        real_only<T>("besj1", api::besj1, [](LD x) { return j1l(x); }, -30, 30, 64),
        real_only<T>("besy0", api::besy0, [](LD x) { return x > 0 ? y0l(x) : 0; }, -5, 30, 64),
        real_only<T>("besy1", api::besy1, [](LD x) { return x > 0 ? y1l(x) : 0; }, -5, 30, 64),
        real_only<T>("besi0", api::besi0, ref::besi0<T>, -i0_range, i0_range, 16),
    });
#endif
}

TYPED_TEST(SpecialTest, ReservedEntryPointsChangeNothing) {
    using T = TypeParam;
    const std::vector<T> in{T(0.5), T(-1), T(2), T(3)};
    int (*reserved[])(Vec<T>*) = {api::erf, api::erfc, api::gamma, api::lgamma};
    for (auto f : reserved) {
        for (bool complex : {false, true}) {
            Owned<T> v(in, complex);
            EXPECT_EQ(std::tuple(f(v.get()), v.scalars()), std::tuple(-1, in));
        }
        EXPECT_EQ(f(nullptr), -1);
    }
}
