// The contracts every statistic shares, through each C entry point of both
// precisions: random vectors against the plain references (empty, block
// boundaries, large offsets), output shape, aliasing and status codes.
#include <cmath>
#include <cstring>

#include "support/records.hpp"
#include "support/stats_fixture.hpp"
#include "support/stats_ref.hpp"

using namespace zt;

namespace {

template <class T> struct Stat {
    const char* name;
    int (*fn)(const Vec<T>*, Vec<T>*);
    zr::R (*ref)(const std::vector<T>&, bool);
    bool keeps_complex;   // the output is complex when the input is
    bool takes_complex;   // complex input is accepted
    bool positive;        // the reference wants samples of positive value (or nonzero)
    double empty;         // result for an empty input
    bool offset_limited;  // accuracy bounded by the mean formed from the offset samples
};

template <class T> std::vector<Stat<T>> all_stats() {
    return {
        {"sum", api::sum, zr::sum<T>, true, true, false, 0, false},
        {"mean", api::mean, zr::mean<T>, true, true, false, 0, false},
        {"min", api::min, zr::min<T>, true, true, false, 0, false},
        {"max", api::max, zr::max<T>, true, true, false, 0, false},
        {"median", api::median, zr::median<T>, true, true, false, 0, false},
        {"magsq_sum", api::magsq_sum, zr::magsq_sum<T>, false, true, false, 0, false},
        {"rms", api::rms, zr::rms<T>, false, true, false, 0, false},
        {"pop_var", api::pop_var, zr::pop_var<T>, false, true, false, 0, false},
        {"samp_var", api::samp_var, zr::samp_var<T>, false, true, false, 0, false},
        {"pop_stddev", api::pop_stddev, zr::pop_stddev<T>, false, true, false, 0, false},
        {"samp_stddev", api::samp_stddev, zr::samp_stddev<T>, false, true, false, 0, false},
        {"skew", api::skew, zr::skew<T>, false, false, false, 0, false},
        {"excess", api::excess, zr::excess<T>, false, false, false, -3, true},
        {"gmean", api::gmean, zr::gmean<T>, true, true, true, 0, false},
        {"hmean", api::hmean, zr::hmean<T>, true, true, true, 0, false},
    };
}

// Offsets large against the spread of the samples, where a one-pass moment
// without a shift loses its digits.
template <class T> constexpr double big_offset() { return sizeof(T) == 8 ? 1e6 : 1e3; }

// Random scalars for a statistic: skewed values around an offset, or for the
// means of positive samples magnitudes around 1 (with random angles when complex).
template <class T> std::vector<T> sample_data(const Stat<T>& s, int n, bool complex, double offset, unsigned seed) {
    const std::size_t count = static_cast<std::size_t>(n) * (complex ? 2 : 1);
    std::vector<T> u = random_scalars<T>(count, seed, -1.0, 1.0), out(count);
    for (std::size_t i = 0; i < count; ++i)
        out[i] = static_cast<T>(s.positive ? std::exp(0.5 * double(u[i])) : offset + std::exp(1.5 * double(u[i])));
    if (s.positive && complex)
        for (std::size_t i = 0; i < count; i += 2) {
            const double r = out[i], phi = 3.0 * double(u[i + 1]);
            out[i] = static_cast<T>(r * std::cos(phi));
            out[i + 1] = static_cast<T>(r * std::sin(phi));
        }
    return out;
}

template <class T> std::vector<long double> empty_result(const Stat<T>& s, bool complex) {
    if (s.keeps_complex && complex) return {s.empty, 0};
    return {s.empty};
}

}  // namespace

template <class T> class StatsContract : public ::testing::Test {};
TYPED_TEST_SUITE(StatsContract, Precisions);

