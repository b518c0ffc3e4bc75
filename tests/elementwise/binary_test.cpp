#include <functional>
#include <numeric>

#include "support/api_binary.hpp"
#include "support/binary_ref.hpp"

using namespace zt;

namespace {

constexpr long double kWeight = 0.3L;

template <class T> using Fn = int (*)(const Vec<T>*, const Vec<T>*, Vec<T>*);
using Samples = std::vector<Cx>;

// An operation, its reference on whole sample lists (complex: the output is),
// its tolerance in units of epsilon (times the length when it sums), the
// spacing it gives operands of spacing 1 and 2 (0: the output keeps its own),
// whether it accepts unequal lengths and whether it takes real operands only.
template <class T> struct Op {
    const char* name;
    Fn<T> run;
    std::function<Samples(Samples, Samples, bool)> want;
    double ulps, delta;
    bool sums = false, unequal = false, real_only = false;
};

// A sample-by-sample operation of the reference, f(a, b, complex) with
// complex: the output is; add and sub zero-pad the shorter operand.
template <class F> std::function<Samples(Samples, Samples, bool)> each(F f) {
    return [f](Samples a, Samples b, bool complex) {
        const std::size_t n = std::max(a.size(), b.size());
        a.resize(n), b.resize(n);
        for (std::size_t k = 0; k < n; ++k) a[k] = f(a[k], b[k], complex);
        return a;
    };
}

// min (larger = false) and max: real samples by value, complex ones by squared
// magnitude, where a part beyond +-huge makes it huge; ties go to b.
template <class T> std::function<Samples(Samples, Samples, bool)> pick(bool larger) {
    return each([larger](Cx a, Cx b, bool complex) {
        const auto key = [complex](Cx z) {
            const long double huge = Traits<T>::huge;
            return !complex ? z.real() : std::fabs(z.real()) > huge || std::fabs(z.imag()) > huge ? huge : std::norm(z);
        };
        return (larger ? key(b) >= key(a) : key(b) <= key(a)) ? b : a;
    });
}

template <class T> std::vector<Op<T>> ops() {
    const auto interleaved = [](Samples a, Samples b, bool) {
        Samples out;
        for (std::size_t k = 0; k < a.size(); ++k) out.insert(out.end(), {a[k], b[k]});
        return out;
    };
    // a / b as a * conj(b) / |b|^2; a zero divisor gives the unsigned guard part
    // by part (0 / 0 is 0). The complex quotient loses up to |a|/|b| eps to cancellation.
    const auto divide = [](Cx a, Cx b, bool) {
        const long double huge = Traits<T>::huge;
        return b == Cx(0) ? Cx(a.real() != 0 ? huge : 0, a.imag() != 0 ? huge : 0) : a * std::conj(b) / std::norm(b);
    };
    return {
        {"add", api::add, each([](Cx a, Cx b, bool) { return a + b; }), 4, 1.5, false, true},
        {"sub", api::sub, each([](Cx a, Cx b, bool) { return a - b; }), 4, 1.5, false, true},
        {"mul", api::mul, each([](Cx a, Cx b, bool) { return a * b; }), 4, 1.5}, {"div", api::div, each(divide), 64, 1.5},
        {"conj_mul", api::conj_mul, each([](Cx a, Cx b, bool) { return a * std::conj(b); }), 4, 1.5},
        {"avg_add", [](const Vec<T>* a, const Vec<T>* b, Vec<T>* o) { return api::avg_add(a, b, o, T(kWeight)); },
         each([](Cx a, Cx b, bool) { return b + kWeight * (a - b); }), 4, 1.5},
        {"min", api::min, pick<T>(false), 0, 1.5}, {"max", api::max, pick<T>(true), 0, 1.5},
        {"inter", api::inter, interleaved, 0, 0.75},
        {"ritoc", api::ritoc, [](Samples a, Samples b, bool) {
             std::transform(a.begin(), a.end(), b.begin(), a.begin(), [](Cx x, Cx y) { return Cx(x.real(), y.real()); });
             return a;
         }, 0, 1.5, false, false, true},
        {"pmul", api::pmul, [](Samples a, Samples b, bool) { return poly_product(a, b); }, 8, 1.5, true, true},
        {"dot", api::dot, [](Samples a, Samples b, bool) { return Samples{std::inner_product(a.begin(), a.end(), b.begin(), Cx(0))}; }, 8, 0, true},
    };
}

template <class T> class BinaryTest : public ::testing::Test {};
TYPED_TEST_SUITE(BinaryTest, Precisions);

// Every operation, every combination of forms and a range of lengths against
// the long-double reference, with shape and spacing; the operands stay as they
// were, and out == a, out == b and a == b == out give exactly the
// separate-output result, also when a real operand's record must become complex.
TYPED_TEST(BinaryTest, MatchesReferenceForEveryFormLengthAndAliasing) {
    using T = TypeParam;
    for (const auto& op : ops<T>()) {
        std::vector<std::pair<int, int>> sizes;
        for (int n : {0, 1, 2, 3, 2047, 2048, 2049, 10000}) if (!op.sums || n < 2050) sizes.emplace_back(n, n);
        if (op.unequal) sizes.insert(sizes.end(), {{3, 5}, {5, 3}, {0, 4}});
        for (int forms = 0; forms < (op.real_only ? 1 : 4); ++forms) {
            const bool ca = forms & 1, cb = forms & 2;
            for (auto [na, nb] : sizes) {
                SCOPED_TRACE(::testing::Message() << op.name << " forms " << forms << " n " << na << "," << nb);
                const auto sa = random_scalars<T>(na * (ca ? 2u : 1u), na + 1), sb = random_scalars<T>(nb * (cb ? 2u : 1u), nb + 2);
                Owned<T> a(sa, ca, T(1)), b(sb, cb, T(2)), out(std::vector<T>{}, false, T(0.125));
                ASSERT_EQ(op.run(a.get(), b.get(), out.get()), 0);
                EXPECT_EQ(std::tuple(out->complex, out->delta), std::tuple((ca || cb || op.real_only) ? 1 : 0, T(op.delta ? op.delta : 0.125)));
                const Samples want = op.want(samples(sa, ca), samples(sb, cb), ca || cb);
                EXPECT_TRUE(near_samples(samples(out.scalars(), out->complex), want, tol<T>(op.sums ? op.ulps * std::max(na, 1) : op.ulps)));
                EXPECT_EQ(std::tuple(a.scalars(), b.scalars()), std::tuple(sa, sb));
                if (na > 3 && na < 2047) continue;
                Owned<T> a1(sa, ca, T(1)), b1(sb, cb, T(2));
                ASSERT_EQ(op.run(a1.get(), b.get(), a1.get()), 0);
                EXPECT_EQ(std::tuple(a1.scalars(), a1->complex), std::tuple(out.scalars(), out->complex));
                EXPECT_EQ(a1->delta, op.delta ? out->delta : T(1));
                ASSERT_EQ(op.run(a.get(), b1.get(), b1.get()), 0);
                EXPECT_EQ(b1.scalars(), out.scalars());
                if (cb != ca) continue;
                Owned<T> self(sa, ca), sep;
                ASSERT_EQ(op.run(a.get(), a.get(), sep.get()), 0);
                ASSERT_EQ(op.run(self.get(), self.get(), self.get()), 0);
                EXPECT_EQ(self.scalars(), sep.scalars()) << "a == b == out";
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
        if (!op.unequal) {
            EXPECT_EQ(op.run(a.get(), b.get(), out.get()), -1) << op.name;
            EXPECT_EQ(std::tuple(out.scalars(), out->complex, out->delta), std::tuple(std::vector<T>{9, 8}, 1, T(7)));
        }
        EXPECT_EQ(op.run(&bad, good.get(), out.get()), -1) << op.name;
        EXPECT_EQ(op.run(good.get(), &bad, out.get()), -1) << op.name;
        EXPECT_EQ(op.run(good.get(), good.get(), nullptr), -1) << op.name;
        EXPECT_EQ(op.run(nullptr, good.get(), out.get()), -1) << op.name;
    }
    Owned<T> c({1, 2}, true), one({1});
    EXPECT_EQ(api::ritoc(c.get(), one.get(), out.get()), -1);
    EXPECT_EQ(api::ritoc(one.get(), c.get(), out.get()), -1);
}

// Worked by hand: division by zero gives the unsigned guard, each part of a
// complex dividend deciding its own (0 / 0 is 0); min and max ties go to b
// (mixed forms compare as complex ones, as in the random table), and a part
// beyond +-huge counts as magnitude huge, below a sample whose true squared
// magnitude exceeds huge.
// Only |b|^2 is formed from parts clamped to +-huge; the product a * conj(b)
// takes b as it is, and a real b counts as (b, 0). With b = 2 huge the
// quotient of (1, 1) is therefore (2 huge, 2 huge) / huge^2 = (2, 2) / huge
// (compared after scaling by huge). Mixed forms divide as complex ones with
// imaginary part 0, so one real and one complex operand suffice.
TYPED_TEST(BinaryTest, HandWorkedCases) {
    using T = TypeParam;
    const T huge = Traits<T>::huge, big = static_cast<T>(std::sqrt(static_cast<double>(huge)) * 10);
    const std::vector<T> z3{1, -1, 0, 2, 0, 0}, ties_a{1, 0, 0, 2}, ties_b{0, 1, 2, 0};
    struct Case { Fn<T> run; std::vector<T> a; bool ac; std::vector<T> b; bool bc; std::vector<long double> want; long double scale = 1; };
    const Case cases[] = {
        {api::div, {1, -1, 0, 6}, false, {0, 0, 0, 3}, false, {huge, huge, 0, 2}},
        {api::div, z3, true, {0, 0, 0, 0, 0, 0}, true, {huge, huge, 0, huge, 0, 0}},
        {api::div, {1, 1}, true, {2 * huge, 0}, true, {2, 2}, huge}, {api::div, {1}, false, {0, 2 * huge}, true, {0, -2}, huge},
        {api::min, ties_a, true, ties_b, true, {ties_b.begin(), ties_b.end()}},
        {api::max, ties_a, true, ties_b, true, {ties_b.begin(), ties_b.end()}},
        {api::min, {2 * huge, 0}, true, {big, 0}, true, {2 * huge, 0}},
    };
    for (const Case& c : cases) {
        Owned<T> a(c.a, c.ac), b(c.b, c.bc), out;
        ASSERT_EQ(c.run(a.get(), b.get(), out.get()), 0);
        std::vector<long double> got;
        for (T x : out.scalars()) got.push_back(x * c.scale);
        EXPECT_TRUE(near_all(got, c.want, tol<T>(8))) << c.a.size() << " " << c.b.size();
    }
}

}  // namespace
