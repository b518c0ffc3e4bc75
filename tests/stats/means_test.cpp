// Geometric and harmonic means: small cases by hand, the floor on the product,
// the zero sample and the cancelling reciprocals.
#include <cmath>

#include "support/stats_fixture.hpp"

using namespace zt;

template <class T> class StatsMeans : public StatsFixture<T> {};
TYPED_TEST_SUITE(StatsMeans, Precisions);

TYPED_TEST(StatsMeans, GeometricMeanOfProductsAtTheBoundaries) {
    using T = TypeParam;
    const double r = tol<T>();
    EXPECT_EQ(this->run(api::gmean, {T(-2), T(8)}), std::vector<T>({T(0)}));
    EXPECT_EQ(this->run(api::gmean, {T(3), T(0), T(3)}), std::vector<T>({T(0)}));
    // (j)(j) = -1, angle π, halved: j.
    EXPECT_TRUE(near_all(this->run(api::gmean, {T(0), T(1), T(0), T(1)}, true), std::vector<double>{0, 1}, r));
    // (1+j)(2+2j)(4+4j) = -16+16j, magnitude 16√2, angle 3π/4: the cube root
    // of the product is 2^(3/2)·e^(jπ/4) = (2, 2).
    EXPECT_TRUE(near_all(this->run(api::gmean, {T(1), T(1), T(2), T(2), T(4), T(4)}, true), std::vector<double>{2, 2}, r));
}

// A product below the smallest normal number gives 0, even when every sample
// is positive: here each sample is tiny^0.75, so the product is tiny^1.5.
TYPED_TEST(StatsMeans, GeometricMeanOfAnUnderflowingProductIsZero) {
    using T = TypeParam;
    const T x = static_cast<T>(std::pow(static_cast<double>(Traits<T>::tiny), 0.75));
    EXPECT_EQ(this->run(api::gmean, {x, x}), std::vector<T>({T(0)}));
    EXPECT_EQ(this->run(api::gmean, {x, T(0), x, T(0)}, true), std::vector<T>({T(0), T(0)}));
}

TYPED_TEST(StatsMeans, RealHarmonicMeanOfZeroSamplesAndCancellation) {
    using T = TypeParam;
    EXPECT_EQ(this->run(api::hmean, {T(1), T(0), T(4)}), std::vector<T>({T(0)}));
    // Reciprocals that cancel: the guard.
    EXPECT_EQ(this->run(api::hmean, {T(1), T(-1)}), std::vector<T>({this->G}));
}

// Complex samples: a zero sample has the guard as reciprocal factor, which
// times its zero parts adds nothing (so hmean(0, 2) is 2/(1/2) = 4), and a
// vanishing sum is multiplied by the guard, which leaves it (0, 0).
TYPED_TEST(StatsMeans, ComplexHarmonicMeanOfZeroSamplesAndCancellation) {
    using T = TypeParam;
    const double r = tol<T>();
    EXPECT_TRUE(near_all(this->run(api::hmean, {T(0), T(0), T(2), T(0)}, true), std::vector<double>{4, 0}, r));
    EXPECT_TRUE(near_all(this->run(api::hmean, {T(1), T(0), T(-1), T(0)}, true), std::vector<double>{0, 0}, 0));
}
