#include "support/api_binary.hpp"
#include "support/binary_ref.hpp"
#include "support/records.hpp"
#include "support/vectors.hpp"

using namespace zt;

namespace {

constexpr double kWeight = 0.3;

template <class T> using Fn = int (*)(const Vec<T>*, const Vec<T>*, Vec<T>*);
template <class T> struct Op { const char* name; Fn<T> run; };

// The sample-by-sample operations first, in BinOp order, then the rest.
template <class T> std::vector<Op<T>> ops() {
    return {{"add", api::add}, {"sub", api::sub}, {"mul", api::mul}, {"div", api::div},
            {"conj_mul", api::conj_mul},
            {"avg_add", [](const Vec<T>* a, const Vec<T>* b, Vec<T>* o) { return api::avg_add(a, b, o, T(kWeight)); }},
            {"min", api::min}, {"max", api::max},
            {"inter", api::inter}, {"ritoc", api::ritoc}, {"pmul", api::pmul}, {"dot", api::dot}};
}
constexpr int kSampleOps = 8;

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

// Every sample-by-sample operation, every combination of forms and a range of
// lengths against the long-double reference; shape and spacing as well.
TYPED_TEST(BinaryTest, MatchesReferenceForEveryFormAndLength) {
    using T = TypeParam;
    const auto all = ops<T>();
    for (int i = 0; i < kSampleOps; ++i) {
        const auto op = static_cast<BinOp>(i);
        for (int forms = 0; forms < 4; ++forms) {
            const bool ca = forms & 1, cb = forms & 2;
            for (int n : {0, 1, 2, 3, 2047, 2048, 2049, 10000}) {
                const auto sa = operand<T>(n, ca, n + 1), sb = operand<T>(n, cb, n + 2);
                Owned<T> a(sa, ca, T(1)), b(sb, cb, T(2)), out;
                ASSERT_EQ(all[i].run(a.get(), b.get(), out.get()), 0) << all[i].name;
                EXPECT_EQ(out->points, n);
                EXPECT_EQ(out->complex, (ca || cb) ? 1 : 0);
                EXPECT_EQ(out->delta, T(1.5));
                const auto xa = samples(sa, ca), xb = samples(sb, cb);
                std::vector<Cx> want;
                for (int k = 0; k < n; ++k)
                    want.push_back(binary_ref(op, xa[k], xb[k], ca || cb, kWeight, Traits<T>::huge));
                // The complex quotient loses up to |a|/|b| eps to cancellation.
                const double rel = op == BinOp::div ? tol<T>(64) : tol<T>(4);
                EXPECT_TRUE(near_samples(out, want, rel)) << all[i].name << " forms " << forms << " n " << n;
                EXPECT_EQ(a.scalars(), sa);
                EXPECT_EQ(b.scalars(), sb);
            }
        }
    }
}

// For every operation, out == a, out == b and a == b == out give exactly the
// separate-output result, also when a real operand's record must become complex.
TYPED_TEST(BinaryTest, InPlaceEqualsSeparateOutput) {
    using T = TypeParam;
    for (const auto& op : ops<T>()) {
        const std::string name = op.name;
        const bool real_only = name == "ritoc";
        for (int forms = 0; forms < (real_only ? 1 : 4); ++forms) {
            const bool ca = forms & 1, cb = forms & 2;
            for (int n : {1, 3, 2049}) {
                const auto sa = operand<T>(n, ca, 7), sb = operand<T>(n + 2 * (name == "pmul"), cb, 8);
                Owned<T> a(sa, ca, T(1)), b(sb, cb, T(3)), sep, a1(sa, ca, T(1)), b1(sb, cb, T(3));
                ASSERT_EQ(op.run(a.get(), b.get(), sep.get()), 0) << op.name;
                ASSERT_EQ(op.run(a1.get(), b.get(), a1.get()), 0);
                EXPECT_EQ(a1.scalars(), sep.scalars()) << op.name << " out == a, forms " << forms;
                EXPECT_EQ(a1->complex, sep->complex);
                EXPECT_EQ(a1->delta, sep->delta);
                ASSERT_EQ(op.run(a.get(), b1.get(), b1.get()), 0);
                EXPECT_EQ(b1.scalars(), sep.scalars()) << op.name << " out == b, forms " << forms;
            }
            const auto s = operand<T>(5, ca, 9);
            Owned<T> x(s, ca), y(s, ca), sep, self(s, ca);
            ASSERT_EQ(op.run(x.get(), y.get(), sep.get()), 0);
            ASSERT_EQ(op.run(self.get(), self.get(), self.get()), 0);
            EXPECT_EQ(self.scalars(), sep.scalars()) << op.name << " a == b == out";
        }
    }
}

// An output that wraps the caller's array (alloc 0) gets storage of its own.
TYPED_TEST(BinaryTest, BorrowedOperandAsOutputLeavesCallerArrayAlone) {
    using T = TypeParam;
    std::vector<T> mine{1, 2, 3, 4};
    Owned<T> b({1, 1, 1, 1}), sep;
    Vec<T> a = borrow(mine.data(), 4);
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
                Owned<T> a(sa, ca), b(sb, cb), out, a1(sa, ca);
                const auto [name, run] = ops<T>()[static_cast<int>(op)];
                ASSERT_EQ(run(a.get(), b.get(), out.get()), 0);
                auto xa = samples(sa, ca), xb = samples(sb, cb);
                const std::size_t n = std::max(na, nb);
                xa.resize(n);
                xb.resize(n);
                std::vector<Cx> want;
                for (std::size_t k = 0; k < n; ++k) want.push_back(binary_ref(op, xa[k], xb[k], ca || cb, 0, 0));
                EXPECT_TRUE(near_samples(out, want, tol<T>())) << name << " " << na << "+" << nb;
                ASSERT_EQ(run(a1.get(), b.get(), a1.get()), 0);
                EXPECT_EQ(a1.scalars(), out.scalars());
            }
        }
    }
}

