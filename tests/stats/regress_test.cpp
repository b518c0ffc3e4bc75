// Histogram, peak search and regression: hand-counted bins, an exact
// parabola's vertex, and the least-squares line against the closed form.
#include <limits>

#include "support/api_poly.hpp"
#include "support/vectors.hpp"

using namespace zt;

template <class T> class Analysis : public ::testing::Test {};
TYPED_TEST_SUITE(Analysis, Precisions);

TYPED_TEST(Analysis, HistogramBinsAndLimits) {
    using T = TypeParam;
    const T nan = std::numeric_limits<T>::quiet_NaN();
    Owned<T> in({T(0), T(0.5), T(1), T(3.99), T(4), T(-0.1), T(4.1), nan, T(2)}), out({T(9)});
    ASSERT_EQ(api::hist(in.get(), T(0), T(4), 4, out.get()), 0);
    EXPECT_EQ(out.scalars(), std::vector<T>({T(2), T(1), T(1), T(2)}));
    EXPECT_EQ(out->delta, T(1));
    Owned<T> c({T(1), T(0)}, true), keep({T(9)});
    for (auto [lo, hi, bins] : {std::tuple{T(0), T(0), 2}, {T(1), T(0), 2}, {T(0), T(1), 0}, {T(0), std::numeric_limits<T>::infinity(), 2}})
        EXPECT_EQ(api::hist(in.get(), lo, hi, bins, keep.get()), -1);
    EXPECT_EQ(api::hist(c.get(), T(0), T(1), 1, keep.get()), -1);
    EXPECT_EQ(keep.scalars(), std::vector<T>({T(9)}));
}

TYPED_TEST(Analysis, PeakVertexPlateauAndEdges) {
    using T = TypeParam;
    std::vector<T> s;
    for (int k = 0; k < 8; ++k) s.push_back(static_cast<T>(2 - 0.5 * (k - 3.3) * (k - 3.3)));
    Owned<T> in(s), out;
    ASSERT_EQ(api::peak(in.get(), out.get()), 0);
    EXPECT_TRUE(near_all(out.scalars(), std::vector<double>{3.3, 2.0}, tol<T>(16)));
    const T nan = std::numeric_limits<T>::quiet_NaN();
    const std::pair<std::vector<T>, std::vector<T>> cases[] = {
        {{T(0), T(1), T(3), T(3), T(3), T(1)}, {T(3), T(3)}},   // plateau: its centre
        {{T(5), T(1), T(3)}, {T(0), T(5)}},                    // first sample
        {{T(1), nan, T(4), T(2)}, {T(2), T(4)}},               // beside a NaN
    };
    for (const auto& [x, want] : cases) {
        Owned<T> v(x);
        ASSERT_EQ(api::peak(v.get(), out.get()), 0);
        EXPECT_EQ(out.scalars(), want);
    }
    Owned<T> none({nan}), cx({T(1), T(2)}, true);
    EXPECT_EQ(api::peak(none.get(), out.get()), -1);
    EXPECT_EQ(api::peak(cx.get(), out.get()), -1);
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
    Owned<T> xs(x), ys(y, false, T(0.25)), out1, out2;
    ASSERT_EQ(api::lin_regres(ys.get(), out1.get()), 0);
    ASSERT_EQ(api::lin_regres2(xs.get(), ys.get(), out2.get()), 0);
    EXPECT_TRUE(near_all(out1.scalars(), want, tol<T>(64)));
    EXPECT_TRUE(near_all(out2.scalars(), want, tol<T>(64)));
    // No spread in y: r is 0. Refused: one sample, delta 0, equal abscissae, unequal lengths.
    Owned<T> flat({T(2), T(2), T(2)}), one({T(1)}), still({T(1), T(2)}, false, T(0)), same({T(3), T(3)}), keep({T(7)});
    ASSERT_EQ(api::lin_regres(flat.get(), out1.get()), 0);
    EXPECT_EQ(out1.scalars(), std::vector<T>({T(0), T(2), T(0)}));
    EXPECT_EQ(api::lin_regres(one.get(), keep.get()), -1);
    EXPECT_EQ(api::lin_regres(still.get(), keep.get()), -1);
    EXPECT_EQ(api::lin_regres2(same.get(), still.get(), keep.get()), -1);
    EXPECT_EQ(api::lin_regres2(xs.get(), flat.get(), keep.get()), -1);
    EXPECT_EQ(keep.scalars(), std::vector<T>({T(7)}));
}
