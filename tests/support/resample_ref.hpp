// Plain references of decimation and table-driven resampling, written from the
// formulas with one sum per output and no shortcuts.
#pragma once

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace zt {

// Random block sizes, 0 and 1 among them, that add up to n.
inline std::vector<int> blocks(int n, unsigned seed) {
    std::mt19937 gen(seed);
    std::vector<int> b{0, 1};
    for (int left = n - 1; left > 0;) {
        const int k = std::min(left, static_cast<int>(gen() % 40));
        b.push_back(k);
        left -= k;
    }
    return b;
}

// Table resampling of x (n samples of w scalars) with K carried samples hist
// and start position mu: output = sum_j s(i + j) T(Q (j - mu)), T read at the
// integer part of u (mode 0) or interpolated linearly (mode 1).
template <class T>
std::vector<double> ref_rsmp(const std::vector<T>& x, int w, const std::vector<T>& hist, T mu, const T* tab,
                             int k, int q, int mode, T ratio, int cap) {
    const long n = static_cast<long>(x.size()) / w;
    auto s = [&](long m, int c) { return static_cast<double>(m < 0 ? hist[(k + m) * w + c] : x[m * w + c]); };
    std::vector<double> y;
    long i = -k;
    for (int out = 0; out < cap; ++out) {
        while (mu > 0) { mu -= 1; ++i; }
        if (i > n - k) break;
        for (int c = 0; c < w; ++c) {
            double acc = 0;
            for (int j = 0; j < k; ++j) {
                const T u = static_cast<T>(q) * (static_cast<T>(j) - mu);  // in the twin's precision
                const long a = static_cast<long>(std::floor(u));
                const double t = mode == 0 ? tab[1 + a] : tab[1 + a] + (u - a) * (tab[2 + a] - tab[1 + a]);
                acc += s(i + j, c) * t;
            }
            y.push_back(acc);
        }
        mu += ratio;
    }
    return y;
}

}  // namespace zt

namespace zt {

// Signal-to-noise ratio in dB of y (n samples of w scalars, from index skip
// on) against the complex exponential (w = 2) or sine (w = 1) of frequency f
// cycles per sample whose amplitude and phase fit y best; amp receives the
// fitted amplitude.
template <class T> double snr_db(const std::vector<T>& y, int w, double f, int skip, double& amp) {
    const long n = static_cast<long>(y.size()) / w;
    double cc = 0, cs = 0, ss = 0, bc = 0, bs = 0;
    auto basis = [&](long m, double& c, double& s) { c = std::cos(2 * M_PI * f * m), s = std::sin(2 * M_PI * f * m); };
    for (long m = skip; m < n; ++m) {
        double c, s;
        basis(m, c, s);
        cc += c * c, cs += c * s, ss += s * s;
        bc += c * y[m * w] + (w == 2 ? s * y[m * w + 1] : 0);
        bs += s * y[m * w] - (w == 2 ? c * y[m * w + 1] : 0);
    }
    if (w == 2) cc = ss = cc + ss, cs = 0;
    const double det = cc * ss - cs * cs, a = (bc * ss - bs * cs) / det, b = (cc * bs - cs * bc) / det;
    amp = std::hypot(a, b);
    double noise = 0, power = 0;
    for (long m = skip; m < n; ++m) {
        double c, s;
        basis(m, c, s);
        const double re = a * c + b * s, im = a * s - b * c;
        noise += std::pow(y[m * w] - re, 2) + (w == 2 ? std::pow(y[m * w + 1] - im, 2) : 0);
        power += re * re + (w == 2 ? im * im : 0);
    }
    return 10 * std::log10(power / noise);
}

}  // namespace zt
