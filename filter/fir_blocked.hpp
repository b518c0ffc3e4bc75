// The direct-sum kernel on a real response for one instruction set: the
// portable kernel's sums (taps outer over a block of outputs) with U registers
// of accumulators. Included only by the instruction-set files, each with the
// register operations of its set (register type R, width W, zero, set1, load,
// store, fma): avx2::Reg<T> of core/avx2.hpp, or an Ops<T> of its own in an
// unnamed namespace.
#pragma once

#include <cstddef>

#include "filter/fir.hpp"

namespace zf {
namespace blocked {

// U * W outputs from x with every tap.
template <class O, class T, int U> inline void block(const T* x, const T* g, int m, std::ptrdiff_t s, T* y) noexcept {
    typename O::R acc[U];
    for (int u = 0; u < U; ++u) acc[u] = O::zero();
    for (int j = 0; j < m; ++j) {
        const typename O::R gj = O::set1(g[j]);
        const T* xp = x + s * j;
        for (int u = 0; u < U; ++u) acc[u] = O::fma(gj, O::load(xp + u * O::W), acc[u]);
    }
    for (int u = 0; u < U; ++u) O::store(y + u * O::W, acc[u]);
}

template <class O, class T> inline void conv(const T* x, const T* g, int m, int s, T* y, std::ptrdiff_t n) noexcept {
    constexpr std::ptrdiff_t W = O::W;
    std::ptrdiff_t i = 0;
    for (; i + 8 * W <= n; i += 8 * W) block<O, T, 8>(x + i, g, m, s, y + i);
    for (; i + W <= n; i += W) block<O, T, 1>(x + i, g, m, s, y + i);
    if (i < n) conv_portable<T>(x + i, g, m, s, y + i, n - i);
}

}  // namespace blocked
}  // namespace zf
