// Extremes: the guard as starting value, the ranking of complex samples with
// its guard, the differing start results of complex min and max, and ties.
#include <limits>

#include "support/stats_fixture.hpp"

using namespace zt;

template <class T> class StatsExtrema : public StatsFixture<T> {};
TYPED_TEST_SUITE(StatsExtrema, Precisions);

TYPED_TEST(StatsExtrema, HandWorkedCases) {
    using T = TypeParam;
    const T G = this->G, nan = std::numeric_limits<T>::quiet_NaN();
    const std::vector<T> z{4, 3, 0, 1, -3, -4, 0, -5, 1, 0};
    this->check({
        {api::min, {2 * G}, false, {G}},  // real extremes are bounded by the guard
        {api::max, {-2 * G}, false, {-G}},
        {api::min, {nan, 2, 1}, false, {1}},  // a non-number never replaces the running value
        {api::max, {2, nan, 1}, false, {2}},
        {api::max, {0, 0, 0, 0}, true, {0, 0}},  // complex max starts below every rank (0 > -G)
        // Every sample ranks at least G (a part or a magnitude beyond it):
        // none replaces complex min's start value (G, G).
        {api::min, {2 * G, 0, G, G, 0, -3 * G}, true, {G, G}},
        {api::min, z, true, {0, 1}},  // by magnitude, the first of equal rank
        {api::max, z, true, {4, 3}},
        {api::max, {1, 1, 2 * G, 0, 3, 3}, true, {2 * G, 0}},  // a part beyond the guard ranks as the guard
    });
}
