// Record and memory: copy and append growth.
#include "bench/support.hpp"

namespace {

template <class T> void BM_copy(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> src(n, false), dst(n, false);
    for (auto _ : state) {
        zf::copy<T>(dst.get(), src.get());
        benchmark::DoNotOptimize(dst.v.data);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * 2 * src.bytes());
}
BENCHMARK_TEMPLATE(BM_copy, double)->Range(1 << 10, 1 << 24);
BENCHMARK_TEMPLATE(BM_copy, float)->Range(1 << 10, 1 << 24);

// Appending blocks of 1024 samples until n: storage only grows, so the
// amortised cost per appended sample stays flat.
template <class T> void BM_append_growth(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> block(1024, false);
    for (auto _ : state) {
        zf::Vec<T> v;
        zf::init<T>(&v);
        for (int done = 0; done < n; done += 1024) zf::append<T>(&v, block.get());
        benchmark::DoNotOptimize(v.data);
        zf::destroy<T>(&v);
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * n);
}
BENCHMARK_TEMPLATE(BM_append_growth, double)->Range(1 << 12, 1 << 22);
BENCHMARK_TEMPLATE(BM_append_growth, float)->Range(1 << 12, 1 << 22);

}  // namespace
