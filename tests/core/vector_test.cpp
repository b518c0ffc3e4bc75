#include "support/vectors.hpp"

#include <climits>

#include "core/cache.hpp"
#include "support/records.hpp"

using namespace zt;

template <class T> class VectorTest : public ::testing::Test {};
TYPED_TEST_SUITE(VectorTest, Precisions);

namespace {
// The first n scalars of a record.
template <class V> auto first(const V& v, int n) { return std::vector(v.data, v.data + n); }
}  // namespace

TYPED_TEST(VectorTest, AllocGrowsOnlyAndReallocKeepsRawScalars) {
    using T = TypeParam;
    Owned<T> o;
    EXPECT_EQ(api::alloc(o.get()), 0);
    EXPECT_EQ(o.v.data, nullptr);   // zero scalars need no storage
    o.v.points = 5; o.v.complex = 1;
    ASSERT_EQ(api::alloc(o.get()), 0);
    EXPECT_EQ(o.v.alloc, 10);
    T* block = o.v.data;
    o.v.points = 3; o.v.complex = 0;
    ASSERT_EQ(api::alloc(o.get()), 0);
    EXPECT_EQ(o.v.alloc, 10);       // never shrinks
    EXPECT_EQ(o.v.data, block);

    Owned<T> r({1, 2, 3});
    r.v.complex = 1;
    ASSERT_EQ(api::realloc(r.get(), 3, 0), 0);
    EXPECT_GE(r.v.alloc, 6);
    EXPECT_EQ(first(r.v, 3), (std::vector<T>{1, 2, 3}));
}

