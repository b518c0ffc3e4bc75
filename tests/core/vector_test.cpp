#include "support/vectors.hpp"

#include <climits>
#include <cstdlib>

#include "core/cache.hpp"

using namespace zt;

template <class T> class VectorTest : public ::testing::Test {};
TYPED_TEST_SUITE(VectorTest, Precisions);

// Hooks that count their calls, allocate with malloc and fail on a chosen call.
template <class T> struct CountingHooks {
    static inline int allocs = 0, reallocs = 0, frees = 0, fail_at = 0, calls = 0;
    static inline long live = 0;
    static bool fail_now() { return ++calls == fail_at; }
    static void ZF_CDECL alloc(Vec<T>* v) {
        ++allocs;
        if (v->alloc > 0) { std::free(v->data); --live; }
        v->data = fail_now() ? nullptr : static_cast<T*>(std::malloc(zf::need<T>(*v) * sizeof(T)));
        if (v->data) ++live;
    }
    static void ZF_CDECL realloc(Vec<T>* v, int, int) {
        ++reallocs;
        if (fail_now()) {   // this allocator releases the old block itself on failure
            if (v->data) { std::free(v->data); --live; }
            v->data = nullptr;
            return;
        }
        const bool fresh = v->data == nullptr;
        v->data = static_cast<T*>(std::realloc(v->data, zf::need<T>(*v) * sizeof(T)));
        if (fresh && v->data) ++live;
    }
    static void ZF_CDECL free(Vec<T>* v) { ++frees; --live; std::free(v->data); }
    // Installs the hooks for the life of the object.
    struct Installed {
        Installed(int fail = 0) {
            allocs = reallocs = frees = calls = 0; live = 0; fail_at = fail;
            api::lib_alloc(&CountingHooks::alloc, nullptr);
            api::lib_realloc(&CountingHooks::realloc, nullptr);
            api::lib_free(&CountingHooks::free, nullptr);
        }
        ~Installed() {
            api::lib_alloc(decltype(&CountingHooks::alloc)(nullptr), nullptr);
            api::lib_realloc(decltype(&CountingHooks::realloc)(nullptr), nullptr);
            api::lib_free(decltype(&CountingHooks::free)(nullptr), nullptr);
        }
    };
};

TYPED_TEST(VectorTest, InitAndDestroyOfEmptyRecordCallNoHook) {
    using T = TypeParam;
    typename CountingHooks<T>::Installed hooks;
    Vec<T> v;
    std::memset(&v, 0x5a, sizeof v);
    EXPECT_EQ(api::init(&v), 0);
    EXPECT_EQ(v.delta, T(1));
    EXPECT_EQ(v.data, nullptr);
    EXPECT_EQ(v.alloc + v.points + v.complex + v.type, 0);
    EXPECT_EQ(api::destroy(&v), 0);
    EXPECT_EQ(CountingHooks<T>::frees, 0);
    EXPECT_EQ(v.delta, T(1));
}

TYPED_TEST(VectorTest, AllocGrowsOnlyAndKeepsStorageWhenLargeEnough) {
    using T = TypeParam;
    Owned<T> o;
    o.v.points = 0;
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
}

