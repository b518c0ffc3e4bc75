// Circular interpolation: points of an exact circle with the angle quadratic
// in frequency come back to rounding, in both turning directions and at
// unsorted frequencies; collinear points give the straight line; the ends
// hold; bad frequencies are refused.
#include <zifaif/instrument.h>

#include <gtest/gtest.h>

#include <complex>
#include <vector>

using C = std::complex<double>;

namespace {

// Complex points as the interleaved doubles the routines take.
const double* d(const C* p) { return reinterpret_cast<const double*>(p); }
double* d(C* p) { return reinterpret_cast<double*>(p); }

// Turn rates (rad per unit frequency, linear and quadratic): left and right turns,
// steps of up to a third of a turn.
struct Spin { double beta, gamma; };
class CircularArc : public ::testing::TestWithParam<Spin> {
protected:
    C at(double f) const { return C(0.4, -0.1) + std::polar(0.6, 0.3 + GetParam().beta * f + GetParam().gamma * f * f); }
};

TEST_P(CircularArc, PointsOfACircleComeBackToRounding) {
    const std::vector<double> f{0, 0.5, 1.2, 1.6, 2.5, 3.0, 3.1, 4.0};
    std::vector<C> z;
    for (double v : f) z.push_back(at(v));
    std::vector<double> nf;
    for (int k = 0; k < 31; ++k) nf.push_back(0.13 * ((k * 17) % 31));   // 0 .. 3.9 in no order
    std::vector<C> out(nf.size());
    ASSERT_EQ(CircularInterpolation(f.data(), d(&z[0]), 8, nf.data(), d(&out[0]), 31), 31);
    for (std::size_t k = 0; k < nf.size(); ++k) EXPECT_LT(std::abs(out[k] - at(nf[k])), 1e-13) << nf[k];
    C one;
    EXPECT_EQ(InterpolateCircular(&f[2], d(&z[2]), 0.9, d(&one)), 1);   // extended beyond the three
    EXPECT_LT(std::abs(one - at(0.9)), 1e-13);
}

INSTANTIATE_TEST_SUITE_P(Turns, CircularArc, ::testing::Values(Spin{1.5, 0.0}, Spin{-1.5, 0.0}, Spin{0.4, 0.3}, Spin{-0.2, -0.4}));

TEST(CircularLine, CollinearPointsEndsAndRefusals) {
    const double f[] = {1, 2, 4, 5};
    const C z[] = {C(1, 1), C(2, 3), C(4, 7), C(5, 9)};   // z = f + j(2f - 1)
    C one, out[5];
    EXPECT_EQ(InterpolateCircular(f, d(&z[0]), 3.0, d(&one)), 0);
    EXPECT_EQ(one, C(3, 5));
    const double nf[] = {0, 1.5, 3.5, 4.5, 9};
    ASSERT_EQ(CircularInterpolation(f, d(&z[0]), 4, nf, d(&out[0]), 5), 5);
    const C want[] = {z[0], C(1.5, 2), C(3.5, 6), C(4.5, 8), z[3]};
    for (int k = 0; k < 5; ++k) EXPECT_NEAR(std::abs(out[k] - want[k]), 0, 1e-14) << k;
    ASSERT_EQ(CircularInterpolation(f, d(&z[0]), 1, nf, d(&out[0]), 2), 2);
    EXPECT_EQ(out[1], z[0]);
    const double bad[] = {1, 2, 2, 5};
    out[0] = C(7, 7);
    EXPECT_EQ(CircularInterpolation(bad, d(&z[0]), 4, nf, d(&out[0]), 5), -1);
    EXPECT_EQ(InterpolateCircular(bad + 1, d(&z[0]), 3.0, d(&out[0])), -1);
    EXPECT_EQ(CircularInterpolation(f, nullptr, 4, nf, d(&out[0]), 5), -1);
    EXPECT_EQ(out[0], C(7, 7));
}

}  // namespace
