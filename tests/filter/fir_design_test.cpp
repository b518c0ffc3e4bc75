#include "support/api_fir.hpp"
#include "support/fir_ref.hpp"
#include "support/records.hpp"

using namespace zt;

template <class T> class FirDesignTest : public ::testing::Test {};
TYPED_TEST_SUITE(FirDesignTest, Precisions);

// Each kind's frequency response at a pass and a stop frequency against the
// ideal filter it approximates: gain, or gain 2 pi f (derivative), 2|f|
// (ramp), 1/sqrt 2 at the Gaussian's half-power frequency, the delay's
// linear phase; lowpass taps against the textbook sinc 2 f1 sinc(2 f1 (k-c)).
TYPED_TEST(FirDesignTest, ResponsesOfEveryKind) {
    using T = TypeParam;
    struct Row { int kind, n; double f1, f2, f, gain, tol; };
    const Row rows[] = {{3, 101, 0.1, 0, 0.02, 1, 0.03}, {3, 100, 0.1, 0, 0.2, 0, 0.03}, {2, 101, 0.1, 0, 0.3, 1, 0.03},
                        {2, 101, 0.1, 0, 0.02, 0, 0.03}, {0, 101, 0.25, 0.1, 0.25, 1, 0.05}, {0, 100, 0.25, 0.1, 0.05, 0, 0.03},
                        {1, 101, 0.25, 0.1, 0.25, 0, 0.05}, {1, 101, 0.25, 0.1, 0.45, 1, 0.03}, {6, 101, 0.4, 0, 0.1, 0.6283, 0.02},
                        {6, 100, 0.4, 0, 0.3, 1.885, 0.05}, {8, 101, 0.5, 0, 0.25, 1, 0.02}, {8, 60, 0.5, 0, 0.1, 1, 0.05},
                        {10, 101, 0.5, 0, 0.2, 0.4, 0.02}, {10, 101, 0.5, 0, 0.4, 0.8, 0.02}, {7, 64, 0.05, 0, 0.05, 0.7071, 0.01},
                        {5, 64, 0.45, 0.3, 0, 1, 1e-5}, {4, 33, 0, 0, 0, 1, 1e-5}, {9, 32, 0, 0, 0, 1, 1e-5}, {9, 31, 2, 0, 0, 1, 1e-5}};
    for (const Row& r : rows) {
        Owned<T> v;
        v->points = r.n;
        ASSERT_EQ(api::fir(v.get(), r.kind, r.f1, r.f2), 0);
        const auto h = v.scalars();
        EXPECT_NEAR(std::abs(ref::response(h, r.f)), r.gain, r.tol) << r.kind << " " << r.n << " at " << r.f;
        const double sym = r.kind == 6 || r.kind == 8 ? -1 : 1, c = (r.n - 1) / 2.0;
        for (int k = 0; k < r.n && r.kind != 5; ++k) ASSERT_NEAR(h[k], sym * h[r.n - 1 - k], tol<T>(4)) << r.kind;
        for (int k = 0; k < r.n && r.kind == 3; ++k)
            EXPECT_NEAR(h[k], k == c ? 2 * r.f1 : std::sin(2 * ref::pi_fir * r.f1 * (k - c)) / (ref::pi_fir * (k - c)), tol<T>(8));
        if (r.kind == 5)   // a delay of c + f2 samples: linear phase at 0.05
            EXPECT_NEAR(std::arg(ref::response(h, 0.05) * std::polar(1.0L, 2 * ref::pi_fir * 0.05L * (c + r.f2))), 0, 0.01);
    }
}

// Stated values: the 3-tap lowpass at 0.25, the fixed 7-tap kind 4 (a_k / 2
// pattern, not normalised); a complex vector gets complex taps.
TYPED_TEST(FirDesignTest, StatedTapsAndShape) {
    using T = TypeParam;
    Owned<T> v, w;
    v->points = 3, v->complex = 1, w->points = 7;
    ASSERT_EQ(api::fir(v.get(), 3, 0.25, 0) | api::fir(w.get(), 4, 0, 0), 0);
    EXPECT_TRUE(near_all(v.scalars(), std::vector<double>{1 / M_PI, 0, 0.5, 0, 1 / M_PI, 0}, tol<T>(4)));
    EXPECT_TRUE(near_all(w.scalars(), std::vector<double>{0.00532055, 0.06829975, 0.24458875, 0.3635819, 0.24458875, 0.06829975, 0.00532055}, 1e-7));
}

// Refusals: unknown kinds, even lengths for the kinds with a centre tap, a
// negative length; zero taps of kinds 4, 7 and 9 succeed and write nothing.
TYPED_TEST(FirDesignTest, RefusalsAndEmpty) {
    using T = TypeParam;
    Owned<T> v;
    for (int kind : {-1, 11, 1, 2, 3, 4, 7, 9}) {
        const int n = kind == 3 ? -1 : kind == 4 || kind > 6 && kind < 10 ? 0 : 8;
        v.v.points = n;
        EXPECT_EQ(api::fir(v.get(), kind, 0, 0), n == 0 ? 0 : -1) << kind;
        EXPECT_EQ(v.v.points, n);
    }
    EXPECT_EQ(api::fir(static_cast<Vec<T>*>(nullptr), 3, 0.1, 0), -1);
}
