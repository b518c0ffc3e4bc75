#include "support/api_trace.hpp"
#include "support/trace_ref.hpp"

using namespace zt;
using cld = std::complex<ref::ld>;

namespace {
const ref::ld kPi = 3.141592653589793238462643383279502884L;

// Display formats by code from their textbook definitions on a reflection coefficient.
const std::pair<int, ref::ld (*)(cld)> kFormats[] = {
    {0, [](cld g) { return 20 * std::log10(std::abs(g)); }},            // log magnitude
    {1, [](cld g) { return std::abs(g); }},                             // linear magnitude
    {2, [](cld g) { return std::arg(g) * 180 / kPi; }},                 // phase
    {4, [](cld g) { return (1 + std::abs(g)) / (1 - std::abs(g)); }},   // standing-wave ratio
    {5, [](cld g) { return -20 * std::log10(std::abs(g)); }},           // return loss
};
}  // namespace

template <class T> class TraceFormatTest : public ::testing::Test {};
TYPED_TEST_SUITE(TraceFormatTest, Precisions);

TYPED_TEST(TraceFormatTest, FormatsMatchTextbookDefinitionsInsideTheRange) {
    using T = TypeParam;
    const int n = 200, start = 20, stop = 180;
    auto z = random_scalars<T>(2 * n, 23, -0.7, 0.7);
    for (const auto& [code, value] : kFormats) {
        std::vector<T> dst(n, T(-99));
        api::format_buffer(code, z.data(), dst.data(), start, stop);
        std::vector<ref::ld> want(n, -99);
        for (int i = start; i < stop; ++i) want[i] = value(cld(z[2 * i], z[2 * i + 1]));
        // Double: the phase display's degree factor is 6.6e-14 off 180/pi.
        EXPECT_TRUE(near_all(dst, want, std::max(tol<T>(4), 1e-12))) << code;
    }
}

// Unknown codes, empty ranges, negative starts and null data write nothing.
// At the standing-wave limit the formula still applies; above it the ratio is 1e6.
TYPED_TEST(TraceFormatTest, RefusalsAndTheStandingWaveRatioLimit) {
    using T = TypeParam;
    const std::vector<T> z = {T(0.999998), 0, 0, T(-0.9999985), T(0.6), T(0.8), 0, 0};
    const T* none = nullptr;
    std::vector<T> dst(4, T(-99));
    for (int code : {6, 7, -1}) api::format_buffer(code, z.data(), dst.data(), 0, 3);
    api::format_buffer(1, z.data(), dst.data(), 1, 1);   // one check ahead of every code
    api::format_buffer(1, z.data(), dst.data(), 2, 0);
    api::format_buffer(1, none, dst.data(), 0, 2);
    api::format_buffer(1, z.data() + 2, dst.data() + 1, -1, 1);
    for (auto [p, start, stop] : {std::tuple{z.data(), 2, 1}, {z.data(), -1, 2}, {none, 0, 3}}) api::unwrap_phase(p, start, stop, dst.data(), 1);
    EXPECT_EQ(dst, std::vector<T>(4, T(-99)));
    api::format_buffer(4, z.data(), dst.data(), 0, 4);
    EXPECT_NEAR(dst[0], (1 + ref::ld(z[0])) / (1 - ref::ld(z[0])), 1e-6 * dst[0]);
    EXPECT_EQ(std::vector<T>(dst.begin() + 1, dst.end()), std::vector<T>({T(1e6), T(1e6), T(1)}));
}

// A phase that turns steadily in steps below half a turn: the unwrapped
// result is that phase, shifted by whole turns so that it starts on the
// principal value.
TYPED_TEST(TraceFormatTest, UnwrapRecoversContinuousPhaseWholeAndInChunks) {
    using T = TypeParam;
    const int n = 100;
    for (ref::ld rate : {2.9L, -2.2L, 0.01L}) {
        std::vector<T> z(2 * n);
        std::vector<ref::ld> rad(n), deg(n);
        for (int i = 0; i < n; ++i) {
            const ref::ld phi = 1.0L + rate * i + 0.3L * std::sin(0.2L * i);
            z[2 * i] = T(1.5L * std::cos(phi)), z[2 * i + 1] = T(1.5L * std::sin(phi));
            rad[i] = phi - 1.0L + std::atan2(ref::ld(z[1]), ref::ld(z[0]));
            deg[i] = rad[i] * 180 / kPi;
        }
        SCOPED_TRACE(double(rate));
        std::vector<T> whole(n), in_degrees(n), formatted(n);
        api::unwrap_phase(z.data(), 0, n, whole.data(), 0);
        for (auto [a, b] : {std::pair{0, 1}, {1, 37}, {37, 50}, {50, 50}, {50, 100}}) api::unwrap_phase(z.data(), a, b, in_degrees.data(), 1);
        api::format_buffer(3, z.data(), formatted.data(), 0, n);
        for (const auto& [got, want] : {std::pair{&whole, &rad}, {&in_degrees, &deg}, {&formatted, &deg}})
            EXPECT_TRUE(near_all(*got, *want, tol<T>(8) * n));
    }
}

// Only the float twin answers, with stop.
TEST(TraceFormat, EndCasesOfTheTwins) {
    const float z[6] = {1, 0, 0, 1, -1, 0};
    float dst[3];
    EXPECT_EQ(std::tuple(vfps_UnwrapPhase(z, 0, 3, dst, 1), vfps_UnwrapPhase(nullptr, 4, 2, nullptr, 0)), std::tuple(3, 2));
    // The phase display and the unwrapping use degree factors that differ in the
    // last digits: at a half turn the display stays about 1.2e-11 short of 180. A
    // step of exactly half a turn is not unwrapped, either way. Log of zero: ±inf.
    const double half[2] = {-1, 0}, zero[2] = {0, 0}, steps[6] = {1, 0, -1, 0, 1, 0};
    double phase = 0, unwrapped = 0, db = 0, rl = 0, rad[3], deg[3];
    vfpd_FormatBuffer(2, half, &phase, 0, 1);
    vfpd_FormatBuffer(3, half, &unwrapped, 0, 1);
    vfpd_FormatBuffer(0, zero, &db, 0, 1);
    vfpd_FormatBuffer(5, zero, &rl, 0, 1);
    EXPECT_NEAR(unwrapped, 180.0, 1e-13);
    EXPECT_NEAR(phase, 180.0 - 1.18e-11, 0.02e-11);
    EXPECT_EQ(std::tuple(db, rl), std::tuple(-HUGE_VAL, HUGE_VAL));
    vfpd_UnwrapPhase(steps, 0, 3, rad, 0);
    vfpd_UnwrapPhase(steps, 0, 3, deg, 1);
    EXPECT_TRUE(near_all(std::vector<double>(rad, rad + 3), std::vector<double>{0, M_PI, 0}, 1e-15));
    EXPECT_TRUE(near_all(std::vector<double>(deg, deg + 3), std::vector<double>{0, 180, 0}, 1e-15));
}
