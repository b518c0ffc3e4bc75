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

// Storage never shrinks; growth keeps the raw scalars, and storage the library
// allocates itself starts on a 64-byte boundary (where the C library offers
// free()-compatible aligned blocks), also after growth.
TYPED_TEST(VectorTest, StorageGrowsOnlyAlignedAndKeepsRawScalars) {
    using T = TypeParam;
#if defined(_WIN32)
    auto aligned = [](const void*) { return true; };
#else
    auto aligned = [](const void* p) { return reinterpret_cast<std::uintptr_t>(p) % 64 == 0; };
#endif
    Owned<T> o;
    EXPECT_EQ(api::alloc(o.get()), 0);
    EXPECT_EQ(o.v.data, nullptr);   // zero scalars need no storage
    o.v.points = 5, o.v.complex = 1;
    ASSERT_EQ(api::alloc(o.get()), 0);
    T* block = o.v.data;
    EXPECT_TRUE(aligned(block));
    o.v.points = 3, o.v.complex = 0;
    ASSERT_EQ(api::alloc(o.get()), 0);
    EXPECT_EQ(std::tuple(o.v.alloc, o.v.data), std::tuple(10, block));
    // Growth from nothing up to blocks the C library maps on their own.
    Owned<T> v;
    for (int n : {1, 3, 100, 1000, 70000, 300000}) {
        const int old = v.v.points;
        v.v.points = n;
        ASSERT_EQ(api::realloc(v.get(), old, 0), 0);
        EXPECT_TRUE(aligned(v.v.data)) << n;
        for (int i = old; i < n; ++i) v.v.data[i] = static_cast<T>(i % 251);
        for (int i = 0; i < n; ++i) ASSERT_EQ(v.v.data[i], static_cast<T>(i % 251)) << n;
    }
}

