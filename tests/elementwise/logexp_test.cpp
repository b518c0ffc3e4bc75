#include "support/api_arith.hpp"
#include "support/arith_ref.hpp"

using namespace zt;
using ref::CL;
using ref::LD;

template <class T> class LogExpTest : public ::testing::Test {};
TYPED_TEST_SUITE(LogExpTest, Precisions);

TYPED_TEST(LogExpTest, MatchesReferenceAndGuards) {
    using T = TypeParam;
    // exp10 works through e^(x ln 10): the rounding of x ln 10 grows with |x|.
    check_all<T>({
        {"exp", api::exp, ref::exp<T>, nullptr, [](CL z) { return std::exp(z); }, nullptr, -20, 20},
        {"exp10", api::exp10, ref::exp10<T>, nullptr, [](CL z) { return std::exp(z * ref::ln10); }, nullptr, -8, 8, 64},
        {"log", api::log, ref::log<T>, nullptr, [](CL z) { return std::log(z); }, nullptr, -0.5, 100},
        {"log10", api::log10, [](LD x) { return ref::db<T>(x, 1); }, nullptr,
         [](CL z) { return std::log(z) / ref::ln10; }, nullptr, -0.5, 100},
        {"db10", [](Vec<T>* v) { return api::db(v, T(10)); }, [](LD x) { return ref::db<T>(x, 10); }, nullptr,
         [](CL z) { return 10.0L * std::log(z) / ref::ln10; }, nullptr, -0.5, 1e6},
        {"db20", [](Vec<T>* v) { return api::db(v, T(20)); }, [](LD x) { return ref::db<T>(x, 20); }, nullptr,
         [](CL z) { return 20.0L * std::log(z) / ref::ln10; }, nullptr, -1e-3, 1e-3},
    });
    // exp saturates just past ln(huge) (the limit itself, computed, is about huge
    // too: the vector math test holds it to the ulp);
    // decibels and logarithms of zero, negative and tiny values use the floor, the
    // complex origin too, and parts beyond the guard are clamped before squaring.
    // A real value below -huge stops exp10 there: that sample and all later ones
    // keep their values; complex input gets the magnitude -huge instead, and -huge
    // itself is converted.
    const T huge = Traits<T>::huge, tiny = Traits<T>::tiny, above = sizeof(T) == 4 ? T(35) : T(231);
    const LD exact_tiny = sizeof(T) == 4 ? 1.1754943508222875e-38L : 2.2250738585072014e-308L;
    const double floor20 = static_cast<double>(20 * std::log10(exact_tiny)), below = -2.0 * huge;
    const double huge_db = static_cast<double>(20 * std::log10(static_cast<LD>(huge)));
    const auto db20 = [](Vec<T>* v) { return api::db(v, T(20)); };
    check_hand<T>({
        {api::exp, {above, 0}, false, {huge, 1}}, {api::exp, {above, 0}, true, {huge, 0}},
        {db20, {0, -1, 1, tiny, tiny / 4, 100}, false, {floor20, floor20, 0, floor20, floor20, 40}, 4},
        {db20, {0, 0, T(-0.0), tiny / 4, huge * 8, 0}, true, {floor20, 0, floor20, 0, huge_db, 0}, 4},
        {api::log, {0, 0}, true, {static_cast<double>(std::log(exact_tiny)), 0}, 4},
        {api::exp10, {1, 1000, T(below), 2, -3}, false, {10, huge, below, 2, -3}, 4},
        {api::exp10, {T(below), 0, 2, 0}, true, {-huge, 0, 100, 0}, 16}, {api::exp10, {-huge}, false, {0}},
    });
}
