#include "support/vectors.hpp"

#include <cstdlib>
#include <map>

#include "support/api_dft.hpp"
#include "support/dft_ref.hpp"
#include "support/records.hpp"
#include "transform/dft.hpp"

using namespace zt;

namespace {

template <class T> class DftTest : public ::testing::Test {};
TYPED_TEST_SUITE(DftTest, Precisions);

// A complex record of n random pairs.
template <class T> std::vector<T> random_pairs(int n, unsigned seed) {
    return random_scalars<T>(2 * static_cast<std::size_t>(n), seed);
}

// Chirp-z lengths (3, 5, 9 use the tightest convolution lengths 4, 8, 16;
// 4097 = 2^12 + 1 has 2N - 2 exactly a power of two) and power-of-two lengths.
const int kLengths[] = {3, 5, 9, 12, 100, 1000, 4097, 2, 8, 64, 1024};

// Random pairs exact in both precisions and their exact transform, computed
// once for both. The inverse direction transforms the conjugate input, whose
// inverse transform is N·conj(X) with X the forward transform of the input.
std::vector<ref::cld> shared_ref(int n, int dir, std::vector<float>& x) {
    static std::map<int, std::vector<ref::cld>> memo;
    x = random_pairs<float>(n, 7 + n);
    auto it = memo.find(n);
    if (it == memo.end()) it = memo.emplace(n, ref::forward(ref::from_pairs(x))).first;
    std::vector<ref::cld> w = it->second;
    if (dir == 0) return w;
    for (std::size_t i = 1; i < x.size(); i += 2) x[i] = -x[i];
    for (ref::cld& z : w) z = std::conj(z) * static_cast<long double>(n);
    return w;
}

TYPED_TEST(DftTest, MatchesDirectDftInBothDirections) {
    using T = TypeParam;
    for (int n : kLengths) {
        for (int dir : {0, 1}) {
            SCOPED_TRACE(::testing::Message() << "n=" << n << " direction=" << dir);
            std::vector<float> xf;
            const auto want = shared_ref(n, dir, xf);
            const std::vector<T> x(xf.begin(), xf.end());
            Owned<T> v(x, true, T(0.5));
            ASSERT_EQ(api::dft(v.get(), dir), 0);
            EXPECT_EQ(v->points, n);
            EXPECT_TRUE(v->complex);
            EXPECT_LE(ref::rms_rel_error(ref::from_pairs(v.scalars()), want), ref::dft_bound<T>(n));
            EXPECT_NEAR(v->delta, 2.0 / n, 2.0 / n * tol<T>());
        }
    }
}

// The forward transform of a real vector equals that of the complex vector with
// zero imaginary parts; rdft keeps bins 0 .. N/2 of it and irdft inverts rdft.
TYPED_TEST(DftTest, RealInputRdftAndIrdftMatchComplexTransform) {
    using T = TypeParam;
    for (int n : {2, 3, 12, 15, 16, 101, 1000}) {
        SCOPED_TRACE(n);
        const std::vector<T> x = random_scalars<T>(n, 3 + n);
        std::vector<T> pairs(2 * n, T(0));
        for (int i = 0; i < n; ++i) pairs[2 * i] = x[i];
        Owned<T> c(pairs, true, T(2)), r(x, false, T(2)), rd(x, false, T(2));
        ASSERT_EQ(api::dft(c.get(), 0), 0);
        ASSERT_EQ(api::dft(r.get(), 0), 0);
        EXPECT_TRUE(r->complex);
        EXPECT_TRUE(near_all(r.scalars(), c.scalars(), 0.0));
        ASSERT_EQ(api::rdft(rd.get()), 0);
        ASSERT_EQ(rd->points, n / 2 + 1);
        EXPECT_TRUE(rd->complex);
        std::vector<T> half = c.scalars();
        half.resize(2 * (n / 2 + 1));
        EXPECT_TRUE(near_all(rd.scalars(), half, tol<T>(8)));
        EXPECT_EQ(rd->delta, c->delta);
        ASSERT_EQ(api::irdft(rd.get(), n % 2), 0);
        EXPECT_FALSE(rd->complex);
        ASSERT_EQ(rd->points, n);
        EXPECT_LE(ref::rms_rel_error(ref::from_reals(rd.scalars()), ref::from_reals(x)), 2 * ref::dft_bound<T>(n));
        EXPECT_NEAR(rd->delta, 2.0, 2.0 * tol<T>());
    }
}

// Directions other than 0 and 1: a chirp-z length gives the forward sum without
// 1/N; a power-of-two length goes to the FFT, which takes it as inverse.
TYPED_TEST(DftTest, OtherDirectionValues) {
    using T = TypeParam;
    const std::vector<T> x = random_pairs<T>(12, 9);
    Owned<T> a(x, true), b(x, true);
    ASSERT_EQ(api::dft(a.get(), 0), 0);
    ASSERT_EQ(api::dft(b.get(), 2), 0);
    std::vector<T> scaled = a.scalars();
    for (T& s : scaled) s *= T(12);
    EXPECT_TRUE(near_all(b.scalars(), scaled, tol<T>(64)));

    const std::vector<T> y = random_pairs<T>(16, 9);
    Owned<T> c(y, true), d(y, true);
    ASSERT_EQ(api::dft(c.get(), 1), 0);
    ASSERT_EQ(api::dft(d.get(), -3), 0);
    EXPECT_EQ(c.scalars(), d.scalars());
}

template <class T> int frees = 0;
template <class T> void ZF_CDECL count_free(Vec<T>* v) {
    ++frees<T>;
    std::free(v->data);
}

// The chirp state serves one length: the other direction of the same length is
// derived from it exactly, another length or a release rebuilds it.
TYPED_TEST(DftTest, ChirpStateIsReusedAcrossDirectionsAndRebuiltAfterRelease) {
    using T = TypeParam;
    const std::vector<T> x = random_pairs<T>(100, 21);
    Owned<T> first(x, true), inv(x, true), again(x, true), pow2(random_pairs<T>(64, 1), true);
    Owned<T> other(random_pairs<T>(101, 2), true), after(random_pairs<T>(101, 2), true);
    Owned<T> d(random_scalars<T>(8, 4));  // a power of two: no chirp of its own
    ASSERT_EQ(api::dft(first.get(), 0), 0);
    const int builds = zf::chirp_builds<T>();
    ASSERT_EQ(api::dft(inv.get(), 1), 0);
    ASSERT_EQ(api::dft(again.get(), 0), 0);
    ASSERT_EQ(api::dft(pow2.get(), 0), 0);  // the FFT needs no chirp
    EXPECT_EQ(zf::chirp_builds<T>(), builds);
    EXPECT_EQ(again.scalars(), first.scalars());  // switching direction is exact
    ASSERT_EQ(api::dft(other.get(), 0), 0);
    EXPECT_EQ(zf::chirp_builds<T>(), builds + 1);

    // The release goes through the free hook (chirp, filter, DCT staging).
    ASSERT_EQ(api::dct(d.get(), 0), 0);
    frees<T> = 0;
    api::lib_free(&count_free<T>, nullptr);
    const int released = api::free_internal<Vec<T>>();
    api::lib_free(decltype(&count_free<T>)(nullptr), nullptr);
    ASSERT_EQ(released, 0);
    EXPECT_GE(frees<T>, 3);
    ASSERT_EQ(api::dft(after.get(), 0), 0);
    EXPECT_EQ(zf::chirp_builds<T>(), builds + 2);
    EXPECT_EQ(after.scalars(), other.scalars());
}

// odd < 0 calls recon; a two-point spectrum is too short to mirror evenly.
TYPED_TEST(DftTest, OreconMirrorsTheSpectrum) {
    using T = TypeParam;
    const std::vector<T> bins = {1, 0, 2, 3, 4, 5, 6, 7, 8, 0};
    const struct {
        std::vector<T> in;
        bool complex;
        int odd;
        std::vector<T> want;
    } cases[] = {{bins, true, -1, {1, 0, 2, 3, 4, 5, 6, 7, 8, 0, 6, -7, 4, -5, 2, -3}},
                 {bins, true, 1, {1, 0, 2, 3, 4, 5, 6, 7, 8, 0, 8, 0, 6, -7, 4, -5, 2, -3}},
                 {{1, 2, 3}, false, 1, {1, 2, 3, 3, 2}},
                 {{1, 2, 3, 4}, true, 0, {1, 2, 3, 4}},
                 {{1, 2, 3, 4}, true, 1, {1, 2, 3, 4, 3, -4}}};
    for (const auto& c : cases) {
        Owned<T> v(c.in, c.complex);
        ASSERT_EQ(c.odd < 0 ? api::recon(v.get()) : api::orecon(v.get(), c.odd), 0);
        EXPECT_EQ(v.scalars(), c.want) << c.in.size() << " odd=" << c.odd;
    }
}

// Fewer than two points change only the spacing; bad records are refused.
TYPED_TEST(DftTest, ShortAndBadRecords) {
    using T = TypeParam;
    Owned<T> one(std::vector<T>{T(3)}, false, T(4)), empty;
    ASSERT_EQ(api::dft(one.get(), 0), 0);
    EXPECT_FALSE(one->complex);
    EXPECT_EQ(one.scalars(), std::vector<T>{T(3)});
    EXPECT_EQ(one->delta, T(0.25));
    empty->delta = T(0);
    ASSERT_EQ(api::dft(empty.get(), 1), 0);
    EXPECT_EQ(empty->delta, Traits<T>::huge);
    EXPECT_EQ(empty->points, 0);
    for (auto f : {+[](Vec<T>* v) { return api::dft(v, 0); }, api::rdft, +[](Vec<T>* v) { return api::irdft(v, 1); },
                   +[](Vec<T>* v) { return api::orecon(v, 0); }, api::recon})
        expect_refuses_unreadable<T>(f);
    Owned<T> c(random_pairs<T>(6, 1), true);
    EXPECT_EQ(api::rdft(c.get()), -1);  // complex input
}

}  // namespace
