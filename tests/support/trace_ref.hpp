// Plain references for the trace helpers: direct loops in long double over
// explicit index sets and windows, no running sums, no shortcuts.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

namespace ref {

using ld = long double;

// Index of the first largest (most = true) or smallest value among the given
// indices, -1 when there are none.
template <class T> int first_extreme(const std::vector<T>& data, const std::vector<int>& indices, bool most) {
    int best = -1;
    for (int i : indices)
        if (best < 0 || (most ? data[i] > data[best] : data[i] < data[best])) best = i;
    return best;
}

// The indices of [start, stop) outside [from, to).
inline std::vector<int> indices_outside(int start, int stop, int from, int to) {
    std::vector<int> out;
    for (int i = start; i < stop; ++i)
        if (i < from || i >= to) out.push_back(i);
    return out;
}

// Half width of the smoothing window at point i: the half aperture, or with
// shrink the largest symmetric window inside a trace of total points.
inline long window_half(long i, long total, long half, bool shrink) {
    return shrink ? std::min({i, total - 1 - i, half}) : half;
}

// Moving average of a real trace: the mean of src over [i - w, i + w] with
// indices held inside [0, last]; a point is produced while its window ends at
// or before last, or always when clamping and the range ends at the trace end.
template <class T>
int smooth_plain(const std::vector<T>& src, std::vector<ld>& out, int total, int start, int stop, int aperture, bool edge) {
    const int last = stop - 1, h = aperture / 2;
    int count = 0;
    for (long i = start; i <= last; ++i) {
        const long w = window_half(i, total, h, !edge);
        if (i + w > last && !(edge && last >= total - 1)) break;
        ld sum = 0;
        for (long j = i - w; j <= i + w; ++j) sum += src[std::clamp<long>(j, 0, last)];
        out[i] = sum / (2 * w + 1);
        ++count;
    }
    return count;
}

// Complex moving average as mean magnitude and mean atan2(re, im) angle over
// the shrinking symmetric window; (re, im) pairs.
template <class T>
int smooth_complex(const std::vector<T>& src, std::vector<ld>& out, int total, int start, int stop, int aperture) {
    const int last = stop - 1, h = aperture / 2;
    int count = 0;
    for (long i = start; i <= last; ++i) {
        const long w = window_half(i, total, h, true);
        if (i + w > last) break;
        ld mag = 0, ang = 0;
        for (long j = i - w; j <= i + w; ++j) {
            const ld re = src[2 * j], im = src[2 * j + 1];
            mag += std::sqrt(re * re + im * im);
            ang += std::atan2(re, im);
        }
        mag /= 2 * w + 1;
        ang /= 2 * w + 1;
        out[2 * i] = mag * std::cos(ang);
        out[2 * i + 1] = mag * std::sin(ang);
        ++count;
    }
    return count;
}

// The angle x brought into (-pi, pi].
inline ld wrapped(ld x) {
    const ld pi = 3.141592653589793238462643383279502884L;
    return x - 2 * pi * std::ceil((x - pi) / (2 * pi));
}

}  // namespace ref
