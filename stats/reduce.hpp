// Pieces shared by the statistics: block-wise summation, the guard clamp and
// the writing of the one-point result.
#pragma once

#include <cmath>
#include <cstddef>

#include "core/vector.hpp"

namespace zf {
namespace stats {

// Sums run in blocks of this many samples: each block is summed into a fresh
// partial sum that is then added to the running total, which bounds the growth
// of rounding error on long vectors.
constexpr int kBlock = 2048;

// Σ term(i) for i in [0, n), block by block (i is wide enough to be doubled
// for the scalars of complex samples). A may be a scalar or one of the
// small accumulator records below (value-initialised to zero, with +=).
// Four whole blocks are summed side by side, each into its own partial sum
// that sees exactly the additions it would see alone, and the partial sums
// join the total in block order: the result is that of one block after the
// other, while the four independent chains of additions keep the processor's
// adders busy.
template <class A, class Term> inline A blockwise(int n, Term term) noexcept {
    A total{};
    std::ptrdiff_t start = 0;
    for (; n - start >= 4 * kBlock; start += 4 * kBlock) {
        A p0{}, p1{}, p2{}, p3{};
        for (std::ptrdiff_t i = start; i < start + kBlock; ++i) {
            p0 += term(i);
            p1 += term(i + kBlock);
            p2 += term(i + 2 * kBlock);
            p3 += term(i + 3 * kBlock);
        }
        total += p0;
        total += p1;
        total += p2;
        total += p3;
    }
    for (; start < n; start += kBlock) {
        const std::ptrdiff_t stop = n - start < kBlock ? n : start + kBlock;
        A part{};
        for (std::ptrdiff_t i = start; i < stop; ++i) part += term(i);
        total += part;
    }
    return total;
}

// Several sums carried through one pass.
template <class A, int N> struct Sums {
    A s[N];
    Sums& operator+=(const Sums& o) noexcept {
        for (int k = 0; k < N; ++k) s[k] += o.s[k];
        return *this;
    }
    A operator[](int k) const noexcept { return s[k]; }
};

// x limited to [-g, g]; not-a-number counts as overflow and becomes g.
// Values inside are by far the common case; saying so keeps the compiler from
// laying the loop out around the clamped ones.
template <class A> inline A clamp(A x, A g) noexcept {
    if (__builtin_expect(x >= -g && x <= g, 1)) return x;
    return x < -g ? -g : g;
}

// Squared magnitude of one sample for the ranking and power rules: g when a
// part lies outside [-g, g] or is not a number. (No short-circuit, so that
// the choice needs no branch.)
template <class A> inline A guarded_square(A re, A g) noexcept {
    return std::fabs(re) <= g ? re * re : g;
}
template <class A> inline A guarded_square(A re, A im, A g) noexcept {
    const bool inside = (std::fabs(re) <= g) & (std::fabs(im) <= g);
    return inside ? re * re + im * im : g;
}

// Input and output records fit for a statistic: a readable input and an output to write.
template <class T> inline bool usable(const Vec<T>* in, const Vec<T>* out) noexcept {
    return readable<T>(in) && writable<T>(out);
}

// Makes out a one-point vector (complex when `complex` is nonzero) holding
// (re, im); returns 0, or -1 when it cannot be sized.
template <class T, class A> inline int put(Vec<T>* out, int complex, A re, A im = A(0)) noexcept {
    out->points = 1;
    out->complex = complex;
    if (alloc<T>(out) != 0 || !out->data) return -1;
    out->data[0] = static_cast<T>(re);
    if (complex) out->data[1] = static_cast<T>(im);
    return 0;
}

}  // namespace stats
}  // namespace zf
