// Least-squares straight line through samples against their abscissae, by
// centred sums (two passes, with the correction term of the second pass).
#include <cmath>

#include "stats/poly.hpp"
#include "stats/reduce.hpp"

namespace zf {
namespace {

// Slope, offset and correlation coefficient into out for the abscissae xat(i).
template <class T, class X> int line(const T* y, int n, X xat, Vec<T>* out) noexcept {
    using A = double;
    using S = stats::Sums<A, 2>;
    if (n < 2) return -1;
    const S mean = stats::blockwise<S>(n, [&](std::ptrdiff_t i) { return S{{A(xat(i)), A(y[i])}}; });
    const A mx = mean[0] / n, my = mean[1] / n;
    using S5 = stats::Sums<A, 5>;
    const S5 c = stats::blockwise<S5>(n, [&](std::ptrdiff_t i) {
        const A dx = A(xat(i)) - mx, dy = A(y[i]) - my;
        return S5{{dx, dy, dx * dx, dx * dy, dy * dy}};
    });
    const A sxx = c[2] - c[0] * c[0] / n, sxy = c[3] - c[0] * c[1] / n, syy = c[4] - c[1] * c[1] / n;
    if (!(sxx > 0)) return -1;   // every abscissa the same
    const A slope = sxy / sxx;
    A r = syy > 0 ? sxy / std::sqrt(sxx * syy) : A(0);
    r = r > 1 ? A(1) : (r < -1 ? A(-1) : r);
    out->points = 3;
    out->complex = 0;
    if (alloc<T>(out) != 0) return -1;
    out->data[0] = static_cast<T>(slope);
    out->data[1] = static_cast<T>(my - slope * mx);
    out->data[2] = static_cast<T>(r);
    return 0;
}

}  // namespace

template <class T> int lin_regres(const Vec<T>* y, Vec<T>* out) noexcept {
    if (!stats::usable<T>(y, out) || y->complex) return -1;
    const double delta = y->delta;
    return line<T>(y->data, y->points, [delta](std::ptrdiff_t i) { return double(i) * delta; }, out);
}

template <class T> int lin_regres2(const Vec<T>* x, const Vec<T>* y, Vec<T>* out) noexcept {
    if (!readable<T>(x) || !stats::usable<T>(y, out) || x->complex || y->complex || x->points != y->points) return -1;
    const T* xs = x->data;
    return line<T>(y->data, y->points, [xs](std::ptrdiff_t i) { return xs[i]; }, out);
}

template int lin_regres<double>(const Vec<double>*, Vec<double>*) noexcept;
template int lin_regres2<double>(const Vec<double>*, const Vec<double>*, Vec<double>*) noexcept;
template int lin_regres<float>(const Vec<float>*, Vec<float>*) noexcept;
template int lin_regres2<float>(const Vec<float>*, const Vec<float>*, Vec<float>*) noexcept;

}  // namespace zf
