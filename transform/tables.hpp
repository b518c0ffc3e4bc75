// The FFT engine's process-wide tables, one set per precision: twiddle tables
// keyed by their length in scalars (3N/2 for a transform of length N), and the
// two bit-reversal lists keyed by the number of index bits. Tables are built on
// first use, complete when added and only read afterwards; nothing is evicted.
// dsp_free_internal / dspf_free_internal release them through the cache registry.
#pragma once

#include <cstdint>
#include <cstdlib>

namespace zf {

// One cache: a growable array of (table, key) pairs searched linearly. The
// array grows by exactly one pair per new key.
template <class E> struct TableEntry {
    E* table;
    int key;
};
template <class E> struct TableCache {
    TableEntry<E>* entries;
    int count;
};

// Twiddle table of a transform of length n (a power of two, n > 2): n/4 entries
// of six scalars; entry k holds the triples (cos t, -cos t - sin t, sin t - cos t)
// for t = 2 pi k / n and for 3t. Null when the table cannot be built.
template <class T> const T* twiddles(int n) noexcept;
template <class T> const TableCache<T>& twiddle_cache() noexcept;
// Frees every twiddle table and the pair array; the next transform rebuilds.
template <class T> int release_twiddles() noexcept;

// Level twiddles of the vector kernels, which rotate w complex values at a
// time: for every block size m = 4w, 8w, ... up to n, in increasing order, the
// rotations w_m^k and w_m^3k (k < m/4), taken from the table tw of length tn
// (its cosines, by symmetry also the sines) and regrouped for the registers:
// per group of w values, the cosines each twice (for the real and the
// imaginary lane), then the sines each twice, for the angle and then for three
// times the angle (8w scalars per group, 2m per level, so level m starts at
// scalar 2(m - 4w) whatever n is). One buffer per precision, grown to the
// longest transform seen; released with the twiddle tables. Null on
// allocation failure.
template <class T> const T* level_twiddles(int n, const T* tw, int tn, int w) noexcept;

// The fixed-point list ends with this value (0 is a fixed point itself).
constexpr std::int32_t fixed_end = 0x12345678;

// Bit-reversal lists for 2^bits indices (0 <= bits <= 30), both built on first
// use of a bit count. The swap list holds pairs (a, rev a), a != rev a, each
// unordered pair once, ended by a pair whose first index is 0; the fixed-point
// list holds the indices that are their own reversal, ended by fixed_end.
// Null when the lists cannot be built.
template <class T> const std::int32_t* swap_list(int bits) noexcept;
template <class T> const std::int32_t* fixed_list(int bits) noexcept;
template <class T> const TableCache<std::int32_t>& swap_cache() noexcept;
template <class T> const TableCache<std::int32_t>& fixed_cache() noexcept;
// Frees both bit-reversal caches of the precision.
template <class T> int release_bitrev() noexcept;

// Looks a key up in a cache.
template <class E> inline E* find_table(const TableCache<E>& c, int key) noexcept {
    for (int i = 0; i < c.count; ++i)
        if (c.entries[i].key == key) return c.entries[i].table;
    return nullptr;
}

// Appends (table, key), growing the pair array to count + 1 pairs. False when
// the array cannot grow (the table is then the caller's to free).
template <class E> inline bool add_table(TableCache<E>& c, E* table, int key) noexcept {
    auto* grown = static_cast<TableEntry<E>*>(
        std::realloc(c.entries, static_cast<std::size_t>(c.count + 1) * sizeof(TableEntry<E>)));
    if (!grown) return false;
    c.entries = grown;
    c.entries[c.count].table = table;
    c.entries[c.count].key = key;
    ++c.count;
    return true;
}

// Frees every table, then the pair array; the cache is empty again.
template <class E> inline void clear_tables(TableCache<E>& c) noexcept {
    for (int i = 0; i < c.count; ++i) std::free(c.entries[i].table);
    std::free(c.entries);
    c.entries = nullptr;
    c.count = 0;
}

}  // namespace zf
