#include <cstring>

#include "elementwise/rearrange.hpp"

namespace zf {

template <class T> int zpad(Vec<T>* v, int n) noexcept {
    if (!readable<T>(v)) return -1;
    const int m = v->points;
    if (m >= n) return 0;
    v->points = n;
    if (zf::realloc<T>(v, m, v->complex) != 0) return -1;
    const std::size_t w = static_cast<std::size_t>(width<T>(*v));
    std::memset(v->data + w * m, 0, w * static_cast<std::size_t>(n - m) * sizeof(T));
    return 0;
}

template <class T> int zero(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int n = v->points;
    v->points = 0;
    return zpad<T>(v, n);
}

template int zpad<double>(Vec<double>*, int) noexcept;
template int zero<double>(Vec<double>*) noexcept;

template int zpad<float>(Vec<float>*, int) noexcept;
template int zero<float>(Vec<float>*) noexcept;

}  // namespace zf
