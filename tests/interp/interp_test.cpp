// Interpolation and splines against plain references: every mode with and
// without clamping, the spline equations under the four end conditions, a
// cubic reproduced by not-a-knot ends, small knot counts, descending
// abscissae and the refusals.
#include <limits>

#include "support/api_interp.hpp"
#include "support/interp_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

// n sorted random knots with gaps of 0.2 .. 1.2 from -2, and random values.
template <class T> std::pair<std::vector<T>, std::vector<T>> knots(int n, unsigned seed) {
    auto g = random_scalars<T>(2 * n, seed, 0.2, 1.2);
    std::vector<T> x(n), y(g.begin() + n, g.end());
    for (int i = 0; i < n; ++i) x[i] = (i ? x[i - 1] : T(-2)) + g[i];
    return {x, y};
}
template <class T> std::vector<double> d(const std::vector<T>& v) { return std::vector<double>(v.begin(), v.end()); }
template <class T> using V = std::vector<T>;

template <class T> class Interp : public ::testing::Test {};
TYPED_TEST_SUITE(Interp, Precisions);

TYPED_TEST(Interp, EveryModeMatchesTheReferenceAtAscendingAbscissae) {
    using T = TypeParam;
    const auto [kx, ky] = knots<T>(9, 5);
    auto xi = random_scalars<T>(40, 6, -3.0, 9.0);   // beyond both ends
    std::sort(xi.begin(), xi.end());
    Owned<T> x(kx), y(ky), s, out;
    ASSERT_EQ(api::cspline_2d(x.get(), y.get(), s.get(), T(0), T(0), 3, 3), 0);
    for (int flags : {0, 1, 3, 5, 16, 17, 19, 21}) {
        Owned<T> at(xi);
        ASSERT_EQ(api::interp(x.get(), y.get(), s.get(), at.get(), out.get(), flags), 0);
        std::vector<double> want;
        for (T v : xi) want.push_back(ref::eval(d(kx), d(ky), d(s.scalars()), flags & 7, flags & 16, v));
        EXPECT_TRUE(near_all(out.scalars(), want, tol<T>(400))) << "flags " << flags;
        ASSERT_EQ(api::interp(x.get(), y.get(), s.get(), at.get(), at.get(), flags), 0);   // over its own abscissae
        EXPECT_EQ(at.scalars(), out.scalars());
    }
}

// The spline equations hold under every pair of ends; not-a-knot ends reproduce a cubic.
TYPED_TEST(Interp, SplineEndConditions) {
    using T = TypeParam;
    auto p = [](double v) { return ((0.5 * v - 1) * v + 2) * v - 3; };
    const auto xi = random_scalars<T>(25, 7, -3.0, 8.0);
    std::vector<double> want;
    for (T v : xi) want.push_back(p(v));
    for (int n : {4, 5, 8}) {
        auto [kx, ky] = knots<T>(n, 10 + n);
        Owned<T> x(kx), y(ky), s, at(xi), out;
        for (int ends = 0; ends < 16; ++ends) {
            ASSERT_EQ(api::cspline_2d(x.get(), y.get(), s.get(), T(0.5), T(-2), ends / 4, ends % 4), 0);
            EXPECT_LT(ref::spline_residual(d(kx), d(ky), d(s.scalars()), 0.5, -2, ends / 4, ends % 4), tol<T>(2000)) << n << " knots, ends " << ends;
        }
        for (int i = 0; i < n; ++i) ky[i] = static_cast<T>(p(kx[i]));
        Owned<T> cubic(ky);
        ASSERT_EQ(api::cspline(x.get(), cubic.get(), nullptr, at.get(), out.get()), 0);
        EXPECT_TRUE(near_all(out.scalars(), want, tol<T>(3000))) << n << " knots";
    }
}

