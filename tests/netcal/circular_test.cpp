// Circular interpolation: points of an exact circle with the angle quadratic
// in frequency come back to rounding, in both turning directions and at
// unsorted frequencies; collinear points give the straight line; the ends
// hold; bad frequencies are refused.
#include <string>
#include <zifaif/instrument.h>

#include "support/vectors.hpp"  // brings GoogleTest, complex and vector

using C = std::complex<double>;

namespace {

template <class P> auto d(P* p) { return reinterpret_cast<std::conditional_t<std::is_const_v<P>, const double*, double*>>(p); }

// Turn rates (rad per unit frequency, linear and quadratic): left and right
// turns, steps of up to a third of a turn.
class CircularArc : public ::testing::TestWithParam<std::pair<double, double>> {};

TEST_P(CircularArc, PointsOfACircleComeBackToRounding) {
    auto at = [](double f) { return C(0.4, -0.1) + std::polar(0.6, 0.3 + GetParam().first * f + GetParam().second * f * f); };
    const std::vector<double> f{0, 0.5, 1.2, 1.6, 2.5, 3.0, 3.1, 4.0};
    std::vector<C> z, out(31);
    std::vector<double> nf;
    for (double v : f) z.push_back(at(v));
    for (int k = 0; k < 31; ++k) nf.push_back(0.13 * ((k * 17) % 31));   // 0 .. 3.9 in no order
    ASSERT_EQ(CircularInterpolation(f.data(), d(z.data()), 8, nf.data(), d(out.data()), 31), 31);
    for (std::size_t k = 0; k < nf.size(); ++k) EXPECT_LT(std::abs(out[k] - at(nf[k])), 1e-13) << nf[k];
    EXPECT_EQ(InterpolateCircular(&f[2], d(&z[2]), 0.9, d(out.data())), 1);   // extended beyond the three
    EXPECT_LT(std::abs(out[0] - at(0.9)), 1e-13);
}

INSTANTIATE_TEST_SUITE_P(Turns, CircularArc, ::testing::Values(std::pair{1.5, 0.0}, std::pair{-1.5, 0.0}, std::pair{0.4, 0.3}, std::pair{-0.2, -0.4}),
                         [](const auto& p) { return "Arc" + std::to_string(p.index); });

TEST(CircularLine, CollinearPointsEndsAndRefusals) {
    const double f[] = {1, 2, 4, 5}, nf[] = {0, 1.5, 3.5, 4.5, 9}, bad[] = {1, 2, 2, 5};
    const C z[] = {C(1, 1), C(2, 3), C(4, 7), C(5, 9)};   // z = f + j(2f - 1)
    const C want[] = {z[0], C(1.5, 2), C(3.5, 6), C(4.5, 8), z[3]};
    C out[5];
    EXPECT_EQ(InterpolateCircular(f, d(z), 3.0, d(out)), 0);
    EXPECT_EQ(out[0], C(3, 5));
    ASSERT_EQ(CircularInterpolation(f, d(z), 4, nf, d(out), 5), 5);
    for (int k = 0; k < 5; ++k) EXPECT_NEAR(std::abs(out[k] - want[k]), 0, 1e-14) << k;
    ASSERT_EQ(CircularInterpolation(f, d(z), 1, nf, d(out), 2), 2);   // one point: a constant
    EXPECT_EQ(out[1], z[0]);
    EXPECT_EQ(CircularInterpolation(bad, d(z), 4, nf, d(out), 5) + InterpolateCircular(bad + 1, d(z), 3.0, d(out)), -2);
    EXPECT_EQ(CircularInterpolation(f, nullptr, 4, nf, d(out), 5), -1);
    EXPECT_EQ(out[0], z[0]);
}

}  // namespace
