#include "elementwise/binary.hpp"

#include <cstddef>

#include "elementwise/rearrange.hpp"
#include "elementwise/unary.hpp"

namespace zf {

namespace {

// Quotient part for a zero divisor: huge without sign where the dividend is
// nonzero, 0 where it is zero.
template <class T> inline T zero_divisor(T x) noexcept { return x == T(0) ? T(0) : Traits<T>::huge; }

// The operations, each as four sample formulas: real/real (rr), complex/complex
// (cc), complex a with real b (cr) and real a with complex b (rc). Operations
// marked scalarwise treat a complex/complex pair scalar by scalar with rr and
// have no cc.
template <class T> struct AddOp {
    static constexpr bool scalarwise = true;
    T rr(T a, T b) const noexcept { return a + b; }
    void cr(T ar, T ai, T b, T& re, T& im) const noexcept { re = ar + b; im = ai; }
    void rc(T a, T br, T bi, T& re, T& im) const noexcept { re = a + br; im = bi; }
};

template <class T> struct SubOp {
    static constexpr bool scalarwise = true;
    T rr(T a, T b) const noexcept { return a - b; }
    void cr(T ar, T ai, T b, T& re, T& im) const noexcept { re = ar - b; im = ai; }
    void rc(T a, T br, T bi, T& re, T& im) const noexcept { re = a - br; im = -bi; }
};

template <class T> struct MulOp {
    static constexpr bool scalarwise = false;
    T rr(T a, T b) const noexcept { return a * b; }
    void cc(T ar, T ai, T br, T bi, T& re, T& im) const noexcept {
        re = ar * br - ai * bi;
        im = ar * bi + ai * br;
    }
    void cr(T ar, T ai, T b, T& re, T& im) const noexcept { re = ar * b; im = ai * b; }
    void rc(T a, T br, T bi, T& re, T& im) const noexcept { re = a * br; im = a * bi; }
};

// a * conj(b); the conjugate of a real b is b itself.
template <class T> struct ConjMulOp {
    static constexpr bool scalarwise = false;
    T rr(T a, T b) const noexcept { return a * b; }
    void cc(T ar, T ai, T br, T bi, T& re, T& im) const noexcept {
        re = ar * br + ai * bi;
        im = ai * br - ar * bi;
    }
    void cr(T ar, T ai, T b, T& re, T& im) const noexcept { re = ar * b; im = ai * b; }
    void rc(T a, T br, T bi, T& re, T& im) const noexcept { re = a * br; im = -(a * bi); }
};

// a / b; a zero divisor gives huge (no sign) or 0, part by part. With a
// complex operand the quotient is a * conj(b) / |b|^2 (a real b has imaginary
// part 0); only |b|^2 is formed from parts clamped to +-huge.
template <class T> struct DivOp {
    static constexpr bool scalarwise = false;
    T rr(T a, T b) const noexcept {
        // Dividing by 1 where b is 0 keeps the loop free of conditional traps.
        const T q = a / (b == T(0) ? T(1) : b);
        return b == T(0) ? zero_divisor(a) : q;
    }
    void cc(T ar, T ai, T br, T bi, T& re, T& im) const noexcept {
        const T cr = clamp_huge(br), ci = clamp_huge(bi);
        const T d = cr * cr + ci * ci;
        const bool zero = d == T(0);
        const T s = zero ? T(1) : d;  // keeps the loop free of conditional traps
        const T qr = (ar * br + ai * bi) / s, qi = (ai * br - ar * bi) / s;
        re = zero ? zero_divisor(ar) : qr;
        im = zero ? zero_divisor(ai) : qi;
    }
    void cr(T ar, T ai, T b, T& re, T& im) const noexcept { cc(ar, ai, b, T(0), re, im); }
    void rc(T a, T br, T bi, T& re, T& im) const noexcept { cc(a, T(0), br, bi, re, im); }
};

// The smaller sample; complex samples by squared magnitude, b winning ties.
template <class T> struct MinOp {
    static constexpr bool scalarwise = false;
    T rr(T a, T b) const noexcept { return b <= a ? b : a; }
    void cc(T ar, T ai, T br, T bi, T& re, T& im) const noexcept {
        const bool take_b = saturated_norm(br, bi) <= saturated_norm(ar, ai);
        re = take_b ? br : ar;
        im = take_b ? bi : ai;
    }
    void cr(T ar, T ai, T b, T& re, T& im) const noexcept { cc(ar, ai, b, T(0), re, im); }
    void rc(T a, T br, T bi, T& re, T& im) const noexcept { cc(a, T(0), br, bi, re, im); }
};

// The larger sample; complex samples by squared magnitude, b winning ties.
template <class T> struct MaxOp {
    static constexpr bool scalarwise = false;
    T rr(T a, T b) const noexcept { return b >= a ? b : a; }
    void cc(T ar, T ai, T br, T bi, T& re, T& im) const noexcept {
        const bool take_b = saturated_norm(br, bi) >= saturated_norm(ar, ai);
        re = take_b ? br : ar;
        im = take_b ? bi : ai;
    }
    void cr(T ar, T ai, T b, T& re, T& im) const noexcept { cc(ar, ai, b, T(0), re, im); }
    void rc(T a, T br, T bi, T& re, T& im) const noexcept { cc(a, T(0), br, bi, re, im); }
};

// The exponential-average update b + w (a - b): a the new value, b the average.
template <class T> struct AvgAddOp {
    static constexpr bool scalarwise = true;
    T w;
    T rr(T a, T b) const noexcept { return b + (a - b) * w; }
    void cr(T ar, T ai, T b, T& re, T& im) const noexcept { re = rr(ar, b); im = w * ai; }
    void rc(T a, T br, T bi, T& re, T& im) const noexcept { re = rr(a, br); im = bi * (T(1) - w); }
};

// Loops over raw scalars, one per combination of forms. The output may be
// either input: real/real and complex/complex read and write the same index,
// and the mixed forms walk from the last sample down when the real input is
// stored in the output's block, so that it is read before its pairs overwrite it.
template <class T, class Op> void run_rr(T* o, const T* x, const T* y, std::size_t n, Op op) noexcept {
    for (std::size_t i = 0; i < n; ++i) o[i] = op.rr(x[i], y[i]);
}

template <class T, class Op> void run_cc(T* o, const T* x, const T* y, std::size_t n, Op op) noexcept {
    if constexpr (Op::scalarwise) {
        run_rr(o, x, y, 2 * n, op);
    } else {
        for (std::size_t k = 0; k < n; ++k) {
            T re, im;
            op.cc(x[2 * k], x[2 * k + 1], y[2 * k], y[2 * k + 1], re, im);
            o[2 * k] = re;
            o[2 * k + 1] = im;
        }
    }
}

template <class T, class Op> void run_cr(T* o, const T* x, const T* y, std::size_t n, Op op) noexcept {
    auto pair = [&](std::size_t k) {
        T re, im;
        op.cr(x[2 * k], x[2 * k + 1], y[k], re, im);
        o[2 * k] = re;
        o[2 * k + 1] = im;
    };
    if (y == o) {
        for (std::size_t k = n; k-- > 0;) pair(k);
    } else {
        for (std::size_t k = 0; k < n; ++k) pair(k);
    }
}

template <class T, class Op> void run_rc(T* o, const T* x, const T* y, std::size_t n, Op op) noexcept {
    auto pair = [&](std::size_t k) {
        T re, im;
        op.rc(x[k], y[2 * k], y[2 * k + 1], re, im);
        o[2 * k] = re;
        o[2 * k + 1] = im;
    };
    if (x == o) {
        for (std::size_t k = n; k-- > 0;) pair(k);
    } else {
        for (std::size_t k = 0; k < n; ++k) pair(k);
    }
}

// Gives the output its shape. When it shares storage with an input it is
// grown keeping its contents (keep_points samples of its old form), so that
// the input's samples survive; otherwise it is sized without keeping them.
template <class T> int size_output(Vec<T>* out, bool shared, int points, int complex, int keep_points) noexcept {
    const int old_complex = out->complex;
    out->points = points;
    out->complex = complex;
    return shared ? zf::realloc<T>(out, keep_points, old_complex) : zf::alloc<T>(out);
}

template <class T> bool valid(const Vec<T>* a, const Vec<T>* b, const Vec<T>* out) noexcept {
    return readable<T>(a) && readable<T>(b) && writable<T>(out);
}

// The binary shape rule: equal lengths, the mean spacing, complex when either
// input is; storage as size_output.
template <class T> int binary_shape(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept {
    if (a->points != b->points) return -1;
    const T delta = (a->delta + b->delta) * T(0.5);
    const int complex = (a->complex || b->complex) ? 1 : 0;
    const int n = a->points;
    const bool shared = same_storage<T>(*out, *a) || same_storage<T>(*out, *b);
    out->delta = delta;
    return size_output<T>(out, shared, n, complex, n);
}

// Shapes the output and runs the loop of the operands' forms, decided once.
template <class T, class Op> int combine(const Vec<T>* a, const Vec<T>* b, Vec<T>* out, Op op) noexcept {
    if (!valid<T>(a, b, out)) return -1;
    const bool ca = a->complex != 0, cb = b->complex != 0;  // before out (maybe a or b) changes
    if (binary_shape<T>(a, b, out) != 0) return -1;
    const std::size_t n = static_cast<std::size_t>(out->points);
    if (n == 0) return 0;
    T* o = out->data;
    const T* x = a->data;
    const T* y = b->data;
    if (ca && cb) run_cc(o, x, y, n, op);
    else if (ca) run_cr(o, x, y, n, op);
    else if (cb) run_rc(o, x, y, n, op);
    else run_rr(o, x, y, n, op);
    return 0;
}

// combine for operations that accept unequal lengths: the shorter operand is
// copied into a temporary zero-padded to the longer length.
template <class T, class Op> int combine_padded(const Vec<T>* a, const Vec<T>* b, Vec<T>* out, Op op) noexcept {
    if (!valid<T>(a, b, out)) return -1;
    if (a->points == b->points) return combine<T>(a, b, out, op);
    const bool a_shorter = a->points < b->points;
    const int n = a_shorter ? b->points : a->points;
    Temp<T> t;
    if (copy<T>(t.get(), a_shorter ? a : b) != 0 || zpad<T>(t.get(), n) != 0) return -1;
    return a_shorter ? combine<T>(t.get(), b, out, op) : combine<T>(a, t.get(), out, op);
}

}  // namespace

template <class T> int add(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept {
    return combine_padded<T>(a, b, out, AddOp<T>{});
}

template <class T> int sub(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept {
    return combine_padded<T>(a, b, out, SubOp<T>{});
}

template <class T> int mul(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept {
    return combine<T>(a, b, out, MulOp<T>{});
}

template <class T> int div(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept {
    return combine<T>(a, b, out, DivOp<T>{});
}

template <class T> int conj_mul(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept {
    if (b && !b->complex) return mul<T>(a, b, out);
    return combine<T>(a, b, out, ConjMulOp<T>{});
}

template <class T> int avg_add(const Vec<T>* a, const Vec<T>* b, Vec<T>* out, T w) noexcept {
    return combine<T>(a, b, out, AvgAddOp<T>{w});
}

template <class T> int min(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept {
    return combine<T>(a, b, out, MinOp<T>{});
}

template <class T> int max(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept {
    return combine<T>(a, b, out, MaxOp<T>{});
}

template <class T> int inter(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept {
    if (!valid<T>(a, b, out) || a->points != b->points) return -1;
    const int n = a->points;
    if (n > INT32_MAX / 2) return -1;
    const int wa = width<T>(*a), wb = width<T>(*b);
    const T delta = (a->delta + b->delta) * T(0.25);  // half the mean spacing: the rate doubles
    const int complex = (wa == 2 || wb == 2) ? 1 : 0;
    const bool shared = same_storage<T>(*out, *a) || same_storage<T>(*out, *b);
    out->delta = delta;
    if (size_output<T>(out, shared, 2 * n, complex, n) != 0) return -1;
    T* o = out->data;
    const T* x = a->data;
    const T* y = b->data;
    // From the end: output samples 2k and 2k+1 lie at or beyond input sample k,
    // so an input in the output's block is read before it is overwritten.
    if (!complex) {
        for (std::size_t k = static_cast<std::size_t>(n); k-- > 0;) {
            const T xa = x[k], yb = y[k];
            o[2 * k] = xa;
            o[2 * k + 1] = yb;
        }
        return 0;
    }
    for (std::size_t k = static_cast<std::size_t>(n); k-- > 0;) {
        const T ar = x[wa * k], ai = wa == 2 ? x[2 * k + 1] : T(0);
        const T br = y[wb * k], bi = wb == 2 ? y[2 * k + 1] : T(0);
        o[4 * k] = ar;
        o[4 * k + 1] = ai;
        o[4 * k + 2] = br;
        o[4 * k + 3] = bi;
    }
    return 0;
}

template <class T> int ritoc(const Vec<T>* re, const Vec<T>* im, Vec<T>* out) noexcept {
    if (!valid<T>(re, im, out) || re->complex || im->complex || re->points != im->points) return -1;
    const int n = re->points;
    const T delta = (re->delta + im->delta) * T(0.5);
    const int old_points = out->points, old_complex = out->complex;
    out->complex = 1;
    out->delta = delta;
    out->points = n;
    if (zf::realloc<T>(out, old_points, old_complex) != 0) return -1;
    T* o = out->data;
    const T* x = re->data;
    const T* y = im->data;
    for (std::size_t k = static_cast<std::size_t>(n); k-- > 0;) {  // from the end, as inter
        const T r = x[k], i = y[k];
        o[2 * k] = r;
        o[2 * k + 1] = i;
    }
    return 0;
}

template <class T> int pmul(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept {
    if (!valid<T>(a, b, out)) return -1;
    if (same_storage<T>(*out, *a) || same_storage<T>(*out, *b)) {
        Temp<T> t;
        if (pmul<T>(a, b, t.get()) != 0) return -1;
        return copy<T>(out, t.get());  // copy keeps out->type
    }
    const int na = a->points, nb = b->points;
    const bool ca = a->complex != 0, cb = b->complex != 0;
    if (na > 0 && nb > 0 && static_cast<long long>(na) + nb - 1 > INT32_MAX) return -1;
    out->delta = (a->delta + b->delta) * T(0.5);
    out->complex = (ca || cb) ? 1 : 0;
    out->points = (na == 0 || nb == 0) ? 0 : na + nb - 1;
    if (zf::alloc<T>(out) != 0 || zero<T>(out) != 0) return -1;
    T* o = out->data;
    const T* x = a->data;
    const T* y = b->data;
    for (std::size_t i = 0; i < static_cast<std::size_t>(na); ++i) {
        T* oi = o + (out->complex ? 2 * i : i);
        if (!ca && !cb) {
            const T ar = x[i];
            for (std::size_t j = 0; j < static_cast<std::size_t>(nb); ++j) oi[j] += ar * y[j];
            continue;
        }
        const T ar = ca ? x[2 * i] : x[i];
        const T ai = ca ? x[2 * i + 1] : T(0);
        if (!cb) {
            for (std::size_t j = 0; j < static_cast<std::size_t>(nb); ++j) {
                oi[2 * j] += ar * y[j];
                oi[2 * j + 1] += ai * y[j];
            }
            continue;
        }
        for (std::size_t j = 0; j < static_cast<std::size_t>(nb); ++j) {
            const T br = y[2 * j], bi = y[2 * j + 1];
            oi[2 * j] += ar * br - ai * bi;
            oi[2 * j + 1] += ar * bi + ai * br;
        }
    }
    return 0;
}

template <class T> int dot(const Vec<T>* a, const Vec<T>* b, Vec<T>* out) noexcept {
    if (!valid<T>(a, b, out) || a->points != b->points) return -1;
    const std::size_t n = static_cast<std::size_t>(a->points);
    const bool ca = a->complex != 0, cb = b->complex != 0;
    const T* x = a->data;
    const T* y = b->data;
    // The sum is formed before the output changes, since the output may be an input.
    T re = 0, im = 0;
    if (!ca && !cb) {
        for (std::size_t k = 0; k < n; ++k) re += x[k] * y[k];
    } else if (ca && cb) {
        for (std::size_t k = 0; k < n; ++k) {
            re += x[2 * k] * y[2 * k] - x[2 * k + 1] * y[2 * k + 1];
            im += x[2 * k] * y[2 * k + 1] + x[2 * k + 1] * y[2 * k];
        }
    } else if (ca) {
        for (std::size_t k = 0; k < n; ++k) {
            re += x[2 * k] * y[k];
            im += x[2 * k + 1] * y[k];
        }
    } else {
        for (std::size_t k = 0; k < n; ++k) {
            re += x[k] * y[2 * k];
            im += x[k] * y[2 * k + 1];
        }
    }
    const bool shared = same_storage<T>(*out, *a) || same_storage<T>(*out, *b);
    if (size_output<T>(out, shared, 1, (ca || cb) ? 1 : 0, a->points) != 0) return -1;
    out->data[0] = re;
    if (out->complex) out->data[1] = im;
    return 0;
}

template int add<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int sub<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int mul<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int div<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int conj_mul<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int avg_add<double>(const Vec<double>*, const Vec<double>*, Vec<double>*, double) noexcept;
template int min<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int max<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int inter<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int ritoc<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int pmul<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int dot<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;

template int add<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;
template int sub<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;
template int mul<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;
template int div<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;
template int conj_mul<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;
template int avg_add<float>(const Vec<float>*, const Vec<float>*, Vec<float>*, float) noexcept;
template int min<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;
template int max<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;
template int inter<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;
template int ritoc<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;
template int pmul<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;
template int dot<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;

}  // namespace zf
