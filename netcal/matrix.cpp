#include "netcal/matrix.hpp"

#include <cstdlib>
#include <cstring>

#include "core/control.hpp"

namespace zf {

template <class X, int Inline> bool SmallBuffer<X, Inline>::reserve(std::int64_t count) noexcept {
    if (count < 0) return false;
    if (count <= capacity_) return true;
    if (static_cast<std::uint64_t>(count) > SIZE_MAX / sizeof(X)) return false;
    X* block = static_cast<X*>(std::malloc(static_cast<std::size_t>(count) * sizeof(X)));
    if (!block) return false;
    release();
    data_ = block;
    capacity_ = count;
    return true;
}

template <class X, int Inline> void SmallBuffer<X, Inline>::release() noexcept {
    if (data_ != local_) std::free(data_);
    data_ = local_;
    capacity_ = Inline;
}

template <class E> bool Matrix<E>::shape(int rows, int cols) noexcept {
    if (rows < 0 || cols < 0) return false;
    if (!store_.reserve(static_cast<std::int64_t>(rows) * cols)) return false;
    rows_ = rows;
    cols_ = cols;
    return true;
}

template <class E> bool Matrix<E>::assign(const E* src, int rows, int cols) noexcept {
    if (!shape(rows, cols)) return false;
    const std::size_t count = static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
    if (count) std::memcpy(data(), src, count * sizeof(E));
    return true;
}

template <class E> void Matrix<E>::copy_to(E* dst) const noexcept {
    const std::size_t count = static_cast<std::size_t>(rows_) * static_cast<std::size_t>(cols_);
    if (count) std::memcpy(dst, data(), count * sizeof(E));
}

template <class E> int invert_in_place(E* a, int n, unsigned* perm) noexcept {
    for (int i = 0; i < n; ++i) perm[i] = static_cast<unsigned>(i);
    for (int k = 0; k < n; ++k) {
        E* rowk = a + static_cast<std::ptrdiff_t>(k) * n;
        // Pivot: the largest magnitude in column k from row k down; only a
        // strictly larger one displaces the current choice.
        int r = k;
        double best = magnitude(rowk[k]);
        for (int i = k + 1; i < n; ++i) {
            const double m = magnitude(a[static_cast<std::ptrdiff_t>(i) * n + k]);
            if (m > best) {
                best = m;
                r = i;
            }
        }
        if (best < kPivotThreshold) return 0;
        if (r != k) {
            const unsigned t = perm[k];
            perm[k] = perm[r];
            perm[r] = t;
            E* rowr = a + static_cast<std::ptrdiff_t>(r) * n;
            for (int c = 0; c < n; ++c) {
                const E x = rowk[c];
                rowk[c] = rowr[c];
                rowr[c] = x;
            }
        }
        const E rec = unit<E>() / rowk[k];
        rowk[k] = unit<E>();
        for (int c = 0; c < n; ++c) rowk[c] = rowk[c] * rec;
        for (int j = 0; j < n; ++j) {
            if (j == k) continue;
            E* rowj = a + static_cast<std::ptrdiff_t>(j) * n;
            const E f = rowj[k];
            rowj[k] = E{};
            for (int c = 0; c < n; ++c) rowj[c] = rowj[c] - f * rowk[c];
        }
    }
    // The row interchanges permuted the columns of the inverse: column k of the
    // reduced block belongs at column perm[k].
    for (int c = 0; c < n; ++c) {
        if (perm[c] == static_cast<unsigned>(c)) continue;
        int d = c + 1;
        while (d < n && perm[d] != static_cast<unsigned>(c)) ++d;
        if (d == n) continue;  // not reached: perm is a permutation
        for (int r = 0; r < n; ++r) {
            E* row = a + static_cast<std::ptrdiff_t>(r) * n;
            const E x = row[c];
            row[c] = row[d];
            row[d] = x;
        }
        perm[d] = perm[c];
        perm[c] = static_cast<unsigned>(c);
    }
    return 1;
}

template <class E> int invert(E* a, int n) noexcept {
    RoundingGuard guard;
    if (n == 0) return 1;
    if (n < 0 || !a) return 0;
    Matrix<E> m;
    SmallBuffer<unsigned, 16> perm;
    if (!m.assign(a, n, n) || !perm.reserve(n)) return 0;
    if (!invert_in_place(m.data(), n, perm.data())) return 0;
    m.copy_to(a);
    return 1;
}

template <class E> void multiply(const E* a, const E* b, E* out, int m, int n, int p) noexcept {
    for (int i = 0; i < m; ++i) {
        const E* arow = a + static_cast<std::ptrdiff_t>(i) * n;
        E* orow = out + static_cast<std::ptrdiff_t>(i) * p;
        for (int j = 0; j < p; ++j) {
            E s{};
            for (int k = 0; k < n; ++k) s = s + arow[k] * b[static_cast<std::ptrdiff_t>(k) * p + j];
            orow[j] = s;
        }
    }
}

namespace {
// A product of two 32-bit counts as 32-bit arithmetic forms it: wrapping.
int wrapping_product(int x, int y) noexcept {
    return static_cast<int>(static_cast<std::uint32_t>(x) * static_cast<std::uint32_t>(y));
}
}  // namespace

template <class E> int matrix_mult(const E* a, const E* b, E* c, int m, int n, int p) noexcept {
    if (m < 0 || n < 0 || p < 0) return -1;
    // Only products whose inner size does not exceed the row count of a.
    if (wrapping_product(n, n) > wrapping_product(m, n)) return -1;
    const std::int64_t na = static_cast<std::int64_t>(m) * n, nb = static_cast<std::int64_t>(n) * p,
                       nc = static_cast<std::int64_t>(m) * p;
    if ((na > 0 && !a) || (nb > 0 && !b) || (nc > 0 && !c)) return -1;
    Matrix<E> out;  // the caller's c may be a or b: it is written last
    if (!out.shape(m, p)) return -1;
    multiply(a, b, out.data(), m, n, p);
    out.copy_to(c);
    return wrapping_product(m, p);
}

template class SmallBuffer<double, 16>;
template class SmallBuffer<Cx, 16>;
template class SmallBuffer<unsigned, 16>;
template class Matrix<double>;
template class Matrix<Cx>;
template int invert_in_place<double>(double*, int, unsigned*) noexcept;
template int invert_in_place<Cx>(Cx*, int, unsigned*) noexcept;
template int invert<double>(double*, int) noexcept;
template int invert<Cx>(Cx*, int) noexcept;
template void multiply<double>(const double*, const double*, double*, int, int, int) noexcept;
template void multiply<Cx>(const Cx*, const Cx*, Cx*, int, int, int) noexcept;
template int matrix_mult<double>(const double*, const double*, double*, int, int, int) noexcept;
template int matrix_mult<Cx>(const Cx*, const Cx*, Cx*, int, int, int) noexcept;

}  // namespace zf
