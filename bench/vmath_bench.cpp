// The element-wise conversions that run on the vector math kernels beside
// plain loops over the C math library, timed like arith_bench.cpp (thread CPU
// time, input restored before each run): magnitude, polar to rectangular and
// sine, which arith_bench.cpp does not cover.
//
//   zifaif_bench --benchmark_filter='arith_(db|exp|phase|mag|ptor|sin)|plain' ...
//   tools/bench_table.py vmath.json --vs BM_arith_mag=BM_plain_hypot ...
#include <time.h>

#include <cmath>
#include <cstring>

#include "bench/support.hpp"
#include "elementwise/convert.hpp"
#include "elementwise/trig.hpp"

namespace {

double thread_seconds() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + 1e-9 * static_cast<double>(t.tv_nsec);
}

template <class T, class Op> void restored(benchmark::State& state, bool complex, double lo, double hi, int moved, Op op) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> pristine(n, complex, lo, hi), work(n, complex, lo, hi);
    for (auto _ : state) {
        std::memcpy(work.v.data, pristine.v.data, pristine.bytes());
        work.v.complex = complex;
        benchmark::ClobberMemory();
        const double t0 = thread_seconds();
        op(work.get());
        benchmark::ClobberMemory();
        state.SetIterationTime(thread_seconds() - t0);
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * n);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * n * moved * static_cast<int64_t>(sizeof(T)));
}

template <class T> void BM_arith_mag(benchmark::State& state) {
    restored<T>(state, true, -1e3, 1e3, 3, [](zf::Vec<T>* v) { zf::mag<T>(v); });
}
template <class T> void BM_plain_hypot(benchmark::State& state) {
    restored<T>(state, true, -1e3, 1e3, 3, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int k = 0; k < v->points; ++k) d[k] = std::hypot(d[2 * k], d[2 * k + 1]);
    });
}
template <class T> void BM_arith_ptor(benchmark::State& state) {
    restored<T>(state, true, -10, 10, 4, [](zf::Vec<T>* v) { zf::ptor<T>(v); });
}
template <class T> void BM_plain_sincos(benchmark::State& state) {
    restored<T>(state, true, -10, 10, 4, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int k = 0; k < v->points; ++k) {
            const T m = d[2 * k], phi = d[2 * k + 1];
            d[2 * k] = m * std::cos(phi);
            d[2 * k + 1] = m * std::sin(phi);
        }
    });
}
template <class T> void BM_arith_sin(benchmark::State& state) {
    restored<T>(state, false, -10, 10, 2, [](zf::Vec<T>* v) { zf::sin<T>(v); });
}
template <class T> void BM_plain_sin(benchmark::State& state) {
    restored<T>(state, false, -10, 10, 2, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int i = 0; i < v->points; ++i) d[i] = std::sin(d[i]);
    });
}

void sizes(benchmark::internal::Benchmark* b) { b->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 24); }

BENCHMARK_TEMPLATE(BM_arith_mag, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_mag, float)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_hypot, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_hypot, float)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_ptor, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_ptor, float)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_sincos, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_sincos, float)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_sin, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_sin, float)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_sin, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_sin, float)->UseManualTime()->Apply(sizes);

}  // namespace
