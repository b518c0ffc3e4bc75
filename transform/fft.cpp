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

// Everything a transform of n complex points on the table of length tn needs,
// fetched (and built) before the vector is touched.
template <class T> struct Plan {
    const T* tw = nullptr;
    const T* levels = nullptr;   // for the vector kernel, when there is one
    VectorDifFn<T> vec = nullptr;
    const std::int32_t* swaps = nullptr;
    const std::int32_t* fixed = nullptr;

    // top: the largest block size whose level table is wanted (n, or the
    // real length for the passes of the real transforms).
    bool prepare(int n, int tn, int bits, int top = 0) noexcept {
        tw = twiddles<T>(tn);
        swaps = swap_list<T>(bits);
        fixed = fixed_list<T>(bits);
        if (!tw || !swaps || !fixed) return false;
        vec = n >= 4 ? vector_dif<T>() : nullptr;
        if (vec) {
            levels = level_twiddles<T>(top > n ? top : n, tw, tn, vector_width<T>());
            if (!levels) return false;
        }
        return true;
    }
    // The butterflies of n points (natural order in, bit-reversed out).
    void run(T* x, int n, int tn, bool inverse) const noexcept {
        if (vec) vec(x, n, levels, inverse);
        else dif_portable<T>(x, n, tw, tn / n, inverse);
    }
    // The level table of block size m (levels reach m), or null when the
    // vector kernel has none that small.
    const T* level(int m) const noexcept {
        const int w4 = 4 * vector_width<T>();
        return levels && m >= w4 ? levels + 2 * (static_cast<std::ptrdiff_t>(m) - w4) : nullptr;
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
    bit_reverse<T>(v->data, bits, 2, plan.swaps, plan.fixed, !inverse, T(1) / static_cast<T>(n));
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
    if (!plan.prepare(n / 2, n, bits - 1, n)) return -1;
    // Room for n complex pairs; the samples stay where they are.
    v->complex = 1;
    if (zf::realloc<T>(v, n, 0) != 0) return -1;
    T* x = v->data;
    plan.run(x, n / 2, n, false);
    bit_reverse<T>(x, bits - 1, 2, plan.swaps, plan.fixed, true, T(1) / static_cast<T>(n));
    split_real<T>(x, n, plan.tw, plan.vec ? plan.level(n) : nullptr);
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
    if (!plan.prepare(n / 2, n, bits - 1, n)) return -1;
    if (!v->complex && widen<T>(*v) != 0) return -1;
    T* x = v->data;
    join_real<T>(x, n, plan.tw, plan.vec ? plan.level(n) : nullptr);
    plan.run(x, n / 2, n, true);
    bit_reverse<T>(x, bits - 1, 2, plan.swaps, plan.fixed, false, T(1));
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
    bit_reverse<T>(v->data, bits, width<T>(*v), swaps, nullptr, false, T(1));
    return 0;
}

template <class T> int bitrev_scale(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int bits = log2_exact(v->points);
    if (bits < 0) return -1;
    const std::int32_t* swaps = swap_list<T>(bits);
    const std::int32_t* fixed = fixed_list<T>(bits);
    if (!swaps || !fixed) return -1;
    bit_reverse<T>(v->data, bits, width<T>(*v), swaps, fixed, true, T(1) / static_cast<T>(v->points));
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
