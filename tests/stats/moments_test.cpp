// Sums, power, variance and shape: the block rule, the guard clamps and the
// small cases worked out by hand.
#include <cmath>
#include <limits>

#include "support/stats_fixture.hpp"

using namespace zt;

template <class T> class StatsMoments : public StatsFixture<T> {};
TYPED_TEST_SUITE(StatsMoments, Precisions);

// Each block of 2048 samples is summed on its own before it joins the total:
// a first sample of 2/eps of the accumulation swallows every 1 added to it
// (ties round to even), so the 2047 ones after it vanish in the first block,
// while each later block of ones arrives as one exact partial sum. Six blocks
// and a tail of four: 2/eps + 5 * 2048 + 4 (one running sum would stay at 2/eps).
TYPED_TEST(StatsMoments, SumsRunInBlocksOf2048Samples) {
    using T = TypeParam;
    using A = typename Traits<T>::Acc;
    const long double base = 2 / static_cast<long double>(std::numeric_limits<A>::epsilon());
    const int n = 6 * 2048 + 4;
    std::vector<T> real(n, T(1)), pairs(2 * n, T(1));
    real[0] = pairs[0] = pairs[1] = static_cast<T>(base);
    const A total = static_cast<A>(base + 5 * 2048 + 4);
    const double want = static_cast<T>(total);
    this->check({{api::sum, real, false, {want}},
                 {api::sum, pairs, true, {want, want}},
                 {api::mean, real, false, {static_cast<T>(total / n)}}});
}

TYPED_TEST(StatsMoments, HandWorkedCases) {
    using T = TypeParam;
    const T G = this->G, nan = std::numeric_limits<T>::quiet_NaN();
    const double g = G;
    this->check({
        {api::sum, {2 * G, 3}, false, {2 * g + 3}, 4},  // the sum is not clamped
        // Parts beyond the guard, or not a number, add the guard instead of their square.
        {api::magsq_sum, {2 * G, -3 * G, nan}, false, {3 * g}, 4},
        {api::magsq_sum, {3, 2 * G, 1, 2}, true, {g + 5}, 4},
        {api::rms, {3, 4, 0, 0}, true, {std::sqrt(12.5)}, 4},
        // Deviations from the three-sample shift are clamped to the guard: for
        // (0, 3G) the shift is 2G, (-2G, G) becomes (-G, G), the variance G²
        // instead of the true 2.25 G².
        {api::pop_var, {0, 3 * G}, false, {g * g}, 4},
        // One sample has no spread; the sample forms fall back to the
        // population ones instead of dividing by n - 1 = 0. Without spread the
        // skewness is 0 but the excess kurtosis -3.
        {api::pop_var, {5}, false, {0}},
        {api::samp_var, {5}, false, {0}},
        {api::pop_stddev, {5}, false, {0}},
        {api::samp_stddev, {5}, false, {0}},
        {api::skew, {1, 1, 1}, false, {0}},
        {api::excess, {1, 1, 1}, false, {-3}},
    });
}
