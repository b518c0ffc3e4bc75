// Histogram of a real vector in equal bins between two limits.
#include <cmath>
#include <cstdlib>

#include "stats/poly.hpp"
#include "stats/reduce.hpp"

namespace zf {

template <class T> int hist(const Vec<T>* in, Vec<T>* out, T lo, T hi, int bins) noexcept {
    if (!stats::usable<T>(in, out) || in->complex || bins < 1) return -1;
    if (!(lo < hi) || !std::isfinite(lo) || !std::isfinite(hi)) return -1;
    double* count = static_cast<double*>(std::calloc(static_cast<std::size_t>(bins), sizeof(double)));
    if (!count) return -1;
    const double a = lo, span = double(hi) - double(lo);
    for (int i = 0; i < in->points; ++i) {
        const double x = in->data[i];
        if (!(x >= a && x <= double(hi))) continue;   // outside, or not a number
        const double f = std::floor((x - a) / span * bins);
        count[f >= bins ? bins - 1 : static_cast<int>(f)] += 1;
    }
    out->points = bins;
    out->complex = 0;
    const int rc = alloc<T>(out);
    if (rc == 0) {
        for (int k = 0; k < bins; ++k) out->data[k] = static_cast<T>(count[k]);
        out->delta = static_cast<T>(span / bins);
    }
    std::free(count);
    return rc;
}

template int hist<double>(const Vec<double>*, Vec<double>*, double, double, int) noexcept;
template int hist<float>(const Vec<float>*, Vec<float>*, float, float, int) noexcept;

}  // namespace zf