TYPED_TEST(VectorTest, BorrowedStorageIsCopiedOnGrowthAndNeverFreed) {
    using T = TypeParam;
    T caller[4] = {1, 2, 3, 4}, big[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    Vec<T> v = borrow(caller, 6);
    ASSERT_EQ(api::realloc(&v, 4, 0), 0);
    EXPECT_NE(v.data, caller);
    EXPECT_EQ(v.alloc, 6);
    EXPECT_EQ(first(v, 4), (std::vector<T>{1, 2, 3, 4}));
    api::destroy(&v);
    v = borrow(big, 2);   // a smaller shape copies only what it holds
    ASSERT_EQ(api::realloc(&v, 8, 0), 0);
    EXPECT_EQ(first(v, 2), (std::vector<T>{1, 2}));
    api::destroy(&v);
    v = borrow(caller, 4);
    EXPECT_EQ(api::destroy(&v), 0);
    EXPECT_EQ(v.data, nullptr);
    EXPECT_EQ(caller[3], T(4));
}

TYPED_TEST(VectorTest, AppendCoversEveryCombinationOfForms) {
    using T = TypeParam;
    struct Case { std::vector<T> a; bool ac; std::vector<T> b; bool bc; std::vector<T> want; };
    const Case cases[] = {{{1, 2}, false, {3}, false, {1, 2, 3}},
                          {{1, 2}, false, {3, 4}, true, {1, 0, 2, 0, 3, 4}},   // old samples get imaginary 0
                          {{1, 2}, true, {5, 6}, false, {1, 2, 5, 0, 6, 0}},
                          {{1, 2}, true, {3, 4, 5, 6}, true, {1, 2, 3, 4, 5, 6}}};
    for (const Case& c : cases) {
        Owned<T> a(c.a, c.ac, T(0.5)), b(c.b, c.bc);
        a.v.type = 7;
        ASSERT_EQ(api::append(a.get(), b.get()), 0);
        EXPECT_EQ(std::tuple(a.scalars(), a.v.complex, a.v.delta, a.v.type), std::tuple(c.want, c.ac || c.bc ? 1 : 0, T(0.5), 7));
    }
    Owned<T> self({1, 2, 3, 4, 5, 6}, true);
    ASSERT_EQ(api::append(self.get(), self.get()), 0);
    EXPECT_EQ(self.scalars(), (std::vector<T>{1, 2, 3, 4, 5, 6, 1, 2, 3, 4, 5, 6}));
}

TYPED_TEST(VectorTest, CopyAndSubvecClampAndMoveWithinOneRecord) {
    using T = TypeParam;
    Owned<T> src({1, 2, 3, 4, 5, 6}, true, T(0.25)), dst;
    ASSERT_EQ(api::copy(dst.get(), src.get()), 0);
    EXPECT_EQ(dst.scalars(), src.scalars());
    EXPECT_EQ(dst.v.delta, T(0.25));
    for (auto [n, points] : {std::pair{100, 3}, std::pair{2, 2}, std::pair{-2, 0}}) {
        ASSERT_EQ(api::copy_at_most(dst.get(), src.get(), n), 0);
        EXPECT_EQ(dst.scalars(), first(src.v, 2 * points));
    }
    struct Cut { int start, n; std::vector<T> want; };
    for (const Cut& c : {Cut{-4, 2, {1, 2, 3, 4}}, Cut{9, 2, {}}, Cut{2, 5, {5, 6}}}) {
        ASSERT_EQ(api::subvec(src.get(), dst.get(), c.start, c.n), 0);
        EXPECT_EQ(dst.scalars(), c.want);
    }
    Owned<T> self({0, 1, 2, 3, 4, 5, 6, 7});
    ASSERT_EQ(api::subvec(self.get(), self.get(), 3, 4), 0);
    EXPECT_EQ(self.scalars(), (std::vector<T>{3, 4, 5, 6}));
    EXPECT_EQ(self.v.alloc, 8);
    T caller[5] = {9, 8, 7, 6, 5};   // a record over the caller's array extracts into itself too
    Vec<T> w = borrow(caller, 5);
    ASSERT_EQ(api::subvec(&w, &w, 1, 3), 0);
    EXPECT_EQ(first(w, 3), (std::vector<T>{8, 7, 6}));
    EXPECT_EQ(caller[0], T(9));
    api::destroy(&w);
}

TYPED_TEST(VectorTest, CompareOrdersBySpacingThenScalarsWithStrictTolerance) {
    using T = TypeParam;
    Owned<T> a({1, 2, 3}), b({1, 2, 3}), c({1, 2}), z({1, T(0.01), 2, T(-0.01), 3, 0}, true);
    int r = 99;
    EXPECT_EQ(api::cmp(a.get(), c.get(), T(0), &r), -1);
    EXPECT_EQ(r, 99);   // left unset
    const auto order = [](Owned<T>& x, Owned<T>& y, T tolerance) {
        int out = 99;
        EXPECT_EQ(api::cmp(x.get(), y.get(), tolerance, &out), 0);
        return out;
    };
    EXPECT_EQ(order(a, b, T(0)), 0);
    b.v.delta = T(2);
    EXPECT_EQ(order(a, b, T(0.5)), -1);
    EXPECT_EQ(order(b, a, T(0.5)), 1);
    b.v.delta = T(1);
    b.v.data[1] = T(2.5);
    EXPECT_EQ(order(a, b, T(0.5)), 0);      // a difference equal to the tolerance counts as equal
    EXPECT_EQ(order(a, b, T(0.25)), -1);
    EXPECT_EQ(order(a, z, T(0.02)), 0);     // the real side counts as imaginary 0
    EXPECT_EQ(order(z, a, T(0.001)), 1);    // first differing scalar is z's imaginary 0.01
}

TYPED_TEST(VectorTest, HooksSeeEveryBlockButNoneOfAnEmptyRecord) {
    using T = TypeParam;
    using H = CountingHooks<T>;
    {
        typename H::Installed hooks;
        Vec<T> e;
        std::memset(&e, 0x5a, sizeof e);
        EXPECT_EQ(api::init(&e), 0);
        EXPECT_EQ(std::tuple(e.points, e.complex, e.delta, e.data, e.alloc, e.type), std::tuple(0, 0, T(1), nullptr, 0, 0));
        EXPECT_EQ(api::destroy(&e), 0);
        EXPECT_EQ(e.delta, T(1));
        EXPECT_EQ(H::frees, 0);
        decltype(&H::alloc) prev = nullptr;
        EXPECT_EQ(api::lib_alloc(&H::alloc, &prev), 0);
        EXPECT_EQ(prev, &H::alloc);
        Owned<T> a({1, 2, 3}), b;
        ASSERT_EQ(api::append(a.get(), a.get()), 0);
        ASSERT_EQ(api::copy(b.get(), a.get()), 0);
        EXPECT_EQ(std::tuple(H::allocs, H::reallocs, H::live), std::tuple(2, 1, 2L));
    }
    EXPECT_EQ(H::frees, 2);
    EXPECT_EQ(H::live, 0);
}

TYPED_TEST(VectorTest, FailingAllocationLeavesAnEmptyRecordAndLeaksNothing) {
    using T = TypeParam;
    using H = CountingHooks<T>;
    for (int fail = 1; fail <= 3; ++fail) {
        typename H::Installed hooks;
        Owned<T> a, b({1, 2, 3, 4}), c;
        H::calls = 0;
        H::fail_at = fail;   // fail the fail-th allocation from here on
        a.v.points = 3;
        EXPECT_EQ(api::alloc(a.get()), fail == 1 ? -1 : 0);
        EXPECT_EQ(api::append(b.get(), b.get()), fail == 2 ? -1 : 0);
        const int rc = api::copy(c.get(), b.get());
        if (fail != 2) EXPECT_EQ(rc, fail == 3 ? -1 : 0);
        Vec<T>& failed = fail == 1 ? a.v : fail == 2 ? b.v : c.v;
        EXPECT_EQ(std::tuple(failed.alloc, failed.data), std::tuple(0, nullptr));
    }
    EXPECT_EQ(H::live, 0);
    // A shape whose scalars cannot be counted in 32 bits fails; the storage the
    // record owned is released through the free hook, as destroy would release it.
    typename H::Installed hooks;
    Owned<T> v({1, 2, 3});
    ASSERT_EQ(H::live, 1);
    v.v.points = INT_MAX;
    v.v.complex = 1;
    EXPECT_EQ(api::alloc(v.get()), -1);
    EXPECT_EQ(std::tuple(v.v.data, v.v.alloc, H::frees, H::live), std::tuple(nullptr, 0, 1, 0L));
}

TEST(Library, VersionInitAndFloatingPointControl) {
    EXPECT_EQ(std::tuple(dsp_version(), dspf_version(), dsp_lib_init(), dspf_lib_init()), std::tuple(205, 205, 0, 0));
    EXPECT_EQ(get_fpscr(), 0);
    EXPECT_EQ(set_fpscr(0x00C00000), 0);
    set_runfast();
    EXPECT_EQ(get_fpscr(), 0);
}

TEST(Library, RefusedArguments) {
    Owned<float> a({1, 2}), b;
    EXPECT_EQ(dspfu_tof(a.get(), a.get()), -1);   // the float copy refuses one record as both
    ASSERT_EQ(dspfu_tof(a.get(), b.get()), 0);
    EXPECT_EQ(b.scalars(), (std::vector<float>{1, 2}));
    dsp_vector v = borrow<double>(nullptr, 0), out = v;
    int r;
    EXPECT_EQ(dsp_copy(nullptr, &v), -1);
    EXPECT_EQ(dsp_copy(&v, nullptr), -1);
    EXPECT_EQ(dsp_append(&v, nullptr), -1);
    EXPECT_EQ(dsp_cmp(&v, &v, 0.0, nullptr), -1);
    EXPECT_EQ(dsp_cmp(nullptr, &v, 0.0, &r), -1);
    EXPECT_EQ(dspf_alloc(nullptr), -1);
    v.points = 3;   // samples but no data
    EXPECT_EQ(dsp_copy(&out, &v), -1);
}

namespace {
std::vector<int> released;
int release_a() noexcept { released.push_back(1); return 0; }
int release_b() noexcept { released.push_back(2); return -1; }
int release_c() noexcept { released.push_back(3); return 0; }
}  // namespace

// The registry walks caches in their fixed order and stops at the first failure.
TEST(Library, FreeInternalWalksCachesInOrderAndStopsAtFailure) {
    EXPECT_EQ(dsp_free_internal(), 0);
    EXPECT_EQ(dspf_free_internal(), 0);
    using zf::CacheSlot;
    zf::register_cache<float>(CacheSlot::window, release_c);
    zf::register_cache<float>(CacheSlot::fir_scratch, release_a);
    zf::register_cache<float>(CacheSlot::sfir_scratch, release_a);
    EXPECT_EQ(dspf_free_internal(), 0);
    EXPECT_EQ(released, (std::vector<int>{1, 1, 3}));
    released.clear();
    zf::register_cache<float>(CacheSlot::sfir_scratch, release_b);
    EXPECT_EQ(dspf_free_internal(), -1);
    EXPECT_EQ(released, (std::vector<int>{1, 2}));
    for (CacheSlot s : {CacheSlot::window, CacheSlot::fir_scratch, CacheSlot::sfir_scratch})
        zf::register_cache<float>(s, nullptr);
    released.clear();
    EXPECT_EQ(dsp_free_internal(), 0);
    EXPECT_TRUE(released.empty());
}
