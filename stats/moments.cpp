// Sums, power, variance, skewness and excess kurtosis.
#include <cmath>

#include "stats/descriptive.hpp"
#include "stats/reduce.hpp"

namespace zf {
namespace {

using stats::blockwise;
using stats::clamp;
using stats::put;
using stats::Sums;
using stats::usable;

template <class T> using Acc = typename Traits<T>::Acc;

// Sums of the real parts and of the imaginary parts, block by block, unclamped.
template <class T> Sums<Acc<T>, 2> part_sums(const Vec<T>& v) noexcept {
    using A = Acc<T>;
    const T* x = v.data;
    if (v.complex)
        return blockwise<Sums<A, 2>>(v.points, [x](std::ptrdiff_t i) { return Sums<A, 2>{{A(x[2 * i]), A(x[2 * i + 1])}}; });
    return Sums<A, 2>{{blockwise<A>(v.points, [x](std::ptrdiff_t i) { return A(x[i]); }), A(0)}};
}

// Σ x² (real) or Σ re² + im² (complex); a sample with a part beyond the guard adds the guard.
template <class T> Acc<T> power_sum(const Vec<T>& v) noexcept {
    using A = Acc<T>;
    const A g = Traits<T>::huge;
    const T* x = v.data;
    if (v.complex)
        return blockwise<A>(v.points, [x, g](std::ptrdiff_t i) { return stats::guarded_square(A(x[2 * i]), A(x[2 * i + 1]), g); });
    return blockwise<A>(v.points, [x, g](std::ptrdiff_t i) { return stats::guarded_square(A(x[i]), g); });
}

// The shift of the one-pass moments: the mean of the middle, first and last
// values of one part (scalars x[0], x[w], ... of n samples).
template <class T> Acc<T> three_sample_shift(const T* x, int n, int w) noexcept {
    using A = Acc<T>;
    const std::size_t last = static_cast<std::size_t>(n - 1) * w, mid = static_cast<std::size_t>(n / 2) * w;
    return (A(x[mid]) + A(x[0]) + A(x[last])) / A(3);
}

// Population variance by the shifted one-pass method, real and imaginary
// parts pooled; 0 for an empty vector.
template <class T> Acc<T> variance(const Vec<T>& v) noexcept {
    using A = Acc<T>;
    const int n = v.points;
    if (n <= 0) return A(0);
    const A g = Traits<T>::huge;
    const T* x = v.data;
    if (!v.complex) {
        const A k = three_sample_shift(x, n, 1);
        const auto s = blockwise<Sums<A, 2>>(n, [=](std::ptrdiff_t i) {
            const A d = clamp(A(x[i]) - k, g);
            return Sums<A, 2>{{d, d * d}};
        });
        const A m1 = s[0] / n;
        return s[1] / n - m1 * m1;
    }
    const A kr = three_sample_shift(x, n, 2), ki = three_sample_shift(x + 1, n, 2);
    const auto s = blockwise<Sums<A, 4>>(n, [=](std::ptrdiff_t i) {
        const A dr = clamp(A(x[2 * i]) - kr, g), di = clamp(A(x[2 * i + 1]) - ki, g);
        return Sums<A, 4>{{dr, dr * dr, di, di * di}};
    });
    const A m1 = s[0] / n, m1i = s[2] / n;
    return s[1] / n + s[3] / n - m1 * m1 - m1i * m1i;
}

// The sample form: n/(n - 1) times the population variance when n >= 2.
template <class T> Acc<T> sample_variance(const Vec<T>& v) noexcept {
    using A = Acc<T>;
    const A var = variance<T>(v);
    return v.points >= 2 ? var * (A(v.points) / A(v.points - 1)) : var;
}

// Square root of a spread; a rounding residue below zero counts as no spread.
template <class A> A root(A x) noexcept { return std::sqrt(x > A(0) ? x : A(0)); }

}  // namespace

template <class T> int sum(const Vec<T>* in, Vec<T>* out) noexcept {
    if (!usable<T>(in, out)) return -1;
    const auto s = part_sums<T>(*in);
    return put<T>(out, in->complex, s[0], s[1]);
}

template <class T> int mean(const Vec<T>* in, Vec<T>* out) noexcept {
    if (!usable<T>(in, out)) return -1;
    const int n = in->points;
    const auto s = part_sums<T>(*in);
    if (n <= 0) return put<T>(out, in->complex, s[0], s[1]);
    return put<T>(out, in->complex, s[0] / n, s[1] / n);
}

template <class T> int magsq_sum(const Vec<T>* in, Vec<T>* out) noexcept {
    if (!usable<T>(in, out)) return -1;
    return put<T>(out, 0, power_sum<T>(*in));
}

template <class T> int rms(const Vec<T>* in, Vec<T>* out) noexcept {
    if (!usable<T>(in, out)) return -1;
    const int n = in->points;
    return put<T>(out, 0, n > 0 ? std::sqrt(power_sum<T>(*in) / n) : Acc<T>(0));
}

template <class T> int pop_var(const Vec<T>* in, Vec<T>* out) noexcept {
    if (!usable<T>(in, out)) return -1;
    return put<T>(out, 0, variance<T>(*in));
}

template <class T> int samp_var(const Vec<T>* in, Vec<T>* out) noexcept {
    if (!usable<T>(in, out)) return -1;
    return put<T>(out, 0, sample_variance<T>(*in));
}

template <class T> int pop_stddev(const Vec<T>* in, Vec<T>* out) noexcept {
    if (!usable<T>(in, out)) return -1;
    return put<T>(out, 0, root(variance<T>(*in)));
}

template <class T> int samp_stddev(const Vec<T>* in, Vec<T>* out) noexcept {
    if (!usable<T>(in, out)) return -1;
    return put<T>(out, 0, root(sample_variance<T>(*in)));
}

// Skewness m3 / m2^1.5 from the shifted one-pass sums; a vector without
// spread gives 0 when the third moment vanishes too, else the guard.
template <class T> int skew(const Vec<T>* in, Vec<T>* out) noexcept {
    using A = Acc<T>;
    if (!usable<T>(in, out) || in->complex) return -1;
    const int n = in->points;
    if (n <= 0) return put<T>(out, 0, A(0));
    const A g = Traits<T>::huge;
    const T* x = in->data;
    const A k = three_sample_shift(x, n, 1);
    const auto s = blockwise<Sums<A, 3>>(n, [=](std::ptrdiff_t i) {
        const A d = clamp(A(x[i]) - k, g);
        return Sums<A, 3>{{d, d * d, d * d * d}};
    });
    const A m1 = s[0] / n;
    const A m2 = s[1] / n - m1 * m1;
    const A m3 = s[2] / n - 3 * m1 * (s[1] / n) + 2 * m1 * m1 * m1;
    const A spread = root(m2) * m2;
    if (spread == A(0)) return put<T>(out, 0, m3 == A(0) ? A(0) : g);
    return put<T>(out, 0, m3 / spread);
}

// Excess kurtosis m4 / m2² - 3 about the exact (clamped) mean; a vector
// without spread gives -3 when the fourth moment vanishes too, else the guard.
template <class T> int excess(const Vec<T>* in, Vec<T>* out) noexcept {
    using A = Acc<T>;
    if (!usable<T>(in, out) || in->complex) return -1;
    const int n = in->points;
    if (n <= 0) return put<T>(out, 0, A(-3));
    const A g = Traits<T>::huge;
    const T* x = in->data;
    const A mu = blockwise<A>(n, [=](std::ptrdiff_t i) { return clamp(A(x[i]), g); }) / n;
    const auto s = blockwise<Sums<A, 2>>(n, [=](std::ptrdiff_t i) {
        const A d = clamp(A(x[i]) - mu, g);
        const A d2 = d * d;
        return Sums<A, 2>{{d2, d2 * d2}};
    });
    const A m2 = s[0] / n;
    const A v = m2 * m2, m4 = s[1] / n;
    if (v == A(0)) return put<T>(out, 0, m4 == A(0) ? A(-3) : g);
    return put<T>(out, 0, m4 / v - 3);
}

template int sum<double>(const Vec<double>*, Vec<double>*) noexcept;
template int mean<double>(const Vec<double>*, Vec<double>*) noexcept;
template int magsq_sum<double>(const Vec<double>*, Vec<double>*) noexcept;
template int rms<double>(const Vec<double>*, Vec<double>*) noexcept;
template int pop_var<double>(const Vec<double>*, Vec<double>*) noexcept;
template int samp_var<double>(const Vec<double>*, Vec<double>*) noexcept;
template int pop_stddev<double>(const Vec<double>*, Vec<double>*) noexcept;
template int samp_stddev<double>(const Vec<double>*, Vec<double>*) noexcept;
template int skew<double>(const Vec<double>*, Vec<double>*) noexcept;
template int excess<double>(const Vec<double>*, Vec<double>*) noexcept;

template int sum<float>(const Vec<float>*, Vec<float>*) noexcept;
template int mean<float>(const Vec<float>*, Vec<float>*) noexcept;
template int magsq_sum<float>(const Vec<float>*, Vec<float>*) noexcept;
template int rms<float>(const Vec<float>*, Vec<float>*) noexcept;
template int pop_var<float>(const Vec<float>*, Vec<float>*) noexcept;
template int samp_var<float>(const Vec<float>*, Vec<float>*) noexcept;
template int pop_stddev<float>(const Vec<float>*, Vec<float>*) noexcept;
template int samp_stddev<float>(const Vec<float>*, Vec<float>*) noexcept;
template int skew<float>(const Vec<float>*, Vec<float>*) noexcept;
template int excess<float>(const Vec<float>*, Vec<float>*) noexcept;

}  // namespace zf
