// DFT of lengths that are not powers of two: time per forward transform of
// smooth lengths (1000, 100000: mixed-radix passes) and of a prime length
// (4097: chirp-z), each through the C entry point of its precision. When FFTW
// is installed the same run times its in-place complex forward transform of
// the same length (planned with FFTW_MEASURE before any timing) for as many
// iterations, and reports its time per transform (peer_us) and the ratio
// ours / FFTW. Both loops reload the input before each transform, and both
// are timed in thread CPU time.
#include "bench/fft_peer.hpp"
#include "bench/support.hpp"

#include <cstring>

#include "zifaif/dsp.h"

namespace {

int dft(dsp_vector* v) { return dspi_dft(v, 0); }
int dft(dspf_vector* v) { return dspfi_dft(v, 0); }

template <class T> void BM_dft(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    const std::size_t bytes = 2 * static_cast<std::size_t>(n) * sizeof(T);
    zb::Filled<T> src(n, true), v(n, true);
#ifdef ZF_HAVE_FFTW
    zb::PeerComplex<T> peer(n);
#endif
    auto load = [&] {
        v.v.points = n;
        v.v.complex = 1;
        std::memcpy(v.v.data, src.v.data, bytes);
    };
    load();
    dft(v.get());  // builds the plan or chirp state and tables, grows the storage
    const double start = zb::cpu_seconds();
    for (auto _ : state) {
        load();
        dft(v.get());
        benchmark::DoNotOptimize(v.v.data);
    }
    const double ours = zb::cpu_seconds() - start;
    const auto iters = static_cast<double>(state.iterations());
    state.counters["ours_us"] = 1e6 * ours / iters;
#ifdef ZF_HAVE_FFTW
    std::memcpy(peer.data(), src.v.data, bytes);
    peer.forward();
    const double peer_start = zb::cpu_seconds();
    for (benchmark::IterationCount i = 0; i < state.iterations(); ++i) {
        std::memcpy(peer.data(), src.v.data, bytes);
        peer.forward();
        benchmark::DoNotOptimize(peer.data());
    }
    const double theirs = zb::cpu_seconds() - peer_start;
    state.counters["peer_us"] = 1e6 * theirs / iters;
    state.counters["ratio"] = ours / theirs;
#endif
}
BENCHMARK_TEMPLATE(BM_dft, double)->Arg(1000)->Arg(4097)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(BM_dft, float)->Arg(1000)->Arg(4097)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace
