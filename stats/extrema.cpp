// Smallest and largest sample. Real samples compare by value, complex samples
// by squared magnitude; ties keep the first sample met.
#include "stats/descriptive.hpp"
#include "stats/reduce.hpp"

namespace zf {
namespace {

using stats::put;
using stats::usable;

// One pass keeping the sample whose rank beats the best so far strictly
// (`better(rank, best)`), starting from rank `best` with the result
// (start_re, start_im). Real samples rank by value, complex ones by re² + im²
// with the guard for a part beyond it.
template <class T, class Better>
int extremum(const Vec<T>* in, Vec<T>* out, T best, T start_re, T start_im, Better better) noexcept {
    if (!usable<T>(in, out)) return -1;
    const int n = in->points;
    const T* x = in->data;
    if (n <= 0) return put<T>(out, in->complex, T(0), T(0));
    if (!in->complex) {
        T r = best;
        for (std::ptrdiff_t i = 0; i < n; ++i)
            if (better(x[i], r)) r = x[i];
        return put<T>(out, 0, r);
    }
    using A = typename Traits<T>::Acc;
    const A g = Traits<T>::huge;
    A rank = best;
    T re = start_re, im = start_im;
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        const A m = stats::guarded_square(A(x[2 * i]), A(x[2 * i + 1]), g);
        if (better(m, rank)) {
            rank = m;
            re = x[2 * i];
            im = x[2 * i + 1];
        }
    }
    return put<T>(out, in->complex, re, im);
}

}  // namespace

// The running minimum starts at the guard, so the result is at most the
// guard; a complex vector with no sample ranked below it gives (G, G).
template <class T> int min(const Vec<T>* in, Vec<T>* out) noexcept {
    const T g = Traits<T>::huge;
    return extremum<T>(in, out, g, g, g, [](auto a, auto b) { return a < b; });
}

// The running maximum starts at minus the guard; a complex vector with no
// sample ranked above it gives (0, 0).
template <class T> int max(const Vec<T>* in, Vec<T>* out) noexcept {
    const T g = Traits<T>::huge;
    return extremum<T>(in, out, -g, T(0), T(0), [](auto a, auto b) { return a > b; });
}

template int min<double>(const Vec<double>*, Vec<double>*) noexcept;
template int max<double>(const Vec<double>*, Vec<double>*) noexcept;

template int min<float>(const Vec<float>*, Vec<float>*) noexcept;
template int max<float>(const Vec<float>*, Vec<float>*) noexcept;

}  // namespace zf
