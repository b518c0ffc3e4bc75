// Generators against direct cos/sin over runs of many re-seeded blocks, noise
// moments, and the status codes.
#include "support/api_handle.hpp"
#include "support/vectors.hpp"

using namespace zt;

namespace {

template <class T> class Generate : public ::testing::Test {};
TYPED_TEST_SUITE(Generate, Precisions);

// Sample n must become keep * old + a cos (real part) and keep * old + b sin
// (imaginary part). 20000 samples span 79 blocks of 256: a recurrence never
// re-seeded drifts beyond the bound, a wrong seed angle is off at once.
TYPED_TEST(Generate, SinusoidsFollowDirectTrigonometry) {
    using T = TypeParam;
    struct Case { int op, flags; bool complex; double keep, a, b; };
    const Case cases[] = {{0, 0, true, 0, 1, 0}, {1, 0, true, 0, 1, 1}, {1, 0, false, 0, 1, 0},
                          {2, 0, false, 1, 1.5, 0}, {2, 0, true, 1, 1.5, 0}, {2, 1, true, 1, 1.5, 1.5}};
    const int n = 20000;
    const T delta = T(0.001), freq = T(12.34), phase = T(0.7);
    const long double om = 2 * 3.14159265358979323846L * static_cast<long double>(delta) * static_cast<long double>(freq);
    for (const Case& c : cases) {
        const std::vector<T> old = random_scalars<T>(c.complex ? 2 * n : n, 5);
        Owned<T> v(old, c.complex, delta);
        ASSERT_EQ(api::sine(c.op, v.get(), c.flags, T(c.a), freq, phase), 0);
        double worst = 0;
        for (int k = 0; k < (c.complex ? 2 * n : n); ++k) {
            const long double t = om * (c.complex ? k / 2 : k) + static_cast<long double>(phase);
            const double part = k % 2 && c.complex ? c.b * static_cast<double>(std::sin(t)) : c.a * static_cast<double>(std::cos(t));
            worst = std::fmax(worst, std::fabs(v->data[k] - c.keep * old[k] - part));
        }
        // The angle itself carries the rounding of the step: |w n| eps of double.
        EXPECT_LE(worst, tol<T>(512) + 2 * static_cast<double>(om) * n * Traits<double>::eps) << "op " << c.op << " flags " << c.flags << " complex " << c.complex;
    }
}

// Moments of 100000 draws against mean, variance (5 standard errors) and fourth
// central moment m4, the value bounds, and no correlation between neighbours
// (the polar method hands out both values of each pair).
// Then the line and the refusals.
TYPED_TEST(Generate, NoiseMomentsLineAndRefusals) {
    using T = TypeParam;
    struct Case { int kind; bool complex; double lo, mean, var, m4; };
    const Case cases[] = {{0, false, -1, 0, 1.0 / 3, 1.0 / 5}, {1, false, -1e9, 0, 1, 3}, {2, false, 0, 1, 1, 9},
                          {3, false, -1e9, 0, 2, 24}, {0, true, -1, 0, 0.25, 1.0 / 8}, {1, true, -1e9, 0, 1, 3}};
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << "kind " << c.kind << " complex " << c.complex);
        Owned<T> v(std::vector<T>(c.complex ? 200000 : 100000), c.complex);
        ASSERT_EQ(api::rand(v.get(), c.kind), 0);
        const std::vector<T> x = v.scalars();
        const double m = static_cast<double>(x.size());
        double s = 0, s2 = 0, s4 = 0, lag = 0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            const double d = x[i] - c.mean;
            ASSERT_TRUE(x[i] >= c.lo && x[i] < (c.lo == -1 ? 1 : 1e9)) << x[i];
            s += d, s2 += d * d, s4 += d * d * d * d, lag += i ? d * (x[i - 1] - c.mean) : 0;
        }
        EXPECT_NEAR(s / m, 0, 5 * std::sqrt(c.var / m));
        EXPECT_NEAR(s2 / m, c.var, 5 * std::sqrt((c.m4 * 3 - c.var * c.var) / m));
        EXPECT_NEAR(s4 / m / c.m4, 1.0, 0.25);   // about 6 standard deviations for the exponential kind
        EXPECT_NEAR(lag / m / c.var, 0.0, 5 / std::sqrt(m));
    }
    // A line by repeated addition (imaginary parts 0), and the refusals.
    Owned<T> v(std::vector<T>(2000, T(9)), true, T(2)), real(std::vector<T>(4)), empty;
    ASSERT_EQ(api::line(v.get(), T(0.5), T(1)), 0);
    for (int i = 0; i < 1000; ++i) ASSERT_NEAR(v->data[2 * i] + 3 * v->data[2 * i + 1], 1.0 + i, tol<T>(1) * i * i);
    Vec<T>* null = nullptr;
    for (int op : {0, 1, 2}) EXPECT_EQ(api::sine(op, null, 0, T(1), T(1), T(0)), -1);
    EXPECT_EQ(api::line(null, T(1), T(0)) + api::rand(null, 0), -2);
    EXPECT_EQ(api::rand(real.get(), -1) + api::rand(real.get(), 4) + api::rand(v.get(), 2) + api::rand(v.get(), 3), -4);
    EXPECT_EQ(api::sine(2, empty.get(), 1, T(1), T(1), T(0)) + api::rand(empty.get(), 1), 0);
}

}  // namespace
