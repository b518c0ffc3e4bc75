#include "support/api_binary.hpp"
#include "support/binary_ref.hpp"
#include "support/vectors.hpp"

using namespace zt;

namespace {

const BinOp kOps[] = {BinOp::add, BinOp::sub, BinOp::mul, BinOp::div,
                      BinOp::conj_mul, BinOp::avg_add, BinOp::min, BinOp::max};
const int kLengths[] = {0, 1, 2, 3, 2047, 2048, 2049, 10000};
constexpr double kWeight = 0.3;

template <class V> int call(BinOp op, const V* a, const V* b, V* out) {
    switch (op) {
    case BinOp::add: return api::add(a, b, out);
    case BinOp::sub: return api::sub(a, b, out);
    case BinOp::mul: return api::mul(a, b, out);
    case BinOp::div: return api::div(a, b, out);
    case BinOp::conj_mul: return api::conj_mul(a, b, out);
    case BinOp::avg_add: return api::avg_add(a, b, out, static_cast<decltype(a->delta)>(kWeight));
    case BinOp::min: return api::min(a, b, out);
    case BinOp::max: return api::max(a, b, out);
    }
    return -2;
}

// Samples within rel * max(1, |want|) of the reference, measured as complex numbers.
template <class T>
::testing::AssertionResult near_samples(const Owned<T>& got, const std::vector<Cx>& want, double rel) {
    const auto g = samples(got.scalars(), got.v.complex != 0);
    if (g.size() != want.size()) return ::testing::AssertionFailure() << "points " << g.size() << " != " << want.size();
    for (std::size_t k = 0; k < g.size(); ++k) {
        if (std::abs(g[k] - want[k]) > rel * std::max<long double>(1, std::abs(want[k])))
            return ::testing::AssertionFailure() << "sample " << k << ": " << g[k] << " != " << want[k];
    }
    return ::testing::AssertionSuccess();
}

template <class T> std::vector<T> operand(int n, bool complex, unsigned seed) {
    return random_scalars<T>(static_cast<std::size_t>(n) * (complex ? 2 : 1), seed);
}

template <class T> class BinaryTest : public ::testing::Test {};
TYPED_TEST_SUITE(BinaryTest, Precisions);

// Every operation, every combination of forms and a range of lengths against
// the long-double reference; shape and spacing of the output as well.
TYPED_TEST(BinaryTest, MatchesReferenceForEveryFormAndLength) {
    using T = TypeParam;
    const long double huge = Traits<T>::huge;
    for (BinOp op : kOps) {
        for (int forms = 0; forms < 4; ++forms) {
            const bool ca = forms & 1, cb = forms & 2;
            for (int n : kLengths) {
                const auto sa = operand<T>(n, ca, n + 1), sb = operand<T>(n, cb, n + 2);
                Owned<T> a(sa, ca, T(1)), b(sb, cb, T(2)), out;
                ASSERT_EQ(call(op, a.get(), b.get(), out.get()), 0) << name_of(op);
                EXPECT_EQ(out->points, n);
                EXPECT_EQ(out->complex, (ca || cb) ? 1 : 0);
                EXPECT_EQ(out->delta, T(1.5));
                const auto xa = samples(sa, ca), xb = samples(sb, cb);
                std::vector<Cx> want;
                for (int k = 0; k < n; ++k) want.push_back(binary_ref(op, xa[k], xb[k], ca || cb, kWeight, huge));
                // The complex quotient loses up to |a|/|b| eps to cancellation.
                const double rel = op == BinOp::div ? tol<T>(64) : tol<T>(4);
                EXPECT_TRUE(near_samples(out, want, rel)) << name_of(op) << " forms " << forms << " n " << n;
                EXPECT_EQ(a.scalars(), sa);  // inputs untouched
                EXPECT_EQ(b.scalars(), sb);
            }
        }
    }
}

// out == a, out == b and a == b == out give exactly the separate-output result,
// also when a real operand's record must become complex.
TYPED_TEST(BinaryTest, InPlaceEqualsSeparateOutput) {
    using T = TypeParam;
    for (BinOp op : kOps) {
        for (int forms = 0; forms < 4; ++forms) {
            const bool ca = forms & 1, cb = forms & 2;
            for (int n : {1, 3, 2049}) {
                const auto sa = operand<T>(n, ca, 7), sb = operand<T>(n, cb, 8);
                Owned<T> a(sa, ca, T(1)), b(sb, cb, T(3)), sep;
                ASSERT_EQ(call(op, a.get(), b.get(), sep.get()), 0);
                Owned<T> a1(sa, ca, T(1));
                ASSERT_EQ(call(op, a1.get(), b.get(), a1.get()), 0);
                EXPECT_EQ(a1.scalars(), sep.scalars()) << name_of(op) << " out == a, forms " << forms;
                EXPECT_EQ(a1->complex, sep->complex);
                EXPECT_EQ(a1->delta, sep->delta);
                Owned<T> b1(sb, cb, T(3));
                ASSERT_EQ(call(op, a.get(), b1.get(), b1.get()), 0);
                EXPECT_EQ(b1.scalars(), sep.scalars()) << name_of(op) << " out == b, forms " << forms;
            }
            // a == b == out against a separate output from two equal operands.
            const auto s = operand<T>(5, ca, 9);
            Owned<T> x(s, ca), y(s, ca), sep, self(s, ca);
            ASSERT_EQ(call(op, x.get(), y.get(), sep.get()), 0);
            ASSERT_EQ(call(op, self.get(), self.get(), self.get()), 0);
            EXPECT_EQ(self.scalars(), sep.scalars()) << name_of(op) << " a == b == out";
        }
    }
}

// An output that wraps the caller's array (alloc 0) gets storage of its own;
// the caller's array keeps its values.
TYPED_TEST(BinaryTest, BorrowedOperandAsOutputLeavesCallerArrayAlone) {
    using T = TypeParam;
    std::vector<T> mine{1, 2, 3, 4};
    Owned<T> b({1, 1, 1, 1}), sep;
    Vec<T> a;
    api::init(&a);
    a.data = mine.data();
    a.points = 4;
    ASSERT_EQ(api::add(&a, b.get(), sep.get()), 0);
    ASSERT_EQ(api::add(&a, b.get(), &a), 0);
    EXPECT_EQ(std::vector<T>(a.data, a.data + 4), sep.scalars());
    EXPECT_EQ(mine, (std::vector<T>{1, 2, 3, 4}));
    api::destroy(&a);
}

TYPED_TEST(BinaryTest, AddAndSubZeroPadTheShorterOperand) {
    using T = TypeParam;
    for (BinOp op : {BinOp::add, BinOp::sub}) {
        for (int forms = 0; forms < 4; ++forms) {
            const bool ca = forms & 1, cb = forms & 2;
            for (auto [na, nb] : {std::pair<int, int>{3, 5}, {5, 3}, {0, 4}}) {
                const auto sa = operand<T>(na, ca, 1), sb = operand<T>(nb, cb, 2);
                Owned<T> a(sa, ca), b(sb, cb), out;
                ASSERT_EQ(call(op, a.get(), b.get(), out.get()), 0);
                auto xa = samples(sa, ca), xb = samples(sb, cb);
                const std::size_t n = std::max(na, nb);
                xa.resize(n);
                xb.resize(n);
                std::vector<Cx> want;
                for (std::size_t k = 0; k < n; ++k) want.push_back(binary_ref(op, xa[k], xb[k], ca || cb, 0, 0));
                EXPECT_TRUE(near_samples(out, want, tol<T>())) << name_of(op) << " " << na << "+" << nb;
                // In place with the shorter operand as output.
                Owned<T> a1(sa, ca);
                ASSERT_EQ(call(op, a1.get(), b.get(), a1.get()), 0);
                EXPECT_EQ(a1.scalars(), out.scalars());
            }
        }
    }
}

TYPED_TEST(BinaryTest, OtherOperationsRefuseUnequalLengthsAndLeaveOutput) {
    using T = TypeParam;
    Owned<T> a({1, 2, 3}), b({1, 2, 3, 4, 5}), out({9, 8}, true, T(7));
    for (BinOp op : {BinOp::mul, BinOp::div, BinOp::conj_mul, BinOp::avg_add, BinOp::min, BinOp::max}) {
        EXPECT_EQ(call(op, a.get(), b.get(), out.get()), -1) << name_of(op);
        EXPECT_EQ(out.scalars(), (std::vector<T>{9, 8}));
        EXPECT_EQ(out->complex, 1);
        EXPECT_EQ(out->delta, T(7));
    }
    EXPECT_EQ(api::inter(a.get(), b.get(), out.get()), -1);
    EXPECT_EQ(api::ritoc(a.get(), b.get(), out.get()), -1);
    EXPECT_EQ(api::dot(a.get(), b.get(), out.get()), -1);
    EXPECT_EQ(out.scalars(), (std::vector<T>{9, 8}));
}

TYPED_TEST(BinaryTest, BadRecordsAreRefused) {
    using T = TypeParam;
    Owned<T> good({1, 2}), out;
    Vec<T> bad;
    api::init(&bad);
    bad.points = 2;  // samples but no data
    for (BinOp op : kOps) {
        EXPECT_EQ(call(op, &bad, good.get(), out.get()), -1) << name_of(op);
        EXPECT_EQ(call(op, good.get(), &bad, out.get()), -1) << name_of(op);
        EXPECT_EQ(call<Vec<T>>(op, good.get(), good.get(), nullptr), -1) << name_of(op);
        EXPECT_EQ(call<Vec<T>>(op, nullptr, good.get(), out.get()), -1) << name_of(op);
    }
    EXPECT_EQ(api::inter(&bad, good.get(), out.get()), -1);
    EXPECT_EQ(api::ritoc(good.get(), &bad, out.get()), -1);
    EXPECT_EQ(api::pmul(&bad, good.get(), out.get()), -1);
    EXPECT_EQ(api::dot(good.get(), &bad, out.get()), -1);
}

TYPED_TEST(BinaryTest, DivisionByZeroGivesUnsignedGuard) {
    using T = TypeParam;
    const T huge = Traits<T>::huge;
    Owned<T> a({1, -1, 0, 6}), b({0, 0, 0, 3}), out;
    ASSERT_EQ(api::div(a.get(), b.get(), out.get()), 0);
    EXPECT_EQ(out.scalars(), (std::vector<T>{huge, huge, 0, 2}));
    // Complex: each part of the dividend decides its own guard.
    Owned<T> ca({1, -1, 0, 2, 0, 0}, true), cb({0, 0, 0, 0, 0, 0}, true);
    ASSERT_EQ(api::div(ca.get(), cb.get(), out.get()), 0);
    EXPECT_EQ(out.scalars(), (std::vector<T>{huge, huge, 0, huge, 0, 0}));
    Owned<T> rb({0, 0, 0});
    ASSERT_EQ(api::div(ca.get(), rb.get(), out.get()), 0);
    EXPECT_EQ(out.scalars(), (std::vector<T>{huge, huge, 0, huge, 0, 0}));
    ASSERT_EQ(api::div(rb.get(), ca.get(), out.get()), 0);  // 0 / 0
    EXPECT_EQ(out.scalars(), (std::vector<T>{0, 0, 0, 0, 0, 0}));
}

// Only |b|^2 is formed from parts clamped to +-huge; the product a * conj(b)
// takes b as it is, and a real b counts as (b, 0). With b = 2 huge the
// quotient of (1, 1) is therefore (2 huge, 2 huge) / huge^2 = (2, 2) / huge.
TYPED_TEST(BinaryTest, DivisionClampsOnlyTheDivisorMagnitude) {
    using T = TypeParam;
    const T huge = Traits<T>::huge;
    const auto scaled = [&](const Owned<T>& o) {
        std::vector<long double> s;
        for (T x : o.scalars()) s.push_back(static_cast<long double>(x) * huge);
        return s;
    };
    Owned<T> a({1, 1}, true), cb({2 * huge, 0}, true), rb({2 * huge}), out;
    ASSERT_EQ(api::div(a.get(), cb.get(), out.get()), 0);
    EXPECT_TRUE(near_all(scaled(out), std::vector<long double>{2, 2}, tol<T>(8)));
    ASSERT_EQ(api::div(a.get(), rb.get(), out.get()), 0);
    EXPECT_TRUE(near_all(scaled(out), std::vector<long double>{2, 2}, tol<T>(8)));
    // Real a over (0, 2 huge): (0, -2 huge) / huge^2.
    Owned<T> ra({1}), ib({0, 2 * huge}, true);
    ASSERT_EQ(api::div(ra.get(), ib.get(), out.get()), 0);
    EXPECT_TRUE(near_all(scaled(out), std::vector<long double>{0, -2}, tol<T>(8)));
}

TYPED_TEST(BinaryTest, AvgAddWeightsOneAndZeroGiveTheOperands) {
    using T = TypeParam;
    for (int forms = 0; forms < 4; ++forms) {
        const bool ca = forms & 1, cb = forms & 2;
        const auto sa = operand<T>(9, ca, 3), sb = operand<T>(9, cb, 4);
        Owned<T> a(sa, ca), b(sb, cb), out;
        ASSERT_EQ(api::avg_add(a.get(), b.get(), out.get(), T(1)), 0);
        EXPECT_TRUE(near_samples(out, samples(sa, ca), tol<T>(2)));
        ASSERT_EQ(api::avg_add(a.get(), b.get(), out.get(), T(0)), 0);
        EXPECT_TRUE(near_samples(out, samples(sb, cb), tol<T>(2)));
    }
}

TYPED_TEST(BinaryTest, MinAndMaxTiesGoToB) {
    using T = TypeParam;
    Owned<T> a({1, 0, 0, 2}, true), b({0, 1, 2, 0}, true), out;
    ASSERT_EQ(api::min(a.get(), b.get(), out.get()), 0);
    EXPECT_EQ(out.scalars(), (std::vector<T>{0, 1, 2, 0}));
    ASSERT_EQ(api::max(a.get(), b.get(), out.get()), 0);
    EXPECT_EQ(out.scalars(), (std::vector<T>{0, 1, 2, 0}));
    // Mixed: the real sample is written as (x, 0); -2 and (0, 2) tie.
    Owned<T> r({-2, 5});
    Owned<T> c({0, 2, 1, 1}, true);
    ASSERT_EQ(api::min(r.get(), c.get(), out.get()), 0);
    EXPECT_EQ(out.scalars(), (std::vector<T>{0, 2, 1, 1}));
    ASSERT_EQ(api::max(c.get(), r.get(), out.get()), 0);
    EXPECT_EQ(out.scalars(), (std::vector<T>{-2, 0, 5, 0}));
}

// A part beyond +-huge counts as magnitude huge, smaller than a sample whose
// true squared magnitude exceeds huge.
TYPED_TEST(BinaryTest, MinJudgesHugePartsAsHuge) {
    using T = TypeParam;
    const T huge = Traits<T>::huge;
    const T big = static_cast<T>(std::sqrt(static_cast<double>(huge)) * 10);
    Owned<T> a({2 * huge, 0}, true), b({big, 0}, true), out;
    ASSERT_EQ(api::min(a.get(), b.get(), out.get()), 0);
    EXPECT_EQ(out.scalars(), (std::vector<T>{2 * huge, 0}));
}

TYPED_TEST(BinaryTest, ConjMulWithRealBIsMul) {
    using T = TypeParam;
    for (bool ca : {false, true}) {
        Owned<T> a(operand<T>(17, ca, 5), ca), b(operand<T>(17, false, 6)), m, c;
        ASSERT_EQ(api::mul(a.get(), b.get(), m.get()), 0);
        ASSERT_EQ(api::conj_mul(a.get(), b.get(), c.get()), 0);
        EXPECT_EQ(c.scalars(), m.scalars());
    }
}

TYPED_TEST(BinaryTest, InterleavesAtHalfTheSpacing) {
    using T = TypeParam;
    for (int forms = 0; forms < 4; ++forms) {
        const bool ca = forms & 1, cb = forms & 2;
        for (int n : {0, 1, 2, 2049}) {
            const auto sa = operand<T>(n, ca, 1), sb = operand<T>(n, cb, 2);
            Owned<T> a(sa, ca, T(1)), b(sb, cb, T(1)), out;
            ASSERT_EQ(api::inter(a.get(), b.get(), out.get()), 0);
            EXPECT_EQ(out->points, 2 * n);
            EXPECT_EQ(out->delta, T(0.5));
            const auto xa = samples(sa, ca), xb = samples(sb, cb);
            std::vector<Cx> want;
            for (int k = 0; k < n; ++k) {
                want.push_back(xa[k]);
                want.push_back(xb[k]);
            }
            EXPECT_TRUE(near_samples(out, want, 0)) << forms << " " << n;
            Owned<T> a1(sa, ca, T(1)), b1(sb, cb, T(1));
            ASSERT_EQ(api::inter(a1.get(), b.get(), a1.get()), 0);
            EXPECT_EQ(a1.scalars(), out.scalars());
            ASSERT_EQ(api::inter(a.get(), b1.get(), b1.get()), 0);
            EXPECT_EQ(b1.scalars(), out.scalars());
        }
    }
}

TYPED_TEST(BinaryTest, RitocPairsTwoRealRecords) {
    using T = TypeParam;
    const auto sr = operand<T>(2049, false, 1), si = operand<T>(2049, false, 2);
    Owned<T> re(sr, false, T(1)), im(si, false, T(2)), out;
    ASSERT_EQ(api::ritoc(re.get(), im.get(), out.get()), 0);
    EXPECT_EQ(out->complex, 1);
    EXPECT_EQ(out->delta, T(1.5));
    std::vector<T> want;
    for (std::size_t k = 0; k < sr.size(); ++k) {
        want.push_back(sr[k]);
        want.push_back(si[k]);
    }
    EXPECT_EQ(out.scalars(), want);
    Owned<T> re1(sr), im1(si);
    ASSERT_EQ(api::ritoc(re1.get(), im.get(), re1.get()), 0);
    EXPECT_EQ(re1.scalars(), want);
    ASSERT_EQ(api::ritoc(re.get(), im1.get(), im1.get()), 0);
    EXPECT_EQ(im1.scalars(), want);
    Owned<T> c({1, 2}, true);
    Owned<T> one({1});
    EXPECT_EQ(api::ritoc(c.get(), one.get(), out.get()), -1);
    EXPECT_EQ(api::ritoc(one.get(), c.get(), out.get()), -1);
}

TYPED_TEST(BinaryTest, PolynomialProduct) {
    using T = TypeParam;
    Owned<T> ones({1, 1}), out;
    ASSERT_EQ(api::pmul(ones.get(), ones.get(), out.get()), 0);
    EXPECT_EQ(out.scalars(), (std::vector<T>{1, 2, 1}));
    Owned<T> empty;
    ASSERT_EQ(api::pmul(empty.get(), ones.get(), out.get()), 0);
    EXPECT_EQ(out->points, 0);
    for (int forms = 0; forms < 4; ++forms) {
        const bool ca = forms & 1, cb = forms & 2;
        const auto sa = operand<T>(37, ca, 1), sb = operand<T>(50, cb, 2);
        Owned<T> a(sa, ca, T(1)), b(sb, cb, T(2)), sep;
        ASSERT_EQ(api::pmul(a.get(), b.get(), sep.get()), 0);
        EXPECT_EQ(sep->delta, T(1.5));
        EXPECT_EQ(sep->complex, (ca || cb) ? 1 : 0);
        EXPECT_TRUE(near_samples(sep, poly_product(samples(sa, ca), samples(sb, cb)), tol<T>(64))) << forms;
        Owned<T> a1(sa, ca, T(1)), b1(sb, cb, T(2));
        ASSERT_EQ(api::pmul(a1.get(), b.get(), a1.get()), 0);
        EXPECT_EQ(a1.scalars(), sep.scalars());
        ASSERT_EQ(api::pmul(a.get(), b1.get(), b1.get()), 0);
        EXPECT_EQ(b1.scalars(), sep.scalars());
    }
}

TYPED_TEST(BinaryTest, DotProduct) {
    using T = TypeParam;
    Owned<T> a({1, 2}), b({3, 4}), out;
    out->delta = T(0.125);
    ASSERT_EQ(api::dot(a.get(), b.get(), out.get()), 0);
    EXPECT_EQ(out.scalars(), (std::vector<T>{11}));
    EXPECT_EQ(out->delta, T(0.125));
    for (int forms = 0; forms < 4; ++forms) {
        const bool ca = forms & 1, cb = forms & 2;
        const auto sa = operand<T>(1000, ca, 1), sb = operand<T>(1000, cb, 2);
        Owned<T> x(sa, ca), y(sb, cb), sep;
        ASSERT_EQ(api::dot(x.get(), y.get(), sep.get()), 0);
        const auto xa = samples(sa, ca), xb = samples(sb, cb);
        Cx sum = 0;
        for (std::size_t k = 0; k < xa.size(); ++k) sum += xa[k] * xb[k];
        EXPECT_TRUE(near_samples(sep, {sum}, tol<T>(1000))) << forms;
        EXPECT_EQ(sep->complex, (ca || cb) ? 1 : 0);
        Owned<T> x1(sa, ca);
        ASSERT_EQ(api::dot(x1.get(), y.get(), x1.get()), 0);
        EXPECT_EQ(x1.scalars(), sep.scalars());
    }
}

}  // namespace
