// DFT of any length and its real forms. Power-of-two lengths go straight to the
// FFT, lengths with no prime factor above 7 to the mixed-radix passes; every
// other length N is a chirp-z convolution: with the chirp
// c[n] = e^(-jπn²/N), X[k] = c[k] · Σ x[n]c[n] · conj(c[k - n]), a circular
// convolution of length M (the smallest power of two ≥ 2N - 2) done with two
// FFTs against the cached spectrum of the filter conj(c).
#include "transform/dft.hpp"

#include <cmath>
#include <cstdint>
#include <cstring>

#include "core/cache.hpp"
#include "core/libm.hpp"
#include "transform/fft.hpp"
#include "transform/mixed_radix.hpp"

namespace zf {
namespace {

// cos and sin of 2πp/L for an integer p in [0, L), within about half an ulp.
void unit_root(std::int64_t p, std::int64_t L, double& c, double& s) noexcept { libm::sincos_turn(p, L, &s, &c); }

// The process-wide chirp-z state of one precision: complete once n is set,
// only read by the transforms afterwards (a change of direction rewrites it
// exactly, by conjugation and reversal). A plain aggregate: nothing runs at
// unload; only release_chirp frees it.
template <class T> struct ChirpState {
    Vec<T> chirp;    // N pairs e^(-jπq/N), q = n² mod 2N; conjugated for the inverse
    Vec<T> filter;   // M pairs: unscaled inverse FFT of h, h[k] = h[M - k] = conj(c[k])
    int n;           // length the state serves, 0 when empty
    int m;           // convolution length
    int conj;        // 1 while the chirp is conjugated (inverse direction)
    int builds;      // times the state was built
};
template <class T> ChirpState<T> chirp_state{};

template <class T> int release_chirp() noexcept {
    ChirpState<T>& s = chirp_state<T>;
    destroy<T>(&s.chirp);
    destroy<T>(&s.filter);
    s.n = 0;
    s.m = 0;
    s.conj = 0;
    return 0;
}

// Builds the chirp and the filter spectrum for length n and convolution length m.
template <class T> int build_chirp(int n, int m, int conj) noexcept {
    ChirpState<T>& s = chirp_state<T>;
    register_cache<T>(CacheSlot::dft, &release_chirp<T>);
    s.n = 0;  // incomplete until the end
    s.chirp.points = n;
    s.chirp.complex = 1;
    s.filter.points = m;
    s.filter.complex = 1;
    if (alloc<T>(&s.chirp) != 0 || alloc<T>(&s.filter) != 0) return -1;

    // q = n² mod 2N by the recurrence q += 2n - 1, so the angle stays exact.
    T* c = s.chirp.data;
    const std::int64_t two_n = 2 * static_cast<std::int64_t>(n);
    std::int64_t q = 0;
    for (int k = 0; k < n; ++k) {
        if (k > 0) {
            q += 2 * static_cast<std::int64_t>(k) - 1;
            if (q >= two_n) q -= two_n;
        }
        double co, si;
        unit_root(q, two_n, co, si);
        c[2 * k] = static_cast<T>(co);
        c[2 * k + 1] = static_cast<T>(conj ? si : -si);
    }

    // The filter conj(c) laid out for both signs of the lag; one cell serves
    // the lags ±(N - 1) when M = 2N - 2, which the symmetry h[k] = h[-k] allows.
    T* h = s.filter.data;
    std::memset(h, 0, 2 * static_cast<std::size_t>(m) * sizeof(T));
    h[0] = T(1);
    for (int k = 1; k < n; ++k) {
        h[2 * k] = h[2 * (m - k)] = c[2 * k];
        h[2 * k + 1] = h[2 * (m - k) + 1] = -c[2 * k + 1];
    }
    s.filter.delta = T(1);
    if (fft<T>(&s.filter, 1) != 0) return -1;
    s.n = n;
    s.m = m;
    s.conj = conj;
    ++s.builds;
    return 0;
}

// Turns the state to the other direction without rounding: the chirp is
// conjugated and the filter spectrum becomes that of the conjugate filter,
// H'[k] = conj(H[-k]). The forward 1/N is never kept in the state (it goes
// with the last chirp multiplication), so a change of direction never
// rescales the spectrum and alternating directions cannot drift.
template <class T> void flip_chirp() noexcept {
    ChirpState<T>& s = chirp_state<T>;
    T* c = s.chirp.data;
    for (int k = 0; k < s.n; ++k) c[2 * k + 1] = -c[2 * k + 1];
    T* h = s.filter.data;
    const int m = s.m;
    h[1] = -h[1];
    for (int k = 1; k < m / 2; ++k) {
        T* a = h + 2 * k;
        T* b = h + 2 * (m - k);
        const T ar = a[0], ai = a[1];
        a[0] = b[0];
        a[1] = -b[1];
        b[0] = ar;
        b[1] = -ai;
    }
    h[m + 1] = -h[m + 1];  // bin M/2 is its own mirror
    s.conj ^= 1;
}

template <class T> int chirp_dft(Vec<T>* v, int direction) noexcept {
    const int n = v->points;
    std::int64_t m = 4;
    while (m < 2 * static_cast<std::int64_t>(n) - 2) m *= 2;
    if (2 * m > INT32_MAX) return -1;  // the work vector would not fit a 32-bit count
    const int conj = direction == 1;
    ChirpState<T>& s = chirp_state<T>;
    if (s.n != n) {
        if (build_chirp<T>(n, static_cast<int>(m), conj) != 0) return -1;
    } else if (s.conj != conj) {
        flip_chirp<T>();
    }
    const T delta = v->delta;
    if (widen<T>(*v) != 0) return -1;
    v->points = static_cast<int>(m);
    if (zf::realloc<T>(v, n, 1) != 0) return -1;

    T* x = v->data;
    const T* c = s.chirp.data;
    for (int k = 0; k < n; ++k) {
        const T re = x[2 * k], im = x[2 * k + 1];
        x[2 * k] = re * c[2 * k] - im * c[2 * k + 1];
        x[2 * k + 1] = re * c[2 * k + 1] + im * c[2 * k];
    }
    std::memset(x + 2 * static_cast<std::size_t>(n), 0, 2 * static_cast<std::size_t>(m - n) * sizeof(T));

    // Inverse then forward FFT: the pair carries exactly one 1/M, so the
    // product of the two spectra comes back as the plain circular convolution.
    if (fft<T>(v, 1) != 0) return -1;
    x = v->data;
    const T* h = s.filter.data;
    for (std::int64_t k = 0; k < m; ++k) {
        const T re = x[2 * k], im = x[2 * k + 1];
        x[2 * k] = re * h[2 * k] - im * h[2 * k + 1];
        x[2 * k + 1] = re * h[2 * k + 1] + im * h[2 * k];
    }
    if (fft<T>(v, 0) != 0) return -1;

    x = v->data;
    v->points = n;
    const T scale = direction == 0 ? T(1) / static_cast<T>(n) : T(1);
    for (int k = 0; k < n; ++k) {
        const T cr = c[2 * k] * scale, ci = c[2 * k + 1] * scale;
        const T re = x[2 * k], im = x[2 * k + 1];
        x[2 * k] = re * cr - im * ci;
        x[2 * k + 1] = re * ci + im * cr;
    }
    v->delta = delta;
    invert_delta<T>(*v, n);
    return 0;
}

}  // namespace

template <class T> int chirp_builds() noexcept { return chirp_state<T>.builds; }

template <class T> int dft(Vec<T>* v, int direction) noexcept {
    if (!readable<T>(v)) return -1;
    const int n = v->points;
    if (n < 2) {
        invert_delta<T>(*v, 1);
        return 0;
    }
    if (log2_exact(n) >= 0) return fft<T>(v, direction);
    if (mixed_radix_length(n)) return mixed_dft<T>(v, direction);
    return chirp_dft<T>(v, direction);
}

template <class T> int rdft(Vec<T>* v) noexcept {
    if (!readable<T>(v) || v->complex) return -1;
    const int n = v->points;
    if (log2_exact(n) >= 0) return rfft<T>(v);
    if (dft<T>(v, 0) != 0) return -1;
    if (n >= 2) v->points = n / 2 + 1;  // the upper bins stay in the storage
    return 0;
}

template <class T> int irdft(Vec<T>* v, int odd) noexcept {
    if (!readable<T>(v)) return -1;
    const int m = v->points;
    if (!odd && m >= 2 && m - 1 <= (1 << 29) && log2_exact(2 * (m - 1)) >= 0) return irfft<T>(v);
    if (orecon<T>(v, odd) != 0) return -1;
    if (dft<T>(v, 1) != 0) return -1;
    keep_real<T>(*v);
    return 0;
}

template <class T> int orecon(Vec<T>* v, int odd) noexcept {
    if (!readable<T>(v)) return -1;
    const int m = v->points;
    if (m < 2 || (!odd && m < 3)) return 0;
    const std::int64_t len = 2 * (static_cast<std::int64_t>(m) - 1) + (odd ? 1 : 0);
    if (len > INT32_MAX) return -1;
    v->points = static_cast<int>(len);
    if (zf::realloc<T>(v, m, v->complex) != 0) return -1;
    T* d = v->data;
    const int added = static_cast<int>(len) - m;
    const int top = odd ? m - 1 : m - 2;  // X[M + i] mirrors X[top - i]
    if (v->complex) {
        for (int i = 0; i < added; ++i) {
            d[2 * (m + i)] = d[2 * (top - i)];
            d[2 * (m + i) + 1] = -d[2 * (top - i) + 1];
        }
    } else {
        for (int i = 0; i < added; ++i) d[m + i] = d[top - i];
    }
    return 0;
}

template <class T> int recon(Vec<T>* v) noexcept { return orecon<T>(v, 0); }

template int chirp_builds<double>() noexcept;
template int dft<double>(Vec<double>*, int) noexcept;
template int rdft<double>(Vec<double>*) noexcept;
template int irdft<double>(Vec<double>*, int) noexcept;
template int orecon<double>(Vec<double>*, int) noexcept;
template int recon<double>(Vec<double>*) noexcept;

template int chirp_builds<float>() noexcept;
template int dft<float>(Vec<float>*, int) noexcept;
template int rdft<float>(Vec<float>*) noexcept;
template int irdft<float>(Vec<float>*, int) noexcept;
template int orecon<float>(Vec<float>*, int) noexcept;
template int recon<float>(Vec<float>*) noexcept;

}  // namespace zf
