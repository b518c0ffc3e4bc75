// Polynomials: evaluation against direct powers, roots <-> coefficients round
// trips, the degree-20 product and clustered and multiple roots, and the
// solutions of p(x) = y nearest a starting point.
#include <algorithm>

#include "support/api_poly.hpp"
#include "support/vectors.hpp"

using namespace zt;
using Cl = std::complex<long double>;

template <class T> class Poly : public ::testing::Test {
protected:
    // The record's samples as complex numbers.
    static std::vector<Cl> samples(const Owned<T>& v) {
        std::vector<Cl> z;
        for (int k = 0; k < v.v.points; ++k) z.push_back(v.v.complex ? Cl(v.v.data[2 * k], v.v.data[2 * k + 1]) : Cl(v.v.data[k]));
        return z;
    }
    // Coefficients of prod (x - r), lowest power first, in long double.
    static std::vector<Cl> product(const std::vector<Cl>& r) {
        std::vector<Cl> c{1};
        for (Cl z : r) {
            c.push_back(0);
            for (std::size_t k = c.size() - 1; k > 0; --k) c[k] = c[k - 1] - z * c[k];
            c[0] *= -z;
        }
        return c;
    }
    // Largest distance from each wanted root to the nearest found one.
    static double worst(const std::vector<Cl>& got, const std::vector<Cl>& want) {
        double w = got.size() == want.size() ? 0 : 1e300;
        for (Cl r : want) {
            double best = 1e300;
            for (Cl g : got) best = std::min(best, double(std::abs(g - r)));
            w = std::max(w, best);
        }
        return w;
    }
    static Owned<T>* real(const std::vector<Cl>& c) {
        std::vector<T> s;
        for (Cl z : c) s.push_back(static_cast<T>(z.real()));
        return new Owned<T>(s);
    }
};
TYPED_TEST_SUITE(Poly, Precisions);

TYPED_TEST(Poly, EvaluationMatchesDirectPowersForEveryForm) {
    using T = TypeParam;
    for (int form = 0; form < 4; ++form) {
        Owned<T> p(random_scalars<T>(form & 1 ? 12 : 6, 3), form & 1), x(random_scalars<T>(form & 2 ? 10 : 5, 4, -1.5, 1.5), form & 2), out;
        ASSERT_EQ(api::peval(p.get(), x.get(), out.get()), 0);
        std::vector<T> want;
        for (Cl t : this->samples(x)) {
            Cl s = 0;
            const auto c = this->samples(p);
            for (std::size_t k = 0; k < c.size(); ++k) s += c[k] * std::pow(t, static_cast<int>(k));
            want.push_back(static_cast<T>(s.real()));
            if (form) want.push_back(static_cast<T>(s.imag()));
        }
        EXPECT_TRUE(near_all(out.scalars(), want, tol<T>(40))) << "form " << form;
        ASSERT_EQ(api::peval(p.get(), x.get(), x.get()), 0);   // over its own abscissae
        EXPECT_EQ(x.scalars(), out.scalars());
    }
}

TYPED_TEST(Poly, RootsAndCoefficientsRoundTrip) {
    using T = TypeParam;
    const auto s = random_scalars<T>(14, 8);
    std::vector<Cl> r;
    for (int k = 0; k < 7; ++k) r.push_back(Cl(s[2 * k], s[2 * k + 1]));
    Owned<T> v(s, true);
    ASSERT_EQ(api::pztoc(v.get()), 0);
    EXPECT_TRUE(near_all(v.scalars(), [&] { std::vector<double> w; for (Cl c : this->product(r)) w.push_back(double(c.real())), w.push_back(double(c.imag())); return w; }(), tol<T>(40)));
    Owned<T> back;
    ASSERT_EQ(api::proots(v.get(), back.get()), 0);
    EXPECT_LT(this->worst(this->samples(back), r), 1e3 * tol<T>());
    ASSERT_EQ(api::proots(v.get()), 0);   // in place
    EXPECT_EQ(v.scalars(), back.scalars());
    // Zero roots exactly; a constant has none; the zero polynomial is refused.
    Owned<T> z({T(0), T(0), T(2), T(1), T(0)}), one({T(3)}), zero({T(0), T(0)}), out;
    ASSERT_EQ(api::proots(z.get(), out.get()), 0);
    EXPECT_EQ(out.scalars(), std::vector<T>({T(-2), T(0), T(0), T(0), T(0), T(0)}));
    ASSERT_EQ(api::proots(one.get(), out.get()), 0);
    EXPECT_EQ(out->points, 0);
    EXPECT_EQ(api::proots(zero.get(), out.get()), -1);
}

// Roots from rounded coefficients, to the accuracy the header promises.
TYPED_TEST(Poly, IllConditionedAndMultipleRoots) {
    using T = TypeParam;
    const bool dbl = sizeof(T) == 8;
    std::vector<Cl> wilk, cluster{1, 2.0L, -2, 3}, multiple{1, 1, 1, -2, 0.5};
    for (int k = 1; k <= (dbl ? 20 : 7); ++k) wilk.push_back(k);
    for (int k = 1; k < 5; ++k) cluster.push_back(1 + k * (dbl ? 1e-3L : 0.1L));
    const std::pair<std::vector<Cl>*, double> cases[] = {{&wilk, dbl ? 1e-3 : 1e-2}, {&cluster, dbl ? 1e-3 : 1e-2}, {&multiple, 1e-6}};
    for (auto [roots, limit] : cases) {
        std::unique_ptr<Owned<T>> p(this->real(this->product(*roots)));
        Owned<T> out;
        ASSERT_EQ(api::proots(p->get(), out.get()), 0);
        EXPECT_LT(this->worst(this->samples(out), *roots), limit) << roots->size() << " roots";
    }
}

TYPED_TEST(Poly, SolutionsNearestTheStartingPoint) {
    using T = TypeParam;
    // x^3 - 2x = 1 at -1 and (1 +- sqrt 5) / 2.
    Owned<T> p({T(0), T(-2), T(0), T(1)}), sq({T(1), T(0), T(1)}), out;
    const double phi = (1 + std::sqrt(5.0)) / 2;
    for (auto [x0, want] : {std::pair{1.0, phi}, {-0.9, -1.0}, {-0.7, 1 - phi}, {50.0, phi}}) {
        ASSERT_EQ(api::psolve(p.get(), T(1), T(x0), out.get()), 0);
        EXPECT_TRUE(near_all(out.scalars(), std::vector<double>{want}, tol<T>(8))) << x0;
    }
    EXPECT_EQ(api::psolve(sq.get(), T(0), T(0), out.get()), -1);   // x^2 + 1 has no real root
    for (double im : {0.9, -5.0}) {
        ASSERT_EQ(api::pcsolve(sq.get(), T(0), T(0), T(0), T(im), out.get()), 0);
        EXPECT_TRUE(near_all(out.scalars(), std::vector<double>{0, im > 0 ? 1.0 : -1.0}, tol<T>(8)));
    }
    Owned<T> c({T(3)});
    ASSERT_EQ(api::psolve(c.get(), T(3), T(7), out.get()), 0);   // every x solves 3 = 3
    EXPECT_EQ(out.scalars(), std::vector<T>({T(7)}));
    EXPECT_EQ(api::pcsolve(c.get(), T(2), T(0), T(0), T(0), out.get()), -1);
}
