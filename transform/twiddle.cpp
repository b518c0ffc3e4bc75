// Twiddle tables of the split-radix FFT.
#include <cmath>
#include <cstdlib>

#include "core/cache.hpp"
#include "core/libm.hpp"
#include "core/vector.hpp"
#include "transform/tables.hpp"

namespace zf {
namespace {

template <class T> TableCache<T> cache;   // zero-initialised, trivially destructible

// The level twiddles: levels 4w .. top filled.
template <class T> struct Levels {
    T* data;
    int top;
    int width;
};
template <class T> Levels<T> levels;

// a + b rounded once from the double-doubles (a, al) and (b, bl).
inline double sum_dd(double a, double al, double b, double bl) noexcept {
    const double s = a + b, bp = s - a;
    return s + (((a - (s - bp)) + (b - bp)) + (al + bl));
}

// Writes one triple (cos t, -cos t - sin t, sin t - cos t) from cos t and sin t
// as double-doubles, each value formed before its one rounding.
template <class T> void put(T* e, double c, double cl, double s, double sl) noexcept {
    e[0] = static_cast<T>(c);
    e[1] = static_cast<T>(sum_dd(-c, -cl, -s, -sl));
    e[2] = static_cast<T>(sum_dd(s, sl, -c, -cl));
}

// The table of length n (n a power of two, n > 2) in 3n/2 scalars.
template <class T> T* build(int n) noexcept {
    const int q = n / 4;       // entries
    const int mid = n / 8;     // the entry at 45 degrees
    T* t = static_cast<T*>(std::malloc(static_cast<std::size_t>(6) * q * sizeof(T)));
    if (!t) return nullptr;
    const T first[6] = {T(1), T(-1), T(-1), T(1), T(-1), T(-1)};
    for (int i = 0; i < 6; ++i) t[i] = first[i];

    // First triples: entries 1 .. mid-1 from the front and their mirrors
    // q-1 .. mid+1 from the back, each from the library's own sine and cosine
    // of j/n of a turn, carried in double-double and rounded to T once.
    for (int j = 1; j < mid; ++j) {
        double c, cl, s, sl;
        libm::sincos_turn(j, n, &s, &c, &sl, &cl);
        put<T>(t + 6 * j, c, cl, s, sl);
        put<T>(t + 6 * (q - j), s, sl, c, cl);   // angle pi/2 - t: cos and sin exchange
    }
    if (n > 4) {
        T* e = t + 6 * mid;
        e[0] = Traits<T>::sqrt_half;
        e[1] = -Traits<T>::sqrt_two;
        e[2] = T(0);
    }

    // Second triples (angle 3t) from the first triples by the symmetries of the
    // circle: 3k < q is entry 3k itself; q <= 3k < 2q is pi/2 + a with a the angle
    // of entry r = 3k - q, whose cosine is minus the sine of a (the first value
    // of entry q - r); 2q <= 3k is pi + a, entry 3k - 2q negated.
    for (int k = 1; k < q; ++k) {
        const int m = 3 * k;
        T* e = t + 6 * k + 3;
        if (m < q) {
            const T* f = t + 6 * m;
            e[0] = f[0]; e[1] = f[1]; e[2] = f[2];
        } else if (m < 2 * q) {
            const int r = m - q;   // 1 .. q-1: 3k is never a multiple of q
            const T* f = t + 6 * r;
            e[0] = -t[6 * (q - r)];
            e[1] = f[2];
            e[2] = -f[1];
        } else {
            const T* f = t + 6 * (m - 2 * q);
            e[0] = -f[0]; e[1] = -f[1]; e[2] = -f[2];
        }
    }
    return t;
}

}  // namespace

template <class T> const T* twiddles(int n) noexcept {
    const int key = n / 2 * 3;
    if (T* t = find_table(cache<T>, key)) return t;
    T* t = build<T>(n);
    if (!t) return nullptr;
    if (!add_table(cache<T>, t, key)) {
        std::free(t);
        return nullptr;
    }
    register_cache<T>(CacheSlot::twiddle, &release_twiddles<T>);
    return t;
}

template <class T> const TableCache<T>& twiddle_cache() noexcept { return cache<T>; }

namespace {
// cos(2 pi j / tn) for any j, as an entry of the table (or its negation) by the
// symmetries of the circle.
template <class T> T table_cos(const T* tw, std::size_t tn, std::size_t j) noexcept {
    const std::size_t q = tn / 4;
    j %= tn;
    if (j < q) return tw[6 * j];
    if (j == q || j == 3 * q) return T(0);
    if (j < 2 * q) return -tw[6 * (2 * q - j)];
    if (j == 2 * q) return T(-1);
    if (j < 3 * q) return -tw[6 * (j - 2 * q)];
    return tw[6 * (tn - j)];
}
}  // namespace

template <class T> const T* level_twiddles(int n, const T* tw, int tn, int w) noexcept {
    Levels<T>& L = levels<T>;
    if (L.data && L.width == w && L.top >= n) return L.data;
    if (n < 4 * w) return L.data ? L.data : tw;   // no level needed
    if (L.width != w) L.top = 0;
    const std::size_t size = 4 * static_cast<std::size_t>(n) - 8 * static_cast<std::size_t>(w);
    T* grown = static_cast<T*>(std::realloc(L.data, size * sizeof(T)));
    if (!grown) return nullptr;
    L.data = grown;
    L.width = w;
    const std::size_t len = static_cast<std::size_t>(tn), quarter = len / 4;
    for (int m = L.top ? 2 * L.top : 4 * w; m <= n; m *= 2) {
        T* out = grown + 2 * static_cast<std::size_t>(m - 4 * w);
        const std::size_t stride = len / static_cast<std::size_t>(m);
        for (int g = 0; g < m / 4; g += w, out += 8 * w) {
            for (int l = 0; l < w; ++l) {
                const std::size_t j = static_cast<std::size_t>(g + l) * stride;
                for (int r = 0; r < 2; ++r) {
                    const std::size_t a = j * (r ? 3 : 1);   // the angle, in steps of the table
                    T* o = out + 4 * w * r;
                    o[2 * l] = o[2 * l + 1] = table_cos(tw, len, a);
                    o[2 * w + 2 * l] = o[2 * w + 2 * l + 1] = table_cos(tw, len, a + 3 * quarter);   // sin
                }
            }
        }
    }
    L.top = n;
    register_cache<T>(CacheSlot::twiddle, &release_twiddles<T>);
    return grown;
}

template <class T> int release_twiddles() noexcept {
    clear_tables(cache<T>);
    std::free(levels<T>.data);
    levels<T> = Levels<T>{};
    return 0;
}

template const double* twiddles<double>(int) noexcept;
template const TableCache<double>& twiddle_cache<double>() noexcept;
template int release_twiddles<double>() noexcept;
template const double* level_twiddles<double>(int, const double*, int, int) noexcept;

template const float* twiddles<float>(int) noexcept;
template const TableCache<float>& twiddle_cache<float>() noexcept;
template int release_twiddles<float>() noexcept;
template const float* level_twiddles<float>(int, const float*, int, int) noexcept;

}  // namespace zf
