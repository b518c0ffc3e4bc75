// Transforms of any length built on the power-of-two FFT: the DFT (chirp-z
// convolution for lengths that are not powers of two), its real-input and
// real-output forms, spectrum reconstruction, the DCT, the Hilbert transform
// and the analytic signal. Forward transforms carry 1/N and the kernel
// e^(-j2πnk/N); inverses are unscaled; delta becomes 1/(N·delta).
#pragma once

#include "core/vector.hpp"

namespace zf {

// DFT of any length in place. direction 0: forward with 1/N; 1: inverse.
// Power-of-two lengths go to the FFT (which treats any nonzero direction as
// inverse); other lengths conjugate the chirp only for exactly 1 and apply the
// 1/N only for exactly 0, so another value gives the unscaled forward sum.
// Fewer than two points: only delta changes.
template <class T> int dft(Vec<T>* v, int direction) noexcept;
// Real input to its N/2 + 1 bins from DC up (complex input: -1).
template <class T> int rdft(Vec<T>* v) noexcept;
// N/2 + 1 bins (or (N + 1)/2 with odd) back to N real samples.
template <class T> int irdft(Vec<T>* v, int odd) noexcept;
// Mirrors bins 0 .. M-1 into the full conjugate-symmetric spectrum of
// 2(M - 1) points (2M - 1 with odd); a real vector is mirrored unconjugated.
template <class T> int orecon(Vec<T>* v, int odd) noexcept;
template <class T> int recon(Vec<T>* v) noexcept;
// DCT in place of a real vector; flags: 1 inverse, 2 orthonormal scaling.
template <class T> int dct(Vec<T>* v, int flags) noexcept;
// Hilbert transform in place; a real input stays real.
template <class T> int hilbert(Vec<T>* v) noexcept;
// Analytic signal x + j·H{x}; the result is complex.
template <class T> int analytic(Vec<T>* v) noexcept;

// How many times the chirp-z state of this precision has been built since the
// process started; lets the tests see when the state is reused.
template <class T> int chirp_builds() noexcept;

// Keeps the real part of every pair of a complex vector (a real one is left alone).
template <class T> inline void keep_real(Vec<T>& v) noexcept {
    if (!v.complex) return;
    T* d = v.data;
    for (int k = 0; k < v.points; ++k) d[k] = d[2 * k];
    v.complex = 0;
}

// Widens a real vector to complex pairs with zero imaginary parts.
template <class T> inline int widen(Vec<T>& v) noexcept {
    if (v.complex) return 0;
    return spread_to_complex<T>(v, [](T x, T& re, T& im) { re = x; im = T(0); });
}

}  // namespace zf
