// The hardware-filter model: four identical shift-and-add sections
// (0.25 + 0.5 z^-1 + 0.5 z^-2 + 0.25 z^-3) / (1 + 0.5 z^-2), all coefficients
// powers of two. The history holds the twelve delay cells, section 1 first,
// each section newest first; complex samples run their real and imaginary
// parts through separate cells.
#include "filter/fir.hpp"

namespace zf {
namespace {

constexpr int sections = 4;
constexpr int cells = 3 * sections;

// One part (real or imaginary, stride w) of n samples through the cascade;
// c holds that part's twelve cells at stride w. Each sample is read before
// its slot is written, so y may be x.
template <class T> void cascade(const T* x, T* y, int n, int w, T* c) {
    T s[cells];
    for (int k = 0; k < cells; ++k) s[k] = c[w * k];
    for (int i = 0; i < n; ++i) {
        T u = x[w * i];
        for (int q = 0; q < sections; ++q) {
            T* d = s + 3 * q;
            const T v = u - T(0.5) * d[1];
            u = T(0.25) * v + T(0.5) * d[0] + T(0.5) * d[1] + T(0.25) * d[2];
            d[2] = d[1];
            d[1] = d[0];
            d[0] = v;
        }
        y[w * i] = u;
    }
    for (int k = 0; k < cells; ++k) c[w * k] = s[k];
}

}  // namespace

template <class T> int hwfilt(const Vec<T>* in, Vec<T>* out, int kind, Vec<T>* hist) noexcept {
    if (kind != 0 || !readable<T>(in) || !writable<T>(out)) return -1;
    if (hist && !readable<T>(hist)) return -1;
    Vec<T>* h = hist ? hist : hw_default_history<T>();
    if (same_storage<T>(*in, *h) || same_storage<T>(*out, *h)) return -1;
    const T* x = in->data;
    const int n = in->points;
    if (prepare_history<T>(h, *in, cells) != 0) return -1;
    if (out != in && prepare_output<T>(*in, out, false) != 0) return -1;
    const int w = width<T>(*in);
    for (int c = 0; c < w; ++c) cascade<T>(x + c, out->data + c, n, w, h->data + c);
    return 0;
}

template <class T> int hwfilt(Vec<T>* v, int kind) noexcept { return hwfilt<T>(v, v, kind, nullptr); }

template int hwfilt<double>(const Vec<double>*, Vec<double>*, int, Vec<double>*) noexcept;
template int hwfilt<float>(const Vec<float>*, Vec<float>*, int, Vec<float>*) noexcept;
template int hwfilt<double>(Vec<double>*, int) noexcept;
template int hwfilt<float>(Vec<float>*, int) noexcept;

}  // namespace zf
