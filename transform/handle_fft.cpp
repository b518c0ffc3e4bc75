// One-call spectra: select, window, scale, pad and transform a record, and the
// way back from a spectrum to a record.
#include "transform/handle_fft.hpp"

#include "elementwise/arith.hpp"
#include "elementwise/rearrange.hpp"
#include "transform/dft.hpp"
#include "transform/fft.hpp"
#include "window/window.hpp"

namespace zf {

namespace {

constexpr int kCentring = spec_by_length | spec_centred;

// Placement of a selection within its padding, and back (zpad2 / unzpad flags).
inline int pad_mode(int kind, int flags) noexcept {
    if (flags & spec_by_length) return pad_place_split | pad_scale_none;
    if ((flags & spec_centred) || kind != 0) return pad_place_split;
    return pad_place_front;
}

// The smallest power of two >= n, at most 2^30.
inline int pow2_at_least(int n) noexcept {
    int m = 1;
    while (m < n && m < (1 << 30)) m *= 2;
    return m;
}

// Rounds half up by truncating x + 0.5.
template <class T> inline int round_half_up(T x) noexcept { return static_cast<int>(x + T(0.5)); }

// Kinds whose window may span fewer samples than the record: kind 0 and the cosine sums.
inline bool takes_width(int kind) noexcept { return kind == 0 || (kind >= 2 && kind <= 13); }

// A complex record windowed part by part with the real window of window2.
template <class T> int window_pairs(Vec<T>* v, int kind, int flags, T width) noexcept {
    const bool rotate = kind == 0 ? (flags & win_rotate) != 0 : !(flags & win_no_rotate);
    if (v->points > 0 && (kind != 0 || (flags & win_width))) {
        const T* w = cached_window<T>(kind, flags, v->points, width);
        if (!w) return -1;
        T* d = v->data;
        for (int i = 0; i < v->points; ++i) {
            d[2 * i] *= w[i];
            d[2 * i + 1] *= w[i];
        }
    }
    return rotate ? swap_halves2<T>(v) : 0;
}

// The window step of the forward spectra: the window with mean normalisation
// (rotated for the centring flags), or with the no-window flag only the
// rotation the window would have done; then the single-sided factor 2, or the
// transform length with spec_by_length.
template <class T> int shape(Vec<T>* v, int kind, int flags, T width, bool with_width, int length) noexcept {
    if (!(flags & spec_no_window)) {
        const int wf = (flags & kCentring ? win_rotate : 0) | win_mean | (with_width && takes_width(kind) ? win_width : 0);
        if (kind < 0 || kind > 24) return -1;
        if ((v->complex ? window_pairs<T>(v, kind, wf, width) : window2<T>(v, kind, wf, width)) != 0) return -1;
    } else if ((kind != 0 || (flags & kCentring)) && swap_halves2<T>(v) != 0) {
        return -1;
    }
    if (flags & spec_by_length) return scale<T>(v, static_cast<T>(length));
    return flags & spec_two_sided ? 0 : scale<T>(v, T(2));
}

// The transform of the forward spectra: a real record single-sided by the real
// transform, else the complex transform with DC moved to the middle.
template <class T, class Real, class Full> int transform(Vec<T>* v, bool real_in, int flags, Real real, Full full) noexcept {
    if (real_in && !(flags & spec_two_sided)) return real(v);
    if (full(v, 0) != 0) return -1;
    return swap_halves<T>(v);
}

// The end of the inverse spectra: the record truncated to r samples, rotated
// back when the forward step rotated it, scaled back.
template <class T> int finish_inverse(Vec<T>* v, int r, int kind, int flags) noexcept {
    if (unzpad<T>(v, r, pad_mode(kind, flags)) != 0) return -1;
    if ((kind != 0 || (flags & kCentring)) && swap_halves<T>(v) != 0) return -1;
    if (flags & spec_by_length) return v->points > 0 ? scale<T>(v, T(1) / static_cast<T>(v->points)) : 0;
    return flags & spec_two_sided ? 0 : scale<T>(v, T(0.5));
}

template <class T> int fft_forward(const Vec<T>* in, Vec<T>* out, int points, T fraction, int kind, int flags) noexcept {
    const bool real_in = !in->complex;
    const int m = pow2_at_least(points < 1 ? in->points : points);
    T l = static_cast<T>(m) * fraction;
    if (l > static_cast<T>(in->points)) l = static_cast<T>(in->points);
    if (subvec<T>(in, out, 0, round_half_up(l)) != 0) return -1;
    if (flags & spec_raw) {
        if (zpad2<T>(out, m, pad_place_front | pad_scale_none) != 0) return -1;
        return fft<T>(out, 0);
    }
    if (shape<T>(out, kind, flags, l, true, m) != 0) return -1;
    if (zpad2<T>(out, m, pad_mode(kind, flags)) != 0) return -1;
    return transform<T>(out, real_in, flags, rfft<T>, [](Vec<T>* v, int d) { return fft<T>(v, d); });
}

template <class T> int fft_inverse(const Vec<T>* in, Vec<T>* out, int points, T fraction, int kind, int flags) noexcept {
    const bool real_out = !(flags & (spec_two_sided | spec_complex | spec_raw));
    if (points < 1) points = real_out ? 2 * in->points - 2 : in->points;
    const int m = pow2_at_least(points);
    const int r = round_half_up(static_cast<T>(m) * fraction);
    if (flags & spec_raw) {
        if (subvec<T>(in, out, 0, m) != 0 || zpad2<T>(out, m, pad_place_front | pad_scale_none) != 0) return -1;
        return fft<T>(out, 1);
    }
    if (real_out) {
        if (subvec<T>(in, out, 0, m / 2 + 1) != 0) return -1;
        if (zpad2<T>(out, m / 2 + 1, pad_place_front | pad_scale_none) != 0 || irfft<T>(out) != 0) return -1;
    } else {
        if (copy<T>(out, in) != 0 || swap_halves2<T>(out) != 0) return -1;
        const int fit = out->points > m ? unzpad<T>(out, m, pad_place_split | pad_scale_none)
                                        : zpad2<T>(out, m, pad_place_split | pad_scale_none);
        if (fit != 0 || fft<T>(out, 1) != 0) return -1;
    }
    return finish_inverse<T>(out, r, kind, flags);
}

}  // namespace

template <class T> int fft(const Vec<T>* in, Vec<T>* out, int points, T fraction, int kind, int flags) noexcept {
    if (!readable<T>(in) || !writable<T>(out)) return -1;
    if (flags & (spec_by_length | spec_centred | spec_raw)) points = 0, fraction = T(0);
    if (!(fraction > T(0) && fraction <= T(1))) fraction = T(1);
    return flags & spec_inverse ? fft_inverse<T>(in, out, points, fraction, kind, flags)
                                : fft_forward<T>(in, out, points, fraction, kind, flags);
}

// The whole record at its own length: the forward steps of fft with the
// arbitrary-length transforms; the inverse gives 2 (bins - 1) real samples, or
// as many complex samples as bins.
template <class T> int dft(const Vec<T>* in, Vec<T>* out, int kind, int flags) noexcept {
    if (!readable<T>(in) || !writable<T>(out)) return -1;
    const bool real_in = !in->complex;
    if (copy<T>(out, in) != 0) return -1;
    const auto full = [](Vec<T>* v, int d) { return zf::dft<T>(v, d); };
    if (!(flags & spec_inverse)) {
        if (flags & spec_raw) return zf::dft<T>(out, 0);
        if (shape<T>(out, kind, flags, T(0), false, out->points) != 0) return -1;
        return transform<T>(out, real_in, flags, rdft<T>, full);
    }
    if (flags & spec_raw) return zf::dft<T>(out, 1);
    if (!(flags & (spec_two_sided | spec_complex))) {
        if (irdft<T>(out, 0) != 0) return -1;
    } else if (swap_halves2<T>(out) != 0 || zf::dft<T>(out, 1) != 0) {
        return -1;
    }
    return finish_inverse<T>(out, out->points, kind, flags);
}

int cf_fft(const double* in, double* out, int points, int complex, double fraction, int kind, int flags) noexcept {
    if (points < 0 || (points > 0 && (!in || !out))) return -1;
    dsp_vector src;
    init<double>(&src);
    src.data = const_cast<double*>(in);
    src.points = points;
    src.complex = complex ? 1 : 0;
    Temp<double> dst;
    dst->complex = src.complex;
    if (fft<double>(&src, dst.get(), 0, fraction, kind, flags) != 0) return -1;
    const std::size_t n = static_cast<std::size_t>(dst->points) * (dst->complex ? 2 : 1);
    for (std::size_t i = 0; i < n; ++i) out[i] = dst->data[i];
    return 0;
}

template int fft<double>(const Vec<double>*, Vec<double>*, int, double, int, int) noexcept;
template int dft<double>(const Vec<double>*, Vec<double>*, int, int) noexcept;
template int fft<float>(const Vec<float>*, Vec<float>*, int, float, int, int) noexcept;
template int dft<float>(const Vec<float>*, Vec<float>*, int, int) noexcept;

}  // namespace zf
