// Error correction per point and small complex inversions. The program counts
// every malloc, calloc and realloc (glibc: they are interposed below), so each
// benchmark reports the allocations made inside its timed loop.
#include <zifaif/instrument.h>

#include <cstdlib>
#include <cstring>
#include <random>
#include <vector>

#include "bench/support.hpp"
#include "netcal/correct.hpp"

#if defined(__GLIBC__)
extern "C" void* __libc_malloc(std::size_t);
extern "C" void* __libc_calloc(std::size_t, std::size_t);
extern "C" void* __libc_realloc(void*, std::size_t);
namespace { long zb_netcal_allocations = 0; }
extern "C" void* malloc(std::size_t n) { ++zb_netcal_allocations; return __libc_malloc(n); }
extern "C" void* calloc(std::size_t n, std::size_t s) { ++zb_netcal_allocations; return __libc_calloc(n, s); }
extern "C" void* realloc(void* p, std::size_t n) { ++zb_netcal_allocations; return __libc_realloc(p, n); }
#define ZB_COUNTS_ALLOCATIONS 1
#else
namespace { long zb_netcal_allocations = 0; }
#define ZB_COUNTS_ALLOCATIONS 0
#endif

namespace {

constexpr int kPoints = 100000;

// A trace of n complex points, each part uniform in [centre - spread, centre + spread).
std::vector<double> trace(int n, unsigned seed, double centre, double spread) {
    std::mt19937 gen(seed);
    std::uniform_real_distribution<double> d(centre - spread, centre + spread);
    std::vector<double> v(2 * static_cast<std::size_t>(n));
    for (std::size_t i = 0; i < v.size(); i += 2) {
        v[i] = d(gen);
        v[i + 1] = d(gen) - centre;
    }
    return v;
}

// Twelve-term data of realistic size: tracking near 1, small match and offset terms.
struct TwoPortData {
    std::vector<double> track[4], match[4], offset[4], meas[4], out[4];
    explicit TwoPortData(int n) {
        for (int p = 0; p < 4; ++p) {
            track[p] = trace(n, 10 + p, 1.0, 0.2);
            match[p] = trace(n, 20 + p, 0.0, 0.2);
            offset[p] = trace(n, 30 + p, 0.0, 0.05);
            meas[p] = trace(n, 40 + p, 0.0, 0.8);
            out[p] = std::vector<double>(2 * static_cast<std::size_t>(n), 0.0);
        }
    }
    int run(int n) {
        return Correct2Port(track[0].data(), track[1].data(), track[2].data(), track[3].data(),
                            match[0].data(), match[1].data(), match[2].data(), match[3].data(),
                            offset[0].data(), offset[1].data(), offset[2].data(), offset[3].data(),
                            meas[0].data(), meas[1].data(), meas[2].data(), meas[3].data(),
                            out[0].data(), out[1].data(), out[2].data(), out[3].data(), 0, n);
    }
    zf::TwoPortArrays arrays() {
        zf::TwoPortArrays t{};
        for (int p = 0; p < 4; ++p) {
            t.tracking[p] = zf::points(track[p].data());
            t.match[p] = zf::points(match[p].data());
            t.offset[p] = zf::points(offset[p].data());
            t.measured[p] = zf::points(meas[p].data());
            t.corrected[p] = zf::points(out[p].data());
        }
        return t;
    }
};

void per_point(benchmark::State& state, int n, long allocations) {
    state.counters["ns_per_point"] = benchmark::Counter(
        static_cast<double>(state.iterations()) * n * 1e-9,
        benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    if (ZB_COUNTS_ALLOCATIONS) state.counters["allocs_per_call"] = static_cast<double>(allocations) / state.iterations();
}

void BM_Correct2Port(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    TwoPortData data(n);
    data.run(n);  // warm: every page touched
    const long before = zb_netcal_allocations;
    for (auto _ : state) benchmark::DoNotOptimize(data.run(n));
    per_point(state, n, zb_netcal_allocations - before);
}
// 100 000 points stream from memory; 2 000 points stay in the cache.
BENCHMARK(BM_Correct2Port)->Arg(kPoints)->Arg(2000);

// Each kernel alone over the 100 000 points: 0 portable, 1 AVX2, 2 AVX-512
// (Correct2Port itself takes the widest the processor has).
void BM_Correct2Port_kernel(benchmark::State& state) {
    const int kind = static_cast<int>(state.range(0));
    if ((kind == 1 && !zf::have_avx2()) || (kind == 2 && !zf::have_avx512())) {
        state.SkipWithError("not on this processor");
        return;
    }
    TwoPortData data(kPoints);
    const zf::TwoPortArrays t = data.arrays();
    auto run = [&] {
        if (kind == 0) return zf::correct_2port_portable(t, 0, kPoints);
        for (int j = 0; j < kPoints; j += 8)
            (kind == 1 ? zf::correct_2port_x8_avx2 : zf::correct_2port_x8_avx512)(t, j);
    };
    run();
    const long before = zb_netcal_allocations;
    for (auto _ : state) {
        run();
        benchmark::ClobberMemory();
    }
    per_point(state, kPoints, zb_netcal_allocations - before);
}
BENCHMARK(BM_Correct2Port_kernel)->Arg(0)->Arg(1)->Arg(2);

// The memory traffic alone: the sixteen inputs read and the four outputs
// written point by point with one addition each, the floor for any kernel
// over these twenty streams.
void BM_Correct2Port_memory_floor(benchmark::State& state) {
    TwoPortData data(kPoints);
    const zf::TwoPortArrays t = data.arrays();
    for (auto _ : state) {
        for (int j = 0; j < kPoints; ++j)
            for (int p = 0; p < 4; ++p)
                t.corrected[p][j] = t.tracking[p][j] + t.match[p][j] + t.offset[p][j] + t.measured[p][j];
        benchmark::ClobberMemory();
    }
    per_point(state, kPoints, 0);
}
BENCHMARK(BM_Correct2Port_memory_floor);

// A plain closed-form loop on doubles, as a caller might write it: the
// textbook twelve-term formulas with one division by the determinant.
void BM_Correct2Port_closed_form_loop(benchmark::State& state) {
    TwoPortData data(kPoints);
    using zf::Cx;
    const zf::TwoPortArrays t = data.arrays();
    const Cx one{1.0, 0.0};
    for (auto _ : state) {
        for (int j = 0; j < kPoints; ++j) {
            const Cx n11 = (t.measured[0][j] - t.offset[0][j]) / t.tracking[0][j];
            const Cx n12 = (t.measured[1][j] - t.offset[1][j]) / t.tracking[1][j];
            const Cx n21 = (t.measured[2][j] - t.offset[2][j]) / t.tracking[2][j];
            const Cx n22 = (t.measured[3][j] - t.offset[3][j]) / t.tracking[3][j];
            const Cx esf = t.match[0][j], elr = t.match[1][j], elf = t.match[2][j], esr = t.match[3][j];
            const Cx a = one + n11 * esf, b = one + n22 * esr, n2112 = n21 * n12;
            const Cx inv_d = one / (a * b - n2112 * elf * elr);
            t.corrected[0][j] = (n11 * b - elf * n2112) * inv_d;
            t.corrected[1][j] = n12 * (one + n11 * (esf - elr)) * inv_d;
            t.corrected[2][j] = n21 * (one + n22 * (esr - elf)) * inv_d;
            t.corrected[3][j] = (n22 * a - elr * n2112) * inv_d;
        }
        benchmark::ClobberMemory();
    }
    per_point(state, kPoints, 0);
}
BENCHMARK(BM_Correct2Port_closed_form_loop);

void BM_Correct1Port(benchmark::State& state) {
    const std::vector<double> d = trace(kPoints, 1, 0.0, 0.05), s = trace(kPoints, 2, 0.0, 0.2),
                              r = trace(kPoints, 3, 1.0, 0.2), m = trace(kPoints, 4, 0.0, 0.8);
    std::vector<double> out(2 * static_cast<std::size_t>(kPoints), 0.0);
    Correct1Port(d.data(), s.data(), r.data(), m.data(), out.data(), 0, kPoints);
    const long before = zb_netcal_allocations;
    for (auto _ : state)
        benchmark::DoNotOptimize(Correct1Port(d.data(), s.data(), r.data(), m.data(), out.data(), 0, kPoints));
    per_point(state, kPoints, zb_netcal_allocations - before);
}
BENCHMARK(BM_Correct1Port);

// One inversion of a diagonally dominant complex n x n matrix (copied in first).
void BM_invert(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    std::vector<double> a = trace(n * n, 7, 0.0, 1.0), work(a.size());
    for (int i = 0; i < n; ++i) a[2 * (i * n + i)] += n;
    const long before = zb_netcal_allocations;
    for (auto _ : state) {
        std::memcpy(work.data(), a.data(), a.size() * sizeof(double));
        benchmark::DoNotOptimize(invert(work.data(), n));
        benchmark::ClobberMemory();
    }
    if (ZB_COUNTS_ALLOCATIONS)
        state.counters["allocs_per_call"] = static_cast<double>(zb_netcal_allocations - before) / state.iterations();
}
BENCHMARK(BM_invert)->Arg(2)->Arg(3)->Arg(4);

}  // namespace
