#include "support/api_arith.hpp"
#include "support/arith_ref.hpp"

using namespace zt;
using ref::CL;
using ref::LD;

template <class T> class ConvertTest : public ::testing::Test {};
TYPED_TEST_SUITE(ConvertTest, Precisions);

TYPED_TEST(ConvertTest, MatchesReferenceGuardsAndDestination) {
    using T = TypeParam;
    const auto identity = [](LD x) { return x; };
    check_all<T>({
        {"rtoc", api::rtoc, nullptr, [](LD x) { return CL(x, 0); }, [](CL z) { return z; }, nullptr},
        {"rtop", api::rtop, nullptr, ref::polar, [](CL z) { return CL(std::abs(z), std::arg(z)); }, nullptr, -3, 3},
        {"ptor", api::ptor, identity, nullptr, [](CL z) { return std::polar(z.real(), z.imag()); }, nullptr, -4, 4},
        {"real", api::real, identity, nullptr, nullptr, [](CL z) { return z.real(); }},
        {"imag", api::imag, [](LD) { return 0.0L; }, nullptr, nullptr, [](CL z) { return z.imag(); }},
        {"mag", api::mag, [](LD x) { return std::fabs(x); }, nullptr, nullptr, [](CL z) { return std::abs(z); }, -1e4, 1e4},
        {"magsq", api::magsq, ref::square<T>, nullptr, nullptr, [](CL z) { return std::norm(z); }, -1e4, 1e4},
        {"phase", api::phase, ref::phase, nullptr, nullptr, [](CL z) { return std::arg(z); }},
    });
    // Phase of signed zeros and the origin is 0 (atan2 would give -pi for
    // (-0, -0)); a squared magnitude saturates at the guard.
    const T huge = Traits<T>::huge;
    check_hand<T>({{api::phase, {T(-0.0), 0, T(-1e-30), 2}, false, {0, 0, Traits<T>::pi, 0}},
                   {api::phase, {0, 0, T(-0.0), T(-0.0), -1, 0}, true, {0, 0, 3.141592653589793}, 4},
                   {api::magsq, {huge * 2, 0, 3, 4, huge, huge}, true, {huge, 25, huge * huge * 2}}});
    Owned<T> c({T(-0.0), T(-0.0)}, true);
    ASSERT_EQ(api::phase(c.get()), 0);
    EXPECT_FALSE(std::signbit(c.scalars()[0]));
    // dspu_mag and dspu_magsq into a destination, including aliasing.
    check_into<TypeParam>(api::mag, api::mag, 3);
    check_into<TypeParam>(api::magsq, api::magsq, 4);
}

// A reallocation hook that fails (releasing the old block itself, as a real
// allocator would have to): spreading to complex reports -1 and leaves the
// record complex with no storage.
TYPED_TEST(ConvertTest, FailedGrowthToComplexReportsFailure) {
    using T = TypeParam;
    Owned<T> v({T(1), T(2), T(3)});
    int status = 0;
    {
        typename CountingHooks<T>::Installed hooks(1);
        status = api::rtop(v.get());
    }
    EXPECT_EQ(std::tuple(status, v->complex, v->alloc, v->data), std::tuple(-1, 1, 0, static_cast<T*>(nullptr)));
}
