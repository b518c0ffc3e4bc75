// The passes of the mixed-radix DFT compiled for AVX2 with fused
// multiply-add: the same loops as the portable build, vectorised four doubles
// or eight floats wide. Called only when the processor has both.
#include "transform/mixed_radix_kernel.hpp"

namespace zf {

void mixed_run_avx2(const MixedPlan<double>& plan, double* x, double* work, bool inverse, double f) noexcept {
    run_passes<double>(plan, x, work, inverse, f);
}
void mixed_run_avx2(const MixedPlan<float>& plan, float* x, float* work, bool inverse, float f) noexcept {
    run_passes<float>(plan, x, work, inverse, f);
}

}  // namespace zf