TYPED_TEST(StatsContract, RandomVectorsMatchReferenceAcrossBlockBoundaries) {
    using T = TypeParam;
    unsigned seed = 1;
    for (const auto& s : all_stats<T>()) {
        for (int complex = 0; complex <= (s.takes_complex ? 1 : 0); ++complex) {
            for (double offset : {0.0, big_offset<T>()}) {
                if (s.positive && offset != 0) continue;
                for (int n : {0, 1, 2, 3, 2047, 2048, 2049, 10000}) {
                    SCOPED_TRACE(testing::Message() << s.name << " n=" << n << " cx=" << complex << " off=" << offset);
                    const auto data = sample_data(s, n, complex, offset, ++seed);
                    Owned<T> in(data, complex), out(std::vector<T>{T(5), T(6), T(7)}, false, T(7));
                    out->type = 42;
                    ASSERT_EQ(s.fn(in.get(), out.get()), 0);
                    EXPECT_EQ(std::tuple(out->points, out->complex, out->delta, out->type),
                              std::tuple(1, s.keeps_complex ? complex : 0, T(7), 42));
                    EXPECT_EQ(in.scalars(), data);
                    const auto want = n ? s.ref(data, complex) : empty_result(s, complex);
                    const double rel = tol<T>(8) * (1 + std::sqrt(double(n))) * (s.offset_limited ? 1 + offset : 1);
                    EXPECT_TRUE(near_all(out.scalars(), want, rel));
                    if (n != 3 && n != 2047) continue;
                    // The output may be the input record itself, also when that
                    // record wraps the caller's storage: the same result, and
                    // the caller's block is left as it was.
                    std::vector<T> callers = data;
                    Owned<T> self(data, complex);
                    Vec<T> wrap = borrow(callers.data(), n);
                    wrap.complex = complex;
                    ASSERT_EQ(s.fn(self.get(), self.get()), 0);
                    ASSERT_EQ(s.fn(&wrap, &wrap), 0);
                    EXPECT_EQ(self.scalars(), out.scalars());
                    EXPECT_EQ(callers, data);
                    ASSERT_NE(wrap.data, callers.data());
                    EXPECT_EQ(std::vector<T>(wrap.data, wrap.data + out.scalars().size()), out.scalars());
                    api::destroy(&wrap);
                }
            }
        }
    }
}

TYPED_TEST(StatsContract, BadRecordsAreRefusedWithTheOutputUntouched) {
    using T = TypeParam;
    std::vector<T> block{T(1), T(2), T(3), T(4)};
    for (const auto& s : all_stats<T>()) {
        SCOPED_TRACE(s.name);
        Owned<T> out(std::vector<T>{T(9)});
        const Vec<T> before = out.v;
        auto refused = [&](Vec<T>* in) {
            EXPECT_EQ(s.fn(in, out.get()), -1);
            EXPECT_EQ(std::memcmp(&before, &out.v, sizeof before), 0);
            EXPECT_EQ(out->data[0], T(9));
        };
        refused(nullptr);
        Vec<T> in;
        api::init(&in);
        in.data = block.data();
        in.points = 2;
        EXPECT_EQ(s.fn(&in, nullptr), -1);
        in.points = -1;
        refused(&in);                   // negative count
        in.points = 2;
        in.data = nullptr;
        refused(&in);                   // samples without storage
        in.data = block.data();
        in.alloc = 3;
        in.points = 2;
        in.complex = 1;
        refused(&in);                   // owned storage too small for the shape
        if (!s.takes_complex) {
            in.alloc = 0;
            refused(&in);               // complex input to a real-only statistic
        }
    }
}

// An output that cannot be sized gives -1 and is left as the allocation leaves it.
TYPED_TEST(StatsContract, FailedOutputAllocationGivesMinusOne) {
    using T = TypeParam;
    for (const auto& s : all_stats<T>()) {
        SCOPED_TRACE(s.name);
        Owned<T> in(std::vector<T>{T(1), T(2), T(3)});
        Vec<T> out;
        api::init(&out);
        int status;
        {
            BlockHooks<T> refuse_first(true);
            status = s.fn(in.get(), &out);
        }
        EXPECT_EQ(status, -1);
        EXPECT_EQ(out.alloc, 0);
        EXPECT_EQ(out.data, nullptr);
    }
}
