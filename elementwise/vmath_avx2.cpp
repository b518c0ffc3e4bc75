// The vector math kernels with AVX2 and FMA (4 doubles a vector).
#include "elementwise/vmath_kernels.hpp"

namespace zf {

const VecMath<double> vecmath_avx2_double = kernels<double>();
const VecMath<float> vecmath_avx2_float = kernels<float>();

}  // namespace zf
