// The run-time choice of the vector math kernels.
#include "elementwise/vmath.hpp"

#include "core/cpu.hpp"

namespace zf {

template <> const VecMath<double>* vecmath<double>() noexcept {
    if (cpu_has_avx512()) return &vecmath_avx512_double;
    if (cpu_has_avx2_fma()) return &vecmath_avx2_double;
    return nullptr;
}
template <> const VecMath<float>* vecmath<float>() noexcept {
    if (cpu_has_avx512()) return &vecmath_avx512_float;
    if (cpu_has_avx2_fma()) return &vecmath_avx2_float;
    return nullptr;
}

}  // namespace zf
