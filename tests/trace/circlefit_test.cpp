// Circle fit: exact points on a partial arc, noisy points of a known circle
// (centre and radius within the noise, the residual its spread) in a range of
// a longer trace, the least-squares condition on a noisy partial arc, and the
// refusals.
#include <zifaif/instrument.h>

#include "support/vectors.hpp"

using namespace zt;

// n points of the circle (0.3, -0.2), radius 0.7, at angles from a over span,
// each moved radially by noise[i].
template <class T> std::vector<T> circle(int n, double a, double span, const std::vector<T>& noise) {
    std::vector<T> z;
    for (int i = 0; i < n; ++i) {
        const double t = a + span * i / n, r = 0.7 + (noise.empty() ? 0.0 : double(noise[i]));
        z.insert(z.end(), {static_cast<T>(0.3 + r * std::cos(t)), static_cast<T>(-0.2 + r * std::sin(t))});
    }
    return z;
}
int fit(const double* z, int a, int b, double* c, double* r, double* res) { return vfpd_CircleFit(z, a, b, c, r, res); }
int fit(const float* z, int a, int b, float* c, float* r, float* res) { return vfps_CircleFit(z, a, b, c, r, res); }

template <class T> class CircleFit : public ::testing::Test {};
TYPED_TEST_SUITE(CircleFit, Precisions);

TYPED_TEST(CircleFit, ExactAndNoisyPointsAndRefusals) {
    using T = TypeParam;
    const auto z = circle<T>(12, 2.0, 2.1, {});
    T c[2], r, res;
    ASSERT_EQ(fit(z.data(), 0, 12, c, &r, &res), 12);
    EXPECT_TRUE(near_all(std::vector<T>{c[0], c[1], r, res}, std::vector<double>{0.3, -0.2, 0.7, 0.0}, tol<T>(200)));
    const int n = 400;
    const double a = 0.02;   // uniform radial noise in [-a, a): RMS a / sqrt 3
    auto noisy = circle<T>(n, 0.5, 6.2, random_scalars<T>(n, 17, -a, a));
    noisy.insert(noisy.begin(), {T(1e9), T(-1e9)});   // a point before the range, never read
    ASSERT_EQ(fit(noisy.data(), 1, n + 1, c, &r, &res), n);
    EXPECT_TRUE(near_all(std::vector<T>{c[0], c[1], r}, std::vector<double>{0.3, -0.2, 0.7}, 4 * a / std::sqrt(3.0 * n)));
    EXPECT_NEAR(res, a / std::sqrt(3.0), 0.1 * a);
    // On a noisy partial arc the algebraic start is off the least-squares
    // circle: the result must be where the distances' gradient vanishes.
    const auto arc = circle<T>(60, 1.0, 1.5, random_scalars<T>(60, 5, -a, a));
    ASSERT_EQ(fit(arc.data(), 0, 60, c, &r, &res), 60);
    long double g[3] = {}, f = 0;
    for (int i = 0; i < 60; ++i) {
        const long double dx = arc[2 * i] - (long double)c[0], dy = arc[2 * i + 1] - (long double)c[1];
        const long double rho = std::hypot(dx, dy), d = rho - r;
        g[0] += d * dx / rho, g[1] += d * dy / rho, g[2] += d, f += d * d;
    }
    EXPECT_NEAR(double(res), double(std::sqrt(f / 60)), tol<T>(8) * a);
    for (long double gk : g) EXPECT_LT(double(std::fabs(gk / 60)), tol<T>(400));
    // Refused with nothing written: a line, coincident points, two points, bad ranges, null arrays.
    const std::vector<T> line{T(0), T(0), T(1), T(2), T(2), T(4), T(3), T(6)}, same(8, T(1));
    c[0] = c[1] = r = T(9);
    for (auto [p, from, to] : {std::tuple{line.data(), 0, 4}, {same.data(), 0, 4}, {z.data(), 0, 2}, {z.data(), -1, 4}, {nullptr, 0, 4}})
        EXPECT_EQ(fit(p, from, to, c, &r, static_cast<T*>(nullptr)), -1);
    EXPECT_EQ(fit(z.data(), 0, 5, static_cast<T*>(nullptr), &r, &r), -1);
    EXPECT_EQ(std::vector<T>({c[0], c[1], r}), std::vector<T>(3, T(9)));
}
