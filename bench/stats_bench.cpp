// Descriptive statistics: time per sample of the block sum, the shifted
// variance and the median (copy and sort) at 1k, 64k and 16M samples.
//   zifaif_bench --benchmark_filter='stats|baseline' --benchmark_repetitions=5 \
//       --benchmark_report_aggregates_only=true --benchmark_format=json > stats.json
//   tools/bench_table.py stats.json
#include "bench/support.hpp"
#include "stats/descriptive.hpp"

namespace {

constexpr int k1k = 1 << 10, k64k = 1 << 16, k16M = 1 << 24;

// Runs one statistic of n real samples into a one-point output that is sized
// before timing; the bytes are the samples read once.
template <class T, int (*Stat)(const zf::Vec<T>*, zf::Vec<T>*)> void run_stat(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> in(n, false, 10.0, 12.0), out(1, false);
    Stat(in.get(), out.get());
    for (auto _ : state) {
        Stat(in.get(), out.get());
        benchmark::DoNotOptimize(out.v.data[0]);
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * n);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(in.bytes()));
}

template <class T> void BM_stats_sum(benchmark::State& state) { run_stat<T, zf::sum<T>>(state); }
template <class T> void BM_stats_pop_var(benchmark::State& state) { run_stat<T, zf::pop_var<T>>(state); }
template <class T> void BM_stats_median(benchmark::State& state) { run_stat<T, zf::median<T>>(state); }

BENCHMARK_TEMPLATE(BM_stats_sum, double)->Arg(k1k)->Arg(k64k)->Arg(k16M);
BENCHMARK_TEMPLATE(BM_stats_sum, float)->Arg(k1k)->Arg(k64k)->Arg(k16M);
BENCHMARK_TEMPLATE(BM_stats_pop_var, double)->Arg(k1k)->Arg(k64k)->Arg(k16M);
BENCHMARK_TEMPLATE(BM_stats_pop_var, float)->Arg(k1k)->Arg(k64k)->Arg(k16M);
BENCHMARK_TEMPLATE(BM_stats_median, double)->Arg(k1k)->Arg(k64k);
BENCHMARK_TEMPLATE(BM_stats_median, float)->Arg(k1k)->Arg(k64k);
// A full sort of 16M samples takes about a second: a few iterations suffice.
BENCHMARK_TEMPLATE(BM_stats_median, double)->Arg(k16M)->Iterations(2)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_stats_median, float)->Arg(k16M)->Iterations(2)->Unit(benchmark::kMillisecond);

}  // namespace