// Status codes: unequal lengths (all but add, sub and pmul), unreadable
// records, a missing output; a refused call leaves the output alone.
TYPED_TEST(BinaryTest, RefusesBadOperands) {
    using T = TypeParam;
    Owned<T> a({1, 2, 3}), b({1, 2, 3, 4, 5}), out({9, 8}, true, T(7)), good({1, 2});
    Vec<T> bad = borrow<T>(nullptr, 2);  // samples but no data
    for (const auto& op : ops<T>()) {
        const std::string name = op.name;
        if (name != "add" && name != "sub" && name != "pmul") {
            EXPECT_EQ(op.run(a.get(), b.get(), out.get()), -1) << name;
            EXPECT_EQ(std::tuple(out.scalars(), out->complex, out->delta), std::tuple(std::vector<T>{9, 8}, 1, T(7)));
        }
        EXPECT_EQ(op.run(&bad, good.get(), out.get()), -1) << name;
        EXPECT_EQ(op.run(good.get(), &bad, out.get()), -1) << name;
        EXPECT_EQ(op.run(good.get(), good.get(), nullptr), -1) << name;
        EXPECT_EQ(op.run(nullptr, good.get(), out.get()), -1) << name;
    }
    Owned<T> c({1, 2}, true), one({1});
    EXPECT_EQ(api::ritoc(c.get(), one.get(), out.get()), -1);
    EXPECT_EQ(api::ritoc(one.get(), c.get(), out.get()), -1);
}

// Worked by hand: division by zero gives the unsigned guard, each part of a
// complex dividend deciding its own (0 / 0 is 0); min and max ties go to b, a
// real sample is written as (x, 0), and a part beyond +-huge counts as
// magnitude huge, below a sample whose true squared magnitude exceeds huge;
// small products; dot keeps the output's spacing.
TYPED_TEST(BinaryTest, HandWorkedCases) {
    using T = TypeParam;
    const T huge = Traits<T>::huge, big = static_cast<T>(std::sqrt(static_cast<double>(huge)) * 10);
    const std::vector<T> z3{1, -1, 0, 2, 0, 0}, ties_a{1, 0, 0, 2}, ties_b{0, 1, 2, 0};
    struct Case { Fn<T> run; std::vector<T> a; bool ac; std::vector<T> b; bool bc; std::vector<T> want; };
    const Case cases[] = {
        {api::div, {1, -1, 0, 6}, false, {0, 0, 0, 3}, false, {huge, huge, 0, 2}},
        {api::div, z3, true, {0, 0, 0, 0, 0, 0}, true, {huge, huge, 0, huge, 0, 0}},
        {api::div, z3, true, {0, 0, 0}, false, {huge, huge, 0, huge, 0, 0}},
        {api::div, {0, 0, 0}, false, z3, true, {0, 0, 0, 0, 0, 0}},
        {api::min, ties_a, true, ties_b, true, ties_b},
        {api::max, ties_a, true, ties_b, true, ties_b},
        {api::min, {-2, 5}, false, {0, 2, 1, 1}, true, {0, 2, 1, 1}},  // -2 and (0, 2) tie
        {api::max, {0, 2, 1, 1}, true, {-2, 5}, false, {-2, 0, 5, 0}},
        {api::min, {2 * huge, 0}, true, {big, 0}, true, {2 * huge, 0}},
        {api::pmul, {1, 1}, false, {1, 1}, false, {1, 2, 1}},
        {api::pmul, {}, false, {1, 1}, false, {}},
        {api::dot, {1, 2}, false, {3, 4}, false, {11}},
    };
    for (const Case& c : cases) {
        Owned<T> a(c.a, c.ac), b(c.b, c.bc), out(std::vector<T>{}, false, T(0.125));
        ASSERT_EQ(c.run(a.get(), b.get(), out.get()), 0);
        EXPECT_EQ(out.scalars(), c.want) << c.a.size() << " " << c.b.size();
        if (c.run == static_cast<Fn<T>>(api::dot)) EXPECT_EQ(out->delta, T(0.125));
    }
}

