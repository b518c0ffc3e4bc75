// Interpolation and splines against the dense references: every mode with and
// without clamping at unsorted abscissae, the four end conditions, a cubic
// reproduced by not-a-knot ends, the small knot counts and the refusals.
#include <algorithm>
#include <limits>

#include "support/api_interp.hpp"
#include "support/interp_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

template <class T> class Interp : public ::testing::Test {
protected:
    // Sorted random knots with gaps of 0.2 .. 1.2 and random values.
    void knots(int n, unsigned seed) {
        auto g = random_scalars<T>(2 * n, seed, 0.2, 1.2);
        T at = T(-2);
        kx.assign(n, T(0));
        ky.assign(g.begin() + n, g.end());
        for (int i = 0; i < n; ++i) kx[i] = at += g[i];
    }
    std::vector<double> d(const std::vector<T>& v) { return std::vector<double>(v.begin(), v.end()); }
    std::vector<T> kx, ky;
};
TYPED_TEST_SUITE(Interp, Precisions);

TYPED_TEST(Interp, EveryModeMatchesTheReferenceAtUnsortedAbscissae) {
    using T = TypeParam;
    this->knots(9, 5);
    Owned<T> x(this->kx), y(this->ky), s, out;
    const auto xi = random_scalars<T>(40, 6, -3.0, 9.0);   // beyond both ends, in no order
    ASSERT_EQ(api::cspline_2d(x.get(), y.get(), s.get(), T(0), T(0), 3, 3), 0);
    for (int mode : {0, 1, 3, 5})
        for (int clamp : {0, 16}) {
            Owned<T> at(xi);
            ASSERT_EQ(api::interp(x.get(), y.get(), s.get(), at.get(), out.get(), mode | clamp), 0);
            std::vector<double> want;
            for (T v : xi) want.push_back(ref::eval(this->d(this->kx), this->d(this->ky), this->d(s.scalars()), mode, clamp, v));
            EXPECT_TRUE(near_all(out.scalars(), want, tol<T>(400))) << "mode " << mode << " clamp " << clamp;
            // Written over its own abscissae, the same values.
            ASSERT_EQ(api::interp(x.get(), y.get(), s.get(), at.get(), at.get(), mode | clamp), 0);
            EXPECT_EQ(at.scalars(), out.scalars());
        }
}

TYPED_TEST(Interp, SecondDerivativesMatchTheDenseSolveForEveryPairOfEnds) {
    using T = TypeParam;
    for (int n : {4, 5, 8}) {
        this->knots(n, 10 + n);
        Owned<T> x(this->kx), y(this->ky), s;
        for (int c0 = 0; c0 < 4; ++c0)
            for (int cn = 0; cn < 4; ++cn) {
                ASSERT_EQ(api::cspline_2d(x.get(), y.get(), s.get(), T(0.5), T(-2), c0, cn), 0);
                const auto want = ref::spline_2d(this->d(this->kx), this->d(this->ky), 0.5, -2, c0, cn);
                EXPECT_TRUE(near_all(s.scalars(), want, tol<T>(2000))) << n << " knots, ends " << c0 << cn;
            }
    }
}

TYPED_TEST(Interp, NotAKnotReproducesACubic) {
    using T = TypeParam;
    auto p = [](double v) { return ((0.5 * v - 1) * v + 2) * v - 3; };
    for (int n : {4, 7}) {
        this->knots(n, 20 + n);
        for (int i = 0; i < n; ++i) this->ky[i] = static_cast<T>(p(this->kx[i]));
        Owned<T> x(this->kx), y(this->ky), out;
        const auto xi = random_scalars<T>(25, 7, -3.0, 8.0);
        Owned<T> at(xi);
        ASSERT_EQ(api::cspline(x.get(), y.get(), nullptr, at.get(), out.get()), 0);
        std::vector<double> want;
        for (T v : xi) want.push_back(p(v));
        EXPECT_TRUE(near_all(out.scalars(), want, tol<T>(3000))) << n << " knots";
    }
}

