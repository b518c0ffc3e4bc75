// The mixed-radix DFT: plans, their cache and the portable passes.
#include "transform/mixed_radix.hpp"

#include <cstdint>
#include <cstdlib>

#include "core/cache.hpp"
#include "core/cpu.hpp"
#include "core/libm.hpp"
#include "transform/dft.hpp"
#include "transform/fft.hpp"
#include "transform/mixed_radix_kernel.hpp"

namespace zf {
namespace {

constexpr int kPrimes[] = {2, 3, 5, 7};

// The process-wide state of one precision: the plan of the last length (complete
// when set, only read afterwards) and the scratch, a separate block grown on
// demand. Plain pointers: nothing runs at unload; only release_mixed frees them.
template <class T> struct MixedCache {
    MixedPlan<T>* plan;
    T* work;
    std::size_t work_size;   // scalars
    int builds;
};
template <class T> MixedCache<T> mixed_cache{};

template <class T> void free_plan(MixedPlan<T>* plan) noexcept {
    if (plan) std::free(plan->tw);
    std::free(plan);
}

template <class T> int release_mixed() noexcept {
    MixedCache<T>& c = mixed_cache<T>;
    free_plan(c.plan);
    std::free(c.work);
    c.plan = nullptr;
    c.work = nullptr;
    c.work_size = 0;
    return 0;
}

// The radices of n in the order the passes run: eights, a four, a two, threes,
// fives, sevens.
int factorise(int n, int* radix) noexcept {
    int count = 0;
    while (n % 8 == 0) { radix[count++] = 8; n /= 8; }
    while (n % 4 == 0) { radix[count++] = 4; n /= 4; }
    for (int p : kPrimes) {
        while (n % p == 0) { radix[count++] = p; n /= p; }
    }
    return n == 1 ? count : -1;
}

template <class T> MixedPlan<T>* build_plan(int n) noexcept {
    int radix[kMixedMaxPasses];
    const int passes = factorise(n, radix);
    if (passes < 1) return nullptr;
    auto* plan = static_cast<MixedPlan<T>*>(std::calloc(1, sizeof(MixedPlan<T>)));
    if (!plan) return nullptr;
    std::size_t pairs = 0;
    for (int i = 0, len = n; i < passes; len /= radix[i], ++i) pairs += static_cast<std::size_t>(len / radix[i]) * (radix[i] - 1);
    plan->tw = static_cast<T*>(std::malloc(2 * pairs * sizeof(T)));
    if (!plan->tw) {
        free_plan(plan);
        return nullptr;
    }
    plan->n = n;
    plan->passes = passes;
    T* tw = plan->tw;
    int s = 1;
    for (int i = 0; i < passes; ++i) {
        MixedPass<T>& ps = plan->pass[i];
        const int p = radix[i];
        const int len = n / s;               // the length the pass splits, p·m
        ps.p = p;
        ps.m = len / p;
        ps.s = s;
        ps.tw = tw;
        for (int k = 0; k < p; ++k) {
            double sn, cs;
            libm::sincos_turn(k, p, &sn, &cs);
            ps.roots[k] = static_cast<T>(cs);
            ps.roots[8 + k] = static_cast<T>(sn);
        }
        // e^(-j2π·jr/len) = e^(-j2π·jr·s/n), the angle reduced to a whole turn.
        for (int r = 1; r < p; ++r) {
            for (int j = 0; j < ps.m; ++j) {
                double sn, cs;
                libm::sincos_turn(static_cast<std::int64_t>(j) * r * s % n, n, &sn, &cs);
                *tw++ = static_cast<T>(cs);
                *tw++ = static_cast<T>(-sn);
            }
        }
        s *= p;
    }
    return plan;
}

template <class T> T* scratch(std::size_t size) noexcept {
    MixedCache<T>& c = mixed_cache<T>;
    if (c.work_size < size) {
        T* grown = static_cast<T*>(std::malloc(size * sizeof(T)));
        if (!grown) return nullptr;
        std::free(c.work);
        c.work = grown;
        c.work_size = size;
    }
    return c.work;
}

template <class T> MixedRunFn<T> choose() noexcept {
    if (cpu_has_avx2_fma()) return static_cast<MixedRunFn<T>>(&mixed_run_avx2);
    return static_cast<MixedRunFn<T>>(&mixed_run_portable);
}

}  // namespace

bool mixed_radix_length(int n) noexcept {
    int radix[kMixedMaxPasses];
    return n >= 2 && factorise(n, radix) > 0;
}

template <class T> const MixedPlan<T>* mixed_plan(int n) noexcept {
    MixedCache<T>& c = mixed_cache<T>;
    if (c.plan && c.plan->n == n) return c.plan;
    register_cache<T>(CacheSlot::dft_mixed, &release_mixed<T>);
    free_plan(c.plan);
    c.plan = build_plan<T>(n);
    if (c.plan) ++c.builds;
    return c.plan;
}

template <class T> int mixed_plan_builds() noexcept { return mixed_cache<T>.builds; }

template <class T> MixedRunFn<T> mixed_runner() noexcept {
    static const MixedRunFn<T> chosen = choose<T>();   // decided once
    return chosen;
}

template <class T> int mixed_dft(Vec<T>* v, int direction) noexcept {
    const int n = v->points;
    const MixedPlan<T>* plan = mixed_plan<T>(n);
    if (!plan) return -1;
    T* work = scratch<T>(4 * static_cast<std::size_t>(n));
    if (!work || widen<T>(*v) != 0) return -1;
    const T f = direction == 0 ? T(1) / static_cast<T>(n) : T(1);
    mixed_runner<T>()(*plan, v->data, work, direction == 1, f);
    invert_delta<T>(*v, n);
    return 0;
}

void mixed_run_portable(const MixedPlan<double>& plan, double* x, double* work, bool inverse, double f) noexcept {
    run_passes<double>(plan, x, work, inverse, f);
}
void mixed_run_portable(const MixedPlan<float>& plan, float* x, float* work, bool inverse, float f) noexcept {
    run_passes<float>(plan, x, work, inverse, f);
}

template int mixed_dft<double>(Vec<double>*, int) noexcept;
template const MixedPlan<double>* mixed_plan<double>(int) noexcept;
template int mixed_plan_builds<double>() noexcept;
template MixedRunFn<double> mixed_runner<double>() noexcept;

template int mixed_dft<float>(Vec<float>*, int) noexcept;
template const MixedPlan<float>* mixed_plan<float>(int) noexcept;
template int mixed_plan_builds<float>() noexcept;
template MixedRunFn<float> mixed_runner<float>() noexcept;

}  // namespace zf
