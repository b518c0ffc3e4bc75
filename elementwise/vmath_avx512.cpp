// The vector math kernels with AVX-512 (8 doubles a vector).
// GCC 12 warns about the undefined pass-through operand of several AVX-512
// intrinsics (a known false alarm in its own headers).
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif

#include "elementwise/vmath_kernels.hpp"

namespace zf {

const VecMath<double> vecmath_avx512_double = kernels<double>();
const VecMath<float> vecmath_avx512_float = kernels<float>();

}  // namespace zf