TYPED_TEST(VectorTest, BorrowedStorageIsCopiedOnGrowthAndNeverFreed) {
    using T = TypeParam;
    T caller[4] = {1, 2, 3, 4}, big[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    Vec<T> v = borrow(caller, 6);
    ASSERT_EQ(api::realloc(&v, 4, 0), 0);
    EXPECT_EQ(std::tuple(v.data != caller, v.alloc, first(v, 4)), std::tuple(true, 6, std::vector<T>{1, 2, 3, 4}));
    api::destroy(&v);
    v = borrow(big, 2);   // a smaller shape copies only what it holds
    ASSERT_EQ(api::realloc(&v, 8, 0), 0);
    EXPECT_EQ(first(v, 2), (std::vector<T>{1, 2}));
    api::destroy(&v);
    v = borrow(caller, 4);
    EXPECT_EQ(api::destroy(&v), 0);
    EXPECT_EQ(std::tuple(v.data, caller[3]), std::tuple(nullptr, T(4)));
}

// Append mixes the forms (old real samples get imaginary 0) and keeps the
// destination's spacing; subvec takes the source's shape with counts and
// starts clamped to it (copy and copy_at_most go through it). The type field
// is never touched, and each works within one record, also one over the
// caller's array.
TYPED_TEST(VectorTest, AppendCopyAndSubvec) {
    using T = TypeParam;
    using V = std::vector<T>;
    enum Op { append, copy, at_most, sub };
    struct Case { Op op; V a; bool ac; V b; bool bc; int start, n; V want; };
    const V six{1, 2, 3, 4, 5, 6};
    const Case cases[] = {{append, {1, 2}, false, {3}, false, 0, 0, {1, 2, 3}},
                          {append, {1, 2}, false, {3, 4}, true, 0, 0, {1, 0, 2, 0, 3, 4}},
                          {append, {1, 2}, true, {5, 6}, false, 0, 0, {1, 2, 5, 0, 6, 0}},
                          {copy, {9}, false, six, true, 0, 0, six},
                          {at_most, {9}, false, six, true, 0, 2, {1, 2, 3, 4}},
                          {sub, {9}, false, six, true, 0, -2, {}},
                          {sub, {9}, false, six, true, -4, 2, {1, 2, 3, 4}},
                          {sub, {9}, false, six, true, 9, 2, {}},
                          {sub, {9}, false, six, true, 2, 5, {5, 6}}};
    for (const Case& c : cases) {
        Owned<T> a(c.a, c.ac, T(0.5)), b(c.b, c.bc, T(0.25));
        a.v.type = 7;
        ASSERT_EQ(c.op == append ? api::append(a.get(), b.get()) : c.op == copy ? api::copy(a.get(), b.get())
                  : c.op == at_most ? api::copy_at_most(a.get(), b.get(), c.n) : api::subvec(b.get(), a.get(), c.start, c.n), 0);
        EXPECT_EQ(std::tuple(a.scalars(), a.v.complex, a.v.delta, a.v.type), std::tuple(c.want, int(c.ac || c.bc), c.op == append ? T(0.5) : T(0.25), 7))
            << "case " << &c - cases;
    }
    Owned<T> self(six, true), eight({0, 1, 2, 3, 4, 5, 6, 7});
    ASSERT_EQ(api::append(self.get(), self.get()), 0);
    EXPECT_EQ(self.scalars(), (V{1, 2, 3, 4, 5, 6, 1, 2, 3, 4, 5, 6}));
    ASSERT_EQ(api::subvec(eight.get(), eight.get(), 3, 4), 0);
    EXPECT_EQ(std::tuple(eight.scalars(), eight.v.alloc), std::tuple(V{3, 4, 5, 6}, 8));
    T caller[5] = {9, 8, 7, 6, 5};
    Vec<T> w = borrow(caller, 5);
    ASSERT_EQ(api::subvec(&w, &w, 1, 3), 0);
    EXPECT_EQ(std::tuple(first(w, 3), caller[0]), std::tuple(V{8, 7, 6}, T(9)));
    api::destroy(&w);
}

TYPED_TEST(VectorTest, CompareOrdersBySpacingThenScalarsWithStrictTolerance) {
    using T = TypeParam;
    Owned<T> a({1, 2, 3}), b({1, 2, 3}), c({1, 2}), z({1, T(0.01), 2, T(-0.01), 3, 0}, true);
    int r = 99;   // left unset when the lengths differ
    EXPECT_EQ(api::cmp(a.get(), c.get(), T(0), &r), -1);
    EXPECT_EQ(r, 99);
    const auto order = [](Owned<T>& x, Owned<T>& y, T tolerance) {
        int out = 99;
        EXPECT_EQ(api::cmp(x.get(), y.get(), tolerance, &out), 0);
        return out;
    };
    EXPECT_EQ(order(a, b, T(0)), 0);
    b.v.delta = T(2);
    EXPECT_EQ(std::tuple(order(a, b, T(0.5)), order(b, a, T(0.5))), std::tuple(-1, 1));
    b.v.delta = T(1);
    b.v.data[1] = T(2.5);
    // A difference equal to the tolerance counts as equal; the real side counts
    // as imaginary 0, so the first differing scalar is z's imaginary 0.01.
    EXPECT_EQ(std::tuple(order(a, b, T(0.5)), order(a, b, T(0.25)), order(a, z, T(0.02)), order(z, a, T(0.001))), std::tuple(0, -1, 0, 1));
}

// Init sets every field whatever was there; the hooks see every block but none
// of an empty record. A failing allocation leaves an empty record and leaks
// nothing; a shape whose scalars cannot be counted in 32 bits fails, and the
// storage the record owned goes back through the free hook, as destroy would.
TYPED_TEST(VectorTest, HooksSeeEveryBlockAndFailuresLeakNothing) {
    using T = TypeParam;
    using H = CountingHooks<T>;
    {
        typename H::Installed hooks;
        Vec<T> e;
        std::memset(&e, 0x5a, sizeof e);
        EXPECT_EQ(api::init(&e), 0);
        EXPECT_EQ(std::tuple(e.points, e.complex, e.delta, e.data, e.alloc, e.type), std::tuple(0, 0, T(1), nullptr, 0, 0));
        EXPECT_EQ(api::destroy(&e), 0);
        decltype(&H::alloc) prev = nullptr;
        EXPECT_EQ(api::lib_alloc(&H::alloc, &prev), 0);
        EXPECT_EQ(std::tuple(e.delta, H::frees, prev), std::tuple(T(1), 0, &H::alloc));
        Owned<T> a({1, 2, 3}), b;
        ASSERT_EQ(api::append(a.get(), a.get()), 0);
        ASSERT_EQ(api::copy(b.get(), a.get()), 0);
        EXPECT_EQ(std::tuple(H::allocs, H::reallocs, H::live), std::tuple(2, 1, 2L));
    }
    EXPECT_EQ(std::tuple(H::frees, H::live), std::tuple(2, 0L));
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
    typename H::Installed hooks;
    Owned<T> v({1, 2, 3});
    v.v.points = INT_MAX;
    v.v.complex = 1;
    EXPECT_EQ(api::alloc(v.get()), -1);
    EXPECT_EQ(std::tuple(v.v.data, v.v.alloc, H::frees, H::live), std::tuple(nullptr, 0, 1, 0L));
}

TEST(Library, VersionInitFloatingPointControlAndRefusedArguments) {
    // The floating-point control functions are stubs: nothing to set, a status word of 0.
    set_runfast();
    EXPECT_EQ(std::tuple(dsp_version(), dspf_version(), dsp_lib_init(), dspf_lib_init(), set_fpscr(0x00C00000), get_fpscr()),
              std::tuple(205, 205, 0, 0, 0, 0));
    Owned<float> a({1, 2}), b;
    EXPECT_EQ(dspfu_tof(a.get(), a.get()), -1);   // the float copy refuses one record as both
    ASSERT_EQ(dspfu_tof(a.get(), b.get()), 0);
    EXPECT_EQ(b.scalars(), (std::vector<float>{1, 2}));
    dsp_vector v = borrow<double>(nullptr, 0), out = v;
    int r;
    EXPECT_EQ(dsp_copy(nullptr, &v) + dsp_copy(&v, nullptr) + dsp_append(&v, nullptr) + dsp_cmp(&v, &v, 0.0, nullptr) +
              dsp_cmp(nullptr, &v, 0.0, &r) + dspf_alloc(nullptr) + dspf_init(nullptr) + dsp_destroy(nullptr), -8);
    v.points = 3;   // samples but no data
    EXPECT_EQ(dsp_copy(&out, &v), -1);
}

namespace {
std::vector<int> released;
template <int id, int status> int release() noexcept { return released.push_back(id), status; }
}  // namespace

// The registry walks caches in their fixed order and stops at the first
// failure; each precision has its own.
TEST(Library, FreeInternalWalksCachesInOrderAndStopsAtFailure) {
    EXPECT_EQ(dsp_free_internal() + dspf_free_internal(), 0);
    using zf::CacheSlot;
    zf::register_cache<float>(CacheSlot::window, release<3, 0>);
    zf::register_cache<float>(CacheSlot::fir_scratch, release<1, 0>);
    zf::register_cache<float>(CacheSlot::sfir_scratch, release<2, -1>);
    EXPECT_EQ(dspf_free_internal(), -1);
    EXPECT_EQ(released, (std::vector<int>{1, 2}));   // the window cache comes later
    released.clear();
    EXPECT_EQ(dsp_free_internal(), 0);   // while they are registered: the double registry holds none of them
    EXPECT_TRUE(released.empty());
    for (CacheSlot s : {CacheSlot::window, CacheSlot::fir_scratch, CacheSlot::sfir_scratch}) zf::register_cache<float>(s, nullptr);
}