// Hand cases: the walk only moves forward (a smaller abscissa keeps the
// interval reached, a stop at the clamped end fills the rest; knots y = x^2),
// the parabola on two knots is linear, one knot, mode 2 and zero insertion.
TYPED_TEST(Interp, FewKnotsDescendingAbscissaeAndZeroInsertion) {
    using T = TypeParam;
    Owned<T> sq_x(V<T>{0, 1, 2, 3}), sq_y(V<T>{0, 1, 4, 9}), x({T(1), T(3)}), y({T(2), T(6)}), at({T(0), T(2), T(4)}, false, T(0.25)), out;
    for (auto [flags, xs, want] : {std::tuple{1, V<T>{2.5, 0.5}, V<T>{6.5, -3.5}}, {17, V<T>{3.5, 0.5}, V<T>{9, 9}}, {0, V<T>{2.5, 0.5}, V<T>{4, 4}}}) {
        ASSERT_EQ(api::interp(sq_x.get(), sq_y.get(), nullptr, Owned<T>(xs).get(), out.get(), flags), 0);
        EXPECT_EQ(out.scalars(), want) << "flags " << flags;
    }
    for (int f : {3, 7, 3 | 16}) {   // the parabola needs three knots: linear instead
        ASSERT_EQ(api::interp(x.get(), y.get(), nullptr, at.get(), out.get(), f), 0);
        EXPECT_EQ(std::tuple(out.scalars(), out->delta), std::tuple(f & 16 ? V<T>{2, 4, 6} : V<T>{0, 4, 8}, T(0.25)));
    }
    ASSERT_EQ(api::interp(Owned<T>({T(1)}).get(), Owned<T>({T(5)}).get(), Owned<T>({T(4)}).get(), at.get(), out.get(), 5), 0);
    EXPECT_EQ(out.scalars(), V<T>({7, 7, 23}));
    // Mode 2 evaluates nothing: y[j] of the first knot right of the first abscissa.
    ASSERT_EQ(api::interp(Owned<T>({T(1), T(3), T(5)}).get(), Owned<T>({T(2), T(6), T(9)}).get(), nullptr, Owned<T>({T(4), T(0), T(9)}).get(), out.get(), 2), 0);
    EXPECT_EQ(out.scalars(), V<T>(3, T(9)));
    Owned<T> c({T(1), T(-1), T(2), T(-2)}, true, T(2));
    ASSERT_EQ(api::zinter(c.get()), 0);
    EXPECT_EQ(std::tuple(c.scalars(), c->delta), std::tuple(V<T>{1, -1, 0, 0, 2, -2, 0, 0}, T(1)));
}

TYPED_TEST(Interp, BadKnotsAreRefusedWithTheOutputUntouched) {
    using T = TypeParam;
    const T nan = std::numeric_limits<T>::quiet_NaN();
    Owned<T> y({T(1), T(2), T(3), T(4)}), at({T(1)}), s3({T(0), T(0), T(0)}), out({T(42)});
    for (auto kx : {V<T>{0, 1, 1, 2}, V<T>{0, 2, 1, 3}, V<T>{0, nan, 2, 3}, V<T>{nan, 1, 2, 3}}) {
        Owned<T> x(kx);
        for (int f : {0, 1, 3, 5}) EXPECT_EQ(api::interp(x.get(), y.get(), nullptr, at.get(), out.get(), f), -1);
        EXPECT_EQ(api::cspline_2d(x.get(), y.get(), out.get(), T(0), T(0), 3, 3), -1);
    }
    Owned<T> x({T(0), T(1), T(2), T(3)}), x3({T(0), T(1), T(2)}), cx({T(0), T(0), T(1), T(0), T(2), T(0), T(3), T(0)}, true);
    // Lengths that differ, complex knots, y2 too short, a spline on 3 knots, an unknown end.
    EXPECT_EQ(api::interp(x3.get(), y.get(), nullptr, at.get(), out.get(), 1) + api::interp(cx.get(), y.get(), nullptr, at.get(), out.get(), 1) +
              api::interp(x.get(), y.get(), s3.get(), at.get(), out.get(), 5) + api::cspline(x3.get(), s3.get(), nullptr, at.get(), out.get()) +
              api::cspline_2d(x.get(), y.get(), out.get(), T(0), T(0), 0, 4), -5);
    EXPECT_EQ(out.scalars(), V<T>{42});
}
