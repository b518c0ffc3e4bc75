// DFT of lengths that are not powers of two (chirp-z): time per forward
// transform. When FFTW is installed the same run times its in-place complex
// forward transform of the same length (planned with FFTW_MEASURE before any
// timing) for as many iterations, and reports its time per transform
// (peer_us) and the ratio ours / FFTW. Both loops reload the input before
// each transform, and both are timed in thread CPU time.
#include "bench/fft_peer.hpp"
#include "bench/support.hpp"

#include <cstring>

#include "transform/dft.hpp"

namespace {

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
    zf::dft<T>(v.get(), 0);  // builds the chirp state and tables, grows the storage
    const double start = zb::cpu_seconds();
    for (auto _ : state) {
        load();
        zf::dft<T>(v.get(), 0);
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
