// Geometric and harmonic means.
#include <cmath>

#include "core/libm.hpp"
#include "stats/descriptive.hpp"
#include "stats/reduce.hpp"

namespace zf {
namespace {
using stats::blockwise;
using stats::put;
using stats::Sums;
using stats::usable;
}  // namespace

// The n-th root of the product of the samples (complex: the principal root,
// angle of the product divided by n). A product below the smallest normal
// number (zero, negative or underflowed) gives 0.
template <class T> int gmean(const Vec<T>* in, Vec<T>* out) noexcept {
    using A = typename Traits<T>::Acc;
    if (!usable<T>(in, out)) return -1;
    const int n = in->points;
    const T* x = in->data;
    const A tiny = Traits<T>::tiny;
    if (n <= 0) return put<T>(out, in->complex, A(0), A(0));
    if (!in->complex) {
        A p = 1;
        for (std::ptrdiff_t i = 0; i < n; ++i) p *= A(x[i]);
        return put<T>(out, 0, p >= tiny ? std::exp(std::log(p) / n) : A(0));
    }
    A pr = 1, pi = 0;
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        const A re = x[2 * i], im = x[2 * i + 1];
        const A r = pr * re - pi * im;
        pi = pr * im + pi * re;
        pr = r;
    }
    const A q = pr * pr + pi * pi;
    if (!(q >= tiny)) return put<T>(out, in->complex, A(0), A(0));
    const A mag = std::exp(std::log(q) / (2 * A(n)));
    const A phi = std::atan2(pi, pr) / n;
    A s, c;
    libm::sincos(phi, &s, &c);
    return put<T>(out, in->complex, mag * c, mag * s);
}

// n divided by the sum of the reciprocals. Real: a zero sample makes the
// result 0 at once; reciprocals that cancel give the guard. Complex: parts
// are clamped to the guard, and a zero sample or a vanishing sum is given the
// guard as its reciprocal factor.
template <class T> int hmean(const Vec<T>* in, Vec<T>* out) noexcept {
    using A = typename Traits<T>::Acc;
    if (!usable<T>(in, out)) return -1;
    const int n = in->points;
    const T* x = in->data;
    const A g = Traits<T>::huge;
    if (n <= 0) return put<T>(out, in->complex, A(0), A(0));
    if (!in->complex) {
        A s = 0;
        for (int start = 0; start < n; start += stats::kBlock) {
            const int stop = n - start < stats::kBlock ? n : start + stats::kBlock;
            A part = 0;
            for (std::ptrdiff_t i = start; i < stop; ++i) {
                if (x[i] == T(0)) return put<T>(out, 0, A(0));
                part += A(1) / A(x[i]);
            }
            s += part;
        }
        return put<T>(out, 0, s == A(0) ? g : n / s);
    }
    const auto s = blockwise<Sums<A, 2>>(n, [=](std::ptrdiff_t i) {
        const A re = stats::clamp(A(x[2 * i]), g), im = stats::clamp(A(x[2 * i + 1]), g);
        const A m = re * re + im * im;
        const A r = m == A(0) ? g : A(1) / m;
        return Sums<A, 2>{{re * r, -im * r}};
    });
    const A q = s[0] * s[0] + s[1] * s[1];
    const A f = q == A(0) ? g : A(1) / q;
    return put<T>(out, in->complex, n * s[0] * f, -n * s[1] * f);
}

template int gmean<double>(const Vec<double>*, Vec<double>*) noexcept;
template int hmean<double>(const Vec<double>*, Vec<double>*) noexcept;

template int gmean<float>(const Vec<float>*, Vec<float>*) noexcept;
template int hmean<float>(const Vec<float>*, Vec<float>*) noexcept;

}  // namespace zf
