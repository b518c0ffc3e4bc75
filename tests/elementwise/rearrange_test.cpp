#include "core/random.hpp"
#include "support/api_binary.hpp"
#include "support/arith_ref.hpp"
#include "support/binary_ref.hpp"

using namespace zt;

namespace {

template <class T> class RearrangeTest : public ::testing::Test {};
TYPED_TEST_SUITE(RearrangeTest, Precisions);

using Samples = std::vector<Cx>;

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
// occur. A shift drops leading samples. Each refuses unreadable records.
TYPED_TEST(RearrangeTest, MatchesReferenceOrder) {
    using T = TypeParam;
    const Permutation<T> cases[] = {
        {"rev", api::rev, [](Samples x, bool) { std::reverse(x.begin(), x.end()); return x; }},
        {"swap_halves", api::swap_halves, [](Samples x, bool) { std::rotate(x.rbegin(), x.rbegin() + x.size() / 2, x.rend()); return x; }},
        {"swap_halves2", api::swap_halves2, [](Samples x, bool) { std::rotate(x.begin(), x.begin() + x.size() / 2, x.end()); return x; }},
        {"sort", api::sort, [](Samples x, bool complex) {
             std::stable_sort(x.begin(), x.end(), complex ? sort_before : +[](const Cx& a, const Cx& b) { return a.real() < b.real(); });
             return x;
         }},
        {"shuffle", api::shuffle, [](Samples x, bool) {
             zf::random_seed(1234);
             for (std::size_t i = 0; i + 1 < x.size(); ++i) std::swap(x[i], x[i + zf::random31() % (x.size() - i)]);
             return x;
         }},
        {"shift3", [](Vec<T>* v) { return api::shift(v, 3); }, [](Samples x, bool) { return Samples(x.begin() + std::min<std::size_t>(3, x.size()), x.end()); }},
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
                EXPECT_TRUE(near_samples(samples(v.scalars(), complex), c.want(samples(s, complex), complex), 0)) << c.name << " " << n << " " << complex;
                EXPECT_EQ(std::tuple(v->complex, v->delta), std::tuple(complex ? 1 : 0, T(0.5)));
            }
        }
        expect_refuses_unreadable<T>(c.run);
    }
}

// A part beyond the saturation value counts as magnitude huge, so it sorts
// before a sample whose true squared magnitude (here 100 huge) exceeds huge.
// (Magnitude ties occur in the rounded random samples above.)
TYPED_TEST(RearrangeTest, SortSaturationAndNan) {
    using T = TypeParam;
    const T huge = Traits<T>::huge, big = static_cast<T>(std::sqrt(static_cast<double>(huge)) * 10);
    const T nan = std::numeric_limits<T>::quiet_NaN();
    check_hand<T>({{api::sort, {big, 0, 2 * huge, 0, 1, 1}, true, {1, 1, 2 * huge, 0, big, 0}}, {api::sort, {nan, 0, 0, 2, 1, 0}, true, {1, 0, 0, 2, nan, 0}}});
    // NaN goes last without harm to the order of the others, real or complex.
    std::vector<T> s = random_scalars<T>(200, 5);
    for (std::size_t k = 0; k < s.size(); k += 7) s[k] = std::numeric_limits<T>::quiet_NaN();
    Owned<T> v(s);
    ASSERT_EQ(api::sort(v.get()), 0);
    const auto got = v.scalars();
    EXPECT_TRUE(std::is_sorted(got.begin(), got.end() - 29));
    EXPECT_TRUE(std::all_of(got.end() - 29, got.end(), [](T x) { return std::isnan(x); }));
}

TEST(RandomGenerator, CombinesThreeDrawsOfRand) {
    std::srand(99);
    std::vector<long> want;
    for (int i = 0; i < 100; ++i) {
        const int a = std::rand() & 0x7FFF, b = std::rand() & 1;
        want.push_back(a * 65536L + b * 32768L + (std::rand() & 0x7FFF));
    }
    zf::random_seed(99);
    for (long w : want) ASSERT_EQ(zf::random31(), w);
    EXPECT_TRUE(zf::random_seeded());
}

}  // namespace
