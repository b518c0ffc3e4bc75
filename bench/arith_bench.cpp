// One-input element-wise operations that need no math library: time per sample
// of scale, offset and magsq against a streaming copy of the same bytes (the
// memory bound). The functions on the vector math kernels (db, exp, phase, mag)
// have their own table beside the plain C-library loops in vmath_bench.cpp.
//
//   zifaif_bench --benchmark_filter='arith|baseline' --benchmark_repetitions=5 \
//       --benchmark_report_aggregates_only=true
#include <time.h>

#include <cmath>
#include <cstring>

#include "bench/support.hpp"
#include "elementwise/arith.hpp"
#include "elementwise/convert.hpp"

namespace {

using zb::set_counters;

constexpr int k1k = 1 << 10, k64k = 1 << 16, k16M = 1 << 24;

// memcpy of n real samples into a distinct buffer that is reused: the bound
// for every single-pass operation over the same bytes.
template <class T> void BM_baseline_stream_copy(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> src(n, false), dst(n, false);
    for (auto _ : state) {
        std::memcpy(dst.v.data, src.v.data, src.bytes());
        benchmark::DoNotOptimize(dst.v.data);
        benchmark::ClobberMemory();
    }
    set_counters<T>(state, n, 2);
}

// An operation that can run on its own result again and again.
template <class T, class Op> void repeated(benchmark::State& state, Op op) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> v(n, false);
    for (auto _ : state) {
        op(v.get());
        benchmark::ClobberMemory();
    }
    set_counters<T>(state, n, 2);
}

template <class T> void BM_arith_scale(benchmark::State& state) {
    repeated<T>(state, [](zf::Vec<T>* v) { zf::scale<T>(v, T(-1)); });
}
template <class T> void BM_arith_offset(benchmark::State& state) {
    repeated<T>(state, [](zf::Vec<T>* v) { zf::offset<T>(v, T(1e-3)); });
}

// In place, complex to real; only the shape is restored between runs. Parts of
// magnitude 1 to 2 keep every later value normal (they grow to the guard).
template <class T> void BM_arith_magsq_complex(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> v(n, true, 1.0, 2.0);
    for (auto _ : state) {
        v.v.complex = 1;
        zf::magsq<T>(v.get());
        benchmark::ClobberMemory();
    }
    set_counters<T>(state, n, 3);
}

void sizes(benchmark::internal::Benchmark* b) { b->Arg(k1k)->Arg(k64k)->Arg(k16M); }

BENCHMARK_TEMPLATE(BM_baseline_stream_copy, double)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_baseline_stream_copy, float)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_scale, double)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_scale, float)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_offset, double)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_offset, float)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_magsq_complex, double)->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_magsq_complex, float)->Apply(sizes);

}  // namespace
