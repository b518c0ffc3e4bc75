#include <cstdlib>

#include "core/random.hpp"
#include "support/api_binary.hpp"
#include "support/binary_ref.hpp"
#include "support/records.hpp"
#include "support/vectors.hpp"

using namespace zt;

namespace {

template <class T> class RearrangeTest : public ::testing::Test {};
TYPED_TEST_SUITE(RearrangeTest, Precisions);

using Samples = std::vector<Cx>;
// The samples without the first k (none left when k exceeds their count).
Samples drop(Samples x, std::size_t k) {
    x.erase(x.begin(), x.begin() + static_cast<std::ptrdiff_t>(std::min(k, x.size())));
    return x;
}

template <class T> struct Permutation {
    const char* name;
    int (*run)(Vec<T>*);
    Samples (*want)(Samples, bool complex);
};

// Each operation against a plain reordering of the samples. Swapping halves is
// a rotation to the right by points/2, the second form the inverse rotation.
// The shuffle is the forward swap walk with j = draw mod (points - i); with
// the generator seeded alike, the reference walk gives the same permutation.
// The sort sees few distinct values, so that ties in magnitude and real part
// occur. A shift drops leading samples.
TYPED_TEST(RearrangeTest, MatchesReferenceOrder) {
    using T = TypeParam;
    const Permutation<T> cases[] = {
        {"rev", api::rev, [](Samples x, bool) { std::reverse(x.begin(), x.end()); return x; }},
        {"swap_halves", api::swap_halves, [](Samples x, bool) { return rotated_right(x, x.size() / 2); }},
        {"swap_halves2", api::swap_halves2, [](Samples x, bool) { return rotated_right(x, (x.size() + 1) / 2); }},
        {"sort", api::sort, [](Samples x, bool complex) {
             const auto by_value = [](const Cx& a, const Cx& b) { return a.real() < b.real(); };
             complex ? std::stable_sort(x.begin(), x.end(), sort_before) : std::stable_sort(x.begin(), x.end(), by_value);
             return x;
         }},
        {"shuffle", api::shuffle, [](Samples x, bool) {
             zf::random_seed(1234);
             for (std::size_t i = 0; i + 1 < x.size(); ++i) std::swap(x[i], x[i + zf::random31() % (x.size() - i)]);
             return x;
         }},
        {"shift3", [](Vec<T>* v) { return api::shift(v, 3); }, [](Samples x, bool) { return drop(x, 3); }},
        {"shift12", [](Vec<T>* v) { return api::shift(v, 12); }, [](Samples x, bool) { return drop(x, 12); }},
        {"shift-2", [](Vec<T>* v) { return api::shift(v, -2); }, [](Samples x, bool) { return x; }},
    };
    for (const auto& c : cases) {
        for (bool complex : {false, true}) {
            for (int n : {0, 1, 2, 3, 4, 5, 9, 2047, 2048, 2049}) {
                auto s = random_scalars<T>(static_cast<std::size_t>(n) * (complex ? 2 : 1), n + 11, -3, 3);
                if (c.run == static_cast<int (*)(Vec<T>*)>(api::sort)) for (T& x : s) x = std::round(x);
                Owned<T> v(s, complex, T(0.5));
                zf::random_seed(1234);
                ASSERT_EQ(c.run(v.get()), 0) << c.name;
                const auto want = scalars_of(c.want(samples(s, complex), complex), complex);
                EXPECT_TRUE(near_all(v.scalars(), want, 0)) << c.name << " " << n << " " << complex;
                EXPECT_EQ(v->complex, complex ? 1 : 0);
                EXPECT_EQ(v->delta, T(0.5));
            }
        }
    }
}

// Magnitude ties go by real then imaginary part; a part beyond the saturation
// value counts as magnitude huge, so it sorts before a sample whose true
// squared magnitude (here 100 huge) exceeds huge.
TYPED_TEST(RearrangeTest, SortExamples) {
    using T = TypeParam;
    const T huge = Traits<T>::huge, big = static_cast<T>(std::sqrt(static_cast<double>(huge)) * 10);
    const std::pair<std::vector<T>, std::vector<T>> cases[] = {
        {{0, 1, 1, 0, 0, -1, -1, 0, 0.5, 0}, {0.5, 0, -1, 0, 0, -1, 0, 1, 1, 0}},
        {{big, 0, 2 * huge, 0, 1, 1}, {1, 1, 2 * huge, 0, big, 0}}};
    for (const auto& [in, want] : cases) {
        Owned<T> v(in, true);
        ASSERT_EQ(api::sort(v.get()), 0);
        EXPECT_EQ(v.scalars(), want);
    }
}

TYPED_TEST(RearrangeTest, SortPutsNanLastWithoutHarm) {
    using T = TypeParam;
    const T nan = std::numeric_limits<T>::quiet_NaN();
    std::vector<T> s = random_scalars<T>(200, 5);
    for (std::size_t k = 0; k < s.size(); k += 7) s[k] = nan;
    Owned<T> v(s);
    ASSERT_EQ(api::sort(v.get()), 0);
    const auto got = v.scalars();
    const auto first_nan = std::find_if(got.begin(), got.end(), [](T x) { return std::isnan(x); });
    EXPECT_TRUE(std::is_sorted(got.begin(), first_nan));
    EXPECT_TRUE(std::all_of(first_nan, got.end(), [](T x) { return std::isnan(x); }));
    EXPECT_EQ(got.end() - first_nan, 29);
}

TYPED_TEST(RearrangeTest, BadRecordsAreRefused) {
    using T = TypeParam;
    for (auto f : {api::rev, api::sort, api::shuffle, api::swap_halves, api::swap_halves2,
                   +[](Vec<T>* v) { return api::shift(v, 1); }})
        expect_refuses_unreadable<T>(f);
}

TEST(RandomGenerator, CombinesThreeDrawsOfRand) {
    std::srand(99);
    std::vector<long> want;
    for (int i = 0; i < 100; ++i) {
        const int a = std::rand() & 0x7FFF, b = std::rand() & 1, c = std::rand() & 0x7FFF;
        want.push_back(a * 65536L + b * 32768L + c);
    }
    zf::random_seed(99);
    for (int i = 0; i < 100; ++i) ASSERT_EQ(zf::random31(), want[i]) << i;
    EXPECT_TRUE(zf::random_seeded());
}

}  // namespace
