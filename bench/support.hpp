// Shared pieces of the benchmarks: records that are allocated and touched
// once before timing, so that first-touch page faults never enter a measurement.
#pragma once

#include <benchmark/benchmark.h>
#include <zifaif/dsp.h>

#include <time.h>

#include <cstdint>
#include <cstring>
#include <random>

#include "core/vector.hpp"

namespace zb {

template <class T> using Vec = zf::Vec<T>;

// A record of n samples filled with uniform random values in [lo, hi).
template <class T> struct Filled {
    Vec<T> v;
    Filled(int n, bool complex, double lo = -1.0, double hi = 1.0, unsigned seed = 1) {
        zf::init<T>(&v);
        v.points = n;
        v.complex = complex;
        zf::alloc<T>(&v);
        std::mt19937 gen(seed);
        std::uniform_real_distribution<double> d(lo, hi);
        for (long i = 0; i < zf::need<T>(v); ++i) v.data[i] = static_cast<T>(d(gen));
    }
    ~Filled() { zf::destroy<T>(&v); }
    Filled(const Filled&) = delete;
    Filled& operator=(const Filled&) = delete;
    Vec<T>* get() { return &v; }
    std::size_t bytes() const { return static_cast<std::size_t>(zf::need<T>(v)) * sizeof(T); }
};

// Items and bytes per iteration: n samples, scalars_moved scalars of T each.
template <class T> void set_counters(benchmark::State& state, int n, int scalars_moved) {
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * n);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * n * scalars_moved * static_cast<int64_t>(sizeof(T)));
}

// CPU time of this thread: the machine is shared, and wall time would count the
// time the benchmark spends descheduled.
inline double thread_seconds() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + 1e-9 * static_cast<double>(t.tv_nsec);
}

// Operations whose result cannot be fed back in: the input is restored from a
// pristine copy before each run and only the operation is timed (manual time).
template <class T, class Op>
void restored(benchmark::State& state, bool complex, double lo, double hi, int scalars_moved, Op op) {
    const int n = static_cast<int>(state.range(0));
    Filled<T> pristine(n, complex, lo, hi), work(n, complex, lo, hi);
    for (auto _ : state) {
        std::memcpy(work.v.data, pristine.v.data, pristine.bytes());
        work.v.complex = complex;
        benchmark::ClobberMemory();
        const double t0 = thread_seconds();
        op(work.get());
        benchmark::ClobberMemory();
        state.SetIterationTime(thread_seconds() - t0);
    }
    set_counters<T>(state, n, scalars_moved);
}

}  // namespace zb
