// Small dense matrices of the network-analyser routines: the complex element
// and its arithmetic, the internal row-major Matrix, Gauss-Jordan inversion
// with partial pivoting and the matrix product.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>

namespace zf {

// A complex point as the instrument routines store it: two doubles, real first.
struct Cx {
    double re, im;
};
static_assert(sizeof(Cx) == 2 * sizeof(double), "a complex point is two packed doubles");

inline Cx operator+(Cx a, Cx b) noexcept { return {a.re + b.re, a.im + b.im}; }
inline Cx operator-(Cx a, Cx b) noexcept { return {a.re - b.re, a.im - b.im}; }
inline Cx operator-(Cx a) noexcept { return {-a.re, -a.im}; }
// (a + jb)(c + jd) = (ac - bd) + j(bc + ad).
inline Cx operator*(Cx a, Cx b) noexcept { return {a.re * b.re - a.im * b.im, a.im * b.re + a.re * b.im}; }

// Smith's division: the ratio of the divisor's smaller to its larger component
// keeps the intermediate products in range. A zero divisor gives non-numbers.
inline Cx operator/(Cx a, Cx b) noexcept {
    if (std::fabs(b.re) >= std::fabs(b.im)) {
        const double r = b.im / b.re;
        const double den = b.re + b.im * r;
        return {(a.re + a.im * r) / den, (a.im - a.re * r) / den};
    }
    const double r = b.re / b.im;
    const double den = b.re * r + b.im;
    return {(a.re * r + a.im) / den, (a.im * r - a.re) / den};
}

// Overflow-safe magnitude. Within 1e-150 .. 1e150 (or at zero) the sum of
// squares can neither overflow nor lose digits to underflow; beyond it the
// larger component times sqrt(1 + q^2), q the ratio of the smaller to the
// larger. A non-number in either part gives a non-number unless the other is
// infinite, which gives infinity. The vector kernels repeat these exact steps,
// so both paths pick the same pivots.
constexpr double kSquareSafeHigh = 1e150, kSquareSafeLow = 1e-150;
inline double magnitude(Cx z) noexcept {
    const double ax = std::fabs(z.re), ay = std::fabs(z.im);
    const bool x_big = ax >= ay;
    const double big = x_big ? ax : ay, small = x_big ? ay : ax;
    if (big <= kSquareSafeHigh && (big >= kSquareSafeLow || big == 0.0)) return std::sqrt(ax * ax + ay * ay);
    if (ax == HUGE_VAL || ay == HUGE_VAL) return HUGE_VAL;
    const double q = small / big;
    return big * std::sqrt(1.0 + q * q);
}
inline double magnitude(double x) noexcept { return std::fabs(x); }

template <class E> constexpr E unit() noexcept;
template <> constexpr double unit<double>() noexcept { return 1.0; }
template <> constexpr Cx unit<Cx>() noexcept { return {1.0, 0.0}; }

// Pivots of smaller magnitude count as zero: 10 000 times the double epsilon.
// A pivot exactly equal to it is accepted; a non-number pivot is not refused.
constexpr double kPivotThreshold = 2.220446049250313e-12;

// Scratch of a small fixed capacity inside the object, a malloc'd block beyond
// it. One object, one owner: no sharing, nothing kept after destruction.
template <class X, int Inline> class SmallBuffer {
public:
    SmallBuffer() noexcept = default;
    ~SmallBuffer() { release(); }
    SmallBuffer(const SmallBuffer&) = delete;
    SmallBuffer& operator=(const SmallBuffer&) = delete;

    // Makes room for count elements (contents undefined); false when the block
    // cannot be had.
    bool reserve(std::int64_t count) noexcept;
    X* data() noexcept { return data_; }
    const X* data() const noexcept { return data_; }

private:
    void release() noexcept;
    X local_[Inline];
    X* data_ = local_;
    std::int64_t capacity_ = Inline;
};

// A dense row-major matrix of doubles or complex doubles: element (r, c) at
// r * cols + c. Matrices up to 4 x 4 need no heap block.
template <class E> class Matrix {
public:
    Matrix() noexcept = default;
    // Gives the matrix the shape rows x cols (contents undefined); false when
    // the storage cannot be had.
    bool shape(int rows, int cols) noexcept;
    // Shapes the matrix after a caller's row-major array and copies it in.
    bool assign(const E* src, int rows, int cols) noexcept;
    // Copies the elements out into a caller's row-major array.
    void copy_to(E* dst) const noexcept;

    int rows() const noexcept { return rows_; }
    int cols() const noexcept { return cols_; }
    E* data() noexcept { return store_.data(); }
    const E* data() const noexcept { return store_.data(); }
    E& operator()(int r, int c) noexcept { return store_.data()[r * cols_ + c]; }
    const E& operator()(int r, int c) const noexcept { return store_.data()[r * cols_ + c]; }

private:
    SmallBuffer<E, 16> store_;
    int rows_ = 0, cols_ = 0;
};

// Inverts the n x n row-major block a in place by Gauss-Jordan elimination
// with partial pivoting (the topmost of equal pivots wins) and returns 1. A
// pivot below kPivotThreshold stops it with 0, leaving a partly reduced: the
// error-correction code uses that state as it stands. perm holds n entries.
template <class E> int invert_in_place(E* a, int n, unsigned* perm) noexcept;

// The exported inversion: inverts the caller's n x n array inside the rounding
// guard and writes it back only on success. 1 inverted, 0 singular (array
// untouched); also 0 for a null array, a negative order or missing memory.
template <class E> int invert(E* a, int n) noexcept;

// out (m x p) = a (m x n) * b (n x p), sums accumulated from zero in
// increasing k. out must not overlap a or b.
template <class E> void multiply(const E* a, const E* b, E* out, int m, int n, int p) noexcept;

// The exported product: refuses with -1 when n*n > m*n (both formed as
// wrapping 32-bit products), for negative sizes, null arrays or missing memory,
// and otherwise writes the m x p product into c and returns m*p.
template <class E> int matrix_mult(const E* a, const E* b, E* c, int m, int n, int p) noexcept;

}  // namespace zf
