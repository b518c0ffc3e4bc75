// Polynomials: evaluation against direct powers, roots <-> coefficients round
// trips, the degree-20 product and clustered and multiple roots, and the
// solutions of p(x) = y nearest a starting point.
#include <algorithm>

#include "support/api_stats.hpp"
#include "support/vectors.hpp"

using namespace zt;

// A record's samples as complex numbers; coefficients of prod (x - r) lowest power first.
template <class T> std::vector<Cx> samples(const Owned<T>& v) { return samples(v.scalars(), v.v.complex); }
std::vector<Cx> product(const std::vector<Cx>& r) {
    std::vector<Cx> c{1};
    for (Cx z : r) {
        c.push_back(0);
        for (std::size_t k = c.size() - 1; k > 0; --k) c[k] = c[k - 1] - z * c[k];
        c[0] *= -z;
    }
    return c;
}
// Largest distance from a wanted root to the nearest found one.
double worst(const std::vector<Cx>& got, const std::vector<Cx>& want) {
    double w = got.size() == want.size() ? 0 : 1e300;
    for (Cx r : want)
        w = std::max(w, double(std::abs(*std::min_element(got.begin(), got.end(), [r](Cx a, Cx b) { return std::abs(a - r) < std::abs(b - r); }) - r)));
    return w;
}

template <class T> class Poly : public ::testing::Test {};
TYPED_TEST_SUITE(Poly, Precisions);

TYPED_TEST(Poly, EvaluationMatchesDirectPowersForEveryForm) {
    using T = TypeParam;
    for (int form = 0; form < 4; ++form) {   // bit 0: complex p, bit 1: complex x
        Owned<T> p(random_scalars<T>(form & 1 ? 12 : 6, 3), form & 1), x(random_scalars<T>(form & 2 ? 10 : 5, 4, -1.5, 1.5), form & 2), out;
        ASSERT_EQ(api::peval(p.get(), x.get(), out.get()), 0);
        std::vector<Cx> want;   // complex unless p and x are both real
        for (Cx t : samples(x)) {
            Cx s = 0, power = 1;
            for (Cx c : samples(p)) s += c * power, power *= t;
            want.push_back(s);
        }
        EXPECT_TRUE(near_samples(samples(out), want, tol<T>(40)) && out->complex == (form != 0)) << "form " << form;
        ASSERT_EQ(api::peval(p.get(), x.get(), x.get()), 0);   // over its own abscissae
        EXPECT_EQ(x.scalars(), out.scalars());
    }
}

TYPED_TEST(Poly, RootsAndCoefficientsRoundTrip) {
    using T = TypeParam;
    Owned<T> v(random_scalars<T>(14, 8), true), back;
    const std::vector<Cx> r = samples(v);
    std::vector<double> c;
    for (Cx z : product(r)) c.insert(c.end(), {double(z.real()), double(z.imag())});
    ASSERT_EQ(api::pztoc(v.get()), 0);
    EXPECT_TRUE(near_all(v.scalars(), c, tol<T>(40)));
    ASSERT_EQ(api::proots(v.get(), back.get()), 0);
    EXPECT_LT(worst(samples(back), r), 1e3 * tol<T>());
    ASSERT_EQ(api::proots_in_place(v.get()), 0);   // in place
    EXPECT_EQ(v.scalars(), back.scalars());
    // Zero roots exactly; the zero polynomial is refused.
    ASSERT_EQ(api::proots(Owned<T>({T(0), T(0), T(2), T(1), T(0)}).get(), back.get()), 0);
    EXPECT_EQ(back.scalars(), std::vector<T>({T(-2), T(0), T(0), T(0), T(0), T(0)}));
    EXPECT_EQ(api::proots(Owned<T>({T(0), T(0)}).get(), back.get()), -1);
}

// Roots from rounded coefficients, to the accuracy the header promises.
TYPED_TEST(Poly, IllConditionedAndMultipleRoots) {
    using T = TypeParam;
    const bool dbl = sizeof(T) == 8;
    std::vector<Cx> wilk, cluster{1, 2.0L, -2, 3}, multiple{1, 1, 1, -2, 0.5};
    for (int k = 1; k <= (dbl ? 20 : 7); ++k) wilk.push_back(k);
    for (int k = 1; k < 5; ++k) cluster.push_back(1 + k * (dbl ? 1e-3L : 0.1L));
    for (auto [roots, limit] : {std::pair{&wilk, dbl ? 1e-3 : 1e-2}, {&cluster, dbl ? 1e-3 : 1e-2}, {&multiple, 1e-6}}) {
        std::vector<T> c;
        for (Cx z : product(*roots)) c.push_back(static_cast<T>(z.real()));
        Owned<T> p(c), out;
        ASSERT_EQ(api::proots(p.get(), out.get()), 0);
        EXPECT_LT(worst(samples(out), *roots), limit) << roots->size() << " roots";
    }
}

TYPED_TEST(Poly, SolutionsNearestTheStartingPoint) {
    using T = TypeParam;
    // x^3 - 2x = 1 at -1 and (1 +- sqrt 5) / 2; x^2 + 1 = 0 at +-j only.
    Owned<T> p({T(0), T(-2), T(0), T(1)}), sq({T(1), T(0), T(1)}), c({T(3)}), out;
    const double phi = (1 + std::sqrt(5.0)) / 2;
    for (auto [x0, want] : {std::pair{1.0, phi}, {-0.9, -1.0}, {-0.7, 1 - phi}, {50.0, phi}}) {
        ASSERT_EQ(api::psolve(p.get(), T(1), T(x0), out.get()), 0);
        EXPECT_TRUE(near_all(out.scalars(), std::vector<double>{want}, tol<T>(8))) << x0;
    }
    EXPECT_EQ(api::psolve(sq.get(), T(0), T(0), out.get()), -1);
    ASSERT_EQ(api::psolve(Owned<T>({T(1), T(-2), T(1)}).get(), T(0), T(5), out.get()), 0);   // the double root of (x - 1)^2
    EXPECT_TRUE(near_all(out.scalars(), std::vector<double>{1}, std::sqrt(tol<T>())));
    for (double im : {0.9, -5.0}) {
        ASSERT_EQ(api::pcsolve(sq.get(), T(0), T(0), T(0), T(im), out.get()), 0);
        EXPECT_TRUE(near_all(out.scalars(), std::vector<double>{0, im > 0 ? 1.0 : -1.0}, tol<T>(8)));
    }
    // Every x solves 3 = 3, none 3 = 2.
    EXPECT_EQ(api::psolve(c.get(), T(3), T(7), out.get()) + api::pcsolve(c.get(), T(2), T(0), T(0), T(0), out.get()), -1);
    EXPECT_EQ(out.scalars(), std::vector<T>({T(7)}));
}
