// FFT engine: complex and real round trips (forward, which carries 1/N, then
// inverse) of both precisions for N = 2^6 .. 2^20. With FFTW installed each
// benchmark also times FFTW's round trip on the same length (forward, a 1/N
// pass, backward; plans made with FFTW_MEASURE before timing) and reports the
// ratio ours/FFTW. Lengths of the arbitrary-length transforms live in
// dft_bench.cpp.
#include "bench/fft_peer.hpp"
#include "bench/support.hpp"
#include "transform/fft.hpp"

#include <cstdlib>
#include <memory>
#include <type_traits>

namespace {

// A record with room for n complex pairs, from the library's own allocation
// (64-byte aligned, as FFTW's buffers are: the kernels load 32 bytes at a
// time, and 16-byte aligned storage would split half of those loads across
// cache lines), so the figures are what callers get.
template <class T> struct Aligned {
    zf::Vec<T> v;
    Aligned(int n, bool complex) {
        zf::init<T>(&v);
        v.points = n;
        v.complex = 1;
        zf::alloc<T>(&v);
        v.complex = complex;
        for (long i = 0; i < zf::need<T>(v); ++i) v.data[i] = static_cast<T>((i % 13) * 0.1 - 0.6);
    }
    ~Aligned() { zf::destroy<T>(&v); }
    Aligned(const Aligned&) = delete;
    Aligned& operator=(const Aligned&) = delete;
    zf::Vec<T>* get() { return &v; }
};

// Times one forward and inverse pair (complex: fft; real: rfft then irfft) and,
// when FFTW is present, its round trip of the same kind and length.
template <class T, bool Complex> void round_trip(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    Aligned<T> v(n, Complex);
    auto pair = [&] {
        if constexpr (Complex) {
            zf::fft<T>(v.get(), 0);
            zf::fft<T>(v.get(), 1);
        } else {
            zf::rfft<T>(v.get());
            zf::irfft<T>(v.get());
        }
        benchmark::ClobberMemory();
    };
    pair();   // tables built, storage touched
#ifdef ZF_HAVE_FFTW
    using Peer = std::conditional_t<Complex, zb::PeerComplex<T>, zb::PeerReal<T>>;
    auto peer = std::make_unique<Peer>(n);
    zb::timed_against(state, pair, peer.get());
#else
    struct None { void round_trip() {} };
    zb::timed_against(state, pair, static_cast<None*>(nullptr));
#endif
    state.SetItemsProcessed(state.iterations() * n);
}

template <class T> void BM_fft_round_trip(benchmark::State& state) { round_trip<T, true>(state); }
template <class T> void BM_rfft_round_trip(benchmark::State& state) { round_trip<T, false>(state); }

BENCHMARK_TEMPLATE(BM_fft_round_trip, double)->RangeMultiplier(2)->Range(1 << 6, 1 << 20);
BENCHMARK_TEMPLATE(BM_fft_round_trip, float)->RangeMultiplier(2)->Range(1 << 6, 1 << 20);
BENCHMARK_TEMPLATE(BM_rfft_round_trip, double)->RangeMultiplier(2)->Range(1 << 6, 1 << 20);
BENCHMARK_TEMPLATE(BM_rfft_round_trip, float)->RangeMultiplier(2)->Range(1 << 6, 1 << 20);

}  // namespace
