// AVX2/FMA kernels of the split-radix transform: W complex values per register
// (2 doubles' pairs or 4 floats' pairs), interleaved as they lie in memory.
// Blocks of up to kLeaf points are unrolled at compile time; larger blocks run
// one vectorised L-shaped pass and recurse depth first. Same butterflies and
// rotations by the same table values (cosine and sine taken apart).
#include "core/avx2.hpp"
#include "transform/fft_kernel.hpp"

namespace zf {
namespace {

template <class T> struct Ops;

template <> struct Ops<double> : avx2::Reg<double> {
    static constexpr int W = 2;   // complex values per register
    static R fmaddsub(R a, R b, R c) noexcept { return _mm256_fmaddsub_pd(a, b, c); }
    static R fmsubadd(R a, R b, R c) noexcept { return _mm256_fmsubadd_pd(a, b, c); }
    // (re, im) -> (im, re) in every pair
    static R swap(R v) noexcept { return _mm256_permute_pd(v, 0x5); }
    // j v
    static R mul_j(R v) noexcept { return _mm256_addsub_pd(_mm256_setzero_pd(), swap(v)); }
    // the low / high half (one complex value here) in both halves
    static R low2(R v) noexcept { return _mm256_permute2f128_pd(v, v, 0x00); }
    static R high2(R v) noexcept { return _mm256_permute2f128_pd(v, v, 0x11); }
    // +1 for the first half, -1 for the second
    static R pm() noexcept { return _mm256_setr_pd(1, 1, -1, -1); }
    static R mp() noexcept { return _mm256_setr_pd(-1, -1, 1, 1); }
    static R conj(R v) noexcept { return _mm256_xor_pd(v, _mm256_setr_pd(0.0, -0.0, 0.0, -0.0)); }
    // the complex values in reverse order
    static R reverse(R v) noexcept { return _mm256_permute2f128_pd(v, v, 0x01); }
};

template <> struct Ops<float> : avx2::Reg<float> {
    static constexpr int W = 4;
    static R fmaddsub(R a, R b, R c) noexcept { return _mm256_fmaddsub_ps(a, b, c); }
    static R fmsubadd(R a, R b, R c) noexcept { return _mm256_fmsubadd_ps(a, b, c); }
    static R swap(R v) noexcept { return _mm256_permute_ps(v, 0xB1); }
    static R mul_j(R v) noexcept { return _mm256_addsub_ps(_mm256_setzero_ps(), swap(v)); }
    static R low2(R v) noexcept { return _mm256_permute2f128_ps(v, v, 0x00); }
    static R high2(R v) noexcept { return _mm256_permute2f128_ps(v, v, 0x11); }
    // first complex value of each 128-bit half in both slots of that half, and the second
    static R low1(R v) noexcept { return _mm256_permute_ps(v, 0x44); }
    static R high1(R v) noexcept { return _mm256_permute_ps(v, 0xEE); }
    static R pm() noexcept { return _mm256_setr_ps(1, 1, 1, 1, -1, -1, -1, -1); }
    static R mp() noexcept { return _mm256_setr_ps(-1, -1, -1, -1, 1, 1, 1, 1); }
    static R pm1() noexcept { return _mm256_setr_ps(1, 1, -1, -1, 1, 1, -1, -1); }
    static R conj(R v) noexcept {
        return _mm256_xor_ps(v, _mm256_setr_ps(0.0f, -0.0f, 0.0f, -0.0f, 0.0f, -0.0f, 0.0f, -0.0f));
    }
    static R reverse(R v) noexcept { return _mm256_castpd_ps(_mm256_permute4x64_pd(_mm256_castps_pd(v), 0x1B)); }
};

// z times (c -+ j s), c and s each doubled across the real and imaginary lane:
// (re c + im s, im c - re s) forward, the conjugate rotation inverse.
template <class T, bool Inv>
inline typename Ops<T>::R rotate(typename Ops<T>::R z, typename Ops<T>::R c, typename Ops<T>::R s) noexcept {
    using O = Ops<T>;
    const auto t = O::mul(O::swap(z), s);
    return Inv ? O::fmaddsub(z, c, t) : O::fmsubadd(z, c, t);
}

// One vectorised L-shaped pass over a block of n points (n/4 a multiple of W),
// with the level twiddles lv of block size n.
template <class T, bool Inv> void lpass(T* x, std::ptrdiff_t n, const T* lv) noexcept {
    using O = Ops<T>;
    constexpr int W = O::W;
    const std::ptrdiff_t q = n / 4;
    T* a = x;
    T* b = x + 2 * q;
    T* c = x + 4 * q;
    T* d = x + 6 * q;
    for (std::ptrdiff_t k = 0; k < 2 * q; k += 2 * W, lv += 8 * W) {
        const auto A = O::load(a + k), B = O::load(b + k), C = O::load(c + k), D = O::load(d + k);
        O::store(a + k, O::add(A, C));
        O::store(b + k, O::add(B, D));
        const auto u = O::sub(A, C);
        const auto jv = O::mul_j(O::sub(B, D));
        const auto z1 = Inv ? O::add(u, jv) : O::sub(u, jv);
        const auto z3 = Inv ? O::sub(u, jv) : O::add(u, jv);
        O::store(c + k, rotate<T, Inv>(z1, O::load(lv), O::load(lv + 2 * W)));
        O::store(d + k, rotate<T, Inv>(z3, O::load(lv + 4 * W), O::load(lv + 6 * W)));
    }
}

// Blocks of compile-time size, outputs in bit-reversed order.
template <class T, int N, bool Inv> struct Block;

// double: two points in one register
template <bool Inv> struct Block<double, 2, Inv> {
    static void run(double* x, const double*) noexcept {
        using O = Ops<double>;
        const auto v = O::load(x);
        O::store(x, O::fma(O::high2(v), O::pm(), O::low2(v)));
    }
};
// double: four points in two registers
template <bool Inv> struct Block<double, 4, Inv> {
    static void run(double* x, const double*) noexcept {
        using O = Ops<double>;
        const auto v0 = O::load(x), v1 = O::load(x + 4);
        const auto s = O::add(v0, v1), d = O::sub(v0, v1);
        O::store(x, O::fma(O::high2(s), O::pm(), O::low2(s)));          // X0, X2
        const auto jd = O::mul_j(O::high2(d));
        O::store(x + 4, O::fma(jd, Inv ? O::pm() : O::mp(), O::low2(d)));   // X1, X3
    }
};
// float: four points in one register
template <bool Inv> struct Block<float, 4, Inv> {
    static void run(float* x, const float*) noexcept {
        using O = Ops<float>;
        const auto v = O::load(x);
        // the halves: (x0, x1) and (x2, x3)
        const auto lo = O::low2(v), hi = O::high2(v);
        const auto s = O::add(lo, hi), d = O::sub(lo, hi);   // (s0, s1, s0, s1), (d0, d1, d0, d1)
        // (s0 + s1, s0 - s1) in the first half, (d0 -+ j d1, d0 +- j d1) in the second
        const auto sd = _mm256_blend_ps(s, d, 0xF0);          // (s0, s1, d0, d1)
        const auto first = O::low1(sd);                        // (s0, s0, d0, d0)
        auto second = O::high1(sd);                            // (s1, s1, d1, d1)
        const auto jsec = O::mul_j(second);
        second = _mm256_blend_ps(second, jsec, 0xF0);          // (s1, s1, j d1, j d1)
        const auto sign = Inv ? _mm256_setr_ps(1, 1, -1, -1, 1, 1, -1, -1)
                              : _mm256_setr_ps(1, 1, -1, -1, -1, -1, 1, 1);
        O::store(x, O::fma(second, sign, first));              // X0, X2, X1, X3
    }
};
// float: eight points in two registers; the quarter branches hold two points each
template <bool Inv> struct Block<float, 8, Inv> {
    static void run(float* x, const float* lv) noexcept {
        using O = Ops<float>;
        const auto v0 = O::load(x), v1 = O::load(x + 8);
        O::store(x, O::add(v0, v1));
        const auto d = O::sub(v0, v1);                          // d0 .. d3
        const auto jd = O::mul_j(O::high2(d));                  // j (d2, d3, d2, d3)
        auto z = O::fma(jd, Inv ? O::pm() : O::mp(), O::low2(d));   // z1_0, z1_1, z3_0, z3_1
        // rotations by w^0, w^1, w^0, w^3 of the eight-point transform
        const float h = 0.70710677f;
        const auto c = _mm256_setr_ps(1, 1, h, h, 1, 1, -h, -h);
        const auto sn = _mm256_setr_ps(0, 0, h, h, 0, 0, h, h);
        z = rotate<float, Inv>(z, c, sn);
        O::store(x + 8, O::fma(O::high1(z), O::pm1(), O::low1(z)));
        Block<float, 4, Inv>::run(x, lv);
    }
};

template <class T, int N, bool Inv> struct Block {
    static void run(T* x, const T* lv) noexcept {
        constexpr int W = Ops<T>::W;
        lpass<T, Inv>(x, N, lv + 2 * (N - 4 * W));
        Block<T, N / 2, Inv>::run(x, lv);
        Block<T, N / 4, Inv>::run(x + N, lv);
        Block<T, N / 4, Inv>::run(x + N + N / 2, lv);
    }
};

template <class T> constexpr int kLeaf = 64;

template <class T, bool Inv> void recurse(T* x, std::ptrdiff_t n, const T* lv) noexcept {
    if (n <= kLeaf<T>) {
        switch (n) {
        case 4: Block<T, 4, Inv>::run(x, lv); break;
        case 8: Block<T, 8, Inv>::run(x, lv); break;
        case 16: Block<T, 16, Inv>::run(x, lv); break;
        case 32: Block<T, 32, Inv>::run(x, lv); break;
        case 64: Block<T, 64, Inv>::run(x, lv); break;
        default: break;
        }
        return;
    }
    constexpr int W = Ops<T>::W;
    lpass<T, Inv>(x, n, lv + 2 * (n - 4 * W));
    recurse<T, Inv>(x, n / 2, lv);
    recurse<T, Inv>(x + n, n / 4, lv);
    recurse<T, Inv>(x + n + n / 2, n / 4, lv);
}

// Bit reversal of complex data in 4 x 4 tiles: an index is (a, m, b) with a
// and b of two bits; the tile of middle m (rows a, columns b) goes transposed,
// rows and columns reversed, to the tile of rev m, and that one back.
inline std::ptrdiff_t rev2(std::ptrdiff_t i) noexcept { return ((i & 1) << 1) | ((i >> 1) & 1); }

struct TileF {   // float: one row of four complex values is one register
    __m256d r[4];
    void load(const float* x, std::ptrdiff_t row, std::ptrdiff_t m) noexcept {
        for (int a = 0; a < 4; ++a) r[a] = _mm256_loadu_pd(reinterpret_cast<const double*>(x + 2 * (a * row + 4 * m)));
    }
    template <bool Scale> void store(float* x, std::ptrdiff_t row, std::ptrdiff_t m, __m256 f) const noexcept {
        // rows in the order 0, 2, 1, 3 through a 4 x 4 transpose of 64-bit elements
        const __m256d t0 = _mm256_unpacklo_pd(r[0], r[2]), t1 = _mm256_unpackhi_pd(r[0], r[2]);
        const __m256d t2 = _mm256_unpacklo_pd(r[1], r[3]), t3 = _mm256_unpackhi_pd(r[1], r[3]);
        __m256d col[4];
        col[0] = _mm256_permute2f128_pd(t0, t2, 0x20);
        col[1] = _mm256_permute2f128_pd(t1, t3, 0x20);
        col[2] = _mm256_permute2f128_pd(t0, t2, 0x31);
        col[3] = _mm256_permute2f128_pd(t1, t3, 0x31);
        for (int a = 0; a < 4; ++a) {
            __m256 v = _mm256_castpd_ps(col[rev2(a)]);
            if (Scale) v = _mm256_mul_ps(v, f);
            _mm256_storeu_ps(x + 2 * (a * row + 4 * m), v);
        }
    }
};

struct TileD {   // double: a row is two registers of two complex values
    __m256d lo[4], hi[4];
    void load(const double* x, std::ptrdiff_t row, std::ptrdiff_t m) noexcept {
        for (int a = 0; a < 4; ++a) {
            const double* p = x + 2 * (a * row + 4 * m);
            lo[a] = _mm256_loadu_pd(p);
            hi[a] = _mm256_loadu_pd(p + 4);
        }
    }
    template <bool Scale> void store(double* x, std::ptrdiff_t row, std::ptrdiff_t m, __m256d f) const noexcept {
        // output row A holds element rev2(A) of the rows 0, 2, 1, 3
        __m256d out[8];
        out[0] = _mm256_permute2f128_pd(lo[0], lo[2], 0x20);
        out[1] = _mm256_permute2f128_pd(lo[1], lo[3], 0x20);
        out[2] = _mm256_permute2f128_pd(hi[0], hi[2], 0x20);
        out[3] = _mm256_permute2f128_pd(hi[1], hi[3], 0x20);
        out[4] = _mm256_permute2f128_pd(lo[0], lo[2], 0x31);
        out[5] = _mm256_permute2f128_pd(lo[1], lo[3], 0x31);
        out[6] = _mm256_permute2f128_pd(hi[0], hi[2], 0x31);
        out[7] = _mm256_permute2f128_pd(hi[1], hi[3], 0x31);
        for (int a = 0; a < 4; ++a) {
            double* p = x + 2 * (a * row + 4 * m);
            __m256d u = out[2 * a], v = out[2 * a + 1];
            if (Scale) { u = _mm256_mul_pd(u, f); v = _mm256_mul_pd(v, f); }
            _mm256_storeu_pd(p, u);
            _mm256_storeu_pd(p + 4, v);
        }
    }
};

template <class Tile, bool Scale, class T, class R>
void reverse_tiles(T* x, int bits, R f) noexcept {
    const int mb = bits - 4;
    const std::ptrdiff_t row = std::ptrdiff_t(1) << (bits - 2), count = std::ptrdiff_t(1) << mb;
    std::ptrdiff_t mr = 0;
    for (std::ptrdiff_t m = 0; m < count; ++m) {
        if (mr >= m) {
            Tile a, b;
            a.load(x, row, m);
            if (mr != m) {
                b.load(x, row, mr);
                b.template store<Scale>(x, row, m, f);
            }
            a.template store<Scale>(x, row, mr, f);
        }
        // mr <- reversal of m + 1: a reversed increment
        std::ptrdiff_t bit = count >> 1;
        while (bit && (mr & bit)) { mr ^= bit; bit >>= 1; }
        mr |= bit;
    }
}

// The passes between a complex transform of h = n/2 points and the real
// transform of n points, for the groups of bins k < n/4 against h - k; lane
// k = 0 meets the Nyquist slot and bin n/4 has no partner, so both are fixed
// up by the caller. lv is the level table of block size n.
template <class T> void split_groups(T* x, std::ptrdiff_t n, const T* lv) noexcept {
    using O = Ops<T>;
    constexpr int W = O::W;
    const std::ptrdiff_t h = n / 2;
    const auto half = O::set1(T(0.5));
    for (std::ptrdiff_t k = 0; k < h / 2; k += W, lv += 8 * W) {
        T* pa = x + 2 * k;
        T* pb = x + 2 * (h - k - W + 1);
        const auto a = O::load(pa), b = O::conj(O::reverse(O::load(pb)));
        const auto e = O::mul(half, O::add(a, b));
        const auto o = O::mul(half, O::conj(O::swap(O::sub(a, b))));   // -j (a - conj b) / 2
        const auto r = rotate<T, false>(o, O::load(lv), O::load(lv + 2 * W));
        O::store(pa, O::add(e, r));
        O::store(pb, O::reverse(O::conj(O::sub(e, r))));
    }
}

template <class T> void join_groups(T* x, std::ptrdiff_t n, const T* lv) noexcept {
    using O = Ops<T>;
    constexpr int W = O::W;
    const std::ptrdiff_t h = n / 2;
    for (std::ptrdiff_t k = 0; k < h / 2; k += W, lv += 8 * W) {
        T* pa = x + 2 * k;
        T* pb = x + 2 * (h - k - W + 1);
        const auto a = O::load(pa), b = O::conj(O::reverse(O::load(pb)));
        const auto e = O::add(a, b);
        const auto jo = O::mul_j(rotate<T, true>(O::sub(a, b), O::load(lv), O::load(lv + 2 * W)));
        O::store(pa, O::add(e, jo));
        O::store(pb, O::reverse(O::conj(O::sub(e, jo))));
    }
}

}  // namespace

void split_avx2(double* x, std::ptrdiff_t n, const double* lv) noexcept { split_groups<double>(x, n, lv); }
void split_avx2(float* x, std::ptrdiff_t n, const float* lv) noexcept { split_groups<float>(x, n, lv); }
void join_avx2(double* x, std::ptrdiff_t n, const double* lv) noexcept { join_groups<double>(x, n, lv); }
void join_avx2(float* x, std::ptrdiff_t n, const float* lv) noexcept { join_groups<float>(x, n, lv); }

void reverse_avx2(double* x, int bits, bool scale, double f) noexcept {
    if (scale) reverse_tiles<TileD, true>(x, bits, _mm256_set1_pd(f));
    else reverse_tiles<TileD, false>(x, bits, _mm256_set1_pd(f));
}
void reverse_avx2(float* x, int bits, bool scale, float f) noexcept {
    if (scale) reverse_tiles<TileF, true>(x, bits, _mm256_set1_ps(f));
    else reverse_tiles<TileF, false>(x, bits, _mm256_set1_ps(f));
}

void dif_avx2(double* x, std::ptrdiff_t n, const double* lv, bool inverse) noexcept {
    if (inverse) recurse<double, true>(x, n, lv);
    else recurse<double, false>(x, n, lv);
}
void dif_avx2(float* x, std::ptrdiff_t n, const float* lv, bool inverse) noexcept {
    if (inverse) recurse<float, true>(x, n, lv);
    else recurse<float, false>(x, n, lv);
}

}  // namespace zf
