// The loops shared by the one-input element-wise operations: over scalars,
// over (re, im) pairs, packing pairs into reals, and the sizing of the
// destination of a dspu_ operation.
#pragma once

#include <cmath>
#include <cstddef>

#include "core/vector.hpp"

namespace zf {

// A part outside [-huge, huge] (NaN is not outside).
template <class T> inline bool beyond(T x) noexcept { return x > Traits<T>::huge || x < -Traits<T>::huge; }

// x clamped into [-huge, huge] (NaN kept).
template <class T> inline T clamp_huge(T x) noexcept {
    const T h = Traits<T>::huge;
    return x > h ? h : (x < -h ? -h : x);
}

// x * x, or huge when x lies outside [-huge, huge] (and for NaN).
template <class T> inline T saturated_square(T x) noexcept {
    return std::fabs(x) <= Traits<T>::huge ? x * x : Traits<T>::huge;
}

// re^2 + im^2, or huge when a part lies outside [-huge, huge].
// Written as two selects, not one condition with ||, so that loops over it vectorise.
template <class T> inline T saturated_norm(T re, T im) noexcept {
    const T huge = Traits<T>::huge;
    const T s = re * re + im * im;
    const T t = std::fabs(re) > huge ? huge : s;
    return std::fabs(im) > huge ? huge : t;
}

// Scalars of the record's current shape, as a loop count.
template <class T> inline std::size_t scalars(const Vec<T>& v) noexcept {
    return static_cast<std::size_t>(need<T>(v));
}

// out[i] = f(in[i]); in may be out.
template <class T, class F> inline void map_scalars(const T* in, T* out, std::size_t n, F f) noexcept {
    for (std::size_t i = 0; i < n; ++i) out[i] = f(in[i]);
}

// Pair k of in becomes pair k of out through f(re, im), which updates both
// parts by reference; in may be out.
template <class T, class F> inline void map_pairs(const T* in, T* out, std::size_t n, F f) noexcept {
    for (std::size_t k = 0; k < n; ++k) {
        T re = in[2 * k], im = in[2 * k + 1];
        f(re, im);
        out[2 * k] = re;
        out[2 * k + 1] = im;
    }
}

// Pair k of in becomes scalar k of out through f(re, im). in may be out:
// walking forward, scalar k is written after pairs 0..k have been read, and a
// vector of W results is written only after its W pairs were loaded, so the
// loop carries no dependence that forbids vectorising it (which the compiler
// cannot prove by itself when in and out are one array).
template <class T, class F> inline void pack_pairs(const T* in, T* out, std::size_t n, F f) noexcept {
#if defined(__GNUC__)
#pragma GCC ivdep
#endif
    for (std::size_t k = 0; k < n; ++k) out[k] = f(in[2 * k], in[2 * k + 1]);
}

// An in-place operation defined on real numbers only: a complex vector is
// refused with -1 and left unchanged.
template <class T, class F> int real_only(Vec<T>* v, F f) noexcept {
    if (!readable<T>(v) || v->complex) return -1;
    map_scalars(v->data, v->data, scalars<T>(*v), f);
    return 0;
}

// A complex result from a complex vector (pairs mapped by f), or from a real
// one spread into pairs by spread(x, re, im).
template <class T, class Spread, class F> int to_complex(Vec<T>* v, Spread spread, F f) noexcept {
    if (!readable<T>(v)) return -1;
    if (!v->complex) return spread_to_complex<T>(*v, spread);
    map_pairs(v->data, v->data, static_cast<std::size_t>(v->points), f);
    return 0;
}

// A real result: a complex vector becomes real with f(re, im) packed into its
// first points scalars (capacity kept); a real one is mapped by g(x). A complex
// vector of no points is left as it is, still complex.
template <class T, class G, class F> int to_real(Vec<T>* v, G g, F f) noexcept {
    if (!readable<T>(v)) return -1;
    if (v->complex) {
        if (v->points == 0) return 0;
        pack_pairs(v->data, v->data, static_cast<std::size_t>(v->points), f);
        v->complex = 0;
    } else {
        map_scalars(v->data, v->data, scalars<T>(*v), g);
    }
    return 0;
}

// Sizes the destination of a one-input operation: points and delta from the
// source, complex as given, storage by alloc when dst's storage is distinct
// from src's and by realloc when it is the same block (dst may be src). The
// source's fields are read before dst changes. On success *from is where the
// source scalars are to be read.
template <class T> int size_output(const Vec<T>* src, Vec<T>* dst, int complex, const T** from) noexcept {
    if (!readable<T>(src) || !writable<T>(dst)) return -1;
    const T* in = src->data;
    const int points = src->points;
    const T delta = src->delta;
    if (same_storage<T>(*src, *dst)) {
        const int old_points = dst->points, old_complex = dst->complex;
        const T* before = dst->data;
        const bool owned = dst->alloc > 0;
        dst->points = points;
        dst->complex = complex;
        dst->delta = delta;
        if (zf::realloc<T>(dst, old_points, old_complex) != 0) return -1;
        // An owned block that realloc moved kept its contents; a borrowed one stays where it was.
        if (owned && dst->data != before) in = dst->data;
    } else {
        dst->points = points;
        dst->complex = complex;
        dst->delta = delta;
        if (zf::alloc<T>(dst) != 0) return -1;
    }
    *from = in;
    return 0;
}

}  // namespace zf
