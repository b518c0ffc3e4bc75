// Plain decimation with a carried phase.
#include "filter/resample.hpp"

#include "filter/fir.hpp"

#include <cstdint>

namespace zf {

template <class T> int deci(const Vec<T>* in, Vec<T>* out, int factor, Vec<T>* phase) noexcept {
    if (!readable<T>(in) || !writable<T>(out)) return -1;
    if (phase && (same_storage<T>(*phase, *in) || same_storage<T>(*phase, *out))) return -1;
    if (factor < 1) factor = 1;
    const std::int64_t n = in->points;
    std::int64_t p = 0;
    if (phase) {
        if (prepare_history<T>(phase, *in, 1) != 0) return -1;
        p = round_half_up<T>(phase->data[0]);
        if (p < 0) p = 0;
    }
    const std::int64_t span = n + factor - p - 1;
    const std::int64_t count = p < n ? span / factor : 0;
    const std::int64_t next = p < n ? factor - 1 - span % factor : p - n;
    // Every sample is read before its slot is written (p + k factor >= k), so
    // the output may be the input itself.
    const int w = width<T>(*in);
    const T delta = in->delta;
    out->points = in->points;
    out->complex = in->complex;
    if (alloc<T>(out) != 0) return -1;
    const T* from = in->data;
    T* to = out->data;
    for (std::int64_t k = 0; k < count; ++k) {
        const std::int64_t s = (p + k * factor) * w;
        to[k * w] = from[s];
        if (w == 2) to[k * w + 1] = from[s + 1];
    }
    out->points = static_cast<int>(count);
    out->delta = delta * static_cast<T>(factor);
    if (phase) {
        phase->data[0] = static_cast<T>(next);
        if (phase->complex) phase->data[1] = T(0);
    }
    return 0;
}

template int deci<double>(const Vec<double>*, Vec<double>*, int, Vec<double>*) noexcept;
template int deci<float>(const Vec<float>*, Vec<float>*, int, Vec<float>*) noexcept;

}  // namespace zf
