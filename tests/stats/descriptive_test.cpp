// The descriptive statistics through each C entry point of both precisions:
// random vectors against the plain references (empty, block boundaries, large
// offsets), output shape, aliasing, status codes and allocation failures, then
// the cases worked out by hand (guards, blocks, orderings, floors).
#include <limits>

#include "support/api_stats.hpp"
#include "support/records.hpp"
#include "support/stats_ref.hpp"

using namespace zt;

namespace {

template <class T> using Fn = int (*)(const Vec<T>*, Vec<T>*);
template <class T> struct Stat {
    const char* name;
    Fn<T> fn;
    bool keeps_complex, takes_complex, positive;  // complex out for complex in; complex in accepted; positive samples
    double empty;                                 // the result for an empty input
};

template <class T> std::vector<Stat<T>> all_stats() {
    return {{"sum", api::sum, true, true, false, 0},
            {"mean", api::mean, true, true, false, 0},
            {"min", api::min, true, true, false, 0},
            {"max", api::max, true, true, false, 0},
            {"median", api::median, true, true, false, 0},
            {"magsq_sum", api::magsq_sum, false, true, false, 0},
            {"rms", api::rms, false, true, false, 0},
            {"pop_var", api::pop_var, false, true, false, 0},
            {"samp_var", api::samp_var, false, true, false, 0},
            {"pop_stddev", api::pop_stddev, false, true, false, 0},
            {"samp_stddev", api::samp_stddev, false, true, false, 0},
            {"skew", api::skew, false, false, false, 0},
            {"excess", api::excess, false, false, false, -3},
            {"gmean", api::gmean, true, true, true, 0},
            {"hmean", api::hmean, true, true, true, 0}};
}

// Skewed values around an offset, or for the means of positive samples
// magnitudes around 1 (with random angles when complex).
template <class T> std::vector<T> sample_data(const Stat<T>& s, int n, bool complex, double offset, unsigned seed) {
    std::vector<T> u = random_scalars<T>(static_cast<std::size_t>(n) * (complex ? 2 : 1), seed), out(u.size());
    for (std::size_t i = 0; i < u.size(); ++i) out[i] = static_cast<T>(s.positive ? std::exp(0.5 * u[i]) : offset + std::exp(1.5 * u[i]));
    for (std::size_t i = 0; s.positive && complex && i < u.size(); i += 2) {
        const double r = out[i], phi = 3.0 * u[i + 1];
        out[i] = static_cast<T>(r * std::cos(phi)), out[i + 1] = static_cast<T>(r * std::sin(phi));
    }
    return out;
}

}  // namespace

template <class T> class Stats : public ::testing::Test {};
TYPED_TEST_SUITE(Stats, Precisions);

// Offsets large against the spread, where a one-pass moment without a shift
// loses its digits (the excess kurtosis is bounded by the mean they give).
TYPED_TEST(Stats, RandomVectorsMatchReferenceAcrossBlockBoundaries) {
    using T = TypeParam;
    unsigned seed = 1;
    for (const auto& s : all_stats<T>())
        for (int complex = 0; complex <= s.takes_complex; ++complex)
            for (double offset : {0.0, s.positive ? 0.0 : sizeof(T) == 8 ? 1e6 : 1e3})
                for (int n : {0, 1, 2, 3, 2047, 2048, 2049, 10000}) {
                    SCOPED_TRACE(testing::Message() << s.name << " n=" << n << " cx=" << complex << " off=" << offset);
                    const auto data = sample_data(s, n, complex, offset, ++seed);
                    Owned<T> in(data, complex), out(std::vector<T>{T(5), T(6), T(7)}, false, T(7));
                    out->type = 42;
                    ASSERT_EQ(s.fn(in.get(), out.get()), 0);
                    EXPECT_EQ(std::tuple(shape(out.v), out->type), std::tuple(std::tuple(1, s.keeps_complex ? complex : 0, T(7)), 42));
                    EXPECT_EQ(in.scalars(), data);
                    const zr::R empty = s.keeps_complex && complex ? zr::R{s.empty, 0} : zr::R{s.empty};
                    const double rel = tol<T>(8) * (1 + std::sqrt(double(n))) * (s.empty ? 1 + offset : 1);
                    EXPECT_TRUE(near_all(out.scalars(), n ? zr::stat(s.name, data, complex) : empty, rel));
                    if (n != 3 && n != 2047) continue;
                    // The output may be the input itself, also when it wraps the
                    // caller's storage: the same result, the caller's block untouched
                    // (an owned block is reused as `out` above reuses its own).
                    std::vector<T> callers = data;
                    Vec<T> wrap = borrow(callers.data(), n);
                    wrap.complex = complex;
                    ASSERT_EQ(s.fn(&wrap, &wrap), 0);
                    EXPECT_EQ(callers, data);
                    EXPECT_EQ(std::vector<T>(wrap.data, wrap.data + out.scalars().size()), out.scalars());
                    api::destroy(&wrap);
                }
}

