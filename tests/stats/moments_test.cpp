// Sums, power, variance and shape: the block rule, the guard clamps and the
// small cases worked out by hand.
#include <cmath>
#include <limits>

#include "support/api_stats.hpp"
#include "support/vectors.hpp"

using namespace zt;

template <class T> class StatsMoments : public ::testing::Test {
protected:
    // The one value (or pair) of a statistic of these scalars.
    using Fn = int (*)(const Vec<T>*, Vec<T>*);
    std::vector<T> run(Fn fn, const std::vector<T>& s, bool complex = false) {
        Owned<T> in(s, complex), out;
        EXPECT_EQ(fn(in.get(), out.get()), 0);
        return out.scalars();
    }
    static constexpr T G = Traits<T>::huge;
};
TYPED_TEST_SUITE(StatsMoments, Precisions);

// Each block of 2048 samples is summed on its own before it joins the total:
// a first sample of 2/eps of the accumulation swallows every 1 added to it
// (ties round to even), so 2047 ones vanish in the first block while the
// second block's 2048 ones arrive as one exact partial sum of 2048.
TYPED_TEST(StatsMoments, SumsRunInBlocksOf2048Samples) {
    using T = TypeParam;
    using A = typename Traits<T>::Acc;
    const long double base = 2 / static_cast<long double>(std::numeric_limits<A>::epsilon());
    std::vector<T> real(4096, T(1)), pairs(2 * 4096, T(1));
    real[0] = static_cast<T>(base);
    pairs[0] = pairs[1] = static_cast<T>(base);
    const T want = static_cast<T>(static_cast<A>(base + 2048));
    EXPECT_EQ(this->run(api::sum, real), std::vector<T>({want}));
    EXPECT_EQ(this->run(api::sum, pairs, true), std::vector<T>({want, want}));
    EXPECT_EQ(this->run(api::mean, real), std::vector<T>({static_cast<T>(static_cast<A>(base + 2048) / 4096)}));
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

TYPED_TEST(StatsMoments, SampleFormsAndSmallCases) {
    using T = TypeParam;
    const double r = tol<T>();
    EXPECT_TRUE(near_all(this->run(api::pop_var, {T(1), T(3)}), std::vector<double>{1}, r));
    EXPECT_TRUE(near_all(this->run(api::samp_var, {T(1), T(3)}), std::vector<double>{2}, r));
    EXPECT_TRUE(near_all(this->run(api::samp_stddev, {T(1), T(3)}), std::vector<double>{std::sqrt(2.0)}, r));
    EXPECT_TRUE(near_all(this->run(api::pop_stddev, {T(1), T(3)}), std::vector<double>{1}, r));
    // A single sample has no spread; the sample forms fall back to the population ones.
    for (auto fn : std::initializer_list<typename TestFixture::Fn>{api::pop_var, api::samp_var, api::pop_stddev, api::samp_stddev})
        EXPECT_EQ(this->run(fn, {T(5)}), std::vector<T>({T(0)}));
    // Complex parts pool: (1+1j, -1-1j) has mean 0 and |z|² = 2.
    EXPECT_TRUE(near_all(this->run(api::pop_var, {T(1), T(1), T(-1), T(-1)}, true), std::vector<double>{2}, r));
}

TYPED_TEST(StatsMoments, ShapeOfConstantAndTinyVectors) {
    using T = TypeParam;
    const double r = tol<T>();
    // No spread: skewness 0 but excess kurtosis -3.
    EXPECT_EQ(this->run(api::skew, {T(1), T(1), T(1)}), std::vector<T>({T(0)}));
    EXPECT_EQ(this->run(api::excess, {T(1), T(1), T(1)}), std::vector<T>({T(-3)}));
    // (0, 0, 1): deviations (-1/3, -1/3, 2/3), m2 = 2/9, m3 = 2/27, skewness 1/√2.
    EXPECT_TRUE(near_all(this->run(api::skew, {T(0), T(0), T(1)}), std::vector<double>{std::sqrt(0.5)}, r));
    EXPECT_TRUE(near_all(this->run(api::skew, {T(1), T(0), T(0)}), std::vector<double>{std::sqrt(0.5)}, r));
    // Two values: m2 = 1/4, m4 = 1/16, excess 1 - 3.
    EXPECT_TRUE(near_all(this->run(api::excess, {T(0), T(1)}), std::vector<double>{-2}, r));
}
