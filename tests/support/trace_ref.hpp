// Plain references for the trace helpers: direct loops in long double over
// explicit index sets and windows, no running sums, no shortcuts.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

namespace ref {

using ld = long double;

// Index of the first largest (most = true) or smallest value among the
// indices of [start, stop) outside [from, to), -1 when there are none.
template <class T> int first_extreme(const std::vector<T>& data, int start, int stop, int from, int to, bool most) {
    int best = -1;
    for (int i = start; i < stop; ++i)
        if ((i < from || i >= to) && (best < 0 || (most ? data[i] > data[best] : data[i] < data[best]))) best = i;
    return best;
}

// Moving average over the symmetric window [i - w, i + w] of each point i of
// [start, stop), w the half aperture; a point is produced while its window
// ends at or before last = stop - 1. Real traces: without edge the window
// shrinks to fit inside the trace; with edge indices are held inside
// [0, last] and every point is produced when the range ends at the trace end.
// Complex traces ((re, im) pairs, window always shrinking): mean magnitude and
// mean atan2(re, im) angle.
template <class T>
int smooth(const std::vector<T>& src, std::vector<ld>& out, int total, int start, int stop, int aperture, bool edge, bool cpx) {
    const long last = stop - 1, h = aperture / 2;
    int count = 0;
    for (long i = start; i <= last; ++i, ++count) {
        const long w = edge && !cpx ? h : std::min({i, total - 1 - i, h});
        if (i + w > last && !(edge && !cpx && last >= total - 1)) break;
        ld a = 0, b = 0;  // sum of values, or of magnitudes and angles
        for (long j = i - w; j <= i + w; ++j) {
            if (!cpx) a += src[std::clamp<long>(j, 0, last)];
            else a += std::hypot(ld(src[2 * j]), ld(src[2 * j + 1])), b += std::atan2(ld(src[2 * j]), ld(src[2 * j + 1]));
        }
        a /= 2 * w + 1, b /= 2 * w + 1;
        if (!cpx) out[i] = a;
        else out[2 * i] = a * std::cos(b), out[2 * i + 1] = a * std::sin(b);
    }
    return count;
}

// The angle x brought into (-pi, pi].
inline ld wrapped(ld x) {
    const ld pi = 3.141592653589793238462643383279502884L;
    return x - 2 * pi * std::ceil((x - pi) / (2 * pi));
}

}  // namespace ref
