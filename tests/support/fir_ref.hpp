// Plain references for FIR filtering, in long double on complex samples: the
// direct convolution with past samples before the block, the frequency
// response of a tap vector, and the hardware filter as a difference equation.
#pragma once

#include <complex>
#include <vector>

namespace ref {

using cl = std::complex<long double>;
constexpr long double pi_fir = 3.141592653589793238462643383279502884L;

// y[n] = sum h[k] x[n-k], x[m < 0] = past[past.size() + m] (zeros before it).
inline std::vector<cl> convolve(const std::vector<cl>& x, const std::vector<cl>& h, const std::vector<cl>& past) {
    std::vector<cl> y(x.size());
    const long p = static_cast<long>(past.size());
    for (long n = 0; n < static_cast<long>(x.size()); ++n)
        for (long k = 0; k < static_cast<long>(h.size()); ++k) {
            const long m = n - k;
            if (m >= 0) y[n] += h[k] * x[m];
            else if (p + m >= 0) y[n] += h[k] * past[p + m];
        }
    return y;
}

// H(f) = sum h[k] e^(-j 2 pi f k).
template <class T> cl response(const std::vector<T>& h, long double f) {
    cl s = 0;
    for (std::size_t k = 0; k < h.size(); ++k) s += static_cast<long double>(h[k]) * std::polar(1.0L, -2 * pi_fir * f * k);
    return s;
}

// Four sections y[n] = (x[n] + 2x[n-1] + 2x[n-2] + x[n-3])/4 - y[n-2]/2, from rest.
inline std::vector<cl> hardware(std::vector<cl> x) {
    auto at = [](const std::vector<cl>& v, long i) { return i >= 0 ? v[i] : cl(0); };
    for (int s = 0; s < 4; ++s) {
        std::vector<cl> y(x.size());
        for (long n = 0; n < static_cast<long>(x.size()); ++n)
            y[n] = (at(x, n) + 2.0L * at(x, n - 1) + 2.0L * at(x, n - 2) + at(x, n - 3)) / 4.0L - at(y, n - 2) / 2.0L;
        x.swap(y);
    }
    return x;
}

}  // namespace ref