TYPED_TEST(VectorTest, BorrowedStorageIsCopiedOnGrowthAndNeverFreed) {
    using T = TypeParam;
    T caller[4] = {1, 2, 3, 4};
    Vec<T> v;
    api::init(&v);
    v.data = caller; v.points = 4;
    v.points = 6;
    ASSERT_EQ(api::realloc(&v, 4, 0), 0);
    EXPECT_NE(v.data, caller);
    EXPECT_EQ(v.alloc, 6);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(v.data[i], caller[i]);
    EXPECT_EQ(caller[3], T(4));
    api::destroy(&v);

    // Shrinking the shape of a borrowed block copies only what the new shape holds.
    T big[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    api::init(&v);
    v.data = big; v.points = 2;
    ASSERT_EQ(api::realloc(&v, 8, 0), 0);
    EXPECT_EQ(v.data[0], T(1));
    EXPECT_EQ(v.data[1], T(2));
    api::destroy(&v);

    // destroy leaves a borrowed block with its owner.
    api::init(&v);
    v.data = caller; v.points = 4;
    EXPECT_EQ(api::destroy(&v), 0);
    EXPECT_EQ(v.data, nullptr);
}

TYPED_TEST(VectorTest, ReallocToComplexDoublesCapacityAndKeepsRawScalars) {
    using T = TypeParam;
    Owned<T> o({1, 2, 3});
    o.v.complex = 1;
    ASSERT_EQ(api::realloc(o.get(), 3, 0), 0);
    EXPECT_GE(o.v.alloc, 6);
    EXPECT_EQ(o.v.data[0], T(1));
    EXPECT_EQ(o.v.data[1], T(2));
    EXPECT_EQ(o.v.data[2], T(3));
}

TYPED_TEST(VectorTest, AppendCoversEveryCombinationOfForms) {
    using T = TypeParam;
    {   // real + real
        Owned<T> a({1, 2}), b({3});
        a.v.delta = T(0.5); a.v.type = 7;
        ASSERT_EQ(api::append(a.get(), b.get()), 0);
        EXPECT_EQ(a.scalars(), (std::vector<T>{1, 2, 3}));
        EXPECT_EQ(a.v.delta, T(0.5));
        EXPECT_EQ(a.v.type, 7);
    }
    {   // complex onto real: the old samples get imaginary part 0
        Owned<T> a({1, 2}), b({3, 4}, true);
        ASSERT_EQ(api::append(a.get(), b.get()), 0);
        EXPECT_EQ(a.v.complex, 1);
        EXPECT_EQ(a.scalars(), (std::vector<T>{1, 0, 2, 0, 3, 4}));
    }
    {   // real onto complex
        Owned<T> a({1, 2}, true), b({5, 6});
        ASSERT_EQ(api::append(a.get(), b.get()), 0);
        EXPECT_EQ(a.scalars(), (std::vector<T>{1, 2, 5, 0, 6, 0}));
    }
    {   // complex onto complex, and a record onto itself
        Owned<T> a({1, 2}, true), b({3, 4, 5, 6}, true);
        ASSERT_EQ(api::append(a.get(), b.get()), 0);
        ASSERT_EQ(api::append(a.get(), a.get()), 0);
        EXPECT_EQ(a.scalars(), (std::vector<T>{1, 2, 3, 4, 5, 6, 1, 2, 3, 4, 5, 6}));
    }
}

TYPED_TEST(VectorTest, CopyAndSubvecClampAndMoveWithinOneRecord) {
    using T = TypeParam;
    Owned<T> src({1, 2, 3, 4, 5, 6}, true, T(0.25)), dst;
    ASSERT_EQ(api::copy(dst.get(), src.get()), 0);
    EXPECT_EQ(dst.scalars(), src.scalars());
    EXPECT_EQ(dst.v.delta, T(0.25));
    ASSERT_EQ(api::copy_at_most(dst.get(), src.get(), 100), 0);
    EXPECT_EQ(dst.v.points, 3);
    ASSERT_EQ(api::copy_at_most(dst.get(), src.get(), -2), 0);
    EXPECT_EQ(dst.v.points, 0);
    ASSERT_EQ(api::subvec(src.get(), dst.get(), -4, 2), 0);
    EXPECT_EQ(dst.scalars(), (std::vector<T>{1, 2, 3, 4}));
    ASSERT_EQ(api::subvec(src.get(), dst.get(), 9, 2), 0);
    EXPECT_EQ(dst.v.points, 0);
    ASSERT_EQ(api::subvec(src.get(), dst.get(), 2, 5), 0);
    EXPECT_EQ(dst.scalars(), (std::vector<T>{5, 6}));

    Owned<T> self({0, 1, 2, 3, 4, 5, 6, 7});
    ASSERT_EQ(api::subvec(self.get(), self.get(), 3, 4), 0);
    EXPECT_EQ(self.scalars(), (std::vector<T>{3, 4, 5, 6}));
    EXPECT_EQ(self.v.alloc, 8);

    // A record wrapping the caller's array extracts into itself safely too.
    T caller[5] = {9, 8, 7, 6, 5};
    Vec<T> w;
    api::init(&w);
    w.data = caller; w.points = 5;
    ASSERT_EQ(api::subvec(&w, &w, 1, 3), 0);
    EXPECT_EQ(std::vector<T>(w.data, w.data + 3), (std::vector<T>{8, 7, 6}));
    EXPECT_EQ(caller[0], T(9));
    api::destroy(&w);
}

TYPED_TEST(VectorTest, CompareOrdersBySpacingThenScalarsWithStrictTolerance) {
    using T = TypeParam;
    int r = 99;
    Owned<T> a({1, 2, 3}), b({1, 2, 3}), c({1, 2}), z({1, T(0.01), 2, T(-0.01), 3, 0}, true);
    EXPECT_EQ(api::cmp(a.get(), c.get(), T(0), &r), -1);
    EXPECT_EQ(r, 99);   // left unset
    ASSERT_EQ(api::cmp(a.get(), b.get(), T(0), &r), 0);
    EXPECT_EQ(r, 0);
    b.v.delta = T(2);
    ASSERT_EQ(api::cmp(a.get(), b.get(), T(0.5), &r), 0);
    EXPECT_EQ(r, -1);
    ASSERT_EQ(api::cmp(b.get(), a.get(), T(0.5), &r), 0);
    EXPECT_EQ(r, 1);
    b.v.delta = T(1);
    b.v.data[1] = T(2.5);
    ASSERT_EQ(api::cmp(a.get(), b.get(), T(0.5), &r), 0);
    EXPECT_EQ(r, 0);    // a difference equal to the tolerance counts as equal
    ASSERT_EQ(api::cmp(a.get(), b.get(), T(0.25), &r), 0);
    EXPECT_EQ(r, -1);
    ASSERT_EQ(api::cmp(a.get(), z.get(), T(0.02), &r), 0);
    EXPECT_EQ(r, 0);    // the real side counts as imaginary 0
    ASSERT_EQ(api::cmp(z.get(), a.get(), T(0.001), &r), 0);
    EXPECT_EQ(r, 1);    // first differing scalar is z's imaginary 0.01
}

TYPED_TEST(VectorTest, HooksSeeEveryBlockAndReportThePreviousHook) {
    using T = TypeParam;
    using H = CountingHooks<T>;
    {
        typename H::Installed hooks;
        decltype(&H::alloc) prev = nullptr;
        EXPECT_EQ(api::lib_alloc(&H::alloc, &prev), 0);
        EXPECT_EQ(prev, &H::alloc);
        Owned<T> a({1, 2, 3}), b;
        ASSERT_EQ(api::append(a.get(), a.get()), 0);
        ASSERT_EQ(api::copy(b.get(), a.get()), 0);
        EXPECT_EQ(H::allocs, 2);
        EXPECT_EQ(H::reallocs, 1);
        EXPECT_EQ(H::live, 2);
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
        const int ra = api::alloc(a.get());
        const int rb = api::append(b.get(), b.get());
        const int rc = api::copy(c.get(), b.get());
        EXPECT_EQ(ra, fail == 1 ? -1 : 0);
        EXPECT_EQ(rb, fail == 2 ? -1 : 0);
        if (fail == 1) { EXPECT_EQ(a.v.alloc, 0); EXPECT_EQ(a.v.data, nullptr); }
        if (fail == 2) { EXPECT_EQ(b.v.alloc, 0); EXPECT_EQ(b.v.data, nullptr); }
        if (fail == 3) { EXPECT_EQ(rc, -1); EXPECT_EQ(c.v.alloc, 0); }
    }
    EXPECT_EQ(H::live, 0);
}

// A shape whose scalars cannot be counted in 32 bits fails; the storage the
// record owned is released through the free hook, as destroy would release it.
TYPED_TEST(VectorTest, AllocBeyondCountableStorageReleasesThroughTheFreeHook) {
    using T = TypeParam;
    using H = CountingHooks<T>;
    typename H::Installed hooks;
    Owned<T> v({1, 2, 3});
    ASSERT_EQ(H::live, 1);
    v.v.points = INT_MAX;
    v.v.complex = 1;
    EXPECT_EQ(api::alloc(v.get()), -1);
    EXPECT_EQ(v.v.data, nullptr);
    EXPECT_EQ(v.v.alloc, 0);
    EXPECT_EQ(H::frees, 1);
    EXPECT_EQ(H::live, 0);
}

TEST(Library, VersionInitAndFloatingPointControl) {
    EXPECT_EQ(dsp_version(), 205);
    EXPECT_EQ(dspf_version(), 205);
    EXPECT_EQ(dsp_lib_init(), 0);
    EXPECT_EQ(dspf_lib_init(), 0);
    EXPECT_EQ(get_fpscr(), 0);
    EXPECT_EQ(set_fpscr(0x00C00000), 0);
    set_runfast();
    EXPECT_EQ(get_fpscr(), 0);
}

TEST(Library, FloatCopyRefusesTheSameRecord) {
    Owned<float> a({1, 2}), b;
    EXPECT_EQ(dspfu_tof(a.get(), a.get()), -1);
    ASSERT_EQ(dspfu_tof(a.get(), b.get()), 0);
    EXPECT_EQ(b.scalars(), (std::vector<float>{1, 2}));
}

TEST(Library, NullRecordsAreRefused) {
    dsp_vector v;
    dsp_init(&v);
    int r;
    EXPECT_EQ(dsp_copy(nullptr, &v), -1);
    EXPECT_EQ(dsp_copy(&v, nullptr), -1);
    EXPECT_EQ(dsp_append(&v, nullptr), -1);
    EXPECT_EQ(dsp_cmp(&v, &v, 0.0, nullptr), -1);
    EXPECT_EQ(dsp_cmp(nullptr, &v, 0.0, &r), -1);
    EXPECT_EQ(dspf_alloc(nullptr), -1);
    v.points = 3;   // samples but no data
    dsp_vector out;
    dsp_init(&out);
    EXPECT_EQ(dsp_copy(&out, &v), -1);
}

// The registry walks caches in their fixed order and stops at the first failure.
namespace {
std::vector<int> released;
int release_a() noexcept { released.push_back(1); return 0; }
int release_b() noexcept { released.push_back(2); return -1; }
int release_c() noexcept { released.push_back(3); return 0; }
}  // namespace

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
    zf::register_cache<float>(CacheSlot::window, nullptr);
    zf::register_cache<float>(CacheSlot::fir_scratch, nullptr);
    zf::register_cache<float>(CacheSlot::sfir_scratch, nullptr);
    released.clear();
    EXPECT_EQ(dsp_free_internal(), 0);
    EXPECT_TRUE(released.empty());
}
