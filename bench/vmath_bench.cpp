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

using zb::restored;

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
