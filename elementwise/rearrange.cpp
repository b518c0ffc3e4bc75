#include "elementwise/rearrange.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <cstring>

#include "core/random.hpp"
#include "elementwise/unary.hpp"

namespace zf {

namespace {

// One complex sample as the sort sees it. The record's scalars are copied
// into an array of these (same size, no padding) and back, so that the
// standard sort moves whole pairs without viewing the scalars as another type.
template <class T> struct Pair {
    T re, im;
};
static_assert(sizeof(Pair<double>) == 2 * sizeof(double), "pairs are packed");
static_assert(sizeof(Pair<float>) == 2 * sizeof(float), "pairs are packed");

// Strict ordering of one key in which NaN sorts after every number, so that
// the comparator stays a strict weak order whatever the data hold.
template <class T> inline int order(T a, T b) noexcept {
    if (a < b) return -1;
    if (b < a) return 1;
    const bool na = std::isnan(a), nb = std::isnan(b);
    if (na != nb) return na ? 1 : -1;
    return 0;
}

template <class T> inline bool pair_less(const Pair<T>& a, const Pair<T>& b) noexcept {
    int r = order(saturated_norm(a.re, a.im), saturated_norm(b.re, b.im));
    if (r == 0) r = order(a.re, b.re);
    if (r == 0) r = order(a.im, b.im);
    return r < 0;
}

template <class T> inline void swap_samples(T* d, int w, std::size_t i, std::size_t j) noexcept {
    for (int p = 0; p < w; ++p) std::swap(d[i * w + p], d[j * w + p]);
}

}  // namespace

template <class T> int rev(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int n = v->points;
    if (n < 2) return 0;
    T* d = v->data;
    if (!v->complex) {
        std::reverse(d, d + n);
        return 0;
    }
    for (std::size_t i = 0, j = static_cast<std::size_t>(n) - 1; i < j; ++i, --j) {
        std::swap(d[2 * i], d[2 * j]);
        std::swap(d[2 * i + 1], d[2 * j + 1]);
    }
    return 0;
}

template <class T> int shift(Vec<T>* v, int n) noexcept {
    if (!readable<T>(v)) return -1;
    if (n < 0) return 0;
    // When n exceeds the length, subvec clamps the count to 0.
    return subvec<T>(v, v, n, v->points - n);
}

template <class T> int shuffle(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int n = v->points;
    const int w = width<T>(*v);
    T* d = v->data;
    for (int i = 0; i + 1 < n; ++i) {
        const int j = random31() % (n - i);
        if (j != 0) swap_samples(d, w, static_cast<std::size_t>(i), static_cast<std::size_t>(i) + j);
    }
    return 0;
}

template <class T> int sort(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int n = v->points;
    if (n < 2) return 0;
    if (!v->complex) {
        // NaN goes last; the numbers before it sort by plain comparison.
        T* d = v->data;
        T* nans = std::partition(d, d + n, [](T x) { return !std::isnan(x); });
        std::sort(d, nans);
        return 0;
    }
    const std::size_t bytes = static_cast<std::size_t>(n) * sizeof(Pair<T>);
    Pair<T>* p = static_cast<Pair<T>*>(std::malloc(bytes));
    if (!p) return -1;
    std::memcpy(p, v->data, bytes);
    std::sort(p, p + n, pair_less<T>);
    std::memcpy(v->data, p, bytes);
    std::free(p);
    return 0;
}

namespace {
// Rotates the samples left by ceil(points/2) or floor(points/2): sample k
// moves to (k - shift) mod points.
template <class T> int rotate_left(Vec<T>* v, bool by_larger_half) noexcept {
    if (!readable<T>(v)) return -1;
    const std::size_t n = static_cast<std::size_t>(v->points), w = width<T>(*v);
    if (n < 2) return 0;
    const std::size_t left = by_larger_half ? n - n / 2 : n / 2;
    T* d = v->data;
    std::rotate(d, d + w * left, d + w * n);
    return 0;
}
}  // namespace

// Rotating left by the larger half is rotating right by n/2.
template <class T> int swap_halves(Vec<T>* v) noexcept { return rotate_left<T>(v, true); }
template <class T> int swap_halves2(Vec<T>* v) noexcept { return rotate_left<T>(v, false); }

template int rev<double>(Vec<double>*) noexcept;
template int shift<double>(Vec<double>*, int) noexcept;
template int shuffle<double>(Vec<double>*) noexcept;
template int sort<double>(Vec<double>*) noexcept;
template int swap_halves<double>(Vec<double>*) noexcept;
template int swap_halves2<double>(Vec<double>*) noexcept;

template int rev<float>(Vec<float>*) noexcept;
template int shift<float>(Vec<float>*, int) noexcept;
template int shuffle<float>(Vec<float>*) noexcept;
template int sort<float>(Vec<float>*) noexcept;
template int swap_halves<float>(Vec<float>*) noexcept;
template int swap_halves2<float>(Vec<float>*) noexcept;

}  // namespace zf
