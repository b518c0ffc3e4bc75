// Hilbert transform and analytic signal, both by weighting the bins of a
// forward DFT and transforming back.
#include "transform/dft.hpp"

namespace zf {

// Positive frequencies turn by -90°, negative ones by +90°; DC and the Nyquist
// bin of an even length vanish. So H{cos} = sin.
template <class T> int hilbert(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int n = v->points;
    if (n < 1) return 0;
    const bool was_real = !v->complex;
    if (dft<T>(v, 0) != 0 || widen<T>(*v) != 0) return -1;
    T* X = v->data;
    X[0] = X[1] = T(0);
    for (int k = 1; k < (n + 1) / 2; ++k) {  // X ← -jX
        const T re = X[2 * k];
        X[2 * k] = X[2 * k + 1];
        X[2 * k + 1] = -re;
    }
    if (n % 2 == 0) X[n] = X[n + 1] = T(0);
    for (int k = n / 2 + 1; k < n; ++k) {  // X ← +jX
        const T re = X[2 * k];
        X[2 * k] = -X[2 * k + 1];
        X[2 * k + 1] = re;
    }
    if (dft<T>(v, 1) != 0) return -1;
    if (was_real) keep_real<T>(*v);
    return 0;
}

// One-sided spectrum: the positive bins doubled, DC and the Nyquist bin of an
// even length kept once, the negative bins cleared.
template <class T> int analytic(Vec<T>* v) noexcept {
    if (!readable<T>(v)) return -1;
    const int n = v->points;
    if (n < 1) return 0;
    if (dft<T>(v, 0) != 0 || widen<T>(*v) != 0) return -1;
    T* X = v->data;
    for (int k = 2; k <= 2 * ((n - 1) / 2) + 1; ++k) X[k] *= T(2);
    for (int k = 2 * (n / 2 + 1); k < 2 * n; ++k) X[k] = T(0);
    return dft<T>(v, 1);
}

template int hilbert<double>(Vec<double>*) noexcept;
template int analytic<double>(Vec<double>*) noexcept;

template int hilbert<float>(Vec<float>*) noexcept;
template int analytic<float>(Vec<float>*) noexcept;

}  // namespace zf
