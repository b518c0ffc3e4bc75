// Correlation of two records through the FFT of the power of two that holds b.
#include "transform/handle_fft.hpp"

#include "elementwise/arith.hpp"
#include "elementwise/binary.hpp"
#include "elementwise/convert.hpp"
#include "elementwise/rearrange.hpp"
#include "transform/fft.hpp"

namespace zf {

namespace {

// Forward transform of a record padded to m samples: complex records (and real
// ones widened when the other input is complex) by the complex FFT, else by the
// real one.
template <class T> int forward(Vec<T>* v, int m, bool complex) noexcept {
    if (complex && rtoc<T>(v) != 0) return -1;
    if (zpad<T>(v, m) != 0) return -1;
    return complex ? fft<T>(v, 0) : rfft<T>(v);
}

}  // namespace

// out[k] = (1/M) sum_{n < length} conj(a[n]) b[n + k], k = 0 .. b.points - length,
// halved with `half`; M the transform length. With one real and one complex
// input the real one is taken as complex with imaginary parts 0.
template <class T> int corr(const Vec<T>* a, const Vec<T>* b, Vec<T>* out, Vec<T>* scratch, int length, int half) noexcept {
    if (!readable<T>(a) || !readable<T>(b) || !writable<T>(out)) return -1;
    if (length < 1 || length > a->points || length > b->points) return -1;
    Temp<T> temp;
    if (!scratch || same_storage<T>(*scratch, *a) || same_storage<T>(*scratch, *out)) scratch = temp.get();
    const int nb = b->points;
    const T delta = (a->delta + b->delta) / T(2);
    const bool complex = a->complex || b->complex;
    if (copy<T>(scratch, b) != 0) return -1;
    int m = 1;
    while (m < nb && m < (1 << 30)) m *= 2;
    if (subvec<T>(a, out, 0, length) != 0) return -1;
    if (forward<T>(out, m, complex) != 0 || forward<T>(scratch, m, complex) != 0) return -1;
    if (conj_mul<T>(scratch, out, out) != 0) return -1;
    if ((complex ? fft<T>(out, 1) : irfft<T>(out)) != 0) return -1;
    out->points = nb - length + 1;
    out->delta = delta;
    return half ? scale<T>(out, T(0.5)) : 0;
}

template int corr<double>(const Vec<double>*, const Vec<double>*, Vec<double>*, Vec<double>*, int, int) noexcept;
template int corr<float>(const Vec<float>*, const Vec<float>*, Vec<float>*, Vec<float>*, int, int) noexcept;

}  // namespace zf
