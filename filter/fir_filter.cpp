// FIR filtering with carried history: direct sums, or overlap-save FFT
// convolution with a cached coefficient transform, for real coefficients on
// long enough input.
#include <cstring>

#include "core/cache.hpp"
#include "filter/fir.hpp"
#include "transform/fft.hpp"

namespace zf {
namespace {

// The FIR filter's scratch of one precision: a copy of the coefficients whose
// transform is held, that transform (P/2 + 1 bins, scaled by P), and the block
// being transformed. Plain records, freed only by release_fir.
template <class T> struct FftCache {
    Vec<T> coef;
    Vec<T> spectrum;
    Vec<T> block;
    int length;   // P of the held transform, 0 when none
};
template <class T> FftCache<T> fft_cache{};

template <class T> int release_fir() noexcept {
    FftCache<T>& c = fft_cache<T>;
    const int a = destroy<T>(&c.coef), b = destroy<T>(&c.spectrum), d = destroy<T>(&c.block);
    c.length = 0;
    return a == 0 && b == 0 && d == 0 ? 0 : -1;
}

// Tolerance of the coefficient comparison: five units of the precision's
// rounding at |h[0]|.
template <class T> T key_tolerance(T h0) { return (h0 < 0 ? -h0 : h0) * T(5) * (Traits<T>::eps / T(2)); }

// The transform of h for length p: reused when the held copy matches within
// the tolerance and was transformed at the same length, else recomputed as
// copy, scale by p, zero-pad to p, real FFT.
template <class T> const T* coefficient_spectrum(const Vec<T>& h, int p) noexcept {
    FftCache<T>& c = fft_cache<T>;
    register_cache<T>(CacheSlot::fir_scratch, &release_fir<T>);
    int differ = 1;
    if (c.length == p && c.coef.points == h.points &&
        cmp<T>(&c.coef, &h, key_tolerance<T>(h.data[0]), &differ) == 0 && differ == 0)
        return c.spectrum.data;
    c.length = 0;
    if (copy<T>(&c.coef, &h) != 0 || copy<T>(&c.spectrum, &h) != 0) return nullptr;
    T* s = c.spectrum.data;
    for (int k = 0; k < h.points; ++k) s[k] *= static_cast<T>(p);
    c.spectrum.points = p;
    if (zf::realloc<T>(&c.spectrum, h.points, 0) != 0) return nullptr;
    std::memset(c.spectrum.data + h.points, 0, static_cast<std::size_t>(p - h.points) * sizeof(T));
    if (rfft<T>(&c.spectrum) != 0) return nullptr;
    c.length = p;
    return c.spectrum.data;
}

// z[k] *= h[k] for n interleaved complex values (storage apart, so that the
// loop vectorises).
template <class T> void multiply(T* __restrict z, const T* __restrict h, int n) {
    for (int k = 0; k < n; ++k) {
        const T zr = z[2 * k], zi = z[2 * k + 1], hr = h[2 * k], hi = h[2 * k + 1];
        z[2 * k] = zr * hr - zi * hi;
        z[2 * k + 1] = zr * hi + zi * hr;
    }
}

int next_pow2(long long n) {
    int p = 1;
    while (p < n) p *= 2;
    return p;
}

// Transform length of overlap-save for m taps on n samples: about eight times
// the taps, never more than one transform of the whole linear convolution.
int block_length(int m, int n) {
    const int by_taps = next_pow2(8LL * m);
    const int whole = next_pow2(static_cast<long long>(n) + m - 1);
    return by_taps < whole ? by_taps : whole;
}

// Overlap-save: each transform of p samples ending at output n0 + L - 1 gives
// the L = p - m + 1 outputs n0 .. n0 + L - 1; inputs before the block come
// from the history (or zeros), inputs past the end are zeros.
template <class T> int fft_filter(const Signal<T>& x, const Vec<T>& h, T* y) noexcept {
    const int m = h.points, w = x.width;
    const int p = block_length(m, x.n);
    const T* hs = coefficient_spectrum<T>(h, p);
    if (!hs) return -1;
    Vec<T>& b = fft_cache<T>.block;
    const int step = p - (m - 1);
    for (int n0 = 0; n0 < x.n; n0 += step) {
        const int count = x.n - n0 < step ? x.n - n0 : step;
        b.points = p;
        b.complex = x.width == 2;
        if (alloc<T>(&b) != 0) return -1;
        x.gather(b.data, n0 - (m - 1), p);
        // The next block's new samples and output lines load while this one transforms.
        x.prefetch(n0 + step, step);
        const int ahead = x.n - n0 - step < step ? x.n - n0 - step : step;
        for (int k = 0; k < ahead * w; k += 64 / static_cast<int>(sizeof(T)))
            __builtin_prefetch(y + static_cast<std::ptrdiff_t>(w) * (n0 + step) + k, 1);
        if (w == 1) {
            if (rfft<T>(&b) != 0) return -1;
            multiply<T>(b.data, hs, p / 2 + 1);
            if (irfft<T>(&b) != 0) return -1;
        } else {
            if (fft<T>(&b, 0) != 0) return -1;
            T* z = b.data;
            for (int k = 0; k < p; ++k) {   // the real response's spectrum is conjugate-symmetric
                const int q = k <= p / 2 ? k : p - k;
                const T hr = hs[2 * q], hi = k <= p / 2 ? hs[2 * q + 1] : -hs[2 * q + 1];
                const T re = z[2 * k] * hr - z[2 * k + 1] * hi;
                const T im = z[2 * k] * hi + z[2 * k + 1] * hr;
                z[2 * k] = re;
                z[2 * k + 1] = im;
            }
            if (fft<T>(&b, 1) != 0) return -1;
        }
        std::memcpy(y + static_cast<std::ptrdiff_t>(w) * n0, b.data + static_cast<std::ptrdiff_t>(w) * (m - 1),
                    static_cast<std::size_t>(w) * count * sizeof(T));
    }
    return 0;
}

// Direct sums with a real response: the first m - 1 outputs from a short
// buffer of history and input, the rest straight from the input.
template <class T> int direct_real(const Signal<T>& x, const T* h, int m, T* y) noexcept {
    const int w = x.width;
    const int head = x.n < m - 1 ? x.n : m - 1;
    Temp<T> buf;
    buf->points = m + w * (m - 1 + head);
    if (alloc<T>(buf.get()) != 0) return -1;
    T* g = buf->data;
    T* ext = g + m;
    for (int j = 0; j < m; ++j) g[j] = h[m - 1 - j];
    x.gather(ext, -(m - 1), m - 1 + head);
    const ConvFn<T> conv = conv_kernel<T>();
    conv(ext, g, m, w, y, static_cast<std::ptrdiff_t>(w) * head);
    if (x.n > head)
        conv(x.data, g, m, w, y + static_cast<std::ptrdiff_t>(w) * head, static_cast<std::ptrdiff_t>(w) * (x.n - head));
    return 0;
}

// Direct sums with a complex response (complex products; a real input has
// zero imaginary parts).
template <class T> int direct_complex(const Signal<T>& x, const T* h, int m, T* y) noexcept {
    const int w = x.width;
    Temp<T> buf;
    buf->points = m - 1 + x.n;
    buf->complex = 1;
    if (alloc<T>(buf.get()) != 0) return -1;
    T* ext = buf->data;
    if (w == 2) {
        x.gather(ext, -(m - 1), m - 1 + x.n);
    } else {
        T* re = ext + (m - 1 + x.n);   // the upper half holds the real samples first
        x.gather(re, -(m - 1), m - 1 + x.n);
        for (int k = 0; k < m - 1 + x.n; ++k) {
            ext[2 * k] = re[k];
            ext[2 * k + 1] = T(0);
        }
    }
    for (int n = 0; n < x.n; ++n) {
        T re = 0, im = 0;
        const T* xp = ext + 2 * (n + m - 1);
        for (int k = 0; k < m; ++k) {
            const T xr = xp[-2 * k], xi = xp[-2 * k + 1];
            re += h[2 * k] * xr - h[2 * k + 1] * xi;
            im += h[2 * k] * xi + h[2 * k + 1] * xr;
        }
        y[2 * n] = re;
        y[2 * n + 1] = im;
    }
    return 0;
}

}  // namespace

template <class T> void Signal<T>::gather(T* dst, int first, int count) const noexcept {
    // Samples first .. first + count - 1: history below 0, zeros past the end.
    const std::size_t sw = static_cast<std::size_t>(width);
    int k = first, out = 0;
    for (; k < 0 && out < count; ++k, ++out) {
        const int hk = past + k;   // the history holds past samples, oldest first
        if (history && hk >= 0) std::memcpy(dst + sw * out, history + sw * hk, sw * sizeof(T));
        else std::memset(dst + sw * out, 0, sw * sizeof(T));
    }
    const int avail = k < n ? (n - k < count - out ? n - k : count - out) : 0;
    if (avail > 0) {
        std::memcpy(dst + sw * out, data + sw * k, sw * static_cast<std::size_t>(avail) * sizeof(T));
        out += avail;
    }
    if (out < count) std::memset(dst + sw * out, 0, sw * static_cast<std::size_t>(count - out) * sizeof(T));
}

template <class T> void Signal<T>::prefetch(int first, int count) const noexcept {
    const int end = first + count < n ? first + count : n;
    const int line = 64 / static_cast<int>(sizeof(T));
    for (int k = (first > 0 ? first : 0) * width; k < end * width; k += line) __builtin_prefetch(data + k);
}

template <class T> void update_history(Vec<T>* hist, const T* x, int n) noexcept {
    if (!hist || hist->points == 0) return;
    const std::size_t w = static_cast<std::size_t>(width<T>(*hist));
    const int len = hist->points;
    T* s = hist->data;
    if (n >= len) {
        std::memcpy(s, x + w * (n - len), w * len * sizeof(T));
    } else if (n > 0) {
        std::memmove(s, s + w * n, w * (len - n) * sizeof(T));
        std::memcpy(s + w * (len - n), x, w * n * sizeof(T));
    }
}

template <class T> int fir_filter(const Vec<T>* in, Vec<T>* out, const Vec<T>* h, Vec<T>* hist, bool direct) noexcept {
    if (!readable<T>(in) || !readable<T>(h) || !writable<T>(out)) return -1;
    if (hist && !readable<T>(hist)) return -1;
    const int m = h->points;
    if (m <= 0) return copy<T>(out, in);
    if (hist && (same_storage<T>(*in, *hist) || same_storage<T>(*out, *hist) || same_storage<T>(*h, *hist))) return -1;
    if (same_storage<T>(*out, *h)) return -1;
    if (prepare_history<T>(hist, *in, m - 1) != 0) return -1;
    const bool in_place = same_storage<T>(*in, *out);
    Vec<T>* dst = in_place ? scratch<T>() : out;
    if (prepare_output<T>(*in, dst, h->complex != 0) != 0) return -1;
    const Signal<T> x{in->data, in->points, width<T>(*in), hist ? hist->data : nullptr, m - 1};
    int r;
    if (h->complex) {
        r = direct_complex<T>(x, h->data, m, dst->data);
    } else if (!direct && m - 1 <= x.n && m >= (x.width == 2 ? 36 : 46)) {
        r = fft_filter<T>(x, *h, dst->data);
    } else {
        r = direct_real<T>(x, h->data, m, dst->data);
    }
    if (r != 0) return -1;
    update_history<T>(hist, in->data, in->points);
    return in_place ? copy<T>(out, dst) : 0;
}

template <class T> int fir(const Vec<T>* in, Vec<T>* out, const Vec<T>* h, Vec<T>* hist) noexcept {
    return fir_filter<T>(in, out, h, hist, false);
}

template int fir<double>(const Vec<double>*, Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int fir_filter<double>(const Vec<double>*, Vec<double>*, const Vec<double>*, Vec<double>*, bool) noexcept;
template void update_history<double>(Vec<double>*, const double*, int) noexcept;
template struct Signal<double>;
template int fir<float>(const Vec<float>*, Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;
template int fir_filter<float>(const Vec<float>*, Vec<float>*, const Vec<float>*, Vec<float>*, bool) noexcept;
template void update_history<float>(Vec<float>*, const float*, int) noexcept;
template struct Signal<float>;

}  // namespace zf
