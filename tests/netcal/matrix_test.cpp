// The matrix kernels of both flavours: inverses and products against long
// double references, the pivot threshold, singular matrices left alone,
// aliasing and the size rules.

#include <cfloat>
#include <limits>

#include "support/api_netcal.hpp"
#include "support/netcal_ref.hpp"

using namespace zt;

namespace {

constexpr double kThreshold = 2.220446049250313e-12;
using Doubles = std::vector<double>;

template <class K> Doubles random_matrix(int rows, int cols, unsigned seed) {
    return random_scalars<double>(static_cast<std::size_t>(rows) * cols * K::width, seed);
}
template <class K> void set_element(Doubles& a, std::size_t i, double re, double im = 0) {
    a[K::width * i] = re;
    if (K::width == 2) a[2 * i + 1] = im;
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
            const Doubles a = random_matrix<K>(n, n, 100 * n + seed);
            Doubles x = a;
            ASSERT_EQ(K::invert(x.data(), n), 1) << "n=" << n << " seed=" << seed;
            const LMat la = to_lmat(a, K::width), lx = to_lmat(x, K::width);
            const long double tol = 64 * n * DBL_EPSILON * max_abs(la) * max_abs(lx);
            for (const LMat& id : {product(la, lx, n, n, n), product(lx, la, n, n, n)})
                for (int i = 0; i < n * n; ++i) ASSERT_LE(std::abs(id[i] - LC(i % (n + 1) == 0 ? 1 : 0)), tol) << "n=" << n << " seed=" << seed;
        }
    }
}

// Pivots down to the threshold are used, in magnitude (the imaginary part of
// a complex one counts); below it the matrix is singular and left as it was.
// The last of three pivots, reached after an interchange, after the first two
// reduced the copy. A non-number pivot is not singular.
TYPED_TEST(MatrixKernelTest, PivotThresholdAndSingularMatrices) {
    using K = TypeParam;
    for (int imaginary = 0; imaginary < K::width; ++imaginary) {
        for (const double d : {kThreshold, std::nextafter(kThreshold, 0.0)}) {
            Doubles a(9 * K::width, 0.0), want = a;
            set_element<K>(a, 0, 2);
            set_element<K>(a, 5, imaginary ? 0 : d, imaginary ? d : 0);
            set_element<K>(a, 7, 4);
            const Doubles keep = a;
            set_element<K>(want, 0, 0.5);
            set_element<K>(want, 5, 0.25);
            set_element<K>(want, 7, imaginary ? 0 : 1 / d, imaginary ? -1 / d : 0);
            EXPECT_EQ(K::invert(a.data(), 3), d == kThreshold ? 1 : 0);
            EXPECT_TRUE(d == kThreshold ? a == want : std::memcmp(a.data(), keep.data(), a.size() * sizeof(double)) == 0) << imaginary;
        }
    }
    Doubles nan(K::width, std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(K::invert(nan.data(), 1) == 1 && std::isnan(nan[0]));
}

TYPED_TEST(MatrixKernelTest, SizeAndPointerRules) {
    using K = TypeParam;
    double one[2] = {1.0, 0.0}, a[8] = {1, 2, 3, 4, 5, 6, 7, 8}, c[8] = {};
    EXPECT_EQ(std::tuple(K::invert(nullptr, 0), K::invert(nullptr, 3), K::invert(one, -1)), std::tuple(1, 0, 0));
    EXPECT_EQ(one[0], 1.0);
    EXPECT_EQ(std::tuple(K::mult(a, a, c, -1, 1, 1), K::mult(a, a, c, 2, 1, -2), K::mult(nullptr, a, c, 2, 2, 2),
                         K::mult(a, a, nullptr, 2, 2, 2)), std::tuple(-1, -1, -1, -1));
    EXPECT_EQ(std::vector<double>(c, c + 8), std::vector<double>(8, 0.0));
}

// Shapes (m, n, p); the product is computed only when n <= m, and may
// overwrite its left operand (n = p) or its right one (m = n).
TYPED_TEST(MatrixKernelTest, ProductAgainstTripleLoop) {
    using K = TypeParam;
    const int shapes[][3] = {{1, 1, 1}, {3, 3, 2}, {4, 2, 5}, {6, 6, 6}, {5, 1, 3}, {4, 3, 3},
                             {3, 0, 2}, {2, 3, 1}, {1, 2, 2}, {0, 1, 4}};
    for (const auto& s : shapes) {
        const int m = s[0], n = s[1], p = s[2];
        SCOPED_TRACE(::testing::Message() << m << "x" << n << "x" << p);
        const Doubles a = random_matrix<K>(m, n, 11), b = random_matrix<K>(n, p, 12);
        Doubles c(static_cast<std::size_t>(m) * p * K::width + 2, 77.0);
        const bool refused = n > m;
        ASSERT_EQ(K::mult(a.data(), b.data(), c.data(), m, n, p), refused ? -1 : m * p);
        const LMat want = product(to_lmat(a, K::width), to_lmat(b, K::width), m, n, p);
        for (std::size_t i = 0; i < want.size() && !refused; ++i)
            ASSERT_LE(std::abs(element(c, i, K::width) - want[i]), 4 * (n + 1) * DBL_EPSILON);
        for (std::size_t i = refused ? 0 : c.size() - 2; i < c.size(); ++i) ASSERT_EQ(c[i], 77.0);
        c.resize(c.size() - 2);
        for (bool left : {true, false}) {
            if (refused || (left ? n != p : m != n)) continue;
            Doubles x = left ? a : b;
            ASSERT_EQ(K::mult(left ? x.data() : a.data(), left ? b.data() : x.data(), x.data(), m, n, p), m * p);
            EXPECT_EQ(x, c) << (left ? "into a" : "into b");
        }
    }
}

TEST(AbsTest, ClearsTheSignBit) {
    const double nan = ABS(-std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(std::tuple(ABS(-3.5), ABS(2.0), ABS(-HUGE_VAL), std::signbit(ABS(-0.0)), std::isnan(nan), std::signbit(nan)),
              std::tuple(3.5, 2.0, HUGE_VAL, false, true, false));
}
