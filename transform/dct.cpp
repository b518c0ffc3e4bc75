// Discrete cosine transform, y[k] = (1/N) Σ x[n] cos(πk(2n + 1)/(2N)), through
// one real DFT of the same length: the even samples in order followed by the
// odd ones in reverse make V[k] = Σ v[n] e^(-j2πnk/N) with
// y[k] = Re(e^(-jπk/(2N)) V[k]), and y[N - k] follows from the same bin.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "core/cache.hpp"
#include "core/libm.hpp"
#include "transform/dft.hpp"
#include "transform/fft.hpp"

namespace zf {
namespace {

// Process-wide DCT state of one precision: the staging vector and the
// twiddles of the last length. A plain aggregate, freed only by release_dct.
template <class T> struct DctState {
    Vec<T> scratch;  // staging for the reordering and the output (N scalars)
    T* table;        // (cos, sin) of πk/(2N) for k = 0 .. ⌈N/2⌉ - 1
    int n;           // length the table serves, 0 when empty
};
template <class T> DctState<T> dct_state{};

template <class T> int release_dct() noexcept {
    DctState<T>& s = dct_state<T>;
    destroy<T>(&s.scratch);
    std::free(s.table);
    s.table = nullptr;
    s.n = 0;
    return 0;
}

// Makes the staging vector hold n scalars and the twiddles serve length n.
// The twiddles cos and sin of πk/(2n) come from the library's own sine and
// cosine of k/(4n) of a turn, rounded to T once.
template <class T> int prepare_dct(int n) noexcept {
    DctState<T>& s = dct_state<T>;
    register_cache<T>(CacheSlot::dct, &release_dct<T>);
    s.scratch.points = n;
    s.scratch.complex = 0;
    if (alloc<T>(&s.scratch) != 0) return -1;
    if (s.n == n) return 0;
    const int half = (n + 1) / 2;
    std::free(s.table);
    s.n = 0;
    s.table = static_cast<T*>(std::malloc(2 * static_cast<std::size_t>(half) * sizeof(T)));
    if (!s.table) return -1;
    for (int k = 0; k < half; ++k) {
        double c, si;
        libm::sincos_turn(k, 4 * static_cast<std::int64_t>(n), &si, &c);
        s.table[2 * k] = static_cast<T>(c);
        s.table[2 * k + 1] = static_cast<T>(si);
    }
    s.n = n;
    return 0;
}

template <class T> int dct_forward(Vec<T>* v, bool ortho) noexcept {
    const int n = v->points;
    if (prepare_dct<T>(n) != 0) return -1;
    DctState<T>& s = dct_state<T>;
    T* x = v->data;
    T* tmp = s.scratch.data;
    // Even samples to the front in order, odd samples to the back reversed.
    for (int j = 0; j < n / 2; ++j) tmp[j] = x[2 * j + 1];
    for (int j = 1; j < (n + 1) / 2; ++j) x[j] = x[2 * j];
    for (int j = 0; j < n / 2; ++j) x[n - 1 - j] = tmp[j];

    if (rdft<T>(v) != 0) return -1;
    const T* V = v->data;
    const T* t = s.table;
    const int half = (n + 1) / 2;
    tmp[0] = V[0];
    for (int k = 1; k < half; ++k) {
        const T re = V[2 * k], im = V[2 * k + 1];
        tmp[k] = re * t[2 * k] + im * t[2 * k + 1];
        tmp[n - k] = re * t[2 * k + 1] - im * t[2 * k];
    }
    if (n % 2 == 0) tmp[n / 2] = (V[n] + V[n + 1]) * Traits<T>::sqrt_half;

    x = v->data;
    if (ortho) {
        x[0] = tmp[0] * T(2) * Traits<T>::sqrt_half;
        for (int k = 1; k < n; ++k) x[k] = tmp[k] * T(2);
    } else {
        std::memcpy(x, tmp, static_cast<std::size_t>(n) * sizeof(T));
    }
    v->complex = 0;
    v->points = n;
    v->delta *= T(0.5);
    return 0;
}

template <class T> int dct_inverse(Vec<T>* v, bool ortho) noexcept {
    const int n = v->points;
    if (prepare_dct<T>(n) != 0) return -1;
    DctState<T>& s = dct_state<T>;
    T* tmp = s.scratch.data;
    const T* y = v->data;
    if (ortho) {
        tmp[0] = y[0] * Traits<T>::sqrt_half;
        for (int k = 1; k < n; ++k) tmp[k] = y[k] * T(0.5);
    } else {
        std::memcpy(tmp, y, static_cast<std::size_t>(n) * sizeof(T));
    }

    // Rebuild the bins 0 .. N/2 of the reordered sequence.
    const int bins = n / 2 + 1;
    v->complex = 1;
    v->points = bins;
    if (zf::realloc<T>(v, n, 0) != 0) return -1;
    T* V = v->data;
    const T* t = s.table;
    const int half = (n + 1) / 2;
    V[0] = tmp[0];
    V[1] = T(0);
    for (int k = 1; k < half; ++k) {
        const T a = tmp[k], b = tmp[n - k], c = t[2 * k], si = t[2 * k + 1];
        V[2 * k] = a * c + b * si;
        V[2 * k + 1] = a * si - b * c;
    }
    if (n % 2 == 0) {
        V[n] = tmp[n / 2] * T(2) * Traits<T>::sqrt_half;
        V[n + 1] = T(0);
    }
    // irdft turns 2·delta into 1/(2N·delta), the inverse of the forward spacing.
    v->delta *= T(2);
    if (irdft<T>(v, n % 2) != 0) return -1;

    // Undo the reordering.
    T* x = v->data;
    std::memcpy(tmp, x, static_cast<std::size_t>(n) * sizeof(T));
    for (int j = 0; j < half; ++j) x[2 * j] = tmp[j];
    for (int j = 0; j < n / 2; ++j) x[2 * j + 1] = tmp[n - 1 - j];
    return 0;
}

}  // namespace

template <class T> int dct(Vec<T>* v, int flags) noexcept {
    if (!readable<T>(v) || v->complex) return -1;
    const bool inverse = (flags & 1) != 0, ortho = (flags & 2) != 0;
    const int n = v->points;
    if (n == 0) {
        v->delta = v->delta == T(0) ? Traits<T>::huge : T(0.5) / v->delta;
        return 0;
    }
    if (n == 1) {  // y[0] = x[0]: only the orthonormal factor √2 and the spacing change
        if (ortho) v->data[0] *= inverse ? Traits<T>::sqrt_half : T(2) * Traits<T>::sqrt_half;
        if (inverse) v->delta *= T(2);
        invert_delta<T>(*v, 1);
        if (!inverse) v->delta *= T(0.5);
        return 0;
    }
    return inverse ? dct_inverse<T>(v, ortho) : dct_forward<T>(v, ortho);
}

template int dct<double>(Vec<double>*, int) noexcept;
template int dct<float>(Vec<float>*, int) noexcept;

}  // namespace zf
