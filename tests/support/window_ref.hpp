// Plain references for the windows: textbook formulas in long double, indexed
// from the window's start, and the test-side overloads of the window entry points.
#pragma once

#include "support/vectors.hpp"   // <cmath>, <vector>

namespace api {
ZT_TWIN(window, dspi_window, dspfi_window)
ZT_TWIN(window2, dspi_window2, dspfi_window2)
ZT_TWIN(window_fir, dspi_window_fir, dspfi_window_fir)
ZT_TWIN(window_cos, dspi_window_cos, dspfi_window_cos)
ZT_TWIN(window_scale, dsp_window_scale, dspf_window_scale)
ZT_TWIN(window2_scale, dsp_window2_scale, dspf_window2_scale)
ZT_TWIN(window_enbw, dsp_window_enbw, dspf_window_enbw)
ZT_TWIN(window2_enbw, dsp_window2_enbw, dspf_window2_enbw)
ZT_TWIN(kaiser, dspi_window_kaiser, dspfi_window_kaiser)
ZT_TWIN(gauss, dspi_window_gauss, dspfi_window_gauss)
ZT_TWIN(sinc, dspi_window_sinc, dspfi_window_sinc)
ZT_TWIN(tukey, dspi_window_tukey, dspfi_window_tukey)
// The parametrised windows by the reference's shape letter.
template <class T> int window_shape(zf::Vec<T>* v, char s, T a, T b, int f) {
    return s == 'k' ? kaiser(v, a, f) : s == 'g' ? gauss(v, a, f) : s == 's' ? sinc(v, a, b, f) : tukey(v, a, f);
}
}  // namespace api

namespace ref {
using LD = long double;

inline LD i0(LD x) {   // power series of I0
    LD t = 1, s = 1;
    for (int k = 1; t > s * 1e-22L; ++k) s += t *= (x / 2) * (x / 2) / (LD(k) * k);
    return s;
}

// A shape: 'u' uniform, 't' triangle, 'c' cosine sum (classical peak-1 row a),
// 'k' Kaiser (beta), 'g' Gaussian (sigma), 's' sinc (span, power), 'y' Tukey (taper).
struct Shape {   // mean_a0: mean of the mean-normalised window (below 1 for the flat tops)
    char type; LD p1 = 0, p2 = 0; std::vector<LD> a = {}; LD mean_a0 = 1;
};

inline std::vector<Shape> catalogue() {
    const LD pi = 3.141592653589793238L;
    return {{'u', 0, 0, {1}}, {'t'}, {'c', 0, 0, {0.5, 0.5}}, {'c', 0, 0, {0.54, 0.46}}, {'c', 0, 0, {0.42, 0.5, 0.08}},
            {'c', 0, 0, {0.424383190860823L, 0.497339753968089L, 0.078277055171088L}},
            {'c', 0, 0, {0.355768, 0.487396, 0.144232, 0.012604}},
            {'c', 0, 0, {0.3232153788984078L, 0.47149214396487166L, 0.1755341299514293L, 0.028496990099716707L, 0.0012613570855745683L}},
            {'c', 0, 0, {0.239523981482822L, 0.458092235226179L, 0.258487878813733L, 0.0438959044772663L}, 0.9994484L},
            {'c', 0, 0, {0.213283237831627L, 0.414006058783449L, 0.279055911943774L, 0.0861666667911267L, 0.00748812465002295L}, 0.9996403L},
            {'c', 0, 0, {0.191847568346755L, 0.375972989750395L, 0.28442588877861L, 0.122742011293553L, 0.0237265428747444L, 0.00128499895594193L}, 0.999760855L},
            {'c', 0, 0, {0.177865709213752L, 0.350267506494545L, 0.281638382006947L, 0.144775183509154L, 0.0403343233670632L, 0.00495730999606168L, 0.000161585412477099L}, 0.999820406L},
            {'c', 0, 0, {0.194193773561842L, 0.380170365312055L, 0.284064801584131L, 0.118766633064811L, 0.0217289855238924L, 0.00107544095326841L}, 0.99974762L},
            {'c', 0, 0, {0.179324203849725L, 0.352952756714861L, 0.281965299769994L, 0.142511435204976L, 0.0385717630030842L, 0.0045365638065367L, 0.00013797765082358L}, 0.999813874L},
            {'k', 9.473960131326246L}, {'k', 10.751776690564654L}, {'k', 12.014077292090791L}, {'k', 13.264372446115681L},
            {'k', 14.505082414495599L}, {'k', 15.73795091271457L}, {'g', 0.1583722L}, {'g', 0.1442161L}, {'g', 0.1328102L},
            {'s', pi, 1}, {'y', 0.25L}};
}

// The window of N samples (peak at N/2, not rotated), normalised as flags
// say; width > 0 with flag 8.
inline std::vector<LD> window(const Shape& s, int N, int flags, LD width = 0) {
    const LD pi = 3.141592653589793238L;
    const bool sym = flags & 4, wide = flags & 8;
    const LD L = sym ? N - 1 : N, c = N / 2;
    std::vector<LD> w(N);
    for (int n = 0; n < N; ++n) {
        const LD d = sym && N % 2 == 0 ? std::fabs(n - c + 0.5L) : std::fabs(n - c);
        LD& x = w[n];
        if (N == 1 && s.type != 'c' && s.type != 'u') x = 1;
        else if (s.type == 'u') x = !wide || n < std::ceil(width) || n == 0;
        else if (s.type == 't') x = 1 - 2 * d / N;
        else if (s.type == 'c') {
            const int hw = int(std::floor(width)) / 2, h = std::min(hw, (N - 1) / 2);
            const bool even_edge = width == std::floor(width) && hw * 2 == int(width) && h == hw && n == c + h;
            const LD period = wide ? width : N;
            for (std::size_t k = 0; k < s.a.size() && !(wide && (d > h || even_edge)); ++k)
                x += (k % 2 ? -1 : 1) * s.a[k] * std::cos(2 * pi * k * (n - c + period / 2) / period);
        } else if (s.type == 'k') x = i0(s.p1 * std::sqrt(std::max(LD(0), 1 - 4 * d * d / (L * L)))) / i0(s.p1);
        else if (s.type == 'g') x = s.p1 == 0 ? d < 1 : std::exp(-d * d / (2 * L * L * s.p1 * s.p1));
        else if (s.type == 's') x = d == 0 ? 1 : std::pow(std::sin(2 * s.p1 * d / L) / (2 * s.p1 * d / L), s.p2);
        else x = d <= (1 - s.p1) * L / 2 ? 1 : (1 + std::cos(pi * (d - (1 - s.p1) * L / 2) / (s.p1 * L / 2))) / 2;
    }
    LD sum = 0, sq = 0, nn = LD(N) * N;
    for (LD x : w) sum += x, sq += x * x;
    const int norm = flags & 3;
    const LD f = s.type == 't' ? (norm == 0 ? (N % 2 ? 2 * nn / (1 + nn) : 2) : norm == 1 ? std::sqrt(3 * nn / (2 + nn)) : 1)
               : norm == 0 && sum != 0 ? s.mean_a0 * N / sum : norm == 1 && sq != 0 ? std::sqrt(N / sq) : 1;
    for (LD& x : w) x *= f;
    return w;
}

}  // namespace ref
