#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "support/api_netcal.hpp"
#include "support/netcal_ref.hpp"

using namespace zt;

namespace {

constexpr double kThreshold = 2.220446049250313e-12;

template <class K> std::vector<double> random_matrix(int rows, int cols, unsigned seed) {
    std::mt19937 gen(seed);
    std::uniform_real_distribution<double> d(-1.0, 1.0);
    std::vector<double> a(static_cast<std::size_t>(rows) * cols * K::width);
    for (double& x : a) x = d(gen);
    return a;
}

// Element i of a matrix of either flavour as a complex number.
template <class K> LC element(const std::vector<double>& a, std::size_t i) {
    return K::width == 2 ? lc(a, i) : LC(a[i], 0);
}
// Sets element i: the real part, and the imaginary part where there is one.
template <class K> void set_element(std::vector<double>& a, std::size_t i, double re, double im = 0) {
    a[K::width * i] = re;
    if (K::width == 2) a[2 * i + 1] = im;
}

bool same_bits(const std::vector<double>& a, const std::vector<double>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

}  // namespace

template <class K> class MatrixKernelTest : public ::testing::Test {};
using Flavours = ::testing::Types<api::ComplexMatrix, api::RealMatrix>;
TYPED_TEST_SUITE(MatrixKernelTest, Flavours);

// A X = I to rounding, measured against |A| |X|, which bounds what a stable
// inversion can promise for any conditioning.
TYPED_TEST(MatrixKernelTest, RandomInverseTimesMatrixIsIdentity) {
    using K = TypeParam;
    for (int n = 1; n <= 6; ++n) {
        for (unsigned seed = 0; seed < 12; ++seed) {
            const std::vector<double> a = random_matrix<K>(n, n, 100 * n + seed);
            std::vector<double> x = a;
            ASSERT_EQ(K::invert(x.data(), n), 1) << "n=" << n << " seed=" << seed;
            const LMat la = to_lmat(a, K::width), lx = to_lmat(x, K::width);
            const long double tol = 64 * n * DBL_EPSILON * max_abs(la) * max_abs(lx);
            for (const LMat& id : {product(la, lx, n, n, n), product(lx, la, n, n, n)})
                for (int r = 0; r < n; ++r)
                    for (int c = 0; c < n; ++c)
                        ASSERT_LE(std::abs(id[r * n + c] - LC(r == c ? 1 : 0)), tol) << "n=" << n << " seed=" << seed;
        }
    }
}

// A permutation times a diagonal of powers of two (imaginary ones in the
// complex flavour) needs row interchanges and has an exact inverse: element
// (i, s(i)) = d becomes element (s(i), i) = 1/d.
TYPED_TEST(MatrixKernelTest, PermutedDiagonalComesBackExactlyWithColumnsUnscrambled) {
    using K = TypeParam;
    std::mt19937 gen(7);
    for (int n = 2; n <= 6; ++n) {
        for (int trial = 0; trial < 10; ++trial) {
            std::vector<int> s(n);
            for (int i = 0; i < n; ++i) s[i] = i;
            std::shuffle(s.begin(), s.end(), gen);
            std::vector<double> a(static_cast<std::size_t>(n) * n * K::width, 0.0), want = a;
            for (int i = 0; i < n; ++i) {
                const double d = std::ldexp(1.0, static_cast<int>(gen() % 9) - 4);
                const bool imaginary = K::width == 2 && gen() % 2;
                if (imaginary) {
                    set_element<K>(a, i * n + s[i], 0, d);
                    set_element<K>(want, s[i] * n + i, 0, -1 / d);
                } else {
                    set_element<K>(a, i * n + s[i], d);
                    set_element<K>(want, s[i] * n + i, 1 / d);
                }
            }
            ASSERT_EQ(K::invert(a.data(), n), 1);
            for (std::size_t i = 0; i < a.size(); ++i) ASSERT_EQ(a[i], want[i]) << "n=" << n << " at " << i;
        }
    }
    std::vector<double> swap(4 * K::width, 0.0);
    set_element<K>(swap, 1, 1);
    set_element<K>(swap, 2, 1);
    const std::vector<double> same = swap;
    ASSERT_EQ(K::invert(swap.data(), 2), 1);
    EXPECT_EQ(swap, same);
}

TYPED_TEST(MatrixKernelTest, PivotThresholdIsInclusive) {
    using K = TypeParam;
    const double below = std::nextafter(kThreshold, 0.0);
    // 1 x 1, real and (complex flavour) imaginary pivots.
    for (int imaginary = 0; imaginary < K::width; ++imaginary) {
        std::vector<double> a(K::width, 0.0);
        a[imaginary] = kThreshold;
        ASSERT_EQ(K::invert(a.data(), 1), 1);
        EXPECT_EQ(element<K>(a, 0), imaginary ? LC(0, -1 / kThreshold) : LC(1 / kThreshold, 0));
        std::vector<double> b(K::width, 0.0);
        b[imaginary] = below;
        const std::vector<double> keep = b;
        EXPECT_EQ(K::invert(b.data(), 1), 0);
        EXPECT_TRUE(same_bits(b, keep));
    }
    // The last of three pivots, reached after an interchange.
    for (const double d : {kThreshold, below}) {
        std::vector<double> a(9 * K::width, 0.0);
        set_element<K>(a, 0, 2);
        set_element<K>(a, 5, d);
        set_element<K>(a, 7, 4);
        const std::vector<double> keep = a;
        if (d == kThreshold) {
            ASSERT_EQ(K::invert(a.data(), 3), 1);
            std::vector<double> want(9 * K::width, 0.0);
            set_element<K>(want, 0, 0.5);
            set_element<K>(want, 5, 0.25);
            set_element<K>(want, 7, 1 / d);
            EXPECT_EQ(a, want);
        } else {
            EXPECT_EQ(K::invert(a.data(), 3), 0);
            EXPECT_TRUE(same_bits(a, keep));
        }
    }
}

TYPED_TEST(MatrixKernelTest, NonNumberPivotIsNotSingular) {
    using K = TypeParam;
    std::vector<double> a(K::width, std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(K::invert(a.data(), 1), 1);
    EXPECT_TRUE(std::isnan(a[0]));
}

TYPED_TEST(MatrixKernelTest, SingularMatrixIsLeftBitForBit) {
    using K = TypeParam;
    for (int n = 2; n <= 6; ++n) {
        for (int kind = 0; kind < 3; ++kind) {
            std::vector<double> a = random_matrix<K>(n, n, 500 + 10 * n + kind);
            if (kind == 0) {  // a repeated row
                std::copy_n(a.begin(), n * K::width, a.begin() + (n - 1) * n * K::width);
            } else if (kind == 1) {  // a zero column
                for (int r = 0; r < n; ++r) set_element<K>(a, r * n + n / 2, 0.0, 0.0);
            } else {  // a row that is a multiple of another
                for (int c = 0; c < n; ++c) {
                    const LC z = element<K>(a, c) * LC(0.5, 0);
                    set_element<K>(a, n + c, static_cast<double>(z.real()), static_cast<double>(z.imag()));
                }
            }
            const std::vector<double> keep = a;
            EXPECT_EQ(K::invert(a.data(), n), 0) << "n=" << n << " kind=" << kind;
            EXPECT_TRUE(same_bits(a, keep)) << "n=" << n << " kind=" << kind;
        }
    }
}

TYPED_TEST(MatrixKernelTest, InversionSizeAndPointerRules) {
    using K = TypeParam;
    EXPECT_EQ(K::invert(nullptr, 0), 1);
    EXPECT_EQ(K::invert(nullptr, 3), 0);
    double one[2] = {1.0, 0.0};
    EXPECT_EQ(K::invert(one, -1), 0);
    EXPECT_EQ(one[0], 1.0);
}

// Shapes (m, n, p); the product is computed only when n <= m.
struct Shape {
    int m, n, p;
};
class ProductShapeTest : public ::testing::TestWithParam<Shape> {};

template <class K> void check_product(Shape s) {
    const std::vector<double> a = random_matrix<K>(s.m, s.n, 11), b = random_matrix<K>(s.n, s.p, 12);
    std::vector<double> c(static_cast<std::size_t>(s.m) * s.p * K::width + 2, 77.0);
    const bool refused = s.n * s.n > s.m * s.n;
    ASSERT_EQ(K::mult(a.data(), b.data(), c.data(), s.m, s.n, s.p), refused ? -1 : s.m * s.p);
    if (refused) {
        for (double x : c) ASSERT_EQ(x, 77.0);
        return;
    }
    const LMat want = product(to_lmat(a, K::width), to_lmat(b, K::width), s.m, s.n, s.p);
    for (std::size_t i = 0; i < want.size(); ++i)
        ASSERT_LE(std::abs(element<K>(c, i) - want[i]), 4 * (s.n + 1) * DBL_EPSILON);
    EXPECT_EQ(c[c.size() - 1], 77.0);  // nothing past m x p
}

TEST_P(ProductShapeTest, ComplexAgainstTripleLoop) { check_product<api::ComplexMatrix>(GetParam()); }
TEST_P(ProductShapeTest, RealAgainstTripleLoop) { check_product<api::RealMatrix>(GetParam()); }
INSTANTIATE_TEST_SUITE_P(Shapes, ProductShapeTest,
                         ::testing::Values(Shape{1, 1, 1}, Shape{3, 3, 2}, Shape{4, 2, 5}, Shape{6, 6, 6},
                                           Shape{5, 1, 3}, Shape{3, 0, 2}, Shape{2, 3, 1}, Shape{1, 2, 2},
                                           Shape{0, 1, 4}));

TYPED_TEST(MatrixKernelTest, ProductMayOverwriteAnInput) {
    using K = TypeParam;
    const int m = 4, n = 3;
    const std::vector<double> a0 = random_matrix<K>(m, n, 21), b0 = random_matrix<K>(n, n, 22);
    std::vector<double> want(static_cast<std::size_t>(m) * n * K::width);
    ASSERT_EQ(K::mult(a0.data(), b0.data(), want.data(), m, n, n), m * n);
    std::vector<double> a = a0;
    ASSERT_EQ(K::mult(a.data(), b0.data(), a.data(), m, n, n), m * n);
    EXPECT_EQ(a, want);
    const std::vector<double> sq = random_matrix<K>(n, n, 23);
    std::vector<double> b = b0, want_b(b0.size());
    ASSERT_EQ(K::mult(sq.data(), b0.data(), want_b.data(), n, n, n), n * n);
    ASSERT_EQ(K::mult(sq.data(), b.data(), b.data(), n, n, n), n * n);
    EXPECT_EQ(b, want_b);
}

TYPED_TEST(MatrixKernelTest, ProductRejectsNegativeSizesAndNullArrays) {
    using K = TypeParam;
    double a[8] = {1, 2, 3, 4, 5, 6, 7, 8}, c[8] = {};
    EXPECT_EQ(K::mult(a, a, c, -1, 1, 1), -1);
    EXPECT_EQ(K::mult(a, a, c, 2, 1, -2), -1);
    EXPECT_EQ(K::mult(nullptr, a, c, 2, 2, 2), -1);
    EXPECT_EQ(K::mult(a, a, nullptr, 2, 2, 2), -1);
    for (double x : c) EXPECT_EQ(x, 0.0);
}

TEST(AbsTest, ClearsTheSignBit) {
    EXPECT_EQ(ABS(-3.5), 3.5);
    EXPECT_EQ(ABS(2.0), 2.0);
    EXPECT_FALSE(std::signbit(ABS(-0.0)));
    EXPECT_EQ(ABS(-HUGE_VAL), HUGE_VAL);
    const double nan = ABS(-std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(std::isnan(nan));
    EXPECT_FALSE(std::signbit(nan));
}
