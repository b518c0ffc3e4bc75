// Window application with a cache hit beside multiplying by a stored array of
// the same window, at 1024 and 65536 points, in one run:
//   zifaif_bench --benchmark_filter='window' --benchmark_repetitions=5 \
//       --benchmark_report_aggregates_only=true
// "rotated" is the default call (product rotated left by N/2 in the same
// pass), "unrotated" passes DSP_WINFLAG_NO_ROTATE, "stored" is a plain loop
// over a window kept by the caller. The data shrink under the repeated
// products: denormals are flushed so that they never enter a measurement.
#include <xmmintrin.h>

#include "bench/support.hpp"
#include "window/window.hpp"

namespace {

constexpr int k1k = 1 << 10, k64k = 1 << 16;
constexpr int hann = 2, peak = 2, no_rotate = 32;

void flush_denormals() { _mm_setcsr(_mm_getcsr() | 0x8040); }

template <class T> void finish(benchmark::State& state, const zb::Filled<T>& v) {
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * v.v.points);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(v.bytes()));
}

template <class T, int Flags> void BM_window_cached(benchmark::State& state) {
    flush_denormals();
    zb::Filled<T> v(static_cast<int>(state.range(0)), false, 0.5, 1.5);
    zf::window<T>(v.get(), hann, Flags);   // fills the cache
    for (auto _ : state) {
        zf::window<T>(v.get(), hann, Flags);
        benchmark::ClobberMemory();
    }
    finish(state, v);
}

template <class T> void BM_window_stored(benchmark::State& state) {
    flush_denormals();
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> v(n, false, 0.5, 1.5), w(n, false);
    zf::make_window<T>(w.get(), n, hann, peak, T(0));
    T* __restrict d = v.v.data;
    const T* __restrict s = w.v.data;
    for (auto _ : state) {
        for (int i = 0; i < n; ++i) d[i] *= s[i];
        benchmark::ClobberMemory();
    }
    finish(state, v);
}

template <class T> void BM_window_rotated(benchmark::State& state) { BM_window_cached<T, peak>(state); }
template <class T> void BM_window_unrotated(benchmark::State& state) { BM_window_cached<T, peak | no_rotate>(state); }

BENCHMARK_TEMPLATE(BM_window_stored, double)->Arg(k1k)->Arg(k64k);
BENCHMARK_TEMPLATE(BM_window_rotated, double)->Arg(k1k)->Arg(k64k);
BENCHMARK_TEMPLATE(BM_window_unrotated, double)->Arg(k1k)->Arg(k64k);
BENCHMARK_TEMPLATE(BM_window_stored, float)->Arg(k1k)->Arg(k64k);
BENCHMARK_TEMPLATE(BM_window_rotated, float)->Arg(k1k)->Arg(k64k);
BENCHMARK_TEMPLATE(BM_window_unrotated, float)->Arg(k1k)->Arg(k64k);

}  // namespace
