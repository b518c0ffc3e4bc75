// FIR filtering: dspd_fir / dspfd_fir on 2^20 real samples with 15, 63, 255
// and 1023 taps (a designed lowpass), one history vector carried from call to
// call, reported as ns per sample. With liquid-dsp installed its block FIR
// filter (single precision) runs on the same signal and taps for comparison.
#include "bench/support.hpp"
#include "filter/fir.hpp"

#include <vector>

#ifdef ZF_HAVE_LIQUID
#include <complex.h>
#include <liquid/liquid.h>
#endif

namespace {

constexpr int kSamples = 1 << 20;

template <class T> void per_sample(benchmark::State& state) {
    state.counters["ns_per_sample"] = benchmark::Counter(static_cast<double>(kSamples) * 1e-9,
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

template <class T> void fir_filter(benchmark::State& state) {
    const int taps = static_cast<int>(state.range(0));
    zb::Filled<T> x(kSamples, false), y(kSamples, false), h(taps, false), s(taps - 1, false);
    zf::fir<T>(h.get(), DSP_FIR_LOWPASS, T(0.2), T(0));
    zf::fir<T>(x.get(), y.get(), h.get(), s.get());   // transforms cached, storage touched
    for (auto _ : state) {
        zf::fir<T>(x.get(), y.get(), h.get(), s.get());
        benchmark::ClobberMemory();
    }
    per_sample<T>(state);
}
BENCHMARK_TEMPLATE(fir_filter, double)->Arg(15)->Arg(63)->Arg(255)->Arg(1023)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(fir_filter, float)->Arg(15)->Arg(63)->Arg(255)->Arg(1023)->Unit(benchmark::kMillisecond);

#ifdef ZF_HAVE_LIQUID
void liquid_firfilt(benchmark::State& state) {
    const int taps = static_cast<int>(state.range(0));
    zb::Filled<float> x(kSamples, false), y(kSamples, false), h(taps, false);
    zf::fir<float>(h.get(), DSP_FIR_LOWPASS, 0.2f, 0.0f);
    firfilt_rrrf q = firfilt_rrrf_create(h.get()->data, static_cast<unsigned>(taps));
    for (auto _ : state) {
        firfilt_rrrf_execute_block(q, x.get()->data, kSamples, y.get()->data);
        benchmark::ClobberMemory();
    }
    firfilt_rrrf_destroy(q);
    per_sample<float>(state);
}
BENCHMARK(liquid_firfilt)->Arg(15)->Arg(63)->Arg(255)->Arg(1023)->Unit(benchmark::kMillisecond);
#endif

}  // namespace
