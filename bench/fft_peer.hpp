// The FFTW peer of the transform benchmarks (only when ZF_HAVE_FFTW): in-place
// complex plans and out-of-place real plans of either precision, made with
// FFTW_MEASURE before any timing, and a helper that times a round trip the
// same way as ours so both land in one benchmark as a ratio.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <ctime>

#ifdef ZF_HAVE_FFTW
#include <fftw3.h>

namespace zb {

// Forward, multiply by 1/N (our forward carries it), backward: the data come
// back, so the loop can run on the same buffer, exactly like our round trip.
template <class T> struct PeerComplex;
template <> struct PeerComplex<double> {
    fftw_complex* buf;
    fftw_plan fwd, bwd;
    int n;
    explicit PeerComplex(int n_) : n(n_) {
        buf = fftw_alloc_complex(n);
        fwd = fftw_plan_dft_1d(n, buf, buf, FFTW_FORWARD, FFTW_MEASURE);
        bwd = fftw_plan_dft_1d(n, buf, buf, FFTW_BACKWARD, FFTW_MEASURE);
        for (int i = 0; i < n; ++i) { buf[i][0] = (i % 7) * 0.1 - 0.3; buf[i][1] = (i % 5) * 0.1 - 0.2; }
    }
    ~PeerComplex() { fftw_destroy_plan(fwd); fftw_destroy_plan(bwd); fftw_free(buf); }
    // The forward transform alone, unscaled, on the scalars at data().
    void forward() { fftw_execute(fwd); }
    double* data() { return &buf[0][0]; }
    void round_trip() {
        fftw_execute(fwd);
        const double s = 1.0 / n;
        double* d = &buf[0][0];
        for (int i = 0; i < 2 * n; ++i) d[i] *= s;
        fftw_execute(bwd);
    }
};
template <> struct PeerComplex<float> {
    fftwf_complex* buf;
    fftwf_plan fwd, bwd;
    int n;
    explicit PeerComplex(int n_) : n(n_) {
        buf = fftwf_alloc_complex(n);
        fwd = fftwf_plan_dft_1d(n, buf, buf, FFTW_FORWARD, FFTW_MEASURE);
        bwd = fftwf_plan_dft_1d(n, buf, buf, FFTW_BACKWARD, FFTW_MEASURE);
        for (int i = 0; i < n; ++i) { buf[i][0] = (i % 7) * 0.1f - 0.3f; buf[i][1] = (i % 5) * 0.1f - 0.2f; }
    }
    ~PeerComplex() { fftwf_destroy_plan(fwd); fftwf_destroy_plan(bwd); fftwf_free(buf); }
    // The forward transform alone, unscaled, on the scalars at data().
    void forward() { fftwf_execute(fwd); }
    float* data() { return &buf[0][0]; }
    void round_trip() {
        fftwf_execute(fwd);
        const float s = 1.0f / n;
        float* d = &buf[0][0];
        for (int i = 0; i < 2 * n; ++i) d[i] *= s;
        fftwf_execute(bwd);
    }
};

// Real to half-spectrum and back (out of place, as the real plans prefer).
template <class T> struct PeerReal;
template <> struct PeerReal<double> {
    double* in;
    fftw_complex* spectrum;
    fftw_plan fwd, bwd;
    int n;
    explicit PeerReal(int n_) : n(n_) {
        in = fftw_alloc_real(n);
        spectrum = fftw_alloc_complex(n / 2 + 1);
        fwd = fftw_plan_dft_r2c_1d(n, in, spectrum, FFTW_MEASURE);
        bwd = fftw_plan_dft_c2r_1d(n, spectrum, in, FFTW_MEASURE);
        for (int i = 0; i < n; ++i) in[i] = (i % 7) * 0.1 - 0.3;
    }
    ~PeerReal() { fftw_destroy_plan(fwd); fftw_destroy_plan(bwd); fftw_free(in); fftw_free(spectrum); }
    void round_trip() {
        fftw_execute(fwd);
        const double s = 1.0 / n;
        double* d = &spectrum[0][0];
        for (int i = 0; i < n + 2; ++i) d[i] *= s;
        fftw_execute(bwd);
    }
};
template <> struct PeerReal<float> {
    float* in;
    fftwf_complex* spectrum;
    fftwf_plan fwd, bwd;
    int n;
    explicit PeerReal(int n_) : n(n_) {
        in = fftwf_alloc_real(n);
        spectrum = fftwf_alloc_complex(n / 2 + 1);
        fwd = fftwf_plan_dft_r2c_1d(n, in, spectrum, FFTW_MEASURE);
        bwd = fftwf_plan_dft_c2r_1d(n, spectrum, in, FFTW_MEASURE);
        for (int i = 0; i < n; ++i) in[i] = (i % 7) * 0.1f - 0.3f;
    }
    ~PeerReal() { fftwf_destroy_plan(fwd); fftwf_destroy_plan(bwd); fftwf_free(in); fftwf_free(spectrum); }
    void round_trip() {
        fftwf_execute(fwd);
        const float s = 1.0f / n;
        float* d = &spectrum[0][0];
        for (int i = 0; i < n + 2; ++i) d[i] *= s;
        fftwf_execute(bwd);
    }
};

}  // namespace zb
#endif

namespace zb {

// Runs body in the benchmark loop, then (with the peer) the peer's round trip
// as many times, and reports the peer's time per iteration and our time over
// its time ("ratio": below 1 means we are faster).
// Thread CPU time in seconds: the machine is shared, so wall time would also
// count other processes.
inline double cpu_seconds() {
    timespec ts;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return static_cast<double>(ts.tv_sec) + 1e-9 * static_cast<double>(ts.tv_nsec);
}

// After the benchmark loop, ours and the peer run in alternating chunks of
// equal iteration counts; the ratio is the best chunk of ours over the best
// chunk of the peer, so a burst of load from other processes on the machine
// spoils neither side alone.
template <class Body, class Peer>
void timed_against(benchmark::State& state, Body body, Peer* peer) {
    for (auto _ : state) body();
    if (!peer) return;
    for (int i = 0; i < 3; ++i) peer->round_trip();   // warm
    const std::int64_t chunk = state.iterations() / 8 > 0 ? state.iterations() / 8 : 1;
    double ours = 1e300, theirs = 1e300;
    for (int round = 0; round < 8; ++round) {
        double t = cpu_seconds();
        for (std::int64_t i = 0; i < chunk; ++i) body();
        const double a = cpu_seconds() - t;
        t = cpu_seconds();
        for (std::int64_t i = 0; i < chunk; ++i) peer->round_trip();
        const double b = cpu_seconds() - t;
        ours = a < ours ? a : ours;
        theirs = b < theirs ? b : theirs;
    }
    state.counters["peer_ns"] = 1e9 * theirs / static_cast<double>(chunk);
    state.counters["ours_ns"] = 1e9 * ours / static_cast<double>(chunk);
    state.counters["ratio"] = ours / theirs;
}

}  // namespace zb
