// The direct-sum kernel on a real response: the portable version, which is
// the reference, and the one choice between it and the vectorised versions.
#include "core/cpu.hpp"
#include "filter/fir.hpp"

namespace zf {

// Taps outer over blocks of outputs: the accumulators of a block stay in
// registers while every tap adds its multiple of the shifted input.
template <class T> void conv_portable(const T* x, const T* g, int m, int s, T* y, std::ptrdiff_t n) noexcept {
    constexpr std::ptrdiff_t block = 32;
    for (std::ptrdiff_t i0 = 0; i0 < n; i0 += block) {
        const std::ptrdiff_t b = n - i0 < block ? n - i0 : block;
        T acc[block] = {};
        for (int j = 0; j < m; ++j) {
            const T gj = g[j];
            const T* xp = x + i0 + static_cast<std::ptrdiff_t>(s) * j;
            for (std::ptrdiff_t t = 0; t < b; ++t) acc[t] += gj * xp[t];
        }
        for (std::ptrdiff_t t = 0; t < b; ++t) y[i0 + t] = acc[t];
    }
}

namespace {
template <class T> ConvFn<T> choose() noexcept {
    if (cpu_has_avx512()) return static_cast<ConvFn<T>>(&conv_avx512);
    if (cpu_has_avx2_fma()) return static_cast<ConvFn<T>>(&conv_avx2);
    return &conv_portable<T>;
}
}  // namespace

template <class T> ConvFn<T> conv_kernel() noexcept {
    static const ConvFn<T> chosen = choose<T>();   // decided once
    return chosen;
}

template void conv_portable<double>(const double*, const double*, int, int, double*, std::ptrdiff_t) noexcept;
template void conv_portable<float>(const float*, const float*, int, int, float*, std::ptrdiff_t) noexcept;
template ConvFn<double> conv_kernel<double>() noexcept;
template ConvFn<float> conv_kernel<float>() noexcept;

}  // namespace zf
