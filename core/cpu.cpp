#include "core/cpu.hpp"

namespace zf {

#if defined(__GNUC__) && (defined(__x86_64__) || defined(__i386__)) && !defined(ZF_FORCE_PORTABLE)
bool cpu_has_avx2_fma() noexcept {
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
}
bool cpu_has_avx512() noexcept {
    return cpu_has_avx2_fma() && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") &&
           __builtin_cpu_supports("avx512vl");
}
#else
bool cpu_has_avx2_fma() noexcept { return false; }
bool cpu_has_avx512() noexcept { return false; }
#endif

}  // namespace zf
