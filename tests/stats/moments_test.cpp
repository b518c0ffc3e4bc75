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
    real[0] = static_cast<T>(base);
    pairs[0] = pairs[1] = static_cast<T>(base);
    const A total = static_cast<A>(base + 5 * 2048 + 4);
    const T want = static_cast<T>(total);
    EXPECT_EQ(this->run(api::sum, real), std::vector<T>({want}));
    EXPECT_EQ(this->run(api::sum, pairs, true), std::vector<T>({want, want}));
    EXPECT_EQ(this->run(api::mean, real), std::vector<T>({static_cast<T>(total / n)}));
}

TYPED_TEST(StatsMoments, SumIsNotClampedButPowerTermsAre) {
    using T = TypeParam;
    const T G = this->G;
    EXPECT_TRUE(near_all(this->run(api::sum, {T(2) * G, T(3)}), std::vector<double>{2.0 * G + 3}, tol<T>()));
    // Parts beyond the guard, or not a number, add the guard instead of their square.
    const T nan = std::numeric_limits<T>::quiet_NaN();
    EXPECT_TRUE(near_all(this->run(api::magsq_sum, {T(2) * G, -T(3) * G, nan}), std::vector<double>{3.0 * G}, tol<T>()));
    EXPECT_TRUE(near_all(this->run(api::magsq_sum, {T(3), T(2) * G, T(1), T(2)}, true), std::vector<double>{G + 5.0}, tol<T>()));
    EXPECT_TRUE(near_all(this->run(api::rms, {T(3), T(4), T(0), T(0)}, true), std::vector<double>{std::sqrt(12.5)}, tol<T>()));
}

// The deviations from the three-sample shift are clamped to the guard: for
// (0, 3G) the shift is 2G, the deviations (-2G, G) become (-G, G), and the
// variance is G², not the true 2.25 G².
TYPED_TEST(StatsMoments, VarianceDeviationsAreClampedAroundTheShift) {
    using T = TypeParam;
    const double G = this->G;
    EXPECT_TRUE(near_all(this->run(api::pop_var, {T(0), T(3) * this->G}), std::vector<double>{G * G}, tol<T>()));
}

// A single sample has no spread, and the sample forms fall back to the
// population ones instead of dividing by n - 1 = 0. Without spread the
// skewness is 0 but the excess kurtosis -3.
TYPED_TEST(StatsMoments, VectorsWithoutSpread) {
    using T = TypeParam;
    for (auto fn : std::initializer_list<typename TestFixture::Fn>{api::pop_var, api::samp_var, api::pop_stddev, api::samp_stddev})
        EXPECT_EQ(this->run(fn, {T(5)}), std::vector<T>({T(0)}));
    EXPECT_EQ(this->run(api::skew, {T(1), T(1), T(1)}), std::vector<T>({T(0)}));
    EXPECT_EQ(this->run(api::excess, {T(1), T(1), T(1)}), std::vector<T>({T(-3)}));
}
