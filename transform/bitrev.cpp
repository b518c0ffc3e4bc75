// Bit-reversal lists of the FFT and the permutations that walk them.
#include <cstdlib>

#include "core/cache.hpp"
#include "core/vector.hpp"
#include "transform/tables.hpp"

namespace zf {
namespace {

template <class T> TableCache<std::int32_t> swaps;
template <class T> TableCache<std::int32_t> fixeds;

// i reversed in h bits.
std::int32_t reverse(std::int32_t i, int h) noexcept {
    std::int32_t r = 0;
    for (int k = 0; k < h; ++k, i >>= 1) r = (r << 1) | (i & 1);
    return r;
}

// Builds both lists for 2^bits indices. The index splits into a high and a low
// half of h bits (and a middle bit of weight S when bits is odd); reversal
// exchanges the halves reversed, so (i, j) and (j, i) of the halves pair up.
bool build(int bits, std::int32_t** swap_out, std::int32_t** fixed_out) noexcept {
    const int h = bits / 2;
    const std::int32_t S = std::int32_t(1) << h;
    const bool odd = bits % 2 != 0;
    const std::size_t n = std::size_t(1) << bits;
    std::int32_t* sw = static_cast<std::int32_t*>(std::malloc((n < 2 ? 2 : n) * sizeof(std::int32_t)));
    std::int32_t* fx = static_cast<std::int32_t*>(std::malloc((2 * std::size_t(S) + 2) * sizeof(std::int32_t)));
    if (!sw || !fx) {
        std::free(sw);
        std::free(fx);
        return false;
    }
    std::int32_t* p = sw;
    std::int32_t* f = fx;
    const std::int32_t hi = odd ? 2 * S : S;   // weight of the high half
    for (std::int32_t i = 0; i < S; ++i) {
        const std::int32_t ri = reverse(i, h);
        for (std::int32_t j = i + 1; j < S; ++j) {
            const std::int32_t rj = reverse(j, h);
            *p++ = i * hi + rj;
            *p++ = j * hi + ri;
            if (odd) {
                *p++ = i * hi + rj + S;
                *p++ = j * hi + ri + S;
            }
        }
        if (odd) {
            *f++ = ri * hi + i;
            *f++ = ri * hi + i + S;
        } else {
            *f++ = i + ri * S;
        }
    }
    *p++ = 0;
    *p++ = 0;
    *f = fixed_end;
    *swap_out = sw;
    *fixed_out = fx;
    return true;
}

// Fetches or builds the lists of a bit count; false on failure.
template <class T> bool lists(int bits) noexcept {
    if (bits < 0 || bits > 30) return false;
    if (find_table(swaps<T>, bits) && find_table(fixeds<T>, bits)) return true;
    std::int32_t *sw, *fx;
    if (!build(bits, &sw, &fx)) return false;
    // Each list joins its own cache; a list already present (a half-finished
    // earlier build) is kept and the new copy dropped.
    bool ok = true;
    if (find_table(swaps<T>, bits)) std::free(sw);
    else if (!add_table(swaps<T>, sw, bits)) { std::free(sw); ok = false; }
    if (find_table(fixeds<T>, bits)) std::free(fx);
    else if (!add_table(fixeds<T>, fx, bits)) { std::free(fx); ok = false; }
    register_cache<T>(CacheSlot::bitrev, &release_bitrev<T>);
    return ok;
}

}  // namespace

template <class T> const std::int32_t* swap_list(int bits) noexcept {
    return lists<T>(bits) ? find_table(swaps<T>, bits) : nullptr;
}
template <class T> const std::int32_t* fixed_list(int bits) noexcept {
    return lists<T>(bits) ? find_table(fixeds<T>, bits) : nullptr;
}
template <class T> const TableCache<std::int32_t>& swap_cache() noexcept { return swaps<T>; }
template <class T> const TableCache<std::int32_t>& fixed_cache() noexcept { return fixeds<T>; }

template <class T> int release_bitrev() noexcept {
    clear_tables(swaps<T>);
    clear_tables(fixeds<T>);
    return 0;
}

template const std::int32_t* swap_list<double>(int) noexcept;
template const std::int32_t* fixed_list<double>(int) noexcept;
template const TableCache<std::int32_t>& swap_cache<double>() noexcept;
template const TableCache<std::int32_t>& fixed_cache<double>() noexcept;
template int release_bitrev<double>() noexcept;

template const std::int32_t* swap_list<float>(int) noexcept;
template const std::int32_t* fixed_list<float>(int) noexcept;
template const TableCache<std::int32_t>& swap_cache<float>() noexcept;
template const TableCache<std::int32_t>& fixed_cache<float>() noexcept;
template int release_bitrev<float>() noexcept;

}  // namespace zf
