// Table-driven resampling: each output is the sum of K input samples weighted
// by the kernel table at the output's fractional position; the history carries
// the K samples where the next kernel window starts and that position.
#include "filter/resample.hpp"

#include "filter/fir.hpp"

#include <cstdint>
#include <cstring>

namespace zf {
namespace {

// Moves the position mu into (-1, 0] by whole input samples, as repeated
// subtraction of 1 would (each step but the last is exact). A position far
// beyond any block only needs to land beyond it.
template <class T> void normalise(T& mu, std::int64_t& i) noexcept {
    if (!(mu > T(0))) return;
    constexpr T far = T(1099511627776.0);  // 2^40
    if (mu >= far) {
        mu -= far;
        i += static_cast<std::int64_t>(far);
        return;
    }
    std::int64_t n = static_cast<std::int64_t>(mu);  // the ceiling, without a library call
    if (static_cast<T>(n) < mu) ++n;
    mu = (mu - static_cast<T>(n - 1)) - T(1);
    i += n;
}

// Table entry index a (of the first tap) and interpolation fraction f for the
// position mu: u_j = Q (j - mu) = Q j + a + f.
template <class T> void table_position(T mu, int q, int& a, T& f) noexcept {
    const T base = static_cast<T>(q) * -mu;
    a = static_cast<int>(base);
    f = base - static_cast<T>(a);
    if (a >= q) {  // -mu a rounding step below 1
        a = q - 1;
        f = T(1);
    }
}

// Interpolated taps c[j] = t0[j s] + f (t1[j s] - t0[j s]) of one output, from
// the table (s = Q) or from rows laid out by table position (s = 1: rows[a k
// + j] = t[a + j Q]); the unit stride is a separate case the compiler vectorises.
template <class T> void taps(const T* t0, const T* t1, int stride, int k, T f, T* c) noexcept {
    if (stride == 1) {
        for (int j = 0; j < k; ++j) c[j] = t0[j] + f * (t1[j] - t0[j]);
        return;
    }
    for (int j = 0; j < k; ++j) c[j] = t0[j * stride] + f * (t1[j * stride] - t0[j * stride]);
}

// Sum of s[j W] c[j], j < k, in four interleaved partial sums.
template <class T, int W> T dot(const T* s, const T* c, int k) noexcept {
    T a0 = T(0), a1 = T(0), a2 = T(0), a3 = T(0);
    int j = 0;
    for (; j + 4 <= k; j += 4) {
        a0 += s[j * W] * c[j];
        a1 += s[(j + 1) * W] * c[j + 1];
        a2 += s[(j + 2) * W] * c[j + 2];
        a3 += s[(j + 3) * W] * c[j + 3];
    }
    for (; j < k; ++j) a0 += s[j * W] * c[j];
    return (a0 + a1) + (a2 + a3);
}

}  // namespace

template <class T>
int rsmp(const Vec<T>* in, Vec<T>* out, int mode, const Vec<T>* kernel, T ratio, Vec<T>* history) noexcept {
    if (!readable<T>(in) || !writable<T>(out) || !readable<T>(kernel)) return -1;
    if (!(ratio >= T(0)) || !std::isfinite(ratio)) return -1;
    if (same_storage<T>(*out, *kernel)) return -1;
    if (history && (same_storage<T>(*history, *in) || same_storage<T>(*history, *out) ||
                    same_storage<T>(*history, *kernel)))
        return -1;
    if (kernel->points < 2) return copy<T>(out, in);
    const int k = round_half_up<T>(kernel->data[0]);
    if (k < 1 || kernel->complex) return -1;
    const int m = kernel->points - 2;
    if (m % k != 0 || m / k < 1) return -1;
    const int q = m / k;
    if (mode != 0 && mode != 1) return -1;
    if (mode == 0 && in->complex) return -1;

    const int w = width<T>(*in);
    const std::int64_t n = in->points;
    const T delta = in->delta;
    T mu = T(0);
    if (history) {
        if (prepare_history<T>(history, *in, k + 2) != 0) return -1;
        mu = history->data[static_cast<std::size_t>(k) * w];
        if (!(mu > T(-1)) || !std::isfinite(mu)) return -1;
    }
    // The first window straddles the carried samples and the block: head
    // holds samples -K .. K-2 in a row.
    Temp<T> head;
    head->points = 2 * k - 1;
    head->complex = in->complex;
    if (alloc<T>(head.get()) != 0) return -1;
    T* h = head->data;
    const std::size_t kw = static_cast<std::size_t>(k) * w;
    std::memset(h, 0, static_cast<std::size_t>(need<T>(*head)) * sizeof(T));
    if (history) std::memcpy(h, history->data, kw * sizeof(T));
    const std::int64_t lead = n < k - 1 ? n : k - 1;
    if (lead > 0) std::memcpy(h + kw, in->data, static_cast<std::size_t>(lead) * w * sizeof(T));

    const int cap = out->points > 0 ? out->points : 0;
    const bool in_place = same_storage<T>(*in, *out);
    Temp<T> build;
    Vec<T>* dst = in_place ? build.get() : out;
    dst->points = cap;
    dst->complex = in->complex;
    if (alloc<T>(dst) != 0) return -1;
    T* y = dst->data;
    const T* x = in->data;
    const T* tab = kernel->data + 1;
    auto at = [&](std::int64_t i) { return i < 0 ? h + (i + k) * w : x + i * w; };

    // Mode 1 interpolates K taps per output: one scratch row for them, and
    // for long runs the table laid out by position so each output reads two
    // adjacent rows instead of 2K entries Q apart.
    Temp<T> work;
    T* c = nullptr;
    const T* rows = nullptr;
    if (mode == 1) {
        const bool laid = static_cast<std::int64_t>(cap) >= 4 * static_cast<std::int64_t>(q + 1);
        work->points = k + (laid ? (q + 1) * k : 0);
        if (alloc<T>(work.get()) != 0) return -1;
        c = work->data;
        if (laid) {
            T* r = c + k;
            for (int a = 0; a <= q; ++a)
                for (int j = 0; j < k; ++j) r[a * k + j] = tab[a + j * q];
            rows = r;
        }
    }
    std::int64_t i = -k;
    int produced = 0;
    for (;;) {
        normalise<T>(mu, i);
        if (i > n - k || produced >= cap) break;
        int a;
        T f;
        table_position<T>(mu, q, a, f);
        const T* s = at(i);
        const T* t = tab + a;
        if (mode == 0) {  // nearest entry below u = Q (j - mu), as the formula rounds it
            T acc = T(0);
            for (int j = 0; j < k; ++j) acc += s[j] * tab[static_cast<int>(static_cast<T>(q) * (static_cast<T>(j) - mu))];
            y[produced] = acc;
        } else {
            if (rows) taps<T>(rows + a * k, rows + (a + 1) * k, 1, k, f, c);
            else taps<T>(t, t + 1, q, k, f, c);
            if (w == 1) {
                y[produced] = dot<T, 1>(s, c, k);
            } else {
                y[2 * produced] = dot<T, 2>(s, c, k);
                y[2 * produced + 1] = dot<T, 2>(s + 1, c, k);
            }
        }
        ++produced;
        mu += ratio;
    }
    if (i > n - k) {
        mu += static_cast<T>(i - (n - k));
        i = n - k;
    }

    if (in_place) {
        out->points = produced;
        out->complex = dst->complex;
        if (alloc<T>(out) != 0) return -1;
        if (produced > 0) std::memcpy(out->data, y, static_cast<std::size_t>(produced) * w * sizeof(T));
    }
    out->points = produced;
    out->delta = delta * ratio;
    if (history) {
        T* hd = history->data;
        std::memcpy(hd, at(i), kw * sizeof(T));
        std::memset(hd + kw, 0, 2 * w * sizeof(T));
        hd[kw] = mu;
        hd[kw + w] = static_cast<T>(i + k);
    }
    return 0;
}

template <class T> int rsmp2(const Vec<T>* in, Vec<T>* out, int mode, int which, T ratio, Vec<T>* history) noexcept {
    constexpr int points[] = {8194, 13314, 2050, 10242, 13314};
    Temp<T> kernel;
    kernel->points = which >= 0 && which <= 4 ? points[which] : 0;
    if (rsmp_table<T>(kernel.get(), which) != 0) return -1;
    return rsmp<T>(in, out, mode, kernel.get(), ratio, history);
}

template int rsmp<double>(const Vec<double>*, Vec<double>*, int, const Vec<double>*, double, Vec<double>*) noexcept;
template int rsmp2<double>(const Vec<double>*, Vec<double>*, int, int, double, Vec<double>*) noexcept;
template int rsmp<float>(const Vec<float>*, Vec<float>*, int, const Vec<float>*, float, Vec<float>*) noexcept;
template int rsmp2<float>(const Vec<float>*, Vec<float>*, int, int, float, Vec<float>*) noexcept;

}  // namespace zf
