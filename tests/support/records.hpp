// Helpers of the record tests: counting allocation hooks, a record over the
// caller's array, and the shape of a record as one comparable value.
#pragma once

#include <cstdlib>
#include <tuple>

#include "support/vectors.hpp"

namespace zt {

// Points, complex flag and spacing of a record.
template <class V> auto shape(const V& v) { return std::tuple(v.points, v.complex, v.delta); }

// A record over the caller's array.
template <class T> Vec<T> borrow(T* data, int points) {
    Vec<T> v;
    api::init(&v);
    v.data = data, v.points = points;
    return v;
}

// An operation on one record refuses records it cannot read: none, a negative
// count, samples without storage, owned storage too small for the shape.
template <class T> void expect_refuses_unreadable(int (*f)(Vec<T>*)) {
    T block[4] = {};
    Vec<T> negative{T(1), block, 4, -1, 0, 0}, no_data{T(1), nullptr, 0, 2, 0, 0}, too_small{T(1), block, 2, 2, 1, 0};
    EXPECT_EQ(f(static_cast<Vec<T>*>(nullptr)), -1);
    for (Vec<T>* v : {&negative, &no_data, &too_small}) EXPECT_EQ(f(v), -1);
}

// Hooks that count their calls, allocate with malloc and fail on a chosen call.
template <class T> struct CountingHooks {
    static inline int allocs = 0, reallocs = 0, frees = 0, fail_at = 0, calls = 0;
    static inline long live = 0;
    static bool fail_now() { return ++calls == fail_at; }
    static void ZF_CDECL alloc(Vec<T>* v) {
        ++allocs;
        if (v->alloc > 0) std::free(v->data), --live;
        v->data = fail_now() ? nullptr : static_cast<T*>(std::malloc(zf::need<T>(*v) * sizeof(T)));
        live += v->data != nullptr;
    }
    static void ZF_CDECL realloc(Vec<T>* v, int, int) {
        ++reallocs;
        T* old = v->data;
        v->data = fail_now() ? nullptr : static_cast<T*>(std::realloc(old, zf::need<T>(*v) * sizeof(T)));
        if (!v->data && old) { std::free(old); --live; }   // this allocator releases the old block on failure
        if (v->data && !old) ++live;
    }
    static void ZF_CDECL free(Vec<T>* v) { ++frees; --live; std::free(v->data); }
    static void install(bool on) {
        api::lib_alloc(on ? &alloc : nullptr, nullptr);
        api::lib_realloc(on ? &realloc : nullptr, nullptr);
        api::lib_free(on ? &free : nullptr, nullptr);
    }
    // Installs the hooks for the life of the object, failing the fail-th call.
    struct Installed {
        explicit Installed(int fail = 0) { allocs = reallocs = frees = calls = 0, live = 0, fail_at = fail, install(true); }
        ~Installed() { install(false); }
    };
};

}  // namespace zt
