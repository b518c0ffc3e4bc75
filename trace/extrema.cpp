// Extremum searches over a range of a trace, optionally skipping a band.
#include "trace/trace.hpp"

#include <limits>

namespace zf {

namespace {

struct Greater {
    template <class T> bool operator()(T x, T best) const noexcept { return x > best; }
};
struct Less {
    template <class T> bool operator()(T x, T best) const noexcept { return x < best; }
};

// The first element of [start, stop) outside [from, to) that no later element
// beats. A start inside the band moves the search to the band's end, which
// must then lie before stop.
template <class T, class Better>
int search_outside_band(const T* data, int start, int stop, int from, int to, Better better) noexcept {
    const bool start_in_band = start >= from && start < to;
    if (start_in_band && to >= stop) return -1;
    if (!start_in_band && stop <= start) return start;
    // A start inside the band is never read: the search begins at the band's end.
    int best_at = start_in_band ? to : start;
    if (!data || best_at < 0) return -1;
    T best = data[best_at];
    int i = best_at + 1;
    while (i < stop) {
        if (i >= from && i < to) {
            i = to;
            continue;
        }
        if (better(data[i], best)) {
            best = data[i];
            best_at = i;
        }
        ++i;
    }
    return best_at;
}

}  // namespace

template <class T> int find_max(const T* data, int start, int stop) noexcept {
    if (static_cast<long long>(stop) <= static_cast<long long>(start) + 1) return start;
    if (!data || start < 0) return -1;
    T best = data[start];
    int best_at = start;
    for (int i = start + 1; i < stop; ++i) {
        if (data[i] > best) {
            best = data[i];
            best_at = i;
        }
    }
    return best_at;
}

// The running minimum starts at the largest finite value rather than at
// data[start], so the element at start takes no part in the search.
template <class T> int find_min(const T* data, int start, int stop) noexcept {
    if (static_cast<long long>(stop) <= static_cast<long long>(start) + 1) return start;
    if (!data || start < -1) return -1;  // start = -1 searches from data[0]
    T best = std::numeric_limits<T>::max();
    int best_at = start;
    for (int i = start + 1; i < stop; ++i) {
        if (data[i] < best) {
            best = data[i];
            best_at = i;
        }
    }
    return best_at;
}

template <class T> int find_max2(const T* data, int start, int stop, int excl_from, int excl_to) noexcept {
    return search_outside_band(data, start, stop, excl_from, excl_to, Greater());
}

template <class T> int find_min2(const T* data, int start, int stop, int excl_from, int excl_to) noexcept {
    return search_outside_band(data, start, stop, excl_from, excl_to, Less());
}

template <class T> int find_min_max(const T* data, int start, int stop, int* imax, int* imin) noexcept {
    if (start > stop || !data || !imax || !imin) return 0;
    // With at most one value both indices are start, whatever data[start] holds.
    const bool several = static_cast<long long>(stop) > static_cast<long long>(start) + 1;
    if (several && start < 0) return 0;
    *imax = *imin = start;
    if (!several) return 1;
    T lo = data[start], hi = lo;
    int lo_at = start, hi_at = start;
    for (int i = start + 1; i < stop; ++i) {
        const T x = data[i];
        if (x < lo) {
            lo = x;
            lo_at = i;
        } else if (x > hi) {
            hi = x;
            hi_at = i;
        }
    }
    *imax = hi_at;
    *imin = lo_at;
    return 1;
}

template int find_max<double>(const double*, int, int) noexcept;
template int find_max<float>(const float*, int, int) noexcept;
template int find_min<double>(const double*, int, int) noexcept;
template int find_min<float>(const float*, int, int) noexcept;
template int find_max2<double>(const double*, int, int, int, int) noexcept;
template int find_max2<float>(const float*, int, int, int, int) noexcept;
template int find_min2<double>(const double*, int, int, int, int) noexcept;
template int find_min2<float>(const float*, int, int, int, int) noexcept;
template int find_min_max<double>(const double*, int, int, int*, int*) noexcept;
template int find_min_max<float>(const float*, int, int, int*, int*) noexcept;

}  // namespace zf
