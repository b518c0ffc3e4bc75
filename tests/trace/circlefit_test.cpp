// Circle fit: exact points on a partial arc, noisy points of a known circle
// (centre and radius within the noise, the residual its spread), a range
// inside a longer trace, and the refusals.
#include <zifaif/instrument.h>

#include "support/vectors.hpp"

using namespace zt;

template <class T> class CircleFit : public ::testing::Test {
protected:
    static int fit(const T* z, int a, int b, T* c, T* r, T* res) {
        if constexpr (sizeof(T) == 8) return vfpd_CircleFit(z, a, b, c, r, res); else return vfps_CircleFit(z, a, b, c, r, res);
    }
    // n points of the circle (0.3, -0.2), radius 0.7, at angles from a over span,
    // each moved radially by noise[i].
    static std::vector<T> points(int n, double a, double span, const std::vector<T>& noise) {
        std::vector<T> z;
        for (int i = 0; i < n; ++i) {
            const double t = a + span * i / n, r = 0.7 + (noise.empty() ? 0.0 : double(noise[i]));
            z.push_back(static_cast<T>(0.3 + r * std::cos(t)));
            z.push_back(static_cast<T>(-0.2 + r * std::sin(t)));
        }
        return z;
    }
};
TYPED_TEST_SUITE(CircleFit, Precisions);

TYPED_TEST(CircleFit, ExactPointsOfAPartialArc) {
    using T = TypeParam;
    const auto z = this->points(12, 2.0, 2.1, {});
    T c[2], r, res;
    ASSERT_EQ(this->fit(z.data(), 0, 12, c, &r, &res), 12);
    EXPECT_TRUE(near_all(std::vector<T>{c[0], c[1], r, res}, std::vector<double>{0.3, -0.2, 0.7, 0.0}, tol<T>(200)));
}

TYPED_TEST(CircleFit, NoisyPointsGiveTheCircleWithinTheNoise) {
    using T = TypeParam;
    const int n = 400;
    const double a = 0.02;   // uniform radial noise in [-a, a): RMS a / sqrt 3
    auto z = this->points(n, 0.5, 6.2, random_scalars<T>(n, 17, -a, a));
    z.insert(z.begin(), {T(1e9), T(-1e9)});   // a point before the range, never read
    T c[2], r, res;
    ASSERT_EQ(this->fit(z.data(), 1, n + 1, c, &r, &res), n);
    const double bound = 4 * a / std::sqrt(3.0 * n);
    EXPECT_NEAR(c[0], 0.3, bound);
    EXPECT_NEAR(c[1], -0.2, bound);
    EXPECT_NEAR(r, 0.7, bound);
    EXPECT_NEAR(res, a / std::sqrt(3.0), 0.1 * a);
}

TYPED_TEST(CircleFit, RefusalsWriteNothing) {
    using T = TypeParam;
    const std::vector<T> line{T(0), T(0), T(1), T(2), T(2), T(4), T(3), T(6)}, same(8, T(1));
    const auto z = this->points(5, 0, 3, {});
    T c[2] = {T(9), T(9)}, r = T(9);
    EXPECT_EQ(this->fit(line.data(), 0, 4, c, &r, nullptr), -1);
    EXPECT_EQ(this->fit(same.data(), 0, 4, c, &r, nullptr), -1);
    EXPECT_EQ(this->fit(z.data(), 0, 2, c, &r, nullptr), -1);
    EXPECT_EQ(this->fit(z.data(), -1, 4, c, &r, nullptr), -1);
    EXPECT_EQ(this->fit(nullptr, 0, 4, c, &r, nullptr), -1);
    EXPECT_EQ(this->fit(z.data(), 0, 5, nullptr, &r, nullptr), -1);
    EXPECT_EQ(std::vector<T>({c[0], c[1], r}), std::vector<T>(3, T(9)));
}
