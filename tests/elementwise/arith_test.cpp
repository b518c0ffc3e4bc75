#include "support/api_arith.hpp"
#include "support/arith_ref.hpp"

using namespace zt;
using ref::CL;
using ref::LD;

template <class T> class ArithTest : public ::testing::Test {};
TYPED_TEST_SUITE(ArithTest, Precisions);

TYPED_TEST(ArithTest, MatchesReferenceAndGuards) {
    using T = TypeParam;
    static const CL w(0.5L, -1.5L);
    check_all<T>({
        {"abs", api::abs, [](LD x) { return std::fabs(x); }, nullptr, nullptr, nullptr},
        {"neg", api::neg, [](LD x) { return -x; }, nullptr, [](CL z) { return -z; }, nullptr},
        {"scale", [](Vec<T>* v) { return api::scale(v, T(-2.5)); }, [](LD x) { return x * -2.5L; }, nullptr,
         [](CL z) { return z * -2.5L; }, nullptr},
        {"cscale", [](Vec<T>* v) { return api::cscale(v, T(0.5), T(-1.5)); }, nullptr, [](LD x) { return x * w; },
         [](CL z) { return z * w; }, nullptr},
        {"offset", [](Vec<T>* v) { return api::offset(v, T(0.75)); }, [](LD x) { return x + 0.75L; }, nullptr,
         [](CL z) { return z + 0.75L; }, nullptr},
        {"recip", api::recip, ref::recip<T>, nullptr, [](CL z) { return 1.0L / z; }, nullptr},
        {"square", api::square, ref::square<T>, nullptr, [](CL z) { return z * z; }, nullptr, -1e3, 1e3},
        {"sqrt", api::sqrt, ref::sqrt, nullptr, [](CL z) { return std::sqrt(z); }, nullptr, -4, 4},
        {"conj", api::conj, [](LD x) { return x; }, nullptr, [](CL z) { return std::conj(z); }, nullptr},
        {"timesi", api::timesi, nullptr, [](LD x) { return CL(0, x); }, [](CL z) { return z * CL(0, 1); }, nullptr},
    });
    // The guard saturates: 1/0 is huge, a part beyond the guard makes a squared
    // magnitude huge (parts are clamped before squaring); sqrt at the origin.
    const T huge = Traits<T>::huge;
    // The float guard is the float nearest 1e15, not 1e15 itself.
    EXPECT_EQ(static_cast<double>(huge), sizeof(T) == 4 ? 999999986991104.0 : 1e100);
    check_hand<T>({
        {api::recip, {0, T(-0.0), 4}, false, {huge, huge, 0.25}}, {api::recip, {0, 0, huge * 4, 0}, true, {0, 0, 4, 0}, 16},
        {api::square, {huge, -huge * 2, -3}, false, {huge * huge, huge, 9}}, {api::square, {huge * 2, 0}, true, {huge * huge, 0}},
        {api::sqrt, {0, 0, -4, 0}, true, {0, 0, 0, 2}, 4},
    });
    Owned<T> c({T(0), T(0)}, true);  // (0, 0) gives (0, -0)
    ASSERT_EQ(api::recip(c.get()), 0);
    EXPECT_TRUE(std::signbit(c.scalars()[1]));
}

// Both bounds in either order clip real and imaginary parts alike; a value on
// a bound is not a change and NaN is never clipped; the flag is optional.
TYPED_TEST(ArithTest, LimitClipsBothPartsWithBoundsInEitherOrder) {
    using T = TypeParam;
    const std::vector<T> in{T(-5), T(0.5), T(7), T(NAN), T(2), T(-2)}, inside{T(-1), T(0), T(2), T(NAN)};
    const std::tuple<std::vector<T>, bool, T, T, std::vector<double>, int> cases[] = {
        {in, true, T(-1), T(2), {-1, 0.5, 2, NAN, 2, -1}, 1}, {in, false, T(2), T(-1), {-1, 0.5, 2, NAN, 2, -1}, 1},
        {inside, false, T(-1), T(2), {-1, 0, 2, NAN}, 0}, {{}, false, T(0), T(1), {}, 0},
        {inside, false, T(0), T(1), {0, 0, 1, NAN}, -1}};  // -1: no flag asked for
    for (const auto& [x, complex, a, b, want, changed] : cases) {
        Owned<T> v(x, complex);
        int clipped = -1;
        ASSERT_EQ(api::limit(v.get(), 99, a, b, changed < 0 ? nullptr : &clipped), 0);
        EXPECT_TRUE(near_all(v.scalars(), want, 0));
        EXPECT_EQ(clipped, changed);
    }
}

// Into a destination, also aliased; the operations outside the random tables
// refuse unreadable records and a missing destination.
TYPED_TEST(ArithTest, IntoDestinationAndRefusals) {
    using T = TypeParam;
    check_into<T>(api::sqrt, api::sqrt, 5);
    expect_refuses_unreadable<T>([](Vec<T>* v) { return api::limit(v, 0, T(0), T(1), nullptr); });
    expect_refuses_unreadable<T>([](Vec<T>* v) { Owned<T> d; return api::mag(v, d.get()); });
    expect_refuses_unreadable<T>([](Vec<T>* v) { Owned<T> d; return api::sqrt(v, d.get()); });
    Owned<T> src({T(1)});
    EXPECT_EQ(api::mag(src.get(), static_cast<Vec<T>*>(nullptr)), -1);
}
