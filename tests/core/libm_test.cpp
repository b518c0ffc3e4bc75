#include <algorithm>

#include "core/libm.hpp"
#include "support/api_arith.hpp"
#include "support/libm_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

// Huge arguments and the nearest values to multiples of π/2, where the
// reduction decides everything; sine and cosine to 21 digits from 3000-bit
// arithmetic.
struct Point { double x; long double s, c; };
const std::vector<Point> double_points = {
    {1.5707963267948966, 1.0L, 6.12323399573676588613e-17L}, {3.141592653589793, 1.22464679914735317723e-16L, -1.0L},
    {4.71238898038469, -1.0L, -1.83697019872102976584e-16L}, {6.283185307179586, -2.44929359829470635445e-16L, 1.0L},
    {314.1592653589793, 1.96438672372847194516e-15L, 1.0L}, {3141592.653589793, -2.2319121813608712007e-10L, 9.99999999999999999975e-1L},
    {3294198.658330571, -1.28413524206273500516e-10L, 9.99999999999999999992e-1L}, {1727108826178.8184, -6.73256697281970297707e-5L, 9.99999997733627095257e-1L},
    {1e+22, -8.52200849767188801773e-1L, 5.23214785395138945498e-1L}, {5.319372648326541e+255, 1.0L, -4.68716592425462761112e-19L},
    {1.7976931348623157e+308, 4.9619547891840617905e-3L, -9.99987689426559937465e-1L}, {-1e+300, 8.17881912115908597046e-1L, -5.75386111957549046688e-1L},
};
const std::vector<Point> float_points = {
    {0x1.921fb6p+0, 9.99999999999999044657e-1L, -4.37113900018624143886e-8L}, {0x1.921fb6p+1, -8.74227800037247452584e-8L, -9.99999999999996178629e-1L},
    {0x1.2d97c8p+2, -9.99999999999999928899e-1L, 1.19248804548060346425e-8L}, {0x1.921fb6p+2, 1.74845560007448822367e-7L, 9.99999999999984714515e-1L},
    {0x1.3a28c6p+8, 5.88125505111983104872e-6L, 9.99999999982705419512e-1L}, {0x1.921fb6p+16, 2.86466573709184231053e-3L, 9.99995896836689391449e-1L},
    {0x1.0f0cf0p+73, -7.34081535296101525956e-1L, 6.79061337095050972195e-1L}, {0x1.c363ccp+127, 8.74904887764434384156e-1L, -4.84294783541906915549e-1L},
    {-0x1.d42240p+34, -8.36541408534321614867e-2L, -9.96494849318386658883e-1L},
};

template <class T> class LibmTest : public ::testing::Test {};
TYPED_TEST_SUITE(LibmTest, Precisions);

// Random arguments over bands of magnitude, and the hard points through the
// element-wise entry points (sincos agreeing with sin and cos), within 1 ulp;
// ±0, subnormals and non-finite values.
TYPED_TEST(LibmTest, WithinOneUlp) {
    using T = TypeParam;
    std::mt19937_64 gen(11);
    double worst = 0;
    for (T band : {T(1e-30), T(1), T(2), T(100), T(1e5), T(1e9)}) {
        std::uniform_real_distribution<T> u(-band, band);
        for (int i = 0; i < 20000; ++i) {
            const T x = u(gen);
            long double s, c;
            ref::sincos(x, s, c);
            worst = std::max({worst, ref::ulps(zf::libm::sin(x), s), ref::ulps(zf::libm::cos(x), c), ref::ulps(zf::libm::tan(x), s / c)});
        }
    }
    const std::vector<Point>& points = sizeof(T) == 8 ? double_points : float_points;
    std::vector<T> xs;
    for (const Point& p : points) xs.push_back(static_cast<T>(p.x));
    Owned<T> s(xs), c(xs), t(xs);
    ASSERT_EQ(api::sin(s.get()) + api::cos(c.get()) + api::tan(t.get()), 0);
    for (std::size_t i = 0; i < xs.size(); ++i) {
        const Point p = points[i];
        T ss, cc;
        zf::libm::sincos(xs[i], &ss, &cc);
        worst = std::max({worst, ref::ulps(s.v.data[i], p.s), ref::ulps(c.v.data[i], p.c), ref::ulps(t.v.data[i], p.s / p.c)});
        EXPECT_EQ(std::tuple(ss, cc), std::tuple(s.v.data[i], c.v.data[i])) << p.x;
    }
    EXPECT_LE(worst, 1.0);
    const T sub = std::numeric_limits<T>::denorm_min() * 3, inf = std::numeric_limits<T>::infinity();
    EXPECT_EQ(std::tuple(zf::libm::sin(sub), zf::libm::cos(-sub)), std::tuple(sub, T(1)));
    EXPECT_TRUE(std::signbit(zf::libm::sin(T(-0.0))) && std::signbit(zf::libm::tan(T(-0.0))));
    for (T bad : {inf, -inf, std::numeric_limits<T>::quiet_NaN()})
        EXPECT_TRUE(std::isnan(zf::libm::sin(bad)) && std::isnan(zf::libm::cos(bad)) && std::isnan(zf::libm::tan(bad)));
}

// Fractions of a turn: within 0.6 ulp, exact zeros and ones on the axes.
TEST(LibmTurn, FractionsOfATurn) {
    std::mt19937_64 gen(3);
    double worst = 0;
    for (int i = 0; i < 20000; ++i) {
        const std::int64_t q = 1 + static_cast<std::int64_t>(gen() % (i % 2 ? 100000000 : 5000));
        const std::int64_t p = static_cast<std::int64_t>(gen() % static_cast<std::uint64_t>(q));
        // 2πp/q = (π/2)(k + d/q) with the integer k nearest 4p/q, so the reference reduces exactly.
        const std::int64_t k = (8 * p + q) / (2 * q), d = 4 * p - k * q;
        long double rs, rc;
        ref::sincos(1.5707963267948966192313216916397514L * d / q, rs, rc);
        const long double s[4] = {rs, rc, -rs, -rc}, c[4] = {rc, -rs, -rc, rs};
        double gs, gc;
        zf::libm::sincos_turn(p, q, &gs, &gc);
        if (d == 0) EXPECT_EQ(std::tuple(gs, gc), std::tuple(double(s[k & 3]), double(c[k & 3])));   // exact on the axes
        worst = std::fmax(worst, std::fmax(ref::ulps(gs, s[k & 3]), ref::ulps(gc, c[k & 3])));
    }
    EXPECT_LE(worst, 0.6);
}
