// The streaming resampler on 1,048,576 samples of a 0.05 cycles/sample sine,
// ratios 0.8 and 1/3 (arguments: 1/ratio times 1000): time per input sample,
// and the SNR of the output against the resampled sine (amplitude and phase
// fitted, so each resampler's own delay does not count), beside a peer's
// high-quality setting when installed.
#include <cmath>
#include <vector>

#include "bench/support.hpp"
#include "filter/resample.hpp"
#ifdef ZF_HAVE_SOXR
#include <soxr.h>
#endif

namespace {

constexpr int kSamples = 1 << 20;
constexpr double kFreq = 0.05;

std::vector<double> sine() {
    std::vector<double> x(kSamples);
    for (int k = 0; k < kSamples; ++k) x[k] = std::sin(2 * M_PI * kFreq * k);
    return x;
}

// SNR in dB of y against the best-fitting sine of frequency f, over the middle.
template <class T> double snr_db(const T* y, long n, double f) {
    double cc = 0, cs = 0, ss = 0, bc = 0, bs = 0;
    const long lo = n / 10, hi = n - n / 10;
    for (long m = lo; m < hi; ++m) {
        const double c = std::cos(2 * M_PI * f * m), s = std::sin(2 * M_PI * f * m);
        cc += c * c, cs += c * s, ss += s * s, bc += c * y[m], bs += s * y[m];
    }
    const double det = cc * ss - cs * cs, a = (bc * ss - bs * cs) / det, b = (cc * bs - cs * bc) / det;
    double noise = 0, power = 0;
    for (long m = lo; m < hi; ++m) {
        const double w = a * std::cos(2 * M_PI * f * m) + b * std::sin(2 * M_PI * f * m);
        noise += (y[m] - w) * (y[m] - w), power += w * w;
    }
    return 10 * std::log10(power / noise);
}

void report(benchmark::State& state, double ratio, double snr) {
    state.counters["ns_per_in"] = benchmark::Counter(static_cast<double>(kSamples) * 1e-9,
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    state.counters["snr_db"] = snr;
    state.counters["ratio"] = ratio;
}

template <class T> void resampler(benchmark::State& state) {
    const double ratio = 1000.0 / static_cast<double>(state.range(0));
    const auto x = sine();
    zb::Filled<T> in(kSamples, false), out(static_cast<int>(kSamples / ratio) + 64, false), scratch(4 * kSamples, false);
    for (int k = 0; k < kSamples; ++k) in.v.data[k] = static_cast<T>(x[k]);
    zf::RsmpCoef<T> c;
    zf::RsmpState<T> s;
    zf::rsmp_coef_init<T>(&c);
    zf::rsmp_state_init<T>(&s);
    zf::rsmp_coef_alloc<T>(&c, nullptr);
    zf::rsmp_coef_setup<T>(&c, static_cast<T>(ratio), 0, nullptr);
    const int want = out.v.points;
    for (auto _ : state) {
        zf::rsmp_state_reset<T>(&c, &s);
        out.v.points = want;
        zf::hrsmp<T>(in.get(), out.get(), scratch.get(), &c, &s);
        benchmark::DoNotOptimize(out.v.data);
    }
    report(state, ratio, snr_db(out.v.data, out.v.points, kFreq * ratio));
    zf::rsmp_state_destroy<T>(&s);
    zf::rsmp_coef_destroy<T>(&c);
}
BENCHMARK_TEMPLATE(resampler, double)->Arg(1250)->Arg(3000)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(resampler, float)->Arg(1250)->Arg(3000)->Unit(benchmark::kMillisecond);

#ifdef ZF_HAVE_SOXR
void soxr_hq(benchmark::State& state) {
    const double ratio = 1000.0 / static_cast<double>(state.range(0));
    const auto x = sine();
    std::vector<double> y(static_cast<std::size_t>(kSamples / ratio) + 64, 1.0);
    std::size_t produced = 0;
    const soxr_io_spec_t io = soxr_io_spec(SOXR_FLOAT64_I, SOXR_FLOAT64_I);
    const soxr_quality_spec_t q = soxr_quality_spec(SOXR_HQ, 0);
    const soxr_runtime_spec_t rt = soxr_runtime_spec(1);
    for (auto _ : state) {
        soxr_error_t err = nullptr;
        soxr_t r = soxr_create(1.0, 1.0 / ratio, 1, &err, &io, &q, &rt);
        std::size_t used = 0, done = 0, tail = 0;
        soxr_process(r, x.data(), x.size(), &used, y.data(), y.size(), &done);
        soxr_process(r, nullptr, 0, nullptr, y.data() + done, y.size() - done, &tail);
        produced = done + tail;
        soxr_delete(r);
        benchmark::DoNotOptimize(y.data());
    }
    report(state, ratio, snr_db(y.data(), static_cast<long>(produced), kFreq * ratio));
}
BENCHMARK(soxr_hq)->Arg(1250)->Arg(3000)->Unit(benchmark::kMillisecond);
#endif

}  // namespace
