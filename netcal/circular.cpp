// Circular interpolation: through three neighbouring points of a complex
// trace passes one circle; the value at a new frequency lies on its arc, at
// the angle that a parabola through the three points' angles (against
// frequency) gives. Points on a circle whose angle is at most quadratic in
// frequency (a delay, a resonance locus sampled finely) are reproduced to
// rounding; three collinear points fall back to straight-line interpolation.
#include <cmath>
#include <complex>

#include "interp/search.hpp"
#include "netcal/circular.hpp"

namespace zf {
namespace {

using C = std::complex<double>;

constexpr double kTwoPi = 6.283185307179586;

// Below this sine of the turn at the middle point the three points count as
// collinear: the circle's centre would lie so far away that cancellation
// costs more than the arc gains over the chord.
constexpr double kCollinear = 1.4901161193847656e-08;   // sqrt of the double epsilon

// The arc value at f of the points z0, z1, z2 at f0 < f1 < f2; false (and
// nothing written) when they are collinear or coincide.
bool arc(double f0, double f1, double f2, C z0, C z1, C z2, double f, C& out) noexcept {
    const C b = z1 - z0, c = z2 - z0, d2 = z2 - z1;
    const double cross = (std::conj(b) * d2).imag();
    if (!(std::fabs(cross) > kCollinear * std::abs(b) * std::abs(d2))) return false;
    // Circumcentre relative to z0: (|b|^2 c - |c|^2 b) / (conj(b) c - b conj(c)).
    const C o = (std::norm(b) * c - std::norm(c) * b) / C(0, 2 * (std::conj(b) * c).imag());
    const C centre = z0 + o;
    const double r = std::abs(o);
    // Turns from z0 to z1 and from z1 to z2, both in the direction in which
    // the arc through z1 runs (counter-clockwise when the points turn left).
    const double t0 = std::arg(z0 - centre), t1 = std::arg(z1 - centre), t2 = std::arg(z2 - centre);
    auto turn = [cross](double from, double to) {
        double t = std::fmod(to - from, kTwoPi);
        if (cross > 0 && t < 0) t += kTwoPi;
        if (cross < 0 && t > 0) t -= kTwoPi;
        return t;
    };
    const double p1 = turn(t0, t1), p2 = p1 + turn(t1, t2);
    // The parabola through (f0, 0), (f1, p1), (f2, p2).
    const double phi = p1 * (f - f0) * (f - f2) / ((f1 - f0) * (f1 - f2)) + p2 * (f - f0) * (f - f1) / ((f2 - f0) * (f2 - f1));
    out = centre + std::polar(r, t0 + phi);
    return true;
}

C line(double fa, double fb, C za, C zb, double f) noexcept {
    return za + (zb - za) * ((f - fa) / (fb - fa));
}

// The value at f from the points k-1, k, k+1: the arc, or the line through
// the two of them around f.
int three(const double* fr, const C* z, int k, double f, C& out) noexcept {
    if (arc(fr[k - 1], fr[k], fr[k + 1], z[k - 1], z[k], z[k + 1], f, out)) return 1;
    out = f < fr[k] ? line(fr[k - 1], fr[k], z[k - 1], z[k], f) : line(fr[k], fr[k + 1], z[k], z[k + 1], f);
    return 0;
}

bool increasing(const double* f, int n) noexcept {
    if (std::isnan(f[0])) return false;
    for (int i = 1; i < n; ++i)
        if (!(f[i] > f[i - 1])) return false;
    return true;
}

}  // namespace

int interpolate_circular(const double* fr, const double* z, double f, double* out) noexcept {
    if (!fr || !z || !out || !increasing(fr, 3) || std::isnan(f)) return -1;
    const C* p = reinterpret_cast<const C*>(z);
    C v;
    const int rc = three(fr, p, 1, f, v);
    out[0] = v.real();
    out[1] = v.imag();
    return rc;
}

int circular_interpolation(const double* freq, const double* points, int n, const double* new_freq,
                           double* new_points, int m) noexcept {
    if (!freq || !points || n < 1 || m < 0 || (m > 0 && (!new_freq || !new_points)) || !increasing(freq, n)) return -1;
    const C* z = reinterpret_cast<const C*>(points);
    C* out = reinterpret_cast<C*>(new_points);
    int j = 1;
    for (int k = 0; k < m; ++k) {
        const double f = new_freq[k];
        if (std::isnan(f)) {
            out[k] = C(f, f);
        } else if (f <= freq[0]) {
            out[k] = z[0];
        } else if (f >= freq[n - 1]) {
            out[k] = z[n - 1];
        } else if (n == 2) {
            out[k] = line(freq[0], freq[1], z[0], z[1], f);
        } else {
            j = locate(freq, n, f, j);
            // The middle point: the one nearer f (the lower on a tie), within 1 .. n-2.
            int c = f - freq[j - 1] <= freq[j] - f ? j - 1 : j;
            c = c < 1 ? 1 : (c > n - 2 ? n - 2 : c);
            three(freq, z, c, f, out[k]);
        }
    }
    return m;
}

}  // namespace zf
