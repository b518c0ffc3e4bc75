// Moving-average smoothing of real, phase and complex traces with an odd
// aperture. Sums run in double for both twins.
#include "trace/trace.hpp"

#include <algorithm>
#include <cmath>

#include "core/libm.hpp"
#include "core/vector.hpp"

namespace zf {

namespace {

constexpr double kPi = Traits<double>::pi;
constexpr double kTwoPi = Traits<double>::two_pi;

// The range checks shared by both smoothers. Returns 0 for an empty range,
// -1 for a bad range or aperture, else 1 with the last point to produce and
// the half aperture.
int check_range(int start, int stop, int aperture, int& last, int& half) noexcept {
    if (start == stop) return 0;
    last = stop > 0 ? stop - 1 : stop;
    if (start < 0 || last < 0 || start > last || aperture < 3 || aperture % 2 == 0) return -1;
    half = aperture / 2;
    return 1;
}

// Half width of the window at point i when it shrinks symmetrically near the
// ends of a trace of total points.
inline long long shrunk_half(long long i, int total, int half) noexcept {
    return std::min({i, static_cast<long long>(total) - 1 - i, static_cast<long long>(half)});
}

// Brings a mean phase back into [-pi, pi].
inline double wrap_phase(double mean) noexcept {
    if (mean > kPi) return mean - (std::trunc((mean - kPi) / kTwoPi) + 1.0) * kTwoPi;
    if (mean < -kPi) return mean - (std::trunc((mean + kPi) / kTwoPi) - 1.0) * kTwoPi;
    return mean;
}

// Mean of the phase window [lo, hi], unwrapped on the way. The first step is
// taken from the point just before the window, so a jump there shifts the
// whole window by a turn, which the final wrap removes again.
template <class T, class Clamp>
double phase_window_mean(const T* src, long long lo, long long hi, Clamp index) noexcept {
    double sum = 0.0, turns = 0.0;
    for (long long j = lo; j <= hi; ++j) {
        const long long jj = index(j), jp = index(j - 1);
        const double x = static_cast<double>(src[jj]);
        double v = x;
        if (jj > 0) {
            const double d = x - static_cast<double>(src[jp]);
            if (d < -kPi) turns += 1.0;
            else if (d > kPi) turns -= 1.0;
            v = x + turns * kTwoPi;
        }
        sum += v;
    }
    return sum / static_cast<double>(hi - lo + 1);
}

template <class T> inline double magnitude(const T* z) noexcept {
    const double re = static_cast<double>(z[0]), im = static_cast<double>(z[1]);
    return std::sqrt(re * re + im * im);
}
// The angle takes the real part as the y argument: a window of one point
// comes back with its real and imaginary parts exchanged.
template <class T> inline double swapped_angle(const T* z) noexcept {
    return std::atan2(static_cast<double>(z[0]), static_cast<double>(z[1]));
}

}  // namespace

// The window is [i - w, i + w]. Without the edge flag w shrinks near either
// end of the whole trace and the scan stops before a window that would reach
// past the last point of the range. With it w stays at the half aperture,
// indices are clamped to [0, last], and a range that ends at the trace end is
// finished with clamped windows.
template <class T> int smooth(const T* src, T* dst, int total, int start, int stop, int aperture, int phase, int edge) noexcept {
    int last = 0, half = 0;
    const int status = check_range(start, stop, aperture, last, half);
    if (status <= 0) return status;
    if (!src || !dst) return -1;
    const auto clamp = [last](long long j) { return j < 0 ? 0LL : (j > last ? static_cast<long long>(last) : j); };
    const auto as_is = [](long long j) { return j; };
    const bool ends_at_trace_end = last >= static_cast<long long>(total) - 1;
    double sum = 0.0;
    long long previous_size = 0;
    int i = start;
    for (; i <= last; ++i) {
        const long long w = edge ? half : shrunk_half(i, total, half);
        const long long lo = i - w, hi = i + w;
        if (hi > last && !(edge && ends_at_trace_end)) break;
        const long long size = hi - lo + 1;
        double mean;
        if (phase) {
            mean = wrap_phase(edge ? phase_window_mean(src, lo, hi, clamp) : phase_window_mean(src, lo, hi, as_is));
        } else {
            if (size != previous_size) {
                sum = 0.0;
                for (long long j = lo; j <= hi; ++j) sum += static_cast<double>(src[clamp(j)]);
                previous_size = size;
            } else {
                sum -= static_cast<double>(src[std::max(lo - 1, 0LL)]);
                sum += static_cast<double>(src[std::min(hi, static_cast<long long>(last))]);
            }
            mean = sum / static_cast<double>(size);
        }
        dst[i] = static_cast<T>(mean);
    }
    return i - start;
}

template <class T> int smooth_cpx(const T* src, T* dst, int total, int start, int stop, int aperture) noexcept {
    int last = 0, half = 0;
    const int status = check_range(start, stop, aperture, last, half);
    if (status <= 0) return status;
    if (!src || !dst) return -1;
    double sum_mag = 0.0, sum_ang = 0.0;
    long long previous_size = 0;
    int i = start;
    for (; i <= last; ++i) {
        const long long w = shrunk_half(i, total, half);
        const long long lo = i - w, hi = i + w;
        if (hi > last) break;
        const long long size = 2 * w + 1;
        if (size != previous_size) {
            sum_mag = sum_ang = 0.0;
            for (long long j = lo; j <= hi; ++j) {
                sum_mag += magnitude(src + 2 * j);
                sum_ang += swapped_angle(src + 2 * j);
            }
            previous_size = size;
        } else {
            sum_mag -= magnitude(src + 2 * (lo - 1));
            sum_ang -= swapped_angle(src + 2 * (lo - 1));
            sum_mag += magnitude(src + 2 * hi);
            sum_ang += swapped_angle(src + 2 * hi);
        }
        const double m = sum_mag / static_cast<double>(size), a = sum_ang / static_cast<double>(size);
        T* out = dst + 2 * static_cast<long long>(i);
        double s, c;
        libm::sincos(a, &s, &c);
        out[0] = static_cast<T>(m * c);
        out[1] = static_cast<T>(m * s);
    }
    return i - start;
}

template int smooth<double>(const double*, double*, int, int, int, int, int, int) noexcept;
template int smooth<float>(const float*, float*, int, int, int, int, int, int) noexcept;
template int smooth_cpx<double>(const double*, double*, int, int, int, int) noexcept;
template int smooth_cpx<float>(const float*, float*, int, int, int, int) noexcept;

}  // namespace zf