// Unreadable input (and complex input to a real-only statistic) and a missing
// output are refused with the output untouched. Only the median takes a
// temporary, through the hooks: when that fails the output stays as it was;
// an output that cannot be sized gives -1 and is left empty.
TYPED_TEST(Stats, RefusalsAndFailedAllocations) {
    using T = TypeParam;
    using H = CountingHooks<T>;
    static Fn<T> fn;
    static Owned<T> out;
    for (const auto& s : all_stats<T>()) {
        SCOPED_TRACE(s.name);
        fn = s.fn;
        out.set({T(9)});
        const Vec<T> before = out.v;
        expect_refuses_unreadable<T>([](Vec<T>* in) { return fn(in, out.get()); });
        T block[4] = {1, 2, 3, 4};
        Vec<T> in = borrow(block, 2);
        EXPECT_EQ(s.fn(&in, nullptr), -1);
        in.complex = !s.takes_complex;
        if (in.complex) EXPECT_EQ(s.fn(&in, out.get()), -1);
        in.complex = 0;
        EXPECT_EQ(std::memcmp(&before, &out.v, sizeof before), 0);
        const bool temp = s.fn == Fn<T>(api::median);
        for (int fail : {1, 0}) {
            typename H::Installed hooks(fail);
            EXPECT_EQ(s.fn(&in, out.get()), fail && temp ? -1 : 0);
            EXPECT_EQ(std::tuple(H::allocs, H::live, out->data), std::tuple(int(temp), 0L, before.data));
            if (fail && temp) EXPECT_EQ(out->data[0], T(9));
        }
        Vec<T> none = borrow<T>(nullptr, 0);
        typename H::Installed refuse(1);
        EXPECT_EQ(s.fn(&in, &none), -1);
        EXPECT_EQ(std::tuple(none.alloc, none.data), std::tuple(0, nullptr));
    }
}

TYPED_TEST(Stats, HandWorkedCases) {
    using T = TypeParam;
    using A = typename Traits<T>::Acc;
    const T G = Traits<T>::huge, nan = std::numeric_limits<T>::quiet_NaN();
    const double g = G;
    // Each block of 2048 samples is summed on its own before it joins the
    // total: a first sample of 2/eps of the accumulation swallows the 2047
    // ones after it, while each later block of ones arrives as one exact
    // partial sum: 2/eps + 5 * 2048 + 4 (one running sum would stay at 2/eps).
    const long double base = 2 / static_cast<long double>(std::numeric_limits<A>::epsilon());
    const int n = 6 * 2048 + 4;
    std::vector<T> ones(n, T(1));
    ones[0] = static_cast<T>(base);
    const A total = static_cast<A>(base + 5 * 2048 + 4);
    // Each sample tiny^0.75: the product tiny^1.5 lies below the smallest
    // normal number, which gives 0 though every sample is positive.
    const T x = static_cast<T>(std::pow(static_cast<double>(Traits<T>::tiny), 0.75));
    const std::vector<T> z{4, 3, 0, 1, -3, -4, 0, -5, 1, 0};
    struct Case { Fn<T> fn; std::vector<T> in; bool complex; std::vector<double> want; double ulps = 0; };
    const Case cases[] = {
        {api::sum, ones, false, {static_cast<T>(total)}},
        {api::sum, {2 * G, 3}, false, {2 * g + 3}, 4},  // the sum is not clamped
        // Parts beyond the guard, or not a number, add the guard instead of their square.
        {api::magsq_sum, {2 * G, -3 * G, nan}, false, {3 * g}, 4},
        {api::magsq_sum, {3, 2 * G, 1, 2}, true, {g + 5}, 4},
        // Deviations from the three-sample shift are clamped to the guard: for
        // (0, 3G) the shift is 2G, (-2G, G) becomes (-G, G), the variance G².
        {api::pop_var, {0, 3 * G}, false, {g * g}, 4},
        {api::min, {2 * G}, false, {G}},  // real extremes are bounded by the guard
        {api::max, {-2 * G}, false, {-G}},
        {api::min, {nan, 2, 1}, false, {1}},  // a non-number never replaces the running value
        {api::max, {2, nan, 1}, false, {2}},
        {api::max, {0, 0, 0, 0}, true, {0, 0}},  // complex max starts below every rank (0 > -G)
        // Every sample ranks at least G: none replaces complex min's start (G, G).
        {api::min, {2 * G, 0, G, G, 0, -3 * G}, true, {G, G}},
        {api::min, z, true, {0, 1}},  // by magnitude, the first of equal rank
        {api::max, z, true, {4, 3}},
        {api::max, {1, 1, 2 * G, 0, 3, 3}, true, {2 * G, 0}},  // a part beyond the guard ranks as the guard
        {api::gmean, {-2, 8}, false, {0}},
        {api::gmean, {x, x}, false, {0}},
        {api::gmean, {x, 0, x, 0}, true, {0, 0}},
        {api::hmean, {1, 0, 4}, false, {0}},
        {api::hmean, {1, -1}, false, {g}},  // reciprocals that cancel: the guard
        // A zero complex sample has the guard as reciprocal factor, which times
        // its zero parts adds nothing; a vanishing sum times the guard stays (0, 0).
        {api::hmean, {0, 0, 2, 0}, true, {4, 0}, 4},
        {api::hmean, {1, 0, -1, 0}, true, {0, 0}},
    };
    for (const Case& c : cases) {
        Owned<T> in(c.in, c.complex), out;
        ASSERT_EQ(c.fn(in.get(), out.get()), 0);
        EXPECT_TRUE(near_all(out.scalars(), c.want, tol<T>(c.ulps))) << "case " << &c - cases;
    }
}
