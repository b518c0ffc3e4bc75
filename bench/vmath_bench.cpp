// The element-wise functions that run on the vector math kernels, each beside
// the plain loop over the C math library that does the same, and beside the
// two memory bounds: a copy of n scalars into another buffer and an in-place
// pass over them (read and written back). At 8k samples everything is in
// cache; at 16M the data (128 MB of doubles, twice that for pairs) are not.
// Timed in thread CPU time (the machine is shared), input restored before each run.
//
//   zifaif_bench --benchmark_filter='vmath_' --benchmark_repetitions=3 \
//       --benchmark_report_aggregates_only=true --benchmark_format=json > vmath.json
#include <time.h>

#include <cmath>
#include <cstring>

#include "bench/support.hpp"
#include "elementwise/convert.hpp"
#include "elementwise/logexp.hpp"
#include "elementwise/trig.hpp"

namespace {

using zb::restored;

template <class T> void BM_vmath_copy(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> src(n, false), dst(n, false);
    for (auto _ : state) {
        const double t0 = zb::thread_seconds();
        std::memcpy(dst.v.data, src.v.data, src.bytes());
        benchmark::DoNotOptimize(dst.v.data);
        benchmark::ClobberMemory();
        state.SetIterationTime(zb::thread_seconds() - t0);
    }
    zb::set_counters<T>(state, n, 2);
}
template <class T> void BM_vmath_inplace(benchmark::State& state) {
    restored<T>(state, false, -1, 1, 2, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int i = 0; i < v->points; ++i) d[i] = -d[i];
    });
}

template <class T> void BM_vmath_db_real(benchmark::State& state) {
    restored<T>(state, false, 1e-3, 1e3, 2, [](zf::Vec<T>* v) { zf::db<T>(v, T(10)); });
}
template <class T> void BM_vmath_plain_db_real(benchmark::State& state) {
    restored<T>(state, false, 1e-3, 1e3, 2, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int i = 0; i < v->points; ++i) d[i] = T(10) * std::log10(d[i]);
    });
}
template <class T> void BM_vmath_db_complex(benchmark::State& state) {
    restored<T>(state, true, -1e3, 1e3, 4, [](zf::Vec<T>* v) { zf::db<T>(v, T(10)); });
}
template <class T> void BM_vmath_plain_db_complex(benchmark::State& state) {
    restored<T>(state, true, -1e3, 1e3, 4, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int k = 0; k < v->points; ++k) {
            const T re = d[2 * k], im = d[2 * k + 1];
            d[2 * k] = T(5) * std::log10(re * re + im * im);
            d[2 * k + 1] = T(10) * zf::Traits<T>::log10_e * std::atan2(im, re);
        }
    });
}
template <class T> void BM_vmath_phase(benchmark::State& state) {
    restored<T>(state, true, -1, 1, 3, [](zf::Vec<T>* v) { zf::phase<T>(v); });
}
template <class T> void BM_vmath_plain_atan2(benchmark::State& state) {
    restored<T>(state, true, -1, 1, 3, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int k = 0; k < v->points; ++k) d[k] = std::atan2(d[2 * k + 1], d[2 * k]);
    });
}
template <class T> void BM_vmath_mag(benchmark::State& state) {
    restored<T>(state, true, -1e3, 1e3, 3, [](zf::Vec<T>* v) { zf::mag<T>(v); });
}
template <class T> void BM_vmath_plain_hypot(benchmark::State& state) {
    restored<T>(state, true, -1e3, 1e3, 3, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int k = 0; k < v->points; ++k) d[k] = std::hypot(d[2 * k], d[2 * k + 1]);
    });
}
template <class T> void BM_vmath_exp(benchmark::State& state) {
    restored<T>(state, false, -10, 10, 2, [](zf::Vec<T>* v) { zf::exp<T>(v); });
}
template <class T> void BM_vmath_plain_exp(benchmark::State& state) {
    restored<T>(state, false, -10, 10, 2, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int i = 0; i < v->points; ++i) d[i] = std::exp(d[i]);
    });
}
template <class T> void BM_vmath_ptor(benchmark::State& state) {
    restored<T>(state, true, -10, 10, 4, [](zf::Vec<T>* v) { zf::ptor<T>(v); });
}
template <class T> void BM_vmath_plain_sincos(benchmark::State& state) {
    restored<T>(state, true, -10, 10, 4, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int k = 0; k < v->points; ++k) {
            const T m = d[2 * k], phi = d[2 * k + 1];
            d[2 * k] = m * std::cos(phi);
            d[2 * k + 1] = m * std::sin(phi);
        }
    });
}
template <class T> void BM_vmath_sin(benchmark::State& state) {
    restored<T>(state, false, -10, 10, 2, [](zf::Vec<T>* v) { zf::sin<T>(v); });
}
template <class T> void BM_vmath_plain_sin(benchmark::State& state) {
    restored<T>(state, false, -10, 10, 2, [](zf::Vec<T>* v) {
        T* d = v->data;
        for (int i = 0; i < v->points; ++i) d[i] = std::sin(d[i]);
    });
}

void sizes(benchmark::internal::Benchmark* b) { b->Arg(1 << 13)->Arg(1 << 24); }

#define ZB_TWINS(name)                                                          \
    BENCHMARK_TEMPLATE(name, double)->UseManualTime()->Apply(sizes);            \
    BENCHMARK_TEMPLATE(name, float)->UseManualTime()->Apply(sizes)

ZB_TWINS(BM_vmath_copy);
ZB_TWINS(BM_vmath_inplace);
ZB_TWINS(BM_vmath_db_real);
ZB_TWINS(BM_vmath_plain_db_real);
ZB_TWINS(BM_vmath_db_complex);
ZB_TWINS(BM_vmath_plain_db_complex);
ZB_TWINS(BM_vmath_phase);
ZB_TWINS(BM_vmath_plain_atan2);
ZB_TWINS(BM_vmath_mag);
ZB_TWINS(BM_vmath_plain_hypot);
ZB_TWINS(BM_vmath_exp);
ZB_TWINS(BM_vmath_plain_exp);
ZB_TWINS(BM_vmath_ptor);
ZB_TWINS(BM_vmath_plain_sincos);
ZB_TWINS(BM_vmath_sin);
ZB_TWINS(BM_vmath_plain_sin);

}  // namespace
