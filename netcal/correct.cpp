#include "netcal/correct.hpp"

#include "core/control.hpp"
#include "core/cpu.hpp"

namespace zf {

namespace {

// The result of a correction over [start, stop) once its arrays passed the
// null checks: the point count, negative or zero for an empty range, and 0 for
// a range that starts before the first point.
int range_result(int start, int stop) noexcept {
    if (stop <= start)  // wrapping, like the 32-bit subtraction it stands for
        return static_cast<int>(static_cast<unsigned>(stop) - static_cast<unsigned>(start));
    return start < 0 ? 0 : stop - start;
}
bool runnable(int start, int stop) noexcept { return start >= 0 && start < stop; }

}  // namespace

void compute_1port_terms(Cx* m1, Cx* m2, Cx* m3, const Cx* g1, const Cx* g2, const Cx* g3,
                         int start, int stop) noexcept {
    if (!m1 || !m2 || !m3 || !g1 || !g2 || !g3 || !runnable(start, stop)) return;
    RoundingGuard guard;
    Cx a[9], rhs[3], x[3];
    unsigned perm[3];
    const Cx one = unit<Cx>();
    for (int j = start; j < stop; ++j) {
        // Each standard gives one row [g, 1, -g*m] x = m of the model
        // m = e00 + g*m*e11 - g*(e00*e11 - e10e01), whose unknowns are
        // x = (e10e01 - e00*e11, e00, -e11).
        const Cx g[3] = {g1[j], g2[j], g3[j]};
        rhs[0] = m1[j];
        rhs[1] = m2[j];
        rhs[2] = m3[j];
        for (int i = 0; i < 3; ++i) {
            a[3 * i] = g[i];
            a[3 * i + 1] = one;
            a[3 * i + 2] = -(g[i] * rhs[i]);
        }
        invert_in_place(a, 3, perm);  // a singular system keeps its partial reduction
        multiply(a, rhs, x, 3, 3, 1);
        m1[j] = x[1];
        m2[j] = -x[2];
        m3[j] = x[0] - x[1] * x[2];
    }
}

int correct_1port(const Cx* directivity, const Cx* source_match, const Cx* tracking,
                  const Cx* measured, Cx* corrected, int start, int stop) noexcept {
    if (!directivity || !source_match || !tracking || !measured || !corrected) return 0;
    if (!runnable(start, stop)) return range_result(start, stop);
    for (int j = start; j < stop; ++j) {
        const Cx d = measured[j] - directivity[j];
        corrected[j] = d / (tracking[j] + d * source_match[j]);
    }
    return stop - start;
}

int apply_enhanced_response(const Cx* directivity, const Cx* source_match, const Cx* tracking,
                            const Cx* load_match, const Cx* transmission_tracking,
                            const Cx* measured_s11, const Cx* measured_s21, Cx* corrected_s11,
                            Cx* corrected_s21, int start, int stop, int use_load_match) noexcept {
    if (!directivity || !source_match || !tracking || !transmission_tracking || !measured_s11 ||
        !measured_s21)
        return 0;
    const bool with_load = (use_load_match & 0xFF) != 0;
    if (with_load && !load_match) return 0;
    if (!runnable(start, stop)) return range_result(start, stop);
    for (int j = start; j < stop; ++j) {
        const Cx d = measured_s11[j] - directivity[j];
        const Cx s = tracking[j] + source_match[j] * d;
        const Cx t = (tracking[j] * measured_s21[j]) / (s * transmission_tracking[j]);
        if (corrected_s21) corrected_s21[j] = t;
        if (corrected_s11) {
            // The load-match term takes the device as reciprocal (S12 = S21).
            corrected_s11[j] = with_load ? d / s - load_match[j] * t * t : d / s;
        }
    }
    return stop - start;
}

void correct_2port_portable(const TwoPortArrays& t, int start, int stop) noexcept {
    Cx n[4], m[4], c[4];
    unsigned perm[2];
    for (int j = start; j < stop; ++j) {
        for (int p = 0; p < 4; ++p) {
            const Cx raw = t.offset[p] ? t.measured[p][j] - t.offset[p][j] : t.measured[p][j];
            n[p] = raw / t.tracking[p][j];
            m[p] = n[p] * t.match[p][j];
        }
        m[0].re += 1.0;
        m[3].re += 1.0;
        {
            RoundingGuard guard;
            invert_in_place(m, 2, perm);  // a singular M keeps its partial reduction
        }
        multiply(n, m, c, 2, 2, 2);
        for (int p = 0; p < 4; ++p)
            if (t.corrected[p]) t.corrected[p][j] = c[p];
    }
}

int correct_2port(const TwoPortArrays& t, int start, int stop) noexcept {
    for (int p = 0; p < 4; ++p)
        if (!t.tracking[p] || !t.match[p] || !t.measured[p]) return 0;
    if (!t.offset[0] || !t.offset[3]) return 0;
    if (!runnable(start, stop)) return range_result(start, stop);
    int j = start;
    void (*const x8)(const TwoPortArrays&, int) noexcept =
        have_avx512() ? correct_2port_x8_avx512 : have_avx2() ? correct_2port_x8_avx2 : nullptr;
    if (x8) {
        for (; stop - j >= 8; j += 8) {
            RoundingGuard guard;
            x8(t, j);
        }
    }
    correct_2port_portable(t, j, stop);
    return stop - start;
}

bool have_avx2() noexcept { return cpu_has_avx2_fma(); }
bool have_avx512() noexcept { return cpu_has_avx512(); }

}  // namespace zf
