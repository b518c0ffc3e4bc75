// Portable kernels of the FFT engine and the run-time choice among them.
#include "transform/fft_kernel.hpp"

#include "core/cpu.hpp"
#include "transform/tables.hpp"

namespace zf {
namespace {

// Multiplies (re, im) by the twiddle triple e: e^(-jt) when forward, e^(+jt)
// when inverse, with three multiplications: t = c (re + im), then the other
// two scalars of the triple exchange roles between the directions.
template <class T> inline void rotate(T& re, T& im, const T* e, bool inverse) noexcept {
    const T t = e[0] * (re + im);
    const T r = inverse ? t + im * e[1] : t + im * e[2];
    const T i = inverse ? t + re * e[2] : t + re * e[1];
    re = r;
    im = i;
}

// Length-2 and length-4 leaves (outputs in bit-reversed order).
template <class T> inline void leaf2(T* x) noexcept {
    const T ar = x[0], ai = x[1], br = x[2], bi = x[3];
    x[0] = ar + br; x[1] = ai + bi;
    x[2] = ar - br; x[3] = ai - bi;
}
template <class T> inline void leaf4(T* x, bool inverse) noexcept {
    const T s0r = x[0] + x[4], s0i = x[1] + x[5];
    const T d0r = x[0] - x[4], d0i = x[1] - x[5];
    const T s1r = x[2] + x[6], s1i = x[3] + x[7];
    const T d1r = x[2] - x[6], d1i = x[3] - x[7];
    x[0] = s0r + s1r; x[1] = s0i + s1i;   // X0
    x[2] = s0r - s1r; x[3] = s0i - s1i;   // X2
    if (!inverse) {                        // X1 = d0 - j d1, X3 = d0 + j d1
        x[4] = d0r + d1i; x[5] = d0i - d1r;
        x[6] = d0r - d1i; x[7] = d0i + d1r;
    } else {
        x[4] = d0r - d1i; x[5] = d0i + d1r;
        x[6] = d0r + d1i; x[7] = d0i - d1r;
    }
}

// One L-shaped butterfly pass over a block of n: the sums of the halves go to
// the first half (a transform of n/2 to come), the differences are combined
// into the two quarter branches and rotated by w^k and w^3k.
template <class T> void lpass(T* x, std::ptrdiff_t n, const T* tw, std::ptrdiff_t stride, bool inverse) noexcept {
    const std::ptrdiff_t q = n / 4;
    T* a = x;
    T* b = x + 2 * q;
    T* c = x + 4 * q;
    T* d = x + 6 * q;
    for (std::ptrdiff_t k = 0; k < q; ++k) {
        const std::ptrdiff_t r = 2 * k, i = 2 * k + 1;
        const T ur = a[r] - c[r], ui = a[i] - c[i];
        const T vr = b[r] - d[r], vi = b[i] - d[i];
        a[r] += c[r]; a[i] += c[i];
        b[r] += d[r]; b[i] += d[i];
        // forward: z1 = u - jv, z3 = u + jv; inverse: the signs exchange
        T z1r, z1i, z3r, z3i;
        if (!inverse) { z1r = ur + vi; z1i = ui - vr; z3r = ur - vi; z3i = ui + vr; }
        else          { z1r = ur - vi; z1i = ui + vr; z3r = ur + vi; z3i = ui - vr; }
        const T* e = tw + 6 * k * stride;
        rotate(z1r, z1i, e, inverse);
        rotate(z3r, z3i, e + 3, inverse);
        c[r] = z1r; c[i] = z1i;
        d[r] = z3r; d[i] = z3i;
    }
}

}  // namespace

template <class T> void dif_portable(T* x, std::ptrdiff_t n, const T* tw, std::ptrdiff_t stride, bool inverse) noexcept {
    if (n <= 1) return;
    if (n == 2) { leaf2(x); return; }
    if (n == 4) { leaf4(x, inverse); return; }
    lpass(x, n, tw, stride, inverse);
    // Depth first: each sub-block is finished while it is still in cache.
    dif_portable(x, n / 2, tw, 2 * stride, inverse);
    dif_portable(x + n, n / 4, tw, 4 * stride, inverse);
    dif_portable(x + n + n / 2, n / 4, tw, 4 * stride, inverse);
}

namespace {
bool has_avx2() noexcept { return cpu_has_avx2_fma(); }
template <class T> VectorDifFn<T> choose() noexcept {
    if (has_avx2()) return static_cast<VectorDifFn<T>>(&dif_avx2);
    return nullptr;
}
template <class T> VectorReverseFn<T> choose_reverse() noexcept {
    if (has_avx2()) return static_cast<VectorReverseFn<T>>(&reverse_avx2);
    return nullptr;
}
template <class T> VectorPassFn<T> choose_split() noexcept {
    if (has_avx2()) return static_cast<VectorPassFn<T>>(&split_avx2);
    return nullptr;
}
template <class T> VectorPassFn<T> choose_join() noexcept {
    if (has_avx2()) return static_cast<VectorPassFn<T>>(&join_avx2);
    return nullptr;
}
}  // namespace

template <class T> VectorPassFn<T> vector_split() noexcept {
    static const VectorPassFn<T> chosen = choose_split<T>();
    return chosen;
}
template <class T> VectorPassFn<T> vector_join() noexcept {
    static const VectorPassFn<T> chosen = choose_join<T>();
    return chosen;
}

template <class T> VectorReverseFn<T> vector_reverse() noexcept {
    static const VectorReverseFn<T> chosen = choose_reverse<T>();
    return chosen;
}

template <class T> VectorDifFn<T> vector_dif() noexcept {
    static const VectorDifFn<T> chosen = choose<T>();   // decided once
    return chosen;
}

template <class T> void split_real(T* x, std::ptrdiff_t n, const T* tw, const T* lv) noexcept {
    const VectorPassFn<T> vec = lv ? vector_split<T>() : nullptr;
    const std::ptrdiff_t h = n / 2;
    const T half = T(0.5);
    const T z0r = x[0], z0i = x[1];
    if (vec && h / 2 >= vector_width<T>()) {
        vec(x, n, lv);   // its lane k = 0 is overwritten below
    } else {
        for (std::ptrdiff_t k = 1; k < h / 2; ++k) {
            T* a = x + 2 * k;
            T* b = x + 2 * (h - k);
            const T er = half * (a[0] + b[0]), ei = half * (a[1] - b[1]);
            T rr = half * (a[1] + b[1]), ri = half * (b[0] - a[0]);
            rotate(rr, ri, tw + 6 * k, false);
            a[0] = er + rr; a[1] = ei + ri;
            b[0] = er - rr; b[1] = ri - ei;
        }
    }
    x[0] = z0r + z0i;
    x[1] = T(0);
    x[n] = z0r - z0i;
    x[n + 1] = T(0);
    x[h + 1] = -x[h + 1];   // k = h/2: X = conj Z
}

template <class T> void join_real(T* x, std::ptrdiff_t n, const T* tw, const T* lv) noexcept {
    const VectorPassFn<T> vec = lv ? vector_join<T>() : nullptr;
    const std::ptrdiff_t h = n / 2;
    const T x0 = x[0], xh = x[n];
    if (vec && h / 2 >= vector_width<T>()) {
        vec(x, n, lv);   // its lane k = 0 is overwritten below
    } else {
        for (std::ptrdiff_t k = 1; k < h / 2; ++k) {
            T* a = x + 2 * k;
            T* b = x + 2 * (h - k);
            const T er = a[0] + b[0], ei = a[1] - b[1];
            T orr = a[0] - b[0], oi = a[1] + b[1];
            rotate(orr, oi, tw + 6 * k, true);
            a[0] = er - oi; a[1] = ei + orr;
            b[0] = er + oi; b[1] = orr - ei;
        }
    }
    x[0] = x0 + xh;
    x[1] = x0 - xh;
    x[h] *= T(2);            // k = h/2: Z = 2 conj X
    x[h + 1] *= T(-2);
}

template <class T> void swap_pairs(T* x, const std::int32_t* p, int width) noexcept {
    if (width == 2) {
        for (; p[0] != 0; p += 2) {
            T* u = x + 2 * static_cast<std::ptrdiff_t>(p[0]);
            T* v = x + 2 * static_cast<std::ptrdiff_t>(p[1]);
            const T r = u[0], i = u[1];
            u[0] = v[0]; u[1] = v[1];
            v[0] = r; v[1] = i;
        }
    } else {
        for (; p[0] != 0; p += 2) {
            const T t = x[p[0]];
            x[p[0]] = x[p[1]];
            x[p[1]] = t;
        }
    }
}

template <class T> void swap_pairs_scale(T* x, const std::int32_t* p, const std::int32_t* f, int width, T s) noexcept {
    if (width == 2) {
        for (; p[0] != 0; p += 2) {
            T* u = x + 2 * static_cast<std::ptrdiff_t>(p[0]);
            T* v = x + 2 * static_cast<std::ptrdiff_t>(p[1]);
            const T r = u[0], i = u[1];
            u[0] = v[0] * s; u[1] = v[1] * s;
            v[0] = r * s; v[1] = i * s;
        }
        for (; *f != fixed_end; ++f) {
            T* u = x + 2 * static_cast<std::ptrdiff_t>(*f);
            u[0] *= s;
            u[1] *= s;
        }
    } else {
        for (; p[0] != 0; p += 2) {
            const T t = x[p[0]];
            x[p[0]] = x[p[1]] * s;
            x[p[1]] = t * s;
        }
        for (; *f != fixed_end; ++f) x[*f] *= s;
    }
}

namespace {

// Indices split as (high t bits, middle, low t bits); reversal maps
// (a, m, b) to (rev b, rev m, rev a). The 2^2t elements of one middle value m
// are read row by row into a buffer, then written as rows of rev m.
template <int Width, class T> void reverse_blocks(T* x, int bits, bool scale, T f) noexcept {
    constexpr int t = 4, B = 1 << t;
    static constexpr unsigned char r4[B] = {0, 8, 4, 12, 2, 10, 6, 14, 1, 9, 5, 13, 3, 11, 7, 15};
    struct E { T v[Width]; };
    E buf[2][B * B];
    const int mb = bits - 2 * t;
    const std::ptrdiff_t hi = std::ptrdiff_t(1) << (bits - t);
    auto row = [&](int a, std::ptrdiff_t m) { return reinterpret_cast<E*>(x) + a * hi + (m << t); };
    auto load = [&](E* b, std::ptrdiff_t m) {
        for (int a = 0; a < B; ++a) {
            const E* r = row(a, m);
            for (int c = 0; c < B; ++c) b[a * B + c] = r[c];
        }
    };
    auto store = [&](const E* b, std::ptrdiff_t m) {
        for (int a = 0; a < B; ++a) {
            E* r = row(a, m);
            const E* col = b + r4[a];
            if (scale) {
                for (int c = 0; c < B; ++c)
                    for (int p = 0; p < Width; ++p) r[c].v[p] = col[r4[c] * B].v[p] * f;
            } else {
                for (int c = 0; c < B; ++c) r[c] = col[r4[c] * B];
            }
        }
    };
    for (std::ptrdiff_t m = 0; m < (std::ptrdiff_t(1) << mb); ++m) {
        std::ptrdiff_t mr = 0;
        for (int k = 0; k < mb; ++k) mr |= ((m >> k) & 1) << (mb - 1 - k);
        if (mr < m) continue;
        load(buf[0], m);
        if (mr != m) load(buf[1], mr);
        store(buf[0], mr);
        if (mr != m) store(buf[1], m);
    }
}

}  // namespace

template <class T> void reverse_blocked(T* x, int bits, int width, bool scale, T f) noexcept {
    if (width == 2) reverse_blocks<2>(x, bits, scale, f);
    else reverse_blocks<1>(x, bits, scale, f);
}

template <class T> void bit_reverse(T* x, int bits, int width, const std::int32_t* swaps, const std::int32_t* fixed,
                                    bool scale, T f) noexcept {
    if (bits >= blocked_min_bits<T>()) reverse_blocked<T>(x, bits, width, scale, f);
    else if (width == 2 && bits >= 4 && vector_reverse<T>()) vector_reverse<T>()(x, bits, scale, f);
    else if (scale) swap_pairs_scale<T>(x, swaps, fixed, width, f);
    else swap_pairs<T>(x, swaps, width);
}

template void bit_reverse<double>(double*, int, int, const std::int32_t*, const std::int32_t*, bool, double) noexcept;
template void bit_reverse<float>(float*, int, int, const std::int32_t*, const std::int32_t*, bool, float) noexcept;
template void reverse_blocked<double>(double*, int, int, bool, double) noexcept;
template void reverse_blocked<float>(float*, int, int, bool, float) noexcept;

template void dif_portable<double>(double*, std::ptrdiff_t, const double*, std::ptrdiff_t, bool) noexcept;
template VectorDifFn<double> vector_dif<double>() noexcept;
template VectorReverseFn<double> vector_reverse<double>() noexcept;
template VectorPassFn<double> vector_split<double>() noexcept;
template VectorPassFn<double> vector_join<double>() noexcept;
template void split_real<double>(double*, std::ptrdiff_t, const double*, const double*) noexcept;
template void join_real<double>(double*, std::ptrdiff_t, const double*, const double*) noexcept;
template void swap_pairs<double>(double*, const std::int32_t*, int) noexcept;
template void swap_pairs_scale<double>(double*, const std::int32_t*, const std::int32_t*, int, double) noexcept;

template void dif_portable<float>(float*, std::ptrdiff_t, const float*, std::ptrdiff_t, bool) noexcept;
template VectorDifFn<float> vector_dif<float>() noexcept;
template VectorReverseFn<float> vector_reverse<float>() noexcept;
template VectorPassFn<float> vector_split<float>() noexcept;
template VectorPassFn<float> vector_join<float>() noexcept;
template void split_real<float>(float*, std::ptrdiff_t, const float*, const float*) noexcept;
template void join_real<float>(float*, std::ptrdiff_t, const float*, const float*) noexcept;
template void swap_pairs<float>(float*, const std::int32_t*, int) noexcept;
template void swap_pairs_scale<float>(float*, const std::int32_t*, const std::int32_t*, int, float) noexcept;

}  // namespace zf
