// Geometric and harmonic means: small cases by hand, the floor on the product,
// the zero sample and the cancelling reciprocals.
#include <cmath>

#include "support/stats_fixture.hpp"

using namespace zt;

template <class T> class StatsMeans : public StatsFixture<T> {};
TYPED_TEST_SUITE(StatsMeans, Precisions);

TYPED_TEST(StatsMeans, HandWorkedCases) {
    using T = TypeParam;
    // Each sample tiny^0.75: the product tiny^1.5 lies below the smallest
    // normal number, which gives 0 though every sample is positive.
    const T x = static_cast<T>(std::pow(static_cast<double>(Traits<T>::tiny), 0.75));
    this->check({
        {api::gmean, {-2, 8}, false, {0}},
        {api::gmean, {3, 0, 3}, false, {0}},
        {api::gmean, {0, 1, 0, 1}, true, {0, 1}, 4},  // (j)(j) = -1, angle π, halved: j
        // (1+j)(2+2j)(4+4j) = -16+16j, magnitude 16√2, angle 3π/4: the cube
        // root is 2^(3/2)·e^(jπ/4) = (2, 2).
        {api::gmean, {1, 1, 2, 2, 4, 4}, true, {2, 2}, 4},
        {api::gmean, {x, x}, false, {0}},
        {api::gmean, {x, 0, x, 0}, true, {0, 0}},
        {api::hmean, {1, 0, 4}, false, {0}},
        {api::hmean, {1, -1}, false, {this->G}},  // reciprocals that cancel: the guard
        // A zero complex sample has the guard as reciprocal factor, which times
        // its zero parts adds nothing (hmean(0, 2) = 2/(1/2)); a vanishing sum
        // times the guard stays (0, 0).
        {api::hmean, {0, 0, 2, 0}, true, {4, 0}, 4},
        {api::hmean, {1, 0, -1, 0}, true, {0, 0}},
    });
}
