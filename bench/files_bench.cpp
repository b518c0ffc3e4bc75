// Vector files: binary write and read of a 1M-sample vector and ASCII write
// and read of a smaller one, through one scratch stream rewound each time.
#include "bench/support.hpp"

#include <cstdio>

#include "core/files.hpp"

namespace {

// A scratch stream holding one written copy of the vector, so that reads
// find it and writes overwrite it in place.
template <class T> struct Stream {
    std::FILE* f = std::tmpfile();
    Stream(zb::Filled<T>& v, int form) {
        if (f) zf::fwrite2<T>(v.get(), f, form);
    }
    ~Stream() { if (f) std::fclose(f); }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;
};

template <class T> void BM_write(benchmark::State& state, int form) {
    zb::Filled<T> v(static_cast<int>(state.range(0)), false);
    Stream<T> s(v, form);
    if (!s.f) { state.SkipWithError("no tmpfile"); return; }
    for (auto _ : state) {
        std::rewind(s.f);
        if (zf::fwrite2<T>(v.get(), s.f, form) != 0) { state.SkipWithError("write failed"); break; }
        std::fflush(s.f);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * v.bytes());
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * state.range(0));
}

template <class T> void BM_read(benchmark::State& state, int form) {
    zb::Filled<T> v(static_cast<int>(state.range(0)), false);
    Stream<T> s(v, form);
    if (!s.f) { state.SkipWithError("no tmpfile"); return; }
    zb::Filled<T> back(static_cast<int>(state.range(0)), false);  // storage reused by every read
    for (auto _ : state) {
        std::rewind(s.f);
        if (zf::fread<T>(back.get(), s.f) != 1) { state.SkipWithError("read failed"); break; }
        benchmark::DoNotOptimize(back.v.data);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * v.bytes());
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * state.range(0));
}

// A double file read into a float record: every sample converted on the way.
void BM_read_binary_double_into_float(benchmark::State& state) {
    zb::Filled<double> v(static_cast<int>(state.range(0)), false);
    Stream<double> s(v, zf::kFormBinary);
    if (!s.f) { state.SkipWithError("no tmpfile"); return; }
    zb::Filled<float> back(static_cast<int>(state.range(0)), false);
    for (auto _ : state) {
        std::rewind(s.f);
        if (zf::fread<float>(back.get(), s.f) != 1) { state.SkipWithError("read failed"); break; }
        benchmark::DoNotOptimize(back.v.data);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * v.bytes());
}
BENCHMARK(BM_read_binary_double_into_float)->Arg(1 << 20)->UseRealTime();

template <class T> void BM_write_binary(benchmark::State& state) { BM_write<T>(state, zf::kFormBinary); }
template <class T> void BM_read_binary(benchmark::State& state) { BM_read<T>(state, zf::kFormBinary); }
template <class T> void BM_write_ascii(benchmark::State& state) { BM_write<T>(state, zf::kFormAscii); }
template <class T> void BM_read_ascii(benchmark::State& state) { BM_read<T>(state, zf::kFormAscii); }

BENCHMARK_TEMPLATE(BM_write_binary, double)->Arg(1 << 20)->UseRealTime();
BENCHMARK_TEMPLATE(BM_write_binary, float)->Arg(1 << 20)->UseRealTime();
BENCHMARK_TEMPLATE(BM_read_binary, double)->Arg(1 << 20)->UseRealTime();
BENCHMARK_TEMPLATE(BM_read_binary, float)->Arg(1 << 20)->UseRealTime();
BENCHMARK_TEMPLATE(BM_write_ascii, double)->Arg(1 << 14)->UseRealTime();
BENCHMARK_TEMPLATE(BM_write_ascii, float)->Arg(1 << 14)->UseRealTime();
BENCHMARK_TEMPLATE(BM_read_ascii, double)->Arg(1 << 14)->UseRealTime();
BENCHMARK_TEMPLATE(BM_read_ascii, float)->Arg(1 << 14)->UseRealTime();

}  // namespace
