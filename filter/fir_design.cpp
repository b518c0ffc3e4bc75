// FIR design: the eleven kinds of dspc_fir and the fixed half responses of
// dspc_fir2. A designed filter is real; a vector that was complex on entry
// gets the taps as complex samples with zero imaginary parts.
#include <cmath>
#include <cstring>

#include "core/libm.hpp"
#include "elementwise/convert.hpp"
#include "filter/fir.hpp"
#include "window/window.hpp"

namespace zf {
namespace {

// Geometry of N taps about the centre N/2: the number of mirrored pairs, the
// left and right index of pair i (nearest first) and its distance t from the
// centre (i + 1 for odd N, i + 0.5 for even N).
struct Pairs {
    int n;
    int count() const { return n / 2; }
    bool odd() const { return n % 2 != 0; }
    int centre() const { return n / 2; }
    int left(int i) const { return n / 2 - 1 - i; }
    int right(int i) const { return odd() ? n / 2 + 1 + i : n / 2 + i; }
    template <class T> T distance(int i) const { return odd() ? T(i + 1) : T(i) + T(0.5); }
};

// Writes value(t) to both members of every pair; the odd centre gets centre.
template <class T, class F> void symmetric(T* h, Pairs p, T centre, F value) {
    for (int i = 0; i < p.count(); ++i) h[p.left(i)] = h[p.right(i)] = value(p.distance<T>(i));
    if (p.odd()) h[p.centre()] = centre;
}
// +value(t) to the right member, -value(t) to the left one, 0 to an odd centre.
template <class T, class F> void antisymmetric(T* h, Pairs p, F value) {
    for (int i = 0; i < p.count(); ++i) {
        const T v = value(p.distance<T>(i));
        h[p.right(i)] = v;
        h[p.left(i)] = -v;
    }
    if (p.odd()) h[p.centre()] = T(0);
}

// sin(x)/x with 1 where x is exactly 0.
template <class T> T sinc(T x) { return x == T(0) ? T(1) : libm::sin(x) / x; }
// (cos x - 1)/x^2, -1/2 near 0.
template <class T> T cos_quotient(T x) {
    return x * x < T(1.430511474609375e-6) ? T(-0.5) : (libm::cos(x) - T(1)) / (x * x);
}

template <class T> void lowpass(T* h, Pairs p, T f) {
    const T two_f = T(2) * f, w = Traits<T>::two_pi * f;
    symmetric<T>(h, p, two_f, [&](T t) { return two_f * sinc<T>(w * t); });
}

// Band around f1 of full width f2: the lowpass of cutoff f2/2 shifted by
// 2 cos(2 pi f1 t); the odd centre doubled.
template <class T> void bandpass(T* h, Pairs p, T f1, T f2) {
    lowpass<T>(h, p, f2 / T(2));
    const T w = Traits<T>::two_pi * f1;
    for (int i = 0; i < p.count(); ++i) {
        const T c = T(2) * libm::cos(w * p.distance<T>(i));
        h[p.left(i)] *= c;
        h[p.right(i)] *= c;
    }
    if (p.odd()) h[p.centre()] *= T(2);
}

// Unit impulse minus the taps (odd N only).
template <class T> void complement(T* h, Pairs p) {
    for (int k = 0; k < p.n; ++k) h[k] = -h[k];
    h[p.centre()] += T(1);
}

// Taps scaled to sum 1 unless their mean is exactly 0.
template <class T> void unit_sum(T* h, int n) {
    if (n < 1) return;
    typename Traits<T>::Acc sum = 0;
    for (int k = 0; k < n; ++k) sum += h[k];
    const T mean = static_cast<T>(sum / n);
    if (mean == T(0)) return;
    const T f = T(1) / (T(n) * mean);
    for (int k = 0; k < n; ++k) h[k] *= f;
}

// Kaiser-like kernel: step d, odd centre c0, pair value shape(y) with
// y = a - x^2/4 at x = d t', t' = i + 1 (odd) or i + 0.5 (even).
template <class T, class F> void bessel_like(T* h, Pairs p, T a, T d, T c0, F shape) {
    symmetric<T>(h, p, c0, [&](T t) {
        const T x = d * t;
        return shape(a - x * x / T(4));
    });
}

template <class T> struct Consts;
template <> struct Consts<double> {
    static constexpr double pi_sq = 9.869604401089358, kaiser5 = 9.4861669, sinh3 = 6.321022275;
};
template <> struct Consts<float> {
    static constexpr float pi_sq = 9.869605f, kaiser5 = 9.486167f, sinh3 = 6.3210225f;
};

template <class T> void kaiser(T* h, Pairs p, T beta) {
    const int n = p.n;
    if (beta == T(0)) {
        switch (n) {
        case 3: beta = T(5.922377); break;
        case 5: beta = Consts<T>::kaiser5; break;
        case 7: beta = T(12.56733); break;
        case 9: beta = T(15.939169); break;
        case 11: beta = T(19.10109); break;
        default: beta = T(1.610830415) * T(n) + T(1.386795655);
        }
    }
    const T a = beta * beta, ra = std::sqrt(a);
    const T d = T(4) * std::sqrt(a + Consts<T>::pi_sq) / T(n + 1);
    bessel_like<T>(h, p, a, d, std::sinh(ra) / ra, [](T y) {
        if (y <= T(0)) {
            const T r = std::sqrt(-y);
            return r == T(0) ? T(1) : libm::sin(r) / r;
        }
        const T r = std::sqrt(y);
        return std::sinh(r) / r;
    });
    unit_sum<T>(h, n);
}

// The fixed short kernels of kind 4: centre a0, pairs a_k/2 outward.
constexpr double sinh5[] = {0.4243801, 0.4973406, 0.0782793};
constexpr double sinh7[] = {0.3635819, 0.4891775, 0.1365995, 0.0106411};
constexpr double sinh9[] = {0.3232153788984078, 0.47149214396487166, 0.1755341299514293,
                            0.028496990099716707, 0.0012613570855745683};

template <class T> void sinh_kernel(T* h, Pairs p, T beta) {
    const int n = p.n;
    if (beta == T(0)) {
        const double* fixed = n == 5 ? sinh5 : n == 7 ? sinh7 : n == 9 ? sinh9 : nullptr;
        if (fixed) {
            h[p.centre()] = static_cast<T>(fixed[0]);
            for (int i = 0; i < p.count(); ++i) h[p.left(i)] = h[p.right(i)] = static_cast<T>(fixed[i + 1]) / T(2);
            return;
        }
        switch (n) {
        case 3: beta = Consts<T>::sinh3; break;
        case 4: beta = T(7.5194); break;
        case 6: beta = T(10.686); break;
        case 8: beta = T(13.962); break;
        case 11: beta = T(18.85664); break;
        default: beta = p.odd() ? T(n + 1) * Traits<T>::pi / T(2) : T(n) * Traits<T>::pi / T(2) + T(1.4);
        }
    }
    const T a = beta * beta, d = T(4) * beta / T(n + 1);
    bessel_like<T>(h, p, a, d, std::sinh(beta), [](T y) {
        return y <= T(0) ? libm::sin(std::sqrt(-y)) : std::sinh(std::sqrt(y));
    });
    unit_sum<T>(h, n);
}

// The Gaussian window (peak 1, symmetric, centred) whose response has half
// its power at f, as taps of unit sum.
template <class T> int gauss(Vec<T>* v, T f) {
    const int n = v->points;
    if (n < 1) return 0;
    for (int k = 0; k < n; ++k) v->data[k] = T(1);
    const T sigma = std::sqrt(std::log(T(2))) / (T(n) * Traits<T>::two_pi * f);
    if (window_gauss<T>(v, sigma, win_peak | win_symmetric | win_no_rotate) != 0) return -1;
    unit_sum<T>(v->data, n);
    return 0;
}

// Kinds 0-10 into h (n taps); -1 for an unknown kind or an even n where the
// kind needs a centre tap.
template <class T> int design(T* h, int n, int kind, T f1, T f2) {
    const Pairs p{n};
    const T two_f = T(2) * f1, w = Traits<T>::two_pi * f1;
    switch (kind) {
    case DSP_FIR_BANDPASS: bandpass<T>(h, p, f1, f2); return 0;
    case DSP_FIR_BANDSTOP:
        if (!p.odd()) return -1;
        bandpass<T>(h, p, f1, f2);
        complement<T>(h, p);
        return 0;
    case DSP_FIR_HIGHPASS:
        if (!p.odd()) return -1;
        lowpass<T>(h, p, f1);
        complement<T>(h, p);
        return 0;
    case DSP_FIR_LOWPASS: lowpass<T>(h, p, f1); return 0;
    case DSP_FIR_SINH: if (n >= 1) sinh_kernel<T>(h, p, f1); return 0;
    case DSP_FIR_DELAY:
        for (int k = 0; k < n; ++k) h[k] = two_f * sinc<T>(w * (T(k) + T(1 - n) / T(2) - f2));
        unit_sum<T>(h, n);
        return 0;
    case DSP_FIR_DIFF:
        antisymmetric<T>(h, p, [&](T t) {
            const T x = w * t;
            return x == T(0) ? T(0) : (libm::cos(x) - libm::sin(x) / x) / x * w * two_f;
        });
        return 0;
    case DSP_FIR_GAUSS: return -1;   // designed on the record (gauss)
    case DSP_FIR_HILBERT:
        antisymmetric<T>(h, p, [&](T t) {
            const T x = w * t;
            return two_f * x * cos_quotient<T>(x);
        });
        return 0;
    case DSP_FIR_KAISER: if (n >= 1) kaiser<T>(h, p, f1); return 0;
    case DSP_FIR_RAMP:
        symmetric<T>(h, p, two_f * two_f / T(2), [&](T t) {
            const T x = w * t;
            return two_f * two_f * (sinc<T>(x) + cos_quotient<T>(x));
        });
        return 0;
    default: return -1;
    }
}

// The fixed half responses, first tap first, ending with the centre tap.
constexpr double set100[] = {0.000652614993819046, 0.00161398511533566, 0.000548992786994134, 0.0116567216928761,
                             -0.00562175791231776, 0.0468479126026349, -0.0276748405838295, 0.135579125376994,
                             -0.075108484786155, 0.303557392557081, -0.139425088639288, 0.494746834127881};
constexpr double set101[] = {0.000368132791542899, 0.000967915759393971, 0.000171001256853212, -0.00209709414433782,
                             -0.00134559393257076, 0.00376444811111315, 0.00369259510337955, -0.00616294219783637,
                             -0.00824555590147736, 0.00885290712394496, 0.0157666480717501, -0.0118857692786052,
                             -0.0283982005099745, 0.014655079795871, 0.0502662469080564, -0.0170833584807637,
                             -0.0976221957445371, 0.0185823751149414, 0.315351886691414, 0.480803804305858};
constexpr double set102[] = {0.002115989672005283, -0.007732946323003534, 0.0243458281985552, -0.09624514305502549,
                             1.155032543014937};

// Allocates v for its points, clears its complex flag and returns whether it was set.
template <class T> int start(Vec<T>* v, bool& was_complex) {
    if (!writable<T>(v) || v->points < 0 || alloc<T>(v) != 0) return -1;
    was_complex = v->complex != 0;
    v->complex = 0;
    return 0;
}
template <class T> int finish(Vec<T>* v, bool was_complex) { return was_complex ? rtoc<T>(v) : 0; }

}  // namespace

template <class T> int fir(Vec<T>* v, int kind, T f1, T f2) noexcept {
    bool was_complex = false;
    if (start<T>(v, was_complex) != 0) return -1;
    const int r = kind == DSP_FIR_GAUSS ? gauss<T>(v, f1) : design<T>(v->data, v->points, kind, f1, f2);
    if (r != 0) return -1;
    return finish<T>(v, was_complex);
}

template <class T> int fir2(Vec<T>* v, int which) noexcept {
    const double* set = which == 100 ? set100 : which == 101 ? set101 : which == 102 ? set102 : nullptr;
    if (!set || !writable<T>(v)) return -1;
    v->points = which == 100 ? 12 : which == 101 ? 20 : 5;
    bool was_complex = false;
    if (start<T>(v, was_complex) != 0) return -1;
    for (int k = 0; k < v->points; ++k) v->data[k] = static_cast<T>(set[k]);
    return finish<T>(v, was_complex);
}

template int fir<double>(Vec<double>*, int, double, double) noexcept;
template int fir<float>(Vec<float>*, int, float, float) noexcept;
template int fir2<double>(Vec<double>*, int) noexcept;
template int fir2<float>(Vec<float>*, int) noexcept;

}  // namespace zf
