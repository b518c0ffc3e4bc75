#include "core/vector.hpp"

#include <cstdlib>
#include <cstring>

namespace zf {
namespace {

// Storage from the standard allocator starts on a 64-byte boundary where the C
// library offers aligned blocks that free() releases, so that vector kernels
// (the FFT above all) never split their loads across cache lines. Every block
// stays releasable with free(), as callers' hooks may expect.
constexpr std::size_t kAlign = 64;

void* aligned_block(std::size_t bytes) noexcept {
#if defined(_WIN32)
    return std::malloc(bytes);
#else
    void* p = nullptr;
    return posix_memalign(&p, kAlign, bytes) == 0 ? p : nullptr;
#endif
}

// realloc that keeps the alignment: a grown block that lands off the boundary
// moves once more into an aligned one (growth is rare: storage never shrinks).
void* grow_block(void* old, std::size_t old_bytes, std::size_t bytes) noexcept {
    if (!old) return aligned_block(bytes);
    void* p = std::realloc(old, bytes);
#if !defined(_WIN32)
    if (p && reinterpret_cast<std::uintptr_t>(p) % kAlign != 0) {
        if (void* q = aligned_block(bytes)) {
            std::memcpy(q, p, old_bytes < bytes ? old_bytes : bytes);
            std::free(p);
            p = q;
        }
    }
#endif
    return p;
}

}  // namespace

template <class T> Hooks<T>& hooks() noexcept {
    static Hooks<T> slots{};  // plain function pointers: nothing to destroy
    return slots;
}

template <class T> int init(Vec<T>* v) noexcept {
    if (!v) return -1;
    v->delta = T(1);
    v->data = nullptr;
    v->alloc = 0;
    v->points = 0;
    v->complex = 0;
    v->type = 0;
    return 0;
}

template <class T> int destroy(Vec<T>* v) noexcept {
    if (!v) return -1;
    if (v->alloc > 0) {
        if (hooks<T>().free) hooks<T>().free(v);
        else std::free(v->data);
    }
    return init<T>(v);
}

template <class T> int alloc(Vec<T>* v) noexcept {
    if (!v) return -1;
    const std::int64_t n = need<T>(*v);
    if (n <= v->alloc) return 0;
    if (n > INT32_MAX) {  // the capacity is a 32-bit count of scalars
        if (v->alloc > 0) {  // released as destroy would: a hooked block goes back to its hook
            if (hooks<T>().free) hooks<T>().free(v);
            else std::free(v->data);
        }
        v->data = nullptr;
        v->alloc = 0;
        return -1;
    }
    if (hooks<T>().alloc) {
        hooks<T>().alloc(v);
    } else {
        if (v->alloc > 0) std::free(v->data);  // contents are not kept
        v->data = static_cast<T*>(aligned_block(static_cast<std::size_t>(n) * sizeof(T)));
    }
    if (!v->data) {
        v->alloc = 0;
        return -1;
    }
    v->alloc = static_cast<int>(n);
    return 0;
}

template <class T> int realloc(Vec<T>* v, int old_points, int old_complex) noexcept {
    if (!v) return -1;
    const std::int64_t n = need<T>(*v);
    if (n <= v->alloc) return 0;
    T* borrowed = nullptr;
    if (v->alloc < 1 && v->data) {  // storage the caller owns: never resized or freed here
        borrowed = v->data;
        v->data = nullptr;
    }
    if (n > INT32_MAX) {
        v->data = nullptr;
        v->alloc = 0;
        return -1;  // like a failed realloc: an owned block is left to its fate
    }
    if (hooks<T>().realloc) {
        hooks<T>().realloc(v, old_points, old_complex);
    } else {
        const std::size_t old_bytes = v->data ? static_cast<std::size_t>(v->alloc) * sizeof(T) : 0;
        v->data = static_cast<T*>(grow_block(v->data, old_bytes, static_cast<std::size_t>(n) * sizeof(T)));
    }
    if (!v->data) {
        v->alloc = 0;
        return -1;
    }
    if (borrowed) {
        std::int64_t old = old_points > 0 ? old_points : 0;
        if (old_complex) old *= 2;
        const std::int64_t keep = old < n ? old : n;
        if (keep > 0) std::memcpy(v->data, borrowed, static_cast<std::size_t>(keep) * sizeof(T));
    }
    v->alloc = static_cast<int>(n);
    return 0;
}

template <class T> int append(Vec<T>* dst, const Vec<T>* src) noexcept {
    if (!readable<T>(dst) || !readable<T>(src)) return -1;
    const int add = src->points;
    const bool src_complex = src->complex != 0;
    const bool self = dst == src;
    if (src_complex && !dst->complex) {
        if (spread_to_complex<T>(*dst, [](T x, T& re, T& im) { re = x; im = T(0); }) != 0) return -1;
    }
    const int n = dst->points;
    if (static_cast<std::int64_t>(n) + add > INT32_MAX) return -1;
    // Appending a record to itself reads what it held before the growth.
    const T* from = self ? nullptr : src->data;
    dst->points = n + add;
    if (zf::realloc<T>(dst, n, dst->complex) != 0) return -1;
    if (self) from = dst->data;
    T* d = dst->data;
    if (!dst->complex || src_complex) {
        const std::size_t scalars = static_cast<std::size_t>(add) * (dst->complex ? 2 : 1);
        if (scalars) std::memmove(d + static_cast<std::size_t>(n) * (dst->complex ? 2 : 1), from, scalars * sizeof(T));
    } else {
        T* out = d + 2 * static_cast<std::size_t>(n);
        for (int k = 0; k < add; ++k) {
            out[2 * k] = from[k];
            out[2 * k + 1] = T(0);
        }
    }
    return 0;
}

template <class T> int subvec(const Vec<T>* src, Vec<T>* dst, int start, int count) noexcept {
    if (!readable<T>(src) || !writable<T>(dst)) return -1;
    const int points = src->points;
    if (start < 0) start = 0;
    if (count < 0) count = 0;
    if (start > points) start = points;
    if (count > points - start) count = points - start;
    const int w = width<T>(*src);
    // Taken before the destination is sized: when dst is src wrapping a
    // caller's block, the block stays valid after dst gets storage of its own.
    const T* from = src->data ? src->data + static_cast<std::size_t>(start) * w : nullptr;
    const T delta = src->delta;
    const int complex = src->complex;
    dst->points = count;
    dst->complex = complex;
    dst->delta = delta;
    if (zf::alloc<T>(dst) != 0) return -1;
    if (count > 0 && from != dst->data)
        std::memmove(dst->data, from, static_cast<std::size_t>(count) * w * sizeof(T));
    return 0;
}

template <class T> int copy(Vec<T>* dst, const Vec<T>* src) noexcept {
    if (!src) return -1;
    return subvec<T>(src, dst, 0, src->points);
}

template <class T> int copy_at_most(Vec<T>* dst, const Vec<T>* src, int n) noexcept {
    return subvec<T>(src, dst, 0, n);
}

int tof(const dspf_vector* src, dspf_vector* dst) noexcept {
    if (src == dst || !readable<float>(src) || !writable<float>(dst)) return -1;
    return subvec<float>(src, dst, 0, src->points);
}

template <class T> int cmp(const Vec<T>* a, const Vec<T>* b, T tol, int* result) noexcept {
    if (!readable<T>(a) || !readable<T>(b) || !result) return -1;
    if (a->points != b->points) return -1;
    auto order = [&](T d) {
        if (d > tol) return 1;
        if (d < -tol) return -1;
        return 0;
    };
    int r = order(a->delta - b->delta);
    const int wa = width<T>(*a), wb = width<T>(*b);
    for (int k = 0; r == 0 && k < a->points; ++k) {
        for (int part = 0; r == 0 && part < 2; ++part) {
            if (part >= wa && part >= wb) break;
            const T x = part < wa ? a->data[static_cast<std::size_t>(k) * wa + part] : T(0);
            const T y = part < wb ? b->data[static_cast<std::size_t>(k) * wb + part] : T(0);
            r = order(x - y);
        }
    }
    *result = r;
    return 0;
}

template Hooks<double>& hooks<double>() noexcept;
template int init<double>(Vec<double>*) noexcept;
template int destroy<double>(Vec<double>*) noexcept;
template int alloc<double>(Vec<double>*) noexcept;
template int realloc<double>(Vec<double>*, int, int) noexcept;
template int append<double>(Vec<double>*, const Vec<double>*) noexcept;
template int subvec<double>(const Vec<double>*, Vec<double>*, int, int) noexcept;
template int copy<double>(Vec<double>*, const Vec<double>*) noexcept;
template int copy_at_most<double>(Vec<double>*, const Vec<double>*, int) noexcept;
template int cmp<double>(const Vec<double>*, const Vec<double>*, double, int*) noexcept;

template Hooks<float>& hooks<float>() noexcept;
template int init<float>(Vec<float>*) noexcept;
template int destroy<float>(Vec<float>*) noexcept;
template int alloc<float>(Vec<float>*) noexcept;
template int realloc<float>(Vec<float>*, int, int) noexcept;
template int append<float>(Vec<float>*, const Vec<float>*) noexcept;
template int subvec<float>(const Vec<float>*, Vec<float>*, int, int) noexcept;
template int copy<float>(Vec<float>*, const Vec<float>*) noexcept;
template int copy_at_most<float>(Vec<float>*, const Vec<float>*, int) noexcept;
template int cmp<float>(const Vec<float>*, const Vec<float>*, float, int*) noexcept;

}  // namespace zf
