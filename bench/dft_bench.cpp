// DFT of lengths that are not powers of two (chirp-z): time per forward
// transform. When FFTW is installed the same run times its in-place complex
// transform of the same length (planned with FFTW_MEASURE before any timing)
// for as many iterations, and reports its time per transform (fftw_us) and
// the ratio ours / FFTW. Both loops reload the input before each transform.
// Both sides are timed in thread CPU time: the machine is shared, and
// preemption would otherwise enter one side of the ratio and not the other.
#include "bench/support.hpp"

#include <time.h>

#include <cstring>

#include "transform/dft.hpp"

#ifdef ZF_HAVE_FFTW
#include <fftw3.h>
#endif

namespace {

// Microseconds of CPU time this thread has used.
double thread_us() {
    timespec ts;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return static_cast<double>(ts.tv_sec) * 1e6 + static_cast<double>(ts.tv_nsec) * 1e-3;
}

#ifdef ZF_HAVE_FFTW
template <class T> struct Peer;
template <> struct Peer<double> {
    fftw_complex* buf;
    fftw_plan plan;
    explicit Peer(int n)
        : buf(fftw_alloc_complex(n)), plan(fftw_plan_dft_1d(n, buf, buf, FFTW_FORWARD, FFTW_MEASURE)) {}
    ~Peer() { fftw_destroy_plan(plan); fftw_free(buf); }
    double* data() { return reinterpret_cast<double*>(buf); }
    void run() { fftw_execute(plan); }
};
template <> struct Peer<float> {
    fftwf_complex* buf;
    fftwf_plan plan;
    explicit Peer(int n)
        : buf(fftwf_alloc_complex(n)), plan(fftwf_plan_dft_1d(n, buf, buf, FFTW_FORWARD, FFTW_MEASURE)) {}
    ~Peer() { fftwf_destroy_plan(plan); fftwf_free(buf); }
    float* data() { return reinterpret_cast<float*>(buf); }
    void run() { fftwf_execute(plan); }
};
#endif

template <class T> void BM_dft(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    const std::size_t bytes = 2 * static_cast<std::size_t>(n) * sizeof(T);
    zb::Filled<T> src(n, true), v(n, true);
#ifdef ZF_HAVE_FFTW
    Peer<T> peer(n);
#endif
    auto load = [&] {
        v.v.points = n;
        v.v.complex = 1;
        std::memcpy(v.v.data, src.v.data, bytes);
    };
    load();
    zf::dft<T>(v.get(), 0);  // builds the chirp state and tables, grows the storage
    const double start = thread_us();
    for (auto _ : state) {
        load();
        zf::dft<T>(v.get(), 0);
        benchmark::DoNotOptimize(v.v.data);
    }
    const double ours = thread_us() - start;
    const auto iters = static_cast<double>(state.iterations());
#ifdef ZF_HAVE_FFTW
    std::memcpy(peer.data(), src.v.data, bytes);
    peer.run();
    const double peer_start = thread_us();
    for (benchmark::IterationCount i = 0; i < state.iterations(); ++i) {
        std::memcpy(peer.data(), src.v.data, bytes);
        peer.run();
        benchmark::DoNotOptimize(peer.data());
    }
    const double theirs = thread_us() - peer_start;
    state.counters["fftw_us"] = theirs / iters;
    state.counters["ratio"] = ours / theirs;
#endif
    state.counters["ours_us"] = ours / iters;
}
BENCHMARK_TEMPLATE(BM_dft, double)->Arg(1000)->Arg(4097)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(BM_dft, float)->Arg(1000)->Arg(4097)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace
