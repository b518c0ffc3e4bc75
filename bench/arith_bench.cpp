// One-input element-wise operations: time per sample of scale, offset, magsq,
// db, exp and phase, against a streaming copy of the same bytes (the memory
// bound) and against plain loops calling the C math library (the bound for the
// operations that call log10, exp or atan2 per sample).
//
//   zifaif_bench --benchmark_filter='arith|baseline|plain' --benchmark_repetitions=5 \
//       --benchmark_report_aggregates_only=true --benchmark_format=json > arith.json
//   tools/bench_table.py arith.json --vs BM_db_real=BM_plain_log10 ...
#include <time.h>

#include <cmath>
#include <cstring>

#include "bench/support.hpp"
#include "elementwise/arith.hpp"
#include "elementwise/convert.hpp"
#include "elementwise/logexp.hpp"

namespace {

using zb::restored;
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

template <class T> void BM_arith_db_real(benchmark::State& state) {
    restored<T>(state, false, 1e-3, 1e3, 2, [](zf::Vec<T>* v) { zf::db<T>(v, T(10)); });
}
template <class T> void BM_arith_db_complex(benchmark::State& state) {
    restored<T>(state, true, -1e3, 1e3, 4, [](zf::Vec<T>* v) { zf::db<T>(v, T(10)); });
}
template <class T> void BM_arith_exp(benchmark::State& state) {
    restored<T>(state, false, -10, 10, 2, [](zf::Vec<T>* v) { zf::exp<T>(v); });
}
template <class T> void BM_arith_phase(benchmark::State& state) {
    restored<T>(state, true, -1, 1, 3, [](zf::Vec<T>* v) { zf::phase<T>(v); });
}

// The plain loops over the same data, timed the same way.
template <class T> void BM_plain_log10(benchmark::State& state) {
    restored<T>(state, false, 1e-3, 1e3, 2, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int i = 0; i < v->points; ++i) d[i] = T(10) * std::log10(d[i]);
    });
}
template <class T> void BM_plain_log10_atan2(benchmark::State& state) {
    restored<T>(state, true, -1e3, 1e3, 4, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int k = 0; k < v->points; ++k) {
            const T re = d[2 * k], im = d[2 * k + 1];
            d[2 * k] = T(5) * std::log10(re * re + im * im);
            d[2 * k + 1] = T(10) * zf::Traits<T>::log10_e * std::atan2(im, re);
        }
    });
}
template <class T> void BM_plain_exp(benchmark::State& state) {
    restored<T>(state, false, -10, 10, 2, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int i = 0; i < v->points; ++i) d[i] = std::exp(d[i]);
    });
}
template <class T> void BM_plain_atan2(benchmark::State& state) {
    restored<T>(state, true, -1, 1, 3, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int k = 0; k < v->points; ++k) d[k] = std::atan2(d[2 * k + 1], d[2 * k]);
    });
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
BENCHMARK_TEMPLATE(BM_arith_db_real, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_db_real, float)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_db_complex, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_db_complex, float)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_exp, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_exp, float)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_phase, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_arith_phase, float)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_log10, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_log10, float)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_log10_atan2, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_log10_atan2, float)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_exp, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_exp, float)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_atan2, double)->UseManualTime()->Apply(sizes);
BENCHMARK_TEMPLATE(BM_plain_atan2, float)->UseManualTime()->Apply(sizes);

}  // namespace
