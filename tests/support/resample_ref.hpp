// Plain references of decimation and table-driven resampling, written from the
// formulas with one sum per output and no shortcuts.
#pragma once

#include <algorithm>

#include "support/vectors.hpp"

namespace zt {

// Feeds x (w scalars a sample) in blocks of random sizes, 0 and 1 first, to
// call(block, out, fed so far) and joins the outputs.
template <class T, class Call> std::vector<T> stream(const std::vector<T>& x, int w, unsigned seed, Call call) {
    std::mt19937 gen(seed);
    std::vector<T> got;
    for (std::size_t at = 0, b = 0; at < x.size(); at += b, b = std::min<std::size_t>(x.size() - at, w * (at ? gen() % 40 : 1))) {
        Owned<T> blk(std::vector<T>(x.begin() + at, x.begin() + at + b), w == 2), out;
        call(blk.get(), out.get(), static_cast<int>((at + b) / w));
        for (T s : out.scalars()) got.push_back(s);
    }
    return got;
}

// Table resampling of x (w scalars a sample, zeros before it) from position
// 0: output = sum_j s(i + j) T(Q (j - mu)), T read at the integer part of u
// (mode 0) or interpolated linearly (mode 1); the input ends the run.
template <class T>
std::vector<double> ref_rsmp(const std::vector<T>& x, int w, const T* tab, int k, int q, int mode, T ratio) {
    const long n = static_cast<long>(x.size()) / w;
    std::vector<double> y;
    T mu = 0;
    for (long i = -k;; mu += ratio) {
        while (mu > 0) mu -= 1, ++i;
        if (i > n - k) return y;
        for (int c = 0; c < w; ++c) {
            double acc = 0;
            for (int j = 0; j < k; ++j) {
                const T u = static_cast<T>(q) * (static_cast<T>(j) - mu);  // in the twin's precision
                const long a = std::min<long>(static_cast<long>(u), q * k - mode);  // u may round up to M
                const double t = mode == 0 ? tab[1 + a] : tab[1 + a] + (u - a) * (tab[2 + a] - tab[1 + a]);
                acc += (i + j < 0 ? 0.0 : static_cast<double>(x[(i + j) * w + c])) * t;
            }
            y.push_back(acc);
        }
    }
}

// Signal-to-noise ratio in dB of the samples y[w m] from m = skip on against
// the sine of f cycles per sample whose amplitude (into amp) and phase fit them best.
template <class T> double snr_db(const std::vector<T>& y, int w, double f, int skip, double& amp) {
    double g[5] = {}, noise = 0, power = 0;   // cc, cs, ss, yc, ys
    for (long m = skip; m < static_cast<long>(y.size()) / w; ++m) {
        const double c = std::cos(2 * M_PI * f * m), s = std::sin(2 * M_PI * f * m);
        g[0] += c * c, g[1] += c * s, g[2] += s * s, g[3] += c * y[w * m], g[4] += s * y[w * m];
    }
    const double det = g[0] * g[2] - g[1] * g[1], a = (g[3] * g[2] - g[4] * g[1]) / det, b = (g[0] * g[4] - g[1] * g[3]) / det;
    for (long m = skip; m < static_cast<long>(y.size()) / w; ++m) {
        const double v = a * std::cos(2 * M_PI * f * m) + b * std::sin(2 * M_PI * f * m);
        noise += (y[w * m] - v) * (y[w * m] - v), power += v * v;
    }
    amp = std::hypot(a, b);
    return 10 * std::log10(power / noise);
}

}  // namespace zt
