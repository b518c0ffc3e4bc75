#include "support/vectors.hpp"

#include "support/api_dft.hpp"
#include "support/dft_ref.hpp"
#include "support/records.hpp"
#include "transform/dft.hpp"

using namespace zt;

namespace {

template <class T> class DftTest : public ::testing::Test {};
TYPED_TEST_SUITE(DftTest, Precisions);

// Chirp-z lengths (11; 17, 33 and 4097 = 2^12 + 1 have 2N - 2 exactly a power
// of two, the tightest convolution length), power-of-two lengths and lengths
// with no prime factor above 7, whose passes combine radices 2 to 8; a
// direction other than 0 and 1 gives the forward sum without 1/N, or the
// inverse at a power-of-two length (the FFT's rule).
TYPED_TEST(DftTest, MatchesDirectDftInEveryDirection) {
    using T = TypeParam;
    for (int n : {11, 17, 33, 4097, 2, 8, 64, 1024, 3, 5, 6, 7, 9, 10, 12, 15, 30, 45, 49, 60, 81, 100, 125, 210, 243, 1000, 1536, 3000})
        for (int dir : {0, 1, 2, -5}) {
            const auto x = random_scalars<T>(2 * n, 7 + n);
            Owned<T> v(x, true, T(0.5));
            ASSERT_EQ(api::dft(v.get(), dir), 0);
            EXPECT_EQ(std::tuple(v->points, v->complex), std::tuple(n, 1));
            const int sign = dir == 1 || (dir && !(n & (n - 1))) ? 1 : -1;
            const auto want = ref::dft(ref::from_pairs(x), sign, dir ? 1 : 1.0L / n);
            EXPECT_LE(ref::rms_rel_error(ref::from_pairs(v.scalars()), want), ref::dft_bound<T>(n)) << n << " direction " << dir;
            EXPECT_NEAR(v->delta, 2.0 / n, 2.0 / n * tol<T>());
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
        ASSERT_EQ(api::dft(c.get(), 0) | api::dft(r.get(), 0) | api::rdft(rd.get()), 0);
        EXPECT_EQ(std::tuple(r.scalars(), r->complex, r->delta), std::tuple(c.scalars(), 1, c->delta));
        ASSERT_EQ(std::tuple(rd->points, rd->complex, rd->delta), std::tuple(n / 2 + 1, 1, c->delta));
        std::vector<T> half = c.scalars();
        half.resize(2 * (n / 2 + 1));
        EXPECT_TRUE(near_all(rd.scalars(), half, tol<T>(8)));
        ASSERT_EQ(api::irdft(rd.get(), n % 2), 0);
        ASSERT_EQ(std::tuple(rd->points, rd->complex), std::tuple(n, 0));
        EXPECT_LE(ref::rms_rel_error(ref::from_reals(rd.scalars()), ref::from_reals(x)), 2 * ref::dft_bound<T>(n));
        EXPECT_NEAR(rd->delta, 2.0, 2.0 * tol<T>());
    }
}

// The chirp state serves one length: the other direction of the same length is
// derived from it exactly, another length or a release rebuilds it. The release
// goes through the free hook (chirp, filter, DCT staging).
TYPED_TEST(DftTest, ChirpStateIsReusedAcrossDirectionsAndRebuiltAfterRelease) {
    using T = TypeParam;
    const std::vector<T> x = random_scalars<T>(212, 21), y = random_scalars<T>(202, 2);
    Owned<T> first(x, true), inv(x, true), inv2(x, true), again(x, true), pow2(random_scalars<T>(128, 1), true), other(y, true), after(y, true);
    Owned<T> d(random_scalars<T>(8, 4));  // a power of two: no chirp of its own
    ASSERT_EQ(api::dft(first.get(), 0), 0);
    const int builds = zf::chirp_builds<T>();
    ASSERT_EQ(api::dft(inv.get(), 1) | api::dft(inv2.get(), 1) | api::dft(again.get(), 0) | api::dft(pow2.get(), 0), 0);  // the FFT needs no chirp
    EXPECT_EQ(zf::chirp_builds<T>(), builds);
    // switching direction is exact, keeping it changes nothing
    EXPECT_EQ(std::tuple(again.scalars(), inv2.scalars()), std::tuple(first.scalars(), inv.scalars()));
    ASSERT_EQ(api::dft(other.get(), 0), 0);
    EXPECT_EQ(zf::chirp_builds<T>(), builds + 1);
    ASSERT_EQ(api::dct(d.get(), 0), 0);
    {
        typename CountingHooks<T>::Installed hooks;
        ASSERT_EQ(api::free_internal<Vec<T>>(), 0);
    }
    EXPECT_GE(CountingHooks<T>::frees, 3);
    ASSERT_EQ(api::dft(after.get(), 0), 0);
    EXPECT_EQ(zf::chirp_builds<T>(), builds + 2);
    EXPECT_EQ(after.scalars(), other.scalars());
}

// The conjugate mirror of complex bins is what irdft rests on (checked there,
// odd and even); real bins are mirrored as they are, and a two-point spectrum
// is too short to mirror evenly.
TYPED_TEST(DftTest, OreconMirrorsRealBinsAndLeavesShortSpectra) {
    using T = TypeParam;
    const struct { std::vector<T> in; bool complex; std::vector<T> want; } cases[] = {
        {{1, 2, 3}, false, {1, 2, 3, 3, 2}}, {{1, 2, 3, 4}, true, {1, 2, 3, 4}}};
    for (const auto& c : cases) {
        Owned<T> v(c.in, c.complex);
        ASSERT_EQ(api::orecon(v.get(), c.complex ? 0 : 1), 0);
        EXPECT_EQ(v.scalars(), c.want) << c.in.size();
    }
}

// Against the direct DFT with the bins turned by ∓90° (Hilbert: DC and the
// Nyquist bin of an even length cleared) or one-sided (analytic: positive
// bins doubled, DC and Nyquist kept once), for real and complex input. The
// Hilbert transform of a real vector stays real, the analytic signal is
// complex; both keep the spacing.
TYPED_TEST(DftTest, HilbertAndAnalyticMatchTheTurnedAndOneSidedSpectra) {
    using T = TypeParam;
    for (int n : {9, 10, 11, 12, 15, 16, 32, 64, 1000})
        for (int cx = 0; cx < 2; ++cx) {
            SCOPED_TRACE(::testing::Message() << "n=" << n << " complex=" << cx);
            const std::vector<T> x = random_scalars<T>((1 + cx) * n, 80 + n);
            auto H = ref::forward(samples(x, cx)), Z = H;
            for (int k = 0; k < n; ++k) {
                const int side = k == 0 || 2 * k == n ? 0 : 2 * k < n ? 1 : -1;
                H[k] *= ref::cld(0, -side);
                Z[k] *= static_cast<long double>(1 + side);
            }
            for (int op = 0; op < 2; ++op) {
                Owned<T> v(x, cx, T(0.1));
                ASSERT_EQ(op ? api::analytic(v.get()) : api::hilbert(v.get()), 0);
                EXPECT_EQ(std::tuple(v->points, v->complex), std::tuple(n, int(op || cx)));
                EXPECT_NEAR(v->delta, 0.1, 0.1 * tol<T>());
                EXPECT_LE(ref::rms_rel_error(samples(v.scalars(), op || cx), ref::inverse(op ? Z : H)), 2 * ref::dft_bound<T>(n)) << op;
            }
        }
}

// The DCT at odd, even, power-of-two and chirp-z lengths, and more than 256
// twiddles; plain and orthonormal scaling. The inverse restores the input and spacing.
TYPED_TEST(DftTest, DctMatchesDirectDctAndInverseUndoesIt) {
    using T = TypeParam;
    for (int n : {1, 2, 3, 5, 8, 12, 100, 257, 1024, 1500})
        for (int flags : {0, 2}) {
            SCOPED_TRACE(::testing::Message() << "n=" << n << " flags=" << flags);
            const std::vector<T> x = random_scalars<T>(n, 40 + n);
            Owned<T> v(x, false, T(0.5));
            ASSERT_EQ(api::dct(v.get(), flags), 0);
            ASSERT_EQ(std::tuple(v->points, v->complex), std::tuple(n, 0));
            EXPECT_LE(ref::rms_rel_error(ref::from_reals(v.scalars()), ref::dct(x, flags == 2)), ref::dft_bound<T>(n));
            EXPECT_NEAR(v->delta, 1.0 / n, tol<T>() / n);  // 1/(2N·0.5)
            ASSERT_EQ(api::dct(v.get(), flags | 1), 0);
            ASSERT_EQ(std::tuple(v->points, v->complex), std::tuple(n, 0));
            EXPECT_LE(ref::rms_rel_error(ref::from_reals(v.scalars()), ref::from_reals(x)), 2 * ref::dft_bound<T>(n));
            EXPECT_NEAR(v->delta, 0.5, 0.5 * tol<T>());
        }
}

// Fewer than two points change only the spacing (the DCT of nothing takes
// 1/(2N·delta) with N = 1, and a spacing of 0 becomes huge). One sample has no
// frequency but DC: its Hilbert transform is 0, its analytic signal the
// sample. Unreadable records are refused; rdft and the DCT refuse complex input.
TYPED_TEST(DftTest, ShortAndBadRecords) {
    using T = TypeParam;
    Owned<T> one(std::vector<T>{T(3)}, false, T(4)), empty, nothing, h(std::vector<T>{T(2.5)}), a(std::vector<T>{T(2.5)});
    Owned<T> c(random_scalars<T>(12, 1), true);
    empty->delta = T(0), nothing->delta = T(4);
    ASSERT_EQ(api::dft(one.get(), 0) | api::hilbert(nothing.get()) | api::analytic(nothing.get()), 0);
    EXPECT_EQ(std::tuple(one.scalars(), one->complex, one->delta), std::tuple(std::vector<T>{T(3)}, 0, T(0.25)));
    ASSERT_EQ(api::dct(nothing.get(), 0) | api::dct(empty.get(), 0) | api::hilbert(h.get()) | api::analytic(a.get()), 0);
    EXPECT_EQ(std::tuple(nothing->points, nothing->delta, empty->delta), std::tuple(0, T(0.125), Traits<T>::huge));
    EXPECT_EQ(std::tuple(h.scalars(), a.scalars()), std::tuple(std::vector<T>{T(0)}, std::vector<T>{T(2.5), T(0)}));
    for (auto f : {+[](Vec<T>* v) { return api::dft(v, 0); }, api::rdft, +[](Vec<T>* v) { return api::irdft(v, 1); },
                   +[](Vec<T>* v) { return api::orecon(v, 0); }, api::recon, api::hilbert, api::analytic, +[](Vec<T>* v) { return api::dct(v, 0); }})
        expect_refuses_unreadable<T>(f);
    EXPECT_EQ(api::rdft(c.get()) + api::dct(c.get(), 0) + api::dct(c.get(), 1), -3);
    // Every failed allocation of the chirp state (11 points) reports -1 and leaves the record as it was;
    // where the record's own growth fails, its storage is gone as after any failed growth.
    const auto x = random_scalars<T>(22, 9);
    int fail = 1;
    for (int r = -1; r != 0 && fail < 20; ++fail) {
        ASSERT_EQ(api::free_internal<Vec<T>>(), 0);
        Owned<T> p(x, true);
        typename CountingHooks<T>::Installed hooks(fail);
        r = api::dft(p.get(), 0);
        if (r != 0) EXPECT_TRUE(r == -1 && (p->data ? p.scalars() == x : p->alloc == 0)) << fail;
    }
    EXPECT_GT(fail, 2);
}

}  // namespace
