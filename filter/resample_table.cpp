// Kernel tables of the table-driven resampler: one period of a symmetric
// kernel w(theta), theta from -pi to pi, built from a cosine series, behind a
// header element holding the kernel length K in input samples.
#include "filter/resample.hpp"

#include "core/libm.hpp"
#include "elementwise/convert.hpp"

#include <cstring>

namespace zf {
namespace {

// The stored series: K first, then a_0, a_1, ...; a_0 is close to 1/K, so the
// kernel's gain at zero frequency is about 1.
constexpr double kSeries0[] = {8.0, 0.03983447921, 0.129570053212, 0.156299536071, 0.084178353573,
                               0.018708674012, 0.001094282508};
constexpr double kSeries1[] = {13.0, 0.05334388816061538, 0.09948840661353847, -0.5523586150938461,
                               -0.96833591689, 0.2909142788258462, 1.1917464242612308, 0.6030843760147693,
                               0.07212686520523076};
constexpr double kSeries2[] = {8.0, 0.125, 0.194117084888939, 0.08883480823357748, 0.022122753640933936,
                               0.002478902484869871, 7.38484334237839e-05, 3.371125058247346e-09,
                               3.74911427827312e-09, -1.594651940934445e-08, 1.0611265319746411e-08,
                               3.180517033162374e-09};
constexpr double kSeries3[] = {10.0, 0.09991966, 0.200142671498, 0.1999988799964, 0.19426551865140002,
                               0.141105717886, 0.054357881018, 0.0078228941126, 0.000164891239632};
constexpr double kSeries4[] = {
    13.0, 0.07692307692307693, 0.3636161165001, 1.194489746221777, 1.8352454548154924, 1.2924626750082309,
    0.41479959754854384, 0.05103747392790277, 0.0012502776544880308, 2.497434259574139e-07,
    9.75489931959823e-07, -1.2434185763521924e-06, 6.673599263884277e-07, -1.6808751344240308e-07, -0.0,
    -2.7678818205989692e-08, 2.860853976077846e-08, 1.031973871690523e-06, -1.1140819941422848e-06,
    3.1005813708163463e-07, -6.28208788582543e-08, -6.033860749333631e-08, 3.384014045762908e-07,
    -1.0192138280526692e-06, 3.994612820391208e-07, 6.797387253493977e-07, -2.800306660491323e-07, -0.0,
    2.937035867740869e-07, -7.924844322778462e-07, -1.2840060784070462e-07, 9.309088489915308e-07,
    -3.2972762414723e-07, 7.090212186165907e-08, 3.566672978869454e-08, -3.217759142263339e-07,
    3.115681380815085e-07, 8.603243168804616e-07, -8.114130859620616e-07, 2.805783428091915e-08};

struct Series {
    const double* values;
    int count;
    bool power;  // a series in powers of cos(theta) rather than in cos(k theta)
};
constexpr Series kSeries[] = {
    {kSeries0, 7, true}, {kSeries1, 9, true}, {kSeries2, 12, false}, {kSeries3, 9, false}, {kSeries4, 40, false},
};

// Shared frame of both builders; value(a, n, theta) evaluates the series
// a_0 .. a_{n-1} at theta.
template <class T, class Value> int build(Vec<T>* kernel, const Vec<T>* series, Value value) noexcept {
    if (!writable<T>(kernel) || !readable<T>(series)) return -1;
    if (same_storage<T>(*kernel, *series)) return -1;
    if (alloc<T>(kernel) != 0) return -1;
    const int p = kernel->points;
    if (p < 2 || series->points < 2) {
        if (p > 0) std::memset(kernel->data, 0, static_cast<std::size_t>(need<T>(*kernel)) * sizeof(T));
        if (p >= 1 && series->points >= 1) kernel->data[0] = series->data[0];
        return 0;
    }
    if (p % 2 != 0 || series->complex) return -1;
    const bool complex = kernel->complex != 0;
    kernel->complex = 0;
    T* d = kernel->data;
    const int m = p - 2;
    const T step = m > 0 ? Traits<T>::two_pi / static_cast<T>(m) : T(0);
    d[0] = series->data[0];
    const T* a = series->data + 1;
    const int n = series->points - 1;
    for (int j = 0; j <= m / 2; ++j) {
        const T v = value(a, n, static_cast<T>(j) * step);
        d[m / 2 + 1 - j] = v;
        d[m / 2 + 1 + j] = v;
    }
    return complex ? rtoc<T>(kernel) : 0;
}

}  // namespace

template <class T> int rsmp_cos(Vec<T>* kernel, const Vec<T>* series) noexcept {
    return build<T>(kernel, series, [](const T* a, int n, T theta) {
        T sum = a[0], angle = T(0);
        for (int k = 1; k < n; ++k) {
            angle += theta;
            sum += a[k] * libm::cos(angle);
        }
        return sum;
    });
}

template <class T> int rsmp_pcos(Vec<T>* kernel, const Vec<T>* series) noexcept {
    return build<T>(kernel, series, [](const T* a, int n, T theta) {
        const T c = libm::cos(theta);
        T sum = a[n - 1];
        for (int k = n - 2; k >= 0; --k) sum = sum * c + a[k];
        return sum;
    });
}

template <class T> int rsmp_table(Vec<T>* kernel, int which) noexcept {
    if (which < 0 || which > 4 || !writable<T>(kernel)) return -1;
    if (alloc<T>(kernel) != 0) return -1;
    const Series& s = kSeries[which];
    Temp<T> series;
    series->points = s.count;
    if (alloc<T>(series.get()) != 0) return -1;
    for (int k = 0; k < s.count; ++k) series->data[k] = static_cast<T>(s.values[k]);
    return s.power ? rsmp_pcos<T>(kernel, series.get()) : rsmp_cos<T>(kernel, series.get());
}

template int rsmp_cos<double>(Vec<double>*, const Vec<double>*) noexcept;
template int rsmp_pcos<double>(Vec<double>*, const Vec<double>*) noexcept;
template int rsmp_table<double>(Vec<double>*, int) noexcept;
template int rsmp_cos<float>(Vec<float>*, const Vec<float>*) noexcept;
template int rsmp_pcos<float>(Vec<float>*, const Vec<float>*) noexcept;
template int rsmp_table<float>(Vec<float>*, int) noexcept;

}  // namespace zf
