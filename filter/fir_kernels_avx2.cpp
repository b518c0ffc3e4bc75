// AVX2/FMA registers for the blocked direct-sum kernel of fir_blocked.hpp.
#include "core/avx2.hpp"
#include "filter/fir_blocked.hpp"

namespace zf {

void conv_avx2(const double* x, const double* g, int m, int s, double* y, std::ptrdiff_t n) noexcept { blocked::conv<avx2::Reg<double>>(x, g, m, s, y, n); }
void conv_avx2(const float* x, const float* g, int m, int s, float* y, std::ptrdiff_t n) noexcept { blocked::conv<avx2::Reg<float>>(x, g, m, s, y, n); }

}  // namespace zf
