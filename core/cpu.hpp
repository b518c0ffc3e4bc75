// The one place that asks the processor which instruction sets it has. Every
// run-time dispatch point chooses its kernel through these, so a build with
// ZF_FORCE_PORTABLE (CMake option of the same name) takes the portable path
// everywhere and the suite can test it on a machine that has the faster ones.
#pragma once

namespace zf {

// AVX2 with fused multiply-add: the *_avx2.cpp kernels may run.
bool cpu_has_avx2_fma() noexcept;
// AVX-512 F, DQ and VL (and AVX2 with FMA): the *_avx512.cpp kernels may run.
bool cpu_has_avx512() noexcept;

}  // namespace zf
