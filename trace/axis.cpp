// Stimulus axes: linear and logarithmic spacing between two end values.
#include "trace/trace.hpp"

#include <cmath>

namespace zf {

template <class T> int expand_linear(T* data, int n, T first, T last) noexcept {
    if (n > 0 && !data) return 0;
    if (n > 0) data[0] = first;
    if (n < 2) return n;
    data[n - 1] = last;
    const double f = static_cast<double>(first);
    const double step = (static_cast<double>(last) - f) / (n - 1);
    for (int i = 1; i < n - 1; ++i) data[i] = static_cast<T>(i * step + f);
    return n - 1;
}

// Equal steps of the decimal logarithm; the end points are stored exactly.
template <class T> void expand_log(T* data, int n, T first, T last) noexcept {
    if (n <= 0 || !(first > 0) || !(last > 0) || !data) return;
    data[0] = first;
    if (n == 1) return;
    const double a = std::log10(static_cast<double>(first));
    const double step = (std::log10(static_cast<double>(last)) - a) / (n - 1);
    for (int i = 1; i < n - 1; ++i) data[i] = static_cast<T>(std::pow(10.0, i * step + a));
    data[n - 1] = last;
}

template int expand_linear<double>(double*, int, double, double) noexcept;
template int expand_linear<float>(float*, int, float, float) noexcept;
template void expand_log<double>(double*, int, double, double) noexcept;
template void expand_log<float>(float*, int, float, float) noexcept;

}  // namespace zf
