// Histogram, peak search and regression: hand-counted bins, an exact
// parabola's vertex and a plateau, and the least-squares line against the
// closed form.
#include <limits>

#include "support/api_stats.hpp"
#include "support/vectors.hpp"

using namespace zt;

template <class T> class Analysis : public ::testing::Test {};
TYPED_TEST_SUITE(Analysis, Precisions);

// Bins [0, 1) .. [3, 4]: the top edge counts in the last bin, values outside
// and non-numbers in none. Refused: an empty range, no bins, a non-number peak.
TYPED_TEST(Analysis, HistogramAndPeak) {
    using T = TypeParam;
    const T nan = std::numeric_limits<T>::quiet_NaN();
    Owned<T> in({T(0), T(0.5), T(1), T(3.99), T(4), T(-0.1), T(4.1), nan, T(2)}), out, keep({T(9)});
    ASSERT_EQ(api::hist(in.get(), T(0), T(4), 4, out.get()), 0);
    EXPECT_EQ(std::tuple(out.scalars(), out->delta), std::tuple(std::vector<T>{2, 1, 1, 2}, T(1)));
    EXPECT_EQ(api::hist(in.get(), T(1), T(1), 2, keep.get()) + api::hist(in.get(), T(0), T(1), 0, keep.get()) + api::peak(Owned<T>({nan}).get(), keep.get()), -3);
    EXPECT_EQ(keep.scalars(), std::vector<T>({T(9)}));
    std::vector<T> s;
    for (int k = 0; k < 8; ++k) s.push_back(static_cast<T>(2 - 0.5 * (k - 3.3) * (k - 3.3)));
    ASSERT_EQ(api::peak(Owned<T>(s).get(), out.get()), 0);
    EXPECT_TRUE(near_all(out.scalars(), std::vector<double>{3.3, 2.0}, tol<T>(16)));
    ASSERT_EQ(api::peak(Owned<T>({T(0), T(1), T(3), T(3), T(3), T(1)}).get(), out.get()), 0);
    EXPECT_EQ(out.scalars(), std::vector<T>({T(3), T(3)}));
}

// Noisy samples of a line far from the origin, against the closed form in
// long double; the abscissae from delta and explicit ones give one line.
TYPED_TEST(Analysis, RegressionMatchesTheClosedForm) {
    using T = TypeParam;
    const int n = 500;
    const auto noise = random_scalars<T>(n, 11, -0.5, 0.5);
    std::vector<T> x(n), y(n);
    long double sx = 0, sy = 0, sxx = 0, sxy = 0, syy = 0;
    for (int k = 0; k < n; ++k) {
        x[k] = static_cast<T>(0.25 * k);
        y[k] = static_cast<T>(1000 - 0.3 * x[k] + noise[k]);
        sx += x[k], sy += y[k], sxx += (long double)x[k] * x[k], sxy += (long double)x[k] * y[k], syy += (long double)y[k] * y[k];
    }
    const long double dxx = sxx - sx * sx / n, dxy = sxy - sx * sy / n, dyy = syy - sy * sy / n, b = dxy / dxx;
    const std::vector<double> want{double(b), double((sy - b * sx) / n), double(dxy / std::sqrt(dxx * dyy))};
    Owned<T> xs(x), ys(y, false, T(0.25)), out, flat({T(2), T(2), T(2)}), still({T(1), T(2)}, false, T(0)), keep({T(7)});
    ASSERT_EQ(api::lin_regres(ys.get(), out.get()), 0);
    EXPECT_TRUE(near_all(out.scalars(), want, tol<T>(64)));
    ASSERT_EQ(api::lin_regres2(xs.get(), ys.get(), ys.get()), 0);   // into its own values
    EXPECT_TRUE(near_all(ys.scalars(), want, tol<T>(64)));
    ASSERT_EQ(api::lin_regres(flat.get(), out.get()), 0);   // no spread in y: r = 0
    EXPECT_EQ(out.scalars(), std::vector<T>({T(0), T(2), T(0)}));
    // Refused: delta 0, equal abscissae, unequal lengths, complex samples.
    Owned<T> cx({T(1), T(2), T(3), T(4)}, true), two({T(1), T(3)});
    EXPECT_EQ(api::lin_regres(still.get(), keep.get()) + api::lin_regres2(flat.get(), flat.get(), keep.get()) +
              api::lin_regres2(xs.get(), flat.get(), keep.get()) + api::lin_regres2(cx.get(), two.get(), keep.get()) + api::lin_regres(cx.get(), keep.get()), -5);
    EXPECT_EQ(keep.scalars(), std::vector<T>({T(7)}));
}
