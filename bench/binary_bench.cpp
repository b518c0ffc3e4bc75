// Binary operations and the sort: throughput against memory bandwidth.
// Bytes processed count every scalar read and written once (two inputs and
// one output for the binary operations), so the figures compare directly
// with a streaming copy's.
#include "bench/support.hpp"
#include "elementwise/binary.hpp"
#include "elementwise/rearrange.hpp"

namespace {

// Samples processed, and bytes for `passes` sweeps over one operand's storage
// (two inputs read and one output written: 3).
template <class T> void set_counters(benchmark::State& state, const zb::Filled<T>& a, int passes) {
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * a.v.points);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * passes * a.bytes());
}

template <class T> void BM_add(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> a(n, false, -1, 1, 1), b(n, false, -1, 1, 2), out(n, false);
    for (auto _ : state) {
        zf::add<T>(a.get(), b.get(), out.get());
        benchmark::DoNotOptimize(out.v.data);
    }
    set_counters<T>(state, a, 3);
}

// In place (out == a): must run as fast as with a separate output.
template <class T> void BM_add_inplace(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> a(n, false, -1, 1, 1), b(n, false, -1, 1, 2);
    for (auto _ : state) {
        zf::add<T>(a.get(), b.get(), a.get());
        benchmark::DoNotOptimize(a.v.data);
    }
    set_counters<T>(state, a, 3);
}

template <class T> void BM_mul_complex(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> a(n, true, -1, 1, 1), b(n, true, -1, 1, 2), out(n, true);
    for (auto _ : state) {
        zf::mul<T>(a.get(), b.get(), out.get());
        benchmark::DoNotOptimize(out.v.data);
    }
    set_counters<T>(state, a, 3);
}

template <class T> void BM_avg_add(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> a(n, false, -1, 1, 1), b(n, false, -1, 1, 2), out(n, false);
    for (auto _ : state) {
        zf::avg_add<T>(a.get(), b.get(), out.get(), T(0.1));
        benchmark::DoNotOptimize(out.v.data);
    }
    set_counters<T>(state, a, 3);
}

// Each iteration restores the unsorted input by a copy (a few percent of the
// sort's time) and sorts it; items are samples sorted.
template <class T> void BM_sort(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> src(n, false), work(n, false);
    for (auto _ : state) {
        zf::copy<T>(work.get(), src.get());
        zf::sort<T>(work.get());
        benchmark::DoNotOptimize(work.v.data);
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * n);
}

void sizes(benchmark::internal::Benchmark* b) { b->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 24); }

BENCHMARK_TEMPLATE(BM_add, double)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_add, float)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_add_inplace, double)->Arg(1 << 16)->Arg(1 << 24);
BENCHMARK_TEMPLATE(BM_add_inplace, float)->Arg(1 << 16)->Arg(1 << 24);
BENCHMARK_TEMPLATE(BM_mul_complex, double)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_mul_complex, float)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_avg_add, double)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_avg_add, float)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_sort, double)->Apply(sizes)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(BM_sort, float)->Apply(sizes)->Unit(benchmark::kMicrosecond);

}  // namespace
