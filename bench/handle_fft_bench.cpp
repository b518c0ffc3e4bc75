// One-call spectra and averaging against their bare parts, in the same run:
// dsph_fft of a real record with a flat-top window (kind 9) against one
// multiply pass by a stored window array into the work record followed by the
// bare real FFT ("ratio", target <= 1.3); dsph_avg in mean mode against a
// streaming copy of the same record ("bandwidth": the averaging step's bytes
// per second, three streams, over the copy's, two streams; target >= 0.7).
#include "bench/fft_peer.hpp"
#include "bench/support.hpp"
#include "transform/fft.hpp"
#include "transform/handle_fft.hpp"
#include "window/window.hpp"

#include <cstring>

namespace {

// Multiply pass by a stored window, then the real FFT.
template <class T> struct BareSpectrum {
    zb::Filled<T>& in;
    zb::Filled<T> window, work;
    explicit BareSpectrum(zb::Filled<T>& x) : in(x), window(x.v.points, false, 0.0, 1.0, 2), work(x.v.points, false) {}
    void round_trip() {
        const int n = in.v.points;
        work.v.points = n;
        work.v.complex = 0;
        const T* a = in.v.data;
        const T* w = window.v.data;
        T* d = work.v.data;
        for (int i = 0; i < n; ++i) d[i] = a[i] * w[i];
        zf::rfft<T>(work.get());
        benchmark::ClobberMemory();
    }
};

template <class T> void BM_spectrum_flattop(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> in(n, false);
    zb::Filled<T> out(n + 2, false);
    auto body = [&] {
        zf::fft<T>(in.get(), out.get(), 0, T(1), 9, 0);
        benchmark::ClobberMemory();
    };
    body();
    BareSpectrum<T> bare(in);
    bare.round_trip();
    zb::timed_against(state, body, &bare);
    state.SetItemsProcessed(state.iterations() * n);
}

// A streaming copy of the record into a second one.
template <class T> struct StreamCopy {
    zb::Filled<T> &from, to;
    explicit StreamCopy(zb::Filled<T>& x) : from(x), to(x.v.points, false) {}
    void round_trip() {
        std::memcpy(to.v.data, from.v.data, from.bytes());
        benchmark::ClobberMemory();
    }
};

template <class T> void BM_average_mean(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    zb::Filled<T> in(n, false), acc(n, false, 0.0, 1.0, 3);
    auto body = [&] {
        zf::avg<T>(in.get(), acc.get(), nullptr, 1, 5, 0, T(-1), T(0));
        benchmark::ClobberMemory();
    };
    body();
    StreamCopy<T> copy(in);
    copy.round_trip();
    zb::timed_against(state, body, &copy);
    state.counters["bandwidth"] = 1.5 / state.counters["ratio"];   // 3 streams against 2
    state.SetBytesProcessed(state.iterations() * 3 * static_cast<std::int64_t>(in.bytes()));
}

BENCHMARK_TEMPLATE(BM_spectrum_flattop, double)->Arg(1024)->Arg(65536);
BENCHMARK_TEMPLATE(BM_spectrum_flattop, float)->Arg(1024)->Arg(65536);
BENCHMARK_TEMPLATE(BM_average_mean, double)->Arg(65536);
BENCHMARK_TEMPLATE(BM_average_mean, float)->Arg(65536);

}  // namespace
