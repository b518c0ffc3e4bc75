#include "support/api_arith.hpp"
#include "support/arith_ref.hpp"

using namespace zt;
using ref::LD;

template <class T> class TrigTest : public ::testing::Test {};
TYPED_TEST_SUITE(TrigTest, Precisions);

TYPED_TEST(TrigTest, MatchesReferenceAndGuards) {
    using T = TypeParam;
    check_all<T>({
        real_only<T>("cos", api::cos, [](LD x) { return std::cos(x); }, -10, 10),
        real_only<T>("sin", api::sin, [](LD x) { return std::sin(x); }, -10, 10),
        real_only<T>("tan", api::tan, [](LD x) { return std::tan(x); }, -1.5, 1.5),
        real_only<T>("atan", api::atan, [](LD x) { return std::atan(x); }, -20, 20),
        real_only<T>("acos", api::acos, [](LD x) { return ref::inverse_trig(x, std::acos); }, -1.5, 1.5),
        real_only<T>("asin", api::asin, [](LD x) { return ref::inverse_trig(x, std::asin); }, -1.5, 1.5),
        real_only<T>("cosh", api::cosh, ref::cosh<T>, -10, 10), real_only<T>("sinh", api::sinh, ref::sinh<T>, -10, 10),
        real_only<T>("tanh", api::tanh, [](LD x) { return std::tanh(x); }, -5, 5),
        real_only<T>("sinc", api::sinc, ref::sinc, -10, 10),
    });
    // Guards beyond the exponential limit (the random values stay below it), acos
    // on the ends of [-1, 1] and sinc at the origin.
    const T huge = Traits<T>::huge, above = sizeof(T) == 4 ? T(35) : T(231);
    check_hand<T>({{api::cosh, {above, -above}, false, {huge, huge}}, {api::sinh, {above, -above}, false, {huge, -huge}},
                   {api::acos, {1, -1}, false, {0, 3.141592653589793}, 4}, {api::sinc, {0}, false, {1}}});
}
