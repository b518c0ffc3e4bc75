// Scaling of traces between floating point and integer display units.
#include "trace/trace.hpp"

#include <climits>

namespace zf {

namespace {

// Truncation toward zero to a 32-bit integer as the processor's conversion
// does it: values outside the 32-bit range and not-a-number give INT_MIN.
inline int truncate_to_int32(double x) noexcept {
    if (x > -2147483649.0 && x < 2147483648.0) return static_cast<int>(x);
    return INT_MIN;
}

}  // namespace

template <class T> void trace_mul(T factor, T* data, int n) noexcept {
    if (!data) return;
    for (int i = 0; i < n; ++i) data[i] *= factor;
}

template <class T> int scale_to_int(const T* src, int n, T lo, T hi, int* dst, int imin, int imax) noexcept {
    // The integer span wraps in 32 bits before it is converted.
    const int span = static_cast<int>(static_cast<unsigned>(imax) - static_cast<unsigned>(imin));
    if (n < 1 || !src || !dst) return span;
    const T scale = static_cast<T>(static_cast<double>(span) / (static_cast<double>(hi) - static_cast<double>(lo)));
    const double s = static_cast<double>(scale), l = static_cast<double>(lo), off = static_cast<double>(imin);
    int last = span;
    for (int i = 0; i < n; ++i) {
        last = truncate_to_int32((static_cast<double>(src[i]) - l) * s + off);
        dst[i] = last;
    }
    return last;
}

template <class T> void scale_to_fp(const T* src, int n, T lo, T hi, T* dst, T out_lo, T out_hi) noexcept {
    if (!src || !dst) return;
    const double factor = (static_cast<double>(out_hi) - static_cast<double>(out_lo)) /
                          (static_cast<double>(hi) - static_cast<double>(lo));
    const double l = static_cast<double>(lo), o = static_cast<double>(out_lo);
    for (int i = 0; i < n; ++i) dst[i] = static_cast<T>((static_cast<double>(src[i]) - l) * factor + o);
}

template void trace_mul<double>(double, double*, int) noexcept;
template void trace_mul<float>(float, float*, int) noexcept;
template int scale_to_int<double>(const double*, int, double, double, int*, int, int) noexcept;
template int scale_to_int<float>(const float*, int, float, float, int*, int, int) noexcept;
template void scale_to_fp<double>(const double*, int, double, double, double*, double, double) noexcept;
template void scale_to_fp<float>(const float*, int, float, float, float*, float, float) noexcept;

}  // namespace zf
