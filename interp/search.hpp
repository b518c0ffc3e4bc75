// Interval location among strictly increasing knots, shared by the
// interpolations of this folder and by the circular interpolation of the
// network-analyser routines.
#pragma once

namespace zf {

// The index j in [1, n-1] of the interval [x[j-1], x[j]) that holds v, for
// n >= 2 strictly increasing knots: the first j >= 1 with x[j] > v, capped at
// n - 1 (so v left of x[0] gives 1 and v at or beyond x[n-1] gives n - 1).
// The search gallops from the previous answer `from` in either direction and
// then bisects, so a run of ascending abscissae costs O(n + m) in all and any
// order O(m log n). v must not be NaN.
template <class K, class V> inline int locate(const K* x, int n, V v, int from) noexcept {
    int lo, hi;   // invariant once set: x[lo-1] <= v (or lo == 1) and (x[hi] > v or hi == n-1)
    if (from < 1 || from > n - 1) from = 1;
    if (x[from] > v) {
        // Move down: find lo with x[lo-1] <= v.
        hi = from;
        int step = 1;
        lo = from;
        while (lo > 1 && x[lo - 1] > v) {
            hi = lo - 1;
            lo = lo - step > 1 ? lo - step : 1;
            step *= 2;
        }
    } else {
        // Move up: find hi with x[hi] > v.
        lo = from + 1;
        int step = 1;
        hi = from;
        while (hi < n - 1 && x[hi] <= v) {
            lo = hi + 1;
            hi = hi + step < n - 1 ? hi + step : n - 1;
            step *= 2;
        }
        if (lo > hi) lo = hi;
    }
    // Bisect [lo, hi] for the first j with x[j] > v (hi when none below it).
    while (lo < hi) {
        const int mid = lo + (hi - lo) / 2;
        if (x[mid] > v) hi = mid; else lo = mid + 1;
    }
    return hi;
}

}  // namespace zf
