// Rate doubling by zero insertion, in place.
#include "interp/interp.hpp"

namespace zf {

template <class T> int zinter(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int n = v->points;
    if (n > (1 << 30) - 1) return -1;   // 2N would not fit the count
    const int w = width<T>(*v);
    v->points = 2 * n;
    if (realloc<T>(v, n, v->complex) != 0) return -1;
    v->delta /= 2;
    T* d = v->data;
    // From the end backwards: sample k moves to 2k, and 2k + 1 becomes zero.
    for (std::ptrdiff_t k = n - 1; k >= 0; --k) {
        for (int p = w - 1; p >= 0; --p) d[2 * k * w + p] = d[k * w + p];
        for (int p = 0; p < w; ++p) d[(2 * k + 1) * w + p] = T(0);
    }
    return 0;
}

template int zinter<double>(Vec<double>*) noexcept;
template int zinter<float>(Vec<float>*) noexcept;

}  // namespace zf
