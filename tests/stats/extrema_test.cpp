// Extremes: the guard as starting value, the ranking of complex samples with
// its guard, the differing start results of complex min and max, and ties.
#include <limits>

#include "support/stats_fixture.hpp"

using namespace zt;

template <class T> class StatsExtrema : public StatsFixture<T> {};
TYPED_TEST_SUITE(StatsExtrema, Precisions);

TYPED_TEST(StatsExtrema, RealExtremaAreBoundedByTheGuard) {
    using T = TypeParam;
    const T G = this->G;
    EXPECT_EQ(this->run(api::min, {T(2) * G}), std::vector<T>({G}));
    EXPECT_EQ(this->run(api::max, {T(-2) * G}), std::vector<T>({-G}));
    // A sample that is not a number never replaces the running value.
    const T nan = std::numeric_limits<T>::quiet_NaN();
    EXPECT_EQ(this->run(api::min, {nan, T(2), T(1)}), std::vector<T>({T(1)}));
    EXPECT_EQ(this->run(api::max, {T(2), nan, T(1)}), std::vector<T>({T(2)}));
}

TYPED_TEST(StatsExtrema, ComplexStartValuesDiffer) {
    using T = TypeParam;
    const T G = this->G;
    // Nothing ranks above -G ... except a real rank; all-zero samples rank 0 > -G.
    EXPECT_EQ(this->run(api::max, {T(0), T(0), T(0), T(0)}, true), std::vector<T>({T(0), T(0)}));
    // Every sample ranks at least G (a part beyond the guard, or a magnitude
    // beyond it): no sample replaces the start value (G, G).
    EXPECT_EQ(this->run(api::min, {T(2) * G, T(0), G, G, T(0), -T(3) * G}, true), std::vector<T>({G, G}));
}

TYPED_TEST(StatsExtrema, ComplexRankingByMagnitudeKeepsTheFirstOfEqualRank) {
    using T = TypeParam;
    const T G = this->G;
    const std::vector<T> z{T(4), T(3), T(0), T(1), T(-3), T(-4), T(0), T(-5), T(1), T(0)};
    EXPECT_EQ(this->run(api::min, z, true), std::vector<T>({T(0), T(1)}));
    EXPECT_EQ(this->run(api::max, z, true), std::vector<T>({T(4), T(3)}));
    // A part beyond the guard ranks as the guard itself, above any ordinary sample.
    EXPECT_EQ(this->run(api::max, {T(1), T(1), T(2) * G, T(0), T(3), T(3)}, true), std::vector<T>({T(2) * G, T(0)}));
}
