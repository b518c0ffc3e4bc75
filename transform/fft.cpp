// The FFT entry points: length checks, widening of real vectors, table
// look-ups, and the real-input and real-output transforms built on a complex
// transform of half the length.
#include "transform/fft.hpp"

#include "transform/fft_kernel.hpp"
#include "transform/tables.hpp"

namespace zf {
namespace {

// A real record becomes complex with zero imaginary parts.
template <class T> int widen(Vec<T>& v) noexcept {
    return spread_to_complex<T>(v, [](T x, T& re, T& im) { re = x; im = T(0); });
}

// Three-multiplication rotation by the triple e: e^(-jt) forward, e^(+jt) inverse.
template <class T> inline void rotate(T& re, T& im, const T* e, bool inverse) noexcept {
    const T t = e[0] * (re + im);
    const T r = inverse ? t + im * e[1] : t + im * e[2];
    const T i = inverse ? t + re * e[2] : t + re * e[1];
    re = r;
    im = i;
}

// Turns Z, the (scaled) transform of z[m] = x[2m] + j x[2m+1] of h = n/2 points,
// into the bins 0 .. h of the real transform of x, in place (x holds n + 2
// scalars). With E = (Z[k] + conj Z[h-k])/2, O = (Z[k] - conj Z[h-k])/2j and
// R = e^(-j 2 pi k/n) O: X[k] = E + R and X[h-k] = conj(E - R).
template <class T> void split_real(T* x, std::ptrdiff_t n, const T* tw) noexcept {
    const std::ptrdiff_t h = n / 2;
    const T half = T(0.5);
    const T z0r = x[0], z0i = x[1];
    x[0] = z0r + z0i;
    x[1] = T(0);
    x[n] = z0r - z0i;
    x[n + 1] = T(0);
    for (std::ptrdiff_t k = 1; k < h / 2; ++k) {
        T* a = x + 2 * k;
        T* b = x + 2 * (h - k);
        const T er = half * (a[0] + b[0]), ei = half * (a[1] - b[1]);
        T rr = half * (a[1] + b[1]), ri = half * (b[0] - a[0]);
        rotate(rr, ri, tw + 6 * k, false);
        a[0] = er + rr; a[1] = ei + ri;
        b[0] = er - rr; b[1] = ri - ei;
    }
    x[h + 1] = -x[h + 1];   // k = h/2: X = conj Z
}

// The inverse of split_real without the 1/2: from the bins 0 .. h (only the
// real parts of bins 0 and h count) to Z[k] = E' + j O' with
// E' = X[k] + conj X[h-k] and O' = (X[k] - conj X[h-k]) e^(+j 2 pi k/n), whose
// unscaled inverse transform of h points is x[2m] + j x[2m+1].
template <class T> void join_real(T* x, std::ptrdiff_t n, const T* tw) noexcept {
    const std::ptrdiff_t h = n / 2;
    const T x0 = x[0], xh = x[n];
    x[0] = x0 + xh;
    x[1] = x0 - xh;
    for (std::ptrdiff_t k = 1; k < h / 2; ++k) {
        T* a = x + 2 * k;
        T* b = x + 2 * (h - k);
        const T er = a[0] + b[0], ei = a[1] - b[1];
        T orr = a[0] - b[0], oi = a[1] + b[1];
        rotate(orr, oi, tw + 6 * k, true);
        a[0] = er - oi; a[1] = ei + orr;
        b[0] = er + oi; b[1] = orr - ei;
    }
    x[h] *= T(2);            // k = h/2: Z = 2 conj X
    x[h + 1] *= T(-2);
}

// Everything a transform of n complex points on the table of length tn needs,
// fetched (and built) before the vector is touched.
template <class T> struct Plan {
    const T* tw = nullptr;
    const T* levels = nullptr;   // for the vector kernel, when there is one
    VectorDifFn<T> vec = nullptr;
    const std::int32_t* swaps = nullptr;
    const std::int32_t* fixed = nullptr;

    bool prepare(int n, int tn, int bits) noexcept {
        tw = twiddles<T>(tn);
        swaps = swap_list<T>(bits);
        fixed = fixed_list<T>(bits);
        if (!tw || !swaps || !fixed) return false;
        vec = n >= 4 ? vector_dif<T>() : nullptr;
        if (vec) {
            levels = level_twiddles<T>(n, tw, tn, vector_width<T>());
            if (!levels) return false;
        }
        return true;
    }
    // The butterflies of n points (natural order in, bit-reversed out).
    void run(T* x, int n, int tn, bool inverse) const noexcept {
        if (vec) vec(x, n, levels, inverse);
        else dif<T>(x, n, tw, tn / n, inverse);
    }
};

}  // namespace

int log2_exact(int n) noexcept {
    int b = 0;
    for (long long c = 1; c < n; c *= 2) ++b;
    return n > 0 && (1LL << b) == n ? b : -1;
}

template <class T> void invert_delta(Vec<T>& v, int n) noexcept {
    v.delta = v.delta == T(0) ? Traits<T>::huge : T(1) / (static_cast<T>(n) * v.delta);
}

template <class T> int fft(Vec<T>* v, int direction) noexcept {
    if (!readable<T>(v)) return -1;
    const int n = v->points;
    const int bits = log2_exact(n);
    if (bits < 0) return -1;
    const bool inverse = direction != 0;
    if (n == 1) {
        invert_delta<T>(*v, n);
        return 0;
    }
    if (n == 2) {
        if (!inverse) {
            const std::int64_t m = need<T>(*v);
            for (std::int64_t i = 0; i < m; ++i) v->data[i] *= T(0.5);
        }
        if (!v->complex && widen<T>(*v) != 0) return -1;
        T* x = v->data;
        const T ar = x[0], ai = x[1];
        x[0] = ar + x[2]; x[1] = ai + x[3];
        x[2] = ar - x[2]; x[3] = ai - x[3];
        invert_delta<T>(*v, n);
        return 0;
    }
    Plan<T> plan;
    if (!plan.prepare(n, n, bits)) return -1;
    if (!v->complex && widen<T>(*v) != 0) return -1;
    plan.run(v->data, n, n, inverse);
    if (inverse) swap_pairs<T>(v->data, plan.swaps, 2);
    else swap_pairs_scale<T>(v->data, plan.swaps, plan.fixed, 2, T(1) / static_cast<T>(n));
    invert_delta<T>(*v, n);
    return 0;
}

// The real transform of n points runs as a complex transform of z[m] =
// x[2m] + j x[2m+1] (the samples as they lie) and one pass that separates the
// transforms of the even and odd samples.
template <class T> int rfft(Vec<T>* v) noexcept {
    if (!readable<T>(v) || v->complex) return -1;
    const int n = v->points;
    const int bits = log2_exact(n);
    if (bits < 0) return -1;
    if (n == 1) {
        invert_delta<T>(*v, n);
        return 0;
    }
    if (n == 2) {
        if (widen<T>(*v) != 0) return -1;
        T* x = v->data;
        const T a = x[0], b = x[2];
        x[0] = (a + b) * T(0.5);
        x[2] = (a - b) * T(0.5);
        invert_delta<T>(*v, n);
        return 0;
    }
    Plan<T> plan;
    if (!plan.prepare(n / 2, n, bits - 1)) return -1;
    // Room for n complex pairs; the samples stay where they are.
    v->complex = 1;
    if (zf::realloc<T>(v, n, 0) != 0) return -1;
    T* x = v->data;
    plan.run(x, n / 2, n, false);
    swap_pairs_scale<T>(x, plan.swaps, plan.fixed, 2, T(1) / static_cast<T>(n));
    split_real<T>(x, n, plan.tw);
    v->points = n / 2 + 1;
    invert_delta<T>(*v, n);
    return 0;
}

// The bins 0 .. M-1 stand for the conjugate-symmetric spectrum of
// N = 2(M - 1) points; the result is its unscaled inverse, N real samples.
template <class T> int irfft(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int m = v->points;
    if (m < 1) return -1;
    if (m <= 2) {   // N = 1 (one bin) or N = 2: the real parts suffice
        const int w = width<T>(*v);
        T* x = v->data;
        if (m == 2) {
            const T a = x[0], b = x[w];
            x[0] = a + b;
            x[1] = a - b;
        }
        v->complex = 0;
        invert_delta<T>(*v, m);
        return 0;
    }
    if (m - 1 > (1 << 29)) return -1;
    const int n = 2 * (m - 1);
    const int bits = log2_exact(n);
    if (bits < 0) return -1;
    Plan<T> plan;
    if (!plan.prepare(n / 2, n, bits - 1)) return -1;
    if (!v->complex && widen<T>(*v) != 0) return -1;
    T* x = v->data;
    join_real<T>(x, n, plan.tw);
    plan.run(x, n / 2, n, true);
    swap_pairs<T>(x, plan.swaps, 2);
    v->complex = 0;
    v->points = n;
    invert_delta<T>(*v, n);
    return 0;
}

template <class T> int bitrev(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int bits = log2_exact(v->points);
    if (bits < 0) return -1;
    const std::int32_t* swaps = swap_list<T>(bits);
    if (!swaps) return -1;
    swap_pairs<T>(v->data, swaps, width<T>(*v));
    return 0;
}

template <class T> int bitrev_scale(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int bits = log2_exact(v->points);
    if (bits < 0) return -1;
    const std::int32_t* swaps = swap_list<T>(bits);
    const std::int32_t* fixed = fixed_list<T>(bits);
    if (!swaps || !fixed) return -1;
    swap_pairs_scale<T>(v->data, swaps, fixed, width<T>(*v), T(1) / static_cast<T>(v->points));
    return 0;
}

int cf_fft(double* data, int points, int complex, int direction) noexcept {
    dsp_vector v;
    init<double>(&v);
    v.data = data;
    v.points = points;
    v.complex = complex;
    if (!complex && points >= 2) return -1;   // the complex result would not fit
    return fft<double>(&v, direction);
}

template void invert_delta<double>(Vec<double>&, int) noexcept;
template int fft<double>(Vec<double>*, int) noexcept;
template int rfft<double>(Vec<double>*) noexcept;
template int irfft<double>(Vec<double>*) noexcept;
template int bitrev<double>(Vec<double>*) noexcept;
template int bitrev_scale<double>(Vec<double>*) noexcept;

template void invert_delta<float>(Vec<float>&, int) noexcept;
template int fft<float>(Vec<float>*, int) noexcept;
template int rfft<float>(Vec<float>*) noexcept;
template int irfft<float>(Vec<float>*) noexcept;
template int bitrev<float>(Vec<float>*) noexcept;
template int bitrev_scale<float>(Vec<float>*) noexcept;

}  // namespace zf
