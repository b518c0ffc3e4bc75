// Shared pieces of the fuzz harnesses, over the reader and writer templates of
// the core (the harnesses link the core sources alone, without the C entry
// points): memory streams, and the round trip every vector the reader returns
// must survive.
#pragma once

#include "core/files.hpp"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

namespace fz {

// Stops the run with a message: libFuzzer records the input that got here.
[[noreturn]] inline void fail(const char* what) { std::fprintf(stderr, "fuzz check failed: %s\n", what), std::abort(); }

// A read-only stream over bytes (fmemopen refuses an empty buffer).
inline FILE* open_bytes(const void* data, std::size_t size) {
    return size ? fmemopen(const_cast<void*>(data), size, "rb") : std::tmpfile();
}

// What the writer of this precision makes of v in the given form.
template <class T> std::string written(const zf::Vec<T>& v, int flags) {
    char* buf = nullptr;
    std::size_t len = 0;
    FILE* f = open_memstream(&buf, &len);
    if (!f) fail("open_memstream");
    if (zf::fwrite2<T>(&v, f, flags) != 0) fail("writing a vector the reader returned");
    std::fclose(f);
    std::string s(buf, len);
    std::free(buf);
    return s;
}

// Reads the first vector of bytes into out: the reader's status.
template <class T> int read_back(const std::string& bytes, zf::Vec<T>& out) {
    FILE* f = open_bytes(bytes.data(), bytes.size());
    const int r = zf::fread<T>(&out, f);
    std::fclose(f);
    return r;
}

// Same shape, and scalars equal: bit for bit when exact, else within the
// digits the ASCII form keeps (a NaN reads back as a NaN, an infinity as
// itself; sixteen digits of a value within one part in 1e16 of the largest
// double print above it, and that text reads as an infinity).
template <class T> bool same(const zf::Vec<T>& a, const zf::Vec<T>& b, bool exact) {
    const double rel = sizeof(T) == 8 ? 1e-15 : 1e-6, tiny = std::numeric_limits<T>::min(), top = std::numeric_limits<T>::max();
    auto eq = [&](double x, double y) {
        if (std::isnan(x) || std::isnan(y)) return std::isnan(x) && std::isnan(y);
        if (std::isinf(y) && std::fabs(x) > top / (1 + rel)) return (x > 0) == (y > 0);
        return x == y || std::fabs(x - y) <= rel * std::fabs(x) + tiny;
    };
    const std::size_t n = static_cast<std::size_t>(a.points) * (a.complex ? 2 : 1);
    if (a.points != b.points || (a.complex != 0) != (b.complex != 0)) return false;
    if (exact) return std::memcmp(&a.delta, &b.delta, sizeof(T)) == 0 && (n == 0 || std::memcmp(a.data, b.data, n * sizeof(T)) == 0);
    bool all = eq(a.delta, b.delta);
    for (std::size_t k = 0; k < n; ++k) all = all && eq(a.data[k], b.data[k]);
    return all;
}

// Writes v in the binary and in the ASCII form and reads each back: the binary
// copy must be identical, the ASCII copy equal to its printed digits.
template <class T> void round_trip(const zf::Vec<T>& v) {
    zf::Vec<T> back;
    zf::init<T>(&back);
    if (read_back<T>(written<T>(v, 0), back) != 1 || !same<T>(v, back, true)) fail("binary form does not read back equal");
    if (read_back<T>(written<T>(v, 1), back) != 1 || !same<T>(v, back, false)) fail("ASCII form does not read back equal");
    zf::destroy<T>(&back);
}

// Reads vectors from bytes until the reader reports 0 or -1 (at most `limit`),
// sending each one it returned, whole or partial, through the round trip.
template <class T> void read_all(const void* data, std::size_t size, int limit) {
    FILE* f = open_bytes(data, size);
    if (!f) return;
    zf::Vec<T> v;
    zf::init<T>(&v);
    for (int k = 0; k < limit; ++k) {
        const int r = zf::fread<T>(&v, f);
        if (r != 1 && r != 0 && r != -1) fail("reader status outside 1, 0, -1");
        if (r == 0 && v.points != 0) fail("a clean end of stream left samples");
        if (r != 0) round_trip<T>(v);
        if (r != 1) break;
    }
    zf::destroy<T>(&v);
    std::fclose(f);
}

}  // namespace fz
