#include <algorithm>
#include <cmath>
#include <cstring>

#include "elementwise/rearrange.hpp"

namespace zf {

namespace {

template <class T> inline void fill_zero(T* d, std::size_t from, std::size_t count) noexcept {
    std::fill(d + from, d + from + count, T(0));
}

// Moves count scalars from index src to index dst within one block (the ranges
// may overlap), multiplying them by f when scale is set.
template <class T> void move_scaled(T* d, std::size_t src, std::size_t dst, std::size_t count, bool scale, T f) noexcept {
    if (!scale) {
        if (src != dst && count) std::memmove(d + dst, d + src, count * sizeof(T));
        return;
    }
    if (dst > src) {
        for (std::size_t i = count; i-- > 0;) d[dst + i] = d[src + i] * f;
    } else {
        for (std::size_t i = 0; i < count; ++i) d[dst + i] = d[src + i] * f;
    }
}

// Decodes the scaling of a length change from `from` to `to` samples: by
// to/from, by its square root, or none. False for the invalid value 3.
template <class T> bool decode_scale(int flags, int from, int to, bool& scale, T& f) noexcept {
    const int kind = flags & pad_scale_mask;
    if (kind == pad_scale_mask) return false;
    scale = kind != pad_scale_none && from > 0 && to > 0;
    const double ratio = scale ? static_cast<double>(to) / from : 1.0;
    f = static_cast<T>(kind == pad_scale_sqrt ? std::sqrt(ratio) : ratio);
    return true;
}

// Where a block of `inner` samples sits centred in `outer` samples: half the
// difference, one further when outer is even and inner odd.
inline int centre_start(int outer, int inner) noexcept {
    return (outer - inner) / 2 + ((outer % 2 == 0 && inner % 2 == 1) ? 1 : 0);
}

}  // namespace

template <class T> int zpad(Vec<T>* v, int n) noexcept {
    return zpad2<T>(v, n, pad_place_front | pad_scale_none);
}

template <class T> int zero(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int n = v->points;
    v->points = 0;
    return zpad<T>(v, n);
}

template <class T> int zpad2(Vec<T>* v, int n, int flags) noexcept {
    if (!readable<T>(v)) return -1;
    const int m = v->points;
    if (m >= n) return 0;
    v->points = n;
    if (zf::realloc<T>(v, m, v->complex) != 0) return -1;
    const std::size_t w = static_cast<std::size_t>(width<T>(*v));
    T* d = v->data;
    bool scale = false;
    T f = T(1);
    const int place = flags & pad_place_mask;
    if (!decode_scale<T>(flags, m, n, scale, f) || place > pad_place_split) {
        // Refused after the growth: the new length stays, its new samples cleared.
        fill_zero(d, w * m, w * static_cast<std::size_t>(n - m));
        return -1;
    }
    if (place == pad_place_split) {
        // The first ceil(m/2) samples stay, the last floor(m/2) go to the end.
        const std::size_t head = static_cast<std::size_t>(m - m / 2), tail = static_cast<std::size_t>(m / 2);
        const std::size_t to = static_cast<std::size_t>(n) - tail;
        move_scaled(d, w * head, w * to, w * tail, scale, f);
        move_scaled(d, 0, 0, w * head, scale, f);
        fill_zero(d, w * head, w * (to - head));
        return 0;
    }
    const int start = place == pad_place_front ? 0 : place == pad_place_end ? n - m : centre_start(n, m);
    move_scaled(d, 0, w * start, w * m, scale, f);
    fill_zero(d, 0, w * start);
    fill_zero(d, w * (start + m), w * static_cast<std::size_t>(n - start - m));
    return 0;
}

template <class T> int unzpad(Vec<T>* v, int n, int flags) noexcept {
    if (!readable<T>(v) || n < 0) return -1;
    const int m = v->points;
    if (m <= n) return 0;
    bool scale = false;
    T f = T(1);
    const int place = flags & pad_place_mask;
    if (!decode_scale<T>(flags, m, n, scale, f) || place > pad_place_split) return -1;
    const std::size_t w = static_cast<std::size_t>(width<T>(*v));
    T* d = v->data;
    if (place == pad_place_split) {
        // The first ceil(n/2) samples followed by the last floor(n/2).
        const std::size_t head = static_cast<std::size_t>(n - n / 2), tail = static_cast<std::size_t>(n / 2);
        move_scaled(d, 0, 0, w * head, scale, f);
        move_scaled(d, w * (static_cast<std::size_t>(m) - tail), w * head, w * tail, scale, f);
    } else {
        const int start = place == pad_place_front ? 0 : place == pad_place_end ? m - n : centre_start(m, n);
        move_scaled(d, w * start, 0, w * n, scale, f);
    }
    v->points = n;
    return 0;
}

template int zpad<double>(Vec<double>*, int) noexcept;
template int zero<double>(Vec<double>*) noexcept;
template int zpad2<double>(Vec<double>*, int, int) noexcept;
template int unzpad<double>(Vec<double>*, int, int) noexcept;

template int zpad<float>(Vec<float>*, int) noexcept;
template int zero<float>(Vec<float>*) noexcept;
template int zpad2<float>(Vec<float>*, int, int) noexcept;
template int unzpad<float>(Vec<float>*, int, int) noexcept;

}  // namespace zf