TYPED_TEST(Interp, FewKnotsAndReservedModes) {
    using T = TypeParam;
    Owned<T> x({T(1), T(3)}), y({T(2), T(6)}), at({T(0), T(2), T(4)}, false, T(0.25)), out;
    for (int f : {3, 7, 3 | 16}) {
        ASSERT_EQ(api::interp(x.get(), y.get(), nullptr, at.get(), out.get(), f), 0);
        EXPECT_EQ(out.scalars(), f & 16 ? std::vector<T>({T(2), T(4), T(6)}) : std::vector<T>({T(0), T(4), T(8)}));
        EXPECT_EQ(out->delta, T(0.25));
    }
    Owned<T> x1({T(1)}), y1({T(5)}), s1({T(4)}), none;
    ASSERT_EQ(api::interp(x1.get(), y1.get(), s1.get(), at.get(), out.get(), 5), 0);
    EXPECT_EQ(out.scalars(), std::vector<T>({T(7), T(7), T(23)}));
    ASSERT_EQ(api::interp(x1.get(), y1.get(), nullptr, at.get(), out.get(), 1), 0);
    EXPECT_EQ(out.scalars(), std::vector<T>(3, T(5)));
    ASSERT_EQ(api::interp(none.get(), none.get(), nullptr, at.get(), out.get(), 0), 0);
    EXPECT_EQ(out.scalars(), std::vector<T>(3, T(0)));
    // Mode 2 evaluates nothing: y[j] of the first knot right of the first abscissa.
    Owned<T> x3({T(1), T(3), T(5)}), y3({T(2), T(6), T(9)}), at3({T(4), T(0), T(9)});
    ASSERT_EQ(api::interp(x3.get(), y3.get(), nullptr, at3.get(), out.get(), 2), 0);
    EXPECT_EQ(out.scalars(), std::vector<T>(3, T(9)));
}

TYPED_TEST(Interp, BadKnotsAreRefusedWithTheOutputUntouched) {
    using T = TypeParam;
    const T nan = std::numeric_limits<T>::quiet_NaN();
    Owned<T> y({T(1), T(2), T(3), T(4)}), at({T(1)}), s3({T(0), T(0), T(0)}), out({T(42)});
    for (auto kx : {std::vector<T>{0, 1, 1, 2}, std::vector<T>{0, 2, 1, 3}, std::vector<T>{0, nan, 2, 3}, std::vector<T>{nan, 1, 2, 3}}) {
        Owned<T> x(kx);
        for (int f : {0, 1, 3, 5}) EXPECT_EQ(api::interp(x.get(), y.get(), nullptr, at.get(), out.get(), f), -1);
        EXPECT_EQ(api::cspline_2d(x.get(), y.get(), out.get(), T(0), T(0), 3, 3), -1);
    }
    Owned<T> x({T(0), T(1), T(2), T(3)}), x3({T(0), T(1), T(2)}), cx({T(0), T(0), T(1), T(0), T(2), T(0), T(3), T(0)}, true);
    EXPECT_EQ(api::interp(x3.get(), y.get(), nullptr, at.get(), out.get(), 1), -1);            // lengths differ
    EXPECT_EQ(api::interp(cx.get(), y.get(), nullptr, at.get(), out.get(), 1), -1);            // complex knots
    EXPECT_EQ(api::interp(x.get(), y.get(), s3.get(), at.get(), out.get(), 5), -1);            // y2 too short
    EXPECT_EQ(api::cspline(x3.get(), s3.get(), nullptr, at.get(), out.get()), -1);             // spline needs 4 knots
    EXPECT_EQ(api::cspline_2d(x.get(), y.get(), out.get(), T(0), T(0), 0, 4), -1);             // unknown end
    EXPECT_EQ(out.scalars(), std::vector<T>({T(42)}));
}

TYPED_TEST(Interp, ZeroInsertionDoublesTheRate) {
    using T = TypeParam;
    Owned<T> r({T(1), T(2), T(3)}, false, T(2)), c({T(1), T(-1), T(2), T(-2)}, true);
    ASSERT_EQ(api::zinter(r.get()), 0);
    ASSERT_EQ(api::zinter(c.get()), 0);
    EXPECT_EQ(r.scalars(), std::vector<T>({T(1), T(0), T(2), T(0), T(3), T(0)}));
    EXPECT_EQ(r->delta, T(1));
    EXPECT_EQ(c.scalars(), std::vector<T>({T(1), T(-1), T(0), T(0), T(2), T(-2), T(0), T(0)}));
}
