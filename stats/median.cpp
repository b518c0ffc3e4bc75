// Median: the middle of the sorted samples, in the order of the library's
// sort (complex samples by squared magnitude, then real, then imaginary part).
#include "elementwise/rearrange.hpp"
#include "stats/descriptive.hpp"
#include "stats/reduce.hpp"

namespace zf {

// The samples are sorted in a temporary copy; an odd count takes the middle
// sample, an even count the mean of the two middle ones, part by part.
template <class T> int median(const Vec<T>* in, Vec<T>* out) noexcept {
    using A = typename Traits<T>::Acc;
    if (!stats::usable<T>(in, out)) return -1;
    const int n = in->points, complex = in->complex;
    if (n <= 0) return stats::put<T>(out, complex, A(0), A(0));
    Temp<T> sorted;
    if (copy<T>(sorted.get(), in) != 0 || sort<T>(sorted.get()) != 0) return -1;
    const int w = width<T>(*in);
    const T* mid = sorted->data + static_cast<std::size_t>(n / 2) * w;
    if (n % 2) return stats::put<T>(out, complex, A(mid[0]), complex ? A(mid[1]) : A(0));
    const T* before = mid - w;
    const A re = A(0.5) * (A(before[0]) + A(mid[0]));
    const A im = complex ? A(0.5) * (A(before[1]) + A(mid[1])) : A(0);
    return stats::put<T>(out, complex, re, im);
}

template int median<double>(const Vec<double>*, Vec<double>*) noexcept;

template int median<float>(const Vec<float>*, Vec<float>*) noexcept;

}  // namespace zf
