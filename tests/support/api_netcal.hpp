// Test-side access to the matrix kernels: the complex and the real flavour as
// two types with the same members, so one typed test reaches both entry points.
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

}  // namespace api
