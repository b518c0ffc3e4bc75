// The signal vector inside the library: the C record of each precision, the
// per-precision constants, storage management and the shared validation rules.
#pragma once

#include <zifaif/dsp.h>

#include <cfloat>
#include <cstddef>
#include <cstdint>

namespace zf {

// The C record of a precision; there is no second record type inside the library.
template <class T> struct VecOf;
template <> struct VecOf<double> { using type = dsp_vector; };
template <> struct VecOf<float>  { using type = dspf_vector; };
template <class T> using Vec = typename VecOf<T>::type;

// Everything in which the double and the float twins differ.
template <class T> struct Traits;

template <> struct Traits<double> {
    using Work = double;                                      // type the arithmetic runs in
    using Acc = double;                                       // type the statistics accumulate in
    static constexpr double huge = 1e100;                     // saturation instead of infinity
    static constexpr double tiny = 2.2250738585072014e-308;   // logarithm floor: smallest normal
    static constexpr double exp_limit = 230.25850929940458;   // 100 ln 10: e^x stays below huge
    static constexpr double exp10_limit = 100.0;
    static constexpr double pi = 3.141592653589793;
    static constexpr double two_pi = 6.283185307179586;
    static constexpr double sqrt_half = 0.7071067811865476;
    static constexpr double sqrt_two = 1.4142135623730951;
    static constexpr double ln_10 = 2.302585092994046;        // e^(x ln 10) = 10^x
    static constexpr double log10_e = 0.4342944819032518;     // log10(z) = ln(z) log10(e)
    static constexpr double eps = DBL_EPSILON;
    static constexpr int file_size_word = 0x0408;              // binary vector file: 8-byte scalars
    static constexpr int ascii_digits = 16;                    // %.16g in ASCII vector files
    static constexpr const char* ascii_scan_length = "l";      // %lg reads a double
};

template <> struct Traits<float> {
    using Work = float;
    using Acc = double;                                       // float samples summed in double
    static constexpr float huge = 1e15f;                      // stored as 999999986991104
    static constexpr float tiny = 1.17549435e-38f;            // FLT_MIN
    static constexpr float exp_limit = 34.53877639770508f;    // 15 ln 10
    static constexpr float exp10_limit = 15.0f;
    static constexpr float pi = 3.14159265f;
    static constexpr float two_pi = 6.28318531f;
    static constexpr float sqrt_half = 0.707106781f;            // stored as 0.70710677
    static constexpr float sqrt_two = 1.41421356f;             // stored as 1.4142135
    static constexpr float ln_10 = 2.30258509f;
    static constexpr float log10_e = 0.434294482f;
    static constexpr float eps = FLT_EPSILON;
    static constexpr int file_size_word = 0x0404;
    static constexpr int ascii_digits = 7;
    static constexpr const char* ascii_scan_length = "";
};

// Scalars a record needs for its current shape (64-bit: 2 * INT_MAX does not overflow).
template <class T> inline std::int64_t need(const Vec<T>& v) noexcept {
    return v.complex ? 2 * static_cast<std::int64_t>(v.points) : static_cast<std::int64_t>(v.points);
}
// Scalars per sample.
template <class T> inline int width(const Vec<T>& v) noexcept { return v.complex ? 2 : 1; }

// A record that may be read: not null, a non-negative count, data present when
// there are samples, and owned storage large enough for the shape. Every
// operation checks its inputs with this first.
template <class T> inline bool readable(const Vec<T>* v) noexcept {
    if (!v || v->points < 0) return false;
    if (v->points > 0 && !v->data) return false;
    if (v->alloc > 0 && need<T>(*v) > v->alloc) return false;
    return true;
}
// A record that may receive a result: not null (its shape is about to be set).
template <class T> inline bool writable(const Vec<T>* v) noexcept { return v != nullptr; }

// Two records whose sample storage is one block (the output is one of the inputs).
template <class T> inline bool same_storage(const Vec<T>& a, const Vec<T>& b) noexcept {
    return &a == &b || (a.data != nullptr && a.data == b.data);
}

// Record and storage: the engines of dsp_init ... dsp_cmp.
template <class T> int init(Vec<T>* v) noexcept;
template <class T> int destroy(Vec<T>* v) noexcept;
template <class T> int alloc(Vec<T>* v) noexcept;
template <class T> int realloc(Vec<T>* v, int old_points, int old_complex) noexcept;
template <class T> int append(Vec<T>* dst, const Vec<T>* src) noexcept;
template <class T> int subvec(const Vec<T>* src, Vec<T>* dst, int start, int count) noexcept;
template <class T> int copy(Vec<T>* dst, const Vec<T>* src) noexcept;
template <class T> int copy_at_most(Vec<T>* dst, const Vec<T>* src, int n) noexcept;
template <class T> int cmp(const Vec<T>* a, const Vec<T>* b, T tol, int* result) noexcept;
int tof(const dspf_vector* src, dspf_vector* dst) noexcept;

// Hook slots of one precision.
template <class T> struct Hooks;
template <> struct Hooks<double> {
    dsp_alloc_hook alloc; dsp_realloc_hook realloc; dsp_free_hook free;
};
template <> struct Hooks<float> {
    dspf_alloc_hook alloc; dspf_realloc_hook realloc; dspf_free_hook free;
};
template <class T> Hooks<T>& hooks() noexcept;

// Turns a real record into a complex one in place: complex = 1, storage grown
// with realloc(v, points, 0), then the pair of sample k is written from the
// value at scalar k walking from the last sample down, so that nothing is
// overwritten before it is read. pair(x, re, im) computes one pair.
// On failure the record has complex = 1 and no storage, and -1 is returned.
template <class T, class Pair>
int spread_to_complex(Vec<T>& v, Pair pair) noexcept {
    const int n = v.points;
    v.complex = 1;
    if (zf::realloc<T>(&v, n, 0) != 0) return -1;
    T* d = v.data;
    for (int k = n - 1; k >= 0; --k) {
        T re, im;
        pair(d[k], re, im);
        d[2 * k] = re;
        d[2 * k + 1] = im;
    }
    return 0;
}

// A temporary record owned by the current scope. It is destroyed through the
// library's own destroy, so user hooks see every block it held.
template <class T> class Temp {
public:
    Temp() noexcept { init<T>(&v_); }
    ~Temp() { destroy<T>(&v_); }
    Temp(const Temp&) = delete;
    Temp& operator=(const Temp&) = delete;
    Vec<T>* get() noexcept { return &v_; }
    Vec<T>& operator*() noexcept { return v_; }
    Vec<T>* operator->() noexcept { return &v_; }
private:
    Vec<T> v_;
};

}  // namespace zf
