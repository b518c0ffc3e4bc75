// The strongest peak of a real vector, refined between samples by the
// parabola through the largest sample and its two neighbours.
#include <cmath>

#include "stats/poly.hpp"

namespace zf {

template <class T> int peak(const Vec<T>* in, Vec<T>* out) noexcept {
    if (!readable<T>(in) || !writable<T>(out) || in->complex) return -1;
    const T* x = in->data;
    const int n = in->points;
    int k = -1;
    for (int i = 0; i < n; ++i)
        if (!std::isnan(x[i]) && (k < 0 || x[i] > x[k])) k = i;
    if (k < 0) return -1;   // empty, or nothing but NaN
    int e = k;
    while (e + 1 < n && x[e + 1] == x[k]) ++e;
    double pos = k, height = x[k];
    if (e > k) {
        pos = 0.5 * (k + e);   // a plateau: its centre
    } else if (k > 0 && k < n - 1 && !std::isnan(x[k - 1]) && !std::isnan(x[k + 1])) {
        const double a = x[k - 1], b = x[k], c = x[k + 1];
        const double off = 0.5 * (a - c) / (a - 2 * b + c);   // a < b > c: the divisor is negative
        pos = k + off;
        height = b - 0.25 * (a - c) * off;
    }
    out->points = 2;
    out->complex = 0;
    if (alloc<T>(out) != 0) return -1;
    out->data[0] = static_cast<T>(pos);
    out->data[1] = static_cast<T>(height);
    return 0;
}

template int peak<double>(const Vec<double>*, Vec<double>*) noexcept;
template int peak<float>(const Vec<float>*, Vec<float>*) noexcept;

}  // namespace zf