// Only |b|^2 is formed from parts clamped to +-huge; the product a * conj(b)
// takes b as it is, and a real b counts as (b, 0). With b = 2 huge the
// quotient of (1, 1) is therefore (2 huge, 2 huge) / huge^2 = (2, 2) / huge.
TYPED_TEST(BinaryTest, DivisionClampsOnlyTheDivisorMagnitude) {
    using T = TypeParam;
    const T huge = Traits<T>::huge;
    Owned<T> a({1, 1}, true), ra({1}), cb({2 * huge, 0}, true), rb({2 * huge}), ib({0, 2 * huge}, true), out;
    const std::tuple<Owned<T>*, Owned<T>*, std::vector<long double>> cases[] = {
        {&a, &cb, {2, 2}}, {&a, &rb, {2, 2}}, {&ra, &ib, {0, -2}}};
    for (const auto& [x, y, want] : cases) {
        ASSERT_EQ(api::div(x->get(), y->get(), out.get()), 0);
        std::vector<long double> scaled;
        for (T s : out.scalars()) scaled.push_back(static_cast<long double>(s) * huge);
        EXPECT_TRUE(near_all(scaled, want, tol<T>(8)));
    }
}

// inter, ritoc, pmul and dot against plain references for every form.
TYPED_TEST(BinaryTest, CombiningOperationsMatchReference) {
    using T = TypeParam;
    for (int forms = 0; forms < 4; ++forms) {
        const bool ca = forms & 1, cb = forms & 2;
        for (int n : {0, 1, 2, 2049}) {
            const auto sa = operand<T>(n, ca, 1), sb = operand<T>(n, cb, 2);
            const auto xa = samples(sa, ca), xb = samples(sb, cb);
            Owned<T> a(sa, ca, T(1)), b(sb, cb, T(1)), out;
            ASSERT_EQ(api::inter(a.get(), b.get(), out.get()), 0);
            EXPECT_EQ(out->delta, T(0.5));
            std::vector<Cx> want;
            for (int k = 0; k < n; ++k) want.insert(want.end(), {xa[k], xb[k]});
            EXPECT_TRUE(near_samples(out, want, 0)) << "inter " << forms << " " << n;
            if (forms == 0) {  // ritoc pairs two real records: the scalars of inter
                Owned<T> re(sa, false, T(1)), im(sb, false, T(2)), pairs;
                ASSERT_EQ(api::ritoc(re.get(), im.get(), pairs.get()), 0);
                EXPECT_EQ(pairs->complex, 1);
                EXPECT_EQ(pairs->delta, T(1.5));
                EXPECT_EQ(pairs.scalars(), out.scalars());
            }
        }
        const auto sa = operand<T>(37, ca, 1), sb = operand<T>(50, cb, 2);
        const auto xa = samples(sa, ca), xb = samples(sb, cb);
        Owned<T> a(sa, ca, T(1)), b(sb, cb, T(2)), out;
        ASSERT_EQ(api::pmul(a.get(), b.get(), out.get()), 0);
        EXPECT_EQ(out->delta, T(1.5));
        EXPECT_EQ(out->complex, (ca || cb) ? 1 : 0);
        EXPECT_TRUE(near_samples(out, poly_product(xa, xb), tol<T>(64))) << "pmul " << forms;
        const auto da = operand<T>(1000, ca, 3), db = operand<T>(1000, cb, 4);
        Owned<T> x(da, ca), y(db, cb);
        ASSERT_EQ(api::dot(x.get(), y.get(), out.get()), 0);
        Cx sum = 0;
        const auto za = samples(da, ca), zb = samples(db, cb);
        for (int k = 0; k < 1000; ++k) sum += za[k] * zb[k];
        EXPECT_TRUE(near_samples(out, {sum}, tol<T>(1000))) << "dot " << forms;
        EXPECT_EQ(out->complex, (ca || cb) ? 1 : 0);
    }
}

}  // namespace
