#include <cmath>
#include <cstddef>

#include "elementwise/rearrange.hpp"

namespace zf {

namespace {

// The phase wrapping rule: a sample within pi of the reference is kept as it
// is; otherwise the difference is reduced modulo 2 pi into [-pi, pi] and
// added to the reference.
template <class T> inline T wrap(T x, T ref) noexcept {
    const T pi = Traits<T>::pi, two_pi = Traits<T>::two_pi;
    const T d = x - ref;
    if (d >= -pi && d <= pi) return x;
    T r = std::fmod(d, two_pi);
    if (r > pi) r -= two_pi;
    else if (r < -pi) r += two_pi;
    return ref + r;
}

}  // namespace

template <class T> int differ(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const T f = v->delta == T(0) ? Traits<T>::huge : T(1) / v->delta;
    const std::size_t w = static_cast<std::size_t>(width<T>(*v));
    const std::size_t n = w * static_cast<std::size_t>(v->points);
    T* d = v->data;
    // From the end, so that each previous input is still in place; the first
    // sample's predecessor is 0. Complex records difference part by part.
    for (std::size_t i = n; i-- > w;) d[i] = (d[i] - d[i - w]) * f;
    for (std::size_t i = 0; i < w && i < n; ++i) d[i] *= f;
    return 0;
}

template <class T> int pdiffer(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int n = v->points;
    if (n == 0) return 0;
    const std::size_t w = static_cast<std::size_t>(width<T>(*v));
    T* d = v->data;
    for (std::size_t k = 1; k < static_cast<std::size_t>(n); ++k) {
        const T power = static_cast<T>(k);
        for (std::size_t p = 0; p < w; ++p) d[(k - 1) * w + p] = d[k * w + p] * power;
    }
    v->points = n - 1;
    return 0;
}

template <class T> int integ(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const T delta = v->delta;
    T* d = v->data;
    const std::size_t n = static_cast<std::size_t>(v->points);
    if (!v->complex) {
        T s = 0;
        for (std::size_t k = 0; k < n; ++k) d[k] = s += d[k] * delta;
        return 0;
    }
    T sr = 0, si = 0;
    for (std::size_t k = 0; k < n; ++k) {
        d[2 * k] = sr += d[2 * k] * delta;
        d[2 * k + 1] = si += d[2 * k + 1] * delta;
    }
    return 0;
}

template <class T> int edge(Vec<T>* v, int mode, T level) noexcept {
    if (!readable<T>(v) || v->complex) return -1;
    const int n = v->points;
    if (n == 0) return 0;
    const bool rising = (mode & 1) != 0, falling = (mode & 2) != 0;
    const T delta = v->delta;
    T* d = v->data;
    // Crossing c is written at index c <= k, behind the pair (k, k+1) being read.
    int count = 0;
    T prev = d[0];
    for (int k = 0; k + 1 < n; ++k) {
        const T next = d[k + 1];
        const bool up = rising && prev <= level && level < next;
        const bool down = falling && prev >= level && level > next;
        if (up || down) d[count++] = (static_cast<T>(k) + (level - prev) / (next - prev)) * delta;
        prev = next;
    }
    v->points = count;
    v->delta = T(1);
    return 0;
}

template <class T> int unwrap(Vec<T>* v) noexcept {
    if (!readable<T>(v) || v->complex) return -1;
    T* d = v->data;
    T ref = 0;  // the first sample is compared with 0 as well
    for (std::size_t k = 0; k < static_cast<std::size_t>(v->points); ++k) ref = d[k] = wrap(d[k], ref);
    return 0;
}

template <class T> int unwrap_wnd(Vec<T>* v, int w) noexcept {
    if (!readable<T>(v) || v->complex || w < 0) return -1;
    if (w == 1) return unwrap<T>(v);
    T* d = v->data;
    const int n = v->points;
    const int first = w < n ? w : n;
    T sum = 0;  // of the outputs in the window
    // Filling the window: the reference is the mean of the outputs so far.
    for (int k = 0; k < first; ++k) {
        const T ref = k == 0 ? T(0) : sum / static_cast<T>(k);
        d[k] = wrap(d[k], ref);
        sum += d[k];
    }
    // A full window: the mean of the last w outputs (w = 0: reference 0).
    const T inv = w == 0 ? T(0) : T(1) / static_cast<T>(w);
    for (int k = first; k < n; ++k) {
        d[k] = wrap(d[k], sum * inv);
        sum = sum + d[k] - d[k - w];  // the new output added, then the oldest taken away
    }
    return 0;
}

template int differ<double>(Vec<double>*) noexcept;
template int pdiffer<double>(Vec<double>*) noexcept;
template int integ<double>(Vec<double>*) noexcept;
template int edge<double>(Vec<double>*, int, double) noexcept;
template int unwrap<double>(Vec<double>*) noexcept;
template int unwrap_wnd<double>(Vec<double>*, int) noexcept;

template int differ<float>(Vec<float>*) noexcept;
template int pdiffer<float>(Vec<float>*) noexcept;
template int integ<float>(Vec<float>*) noexcept;
template int edge<float>(Vec<float>*, int, float) noexcept;
template int unwrap<float>(Vec<float>*) noexcept;
template int unwrap_wnd<float>(Vec<float>*, int) noexcept;

}  // namespace zf
