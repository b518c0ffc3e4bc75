// Test-side access to the matrix kernels and the two-port correction: the
// complex and the real flavour of the kernels as two types with the same
// members, so one typed test reaches both entry points.
#pragma once
#include <zifaif/instrument.h>

namespace api {

struct ComplexMatrix {
    static constexpr int width = 2;  // doubles per element
    static int invert(double* a, int n) { return ::invert(a, n); }
    static int mult(const double* a, const double* b, double* c, int m, int n, int p) { return MatrixMult(a, b, c, m, n, p); }
};
struct RealMatrix {
    static constexpr int width = 1;
    static int invert(double* a, int n) { return invertDbl(a, n); }
    static int mult(const double* a, const double* b, double* c, int m, int n, int p) { return MatrixMultDbl(a, b, c, m, n, p); }
};

// Correct2Port with its twenty arrays in one table, in argument order:
// tracking, match, offset, measured, corrected, each S11, S12, S21, S22.
inline int correct_2port(double* const a[20], int start, int stop) {
    return Correct2Port(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11], a[12], a[13],
                        a[14], a[15], a[16], a[17], a[18], a[19], start, stop);
}

}  // namespace api
