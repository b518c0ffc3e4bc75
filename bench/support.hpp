// Shared pieces of the benchmarks: records that are allocated and touched
// once before timing, so that first-touch page faults never enter a measurement.
#pragma once

#include <benchmark/benchmark.h>
#include <zifaif/dsp.h>

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

}  // namespace zb
