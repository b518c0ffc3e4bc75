// Display formats of complex traces: magnitude, phase, unwrapped phase,
// standing-wave ratio and return loss.
#include "trace/trace.hpp"

#include <cmath>

#include "core/vector.hpp"

namespace zf {

namespace {

constexpr double kPi = Traits<double>::pi;
constexpr double kTwoPi = Traits<double>::two_pi;
// Two slightly different degree factors are in use and both are kept: the
// phase display multiplies by the first, phase unwrapping by the second.
constexpr double kPhaseDegrees = 57.29577951307855;
constexpr double kUnwrapDegrees = 57.29577951308232;
// Magnitudes above this show the standing-wave ratio as kSwrLimit.
constexpr double kSwrMagnitudeLimit = 0.999998;
constexpr double kSwrLimit = 1000000.0;

// dst[i] = f(re, im) for the complex points [start, stop) of src.
template <class T, class F> void per_point(const T* src, T* dst, int start, int stop, F f) noexcept {
    for (long long i = start; i < stop; ++i) {
        const double re = static_cast<double>(src[2 * i]), im = static_cast<double>(src[2 * i + 1]);
        dst[i] = static_cast<T>(f(re, im));
    }
}

}  // namespace

// The turn count of a later chunk is taken from what the earlier chunks left
// in dst, and each point is compared with the one before it by absolute index,
// so unwrapping [0, m) and then [m, n) gives the same trace as [0, n).
template <class T> int unwrap_phase(const T* src, int start, int stop, T* dst, int degrees) noexcept {
    if (!src || !dst || start < 0 || stop < start) return stop;
    const double k = degrees ? kUnwrapDegrees : 1.0;
    const double half_turn = k * kPi, full_turn = k * kTwoPi;
    double turns = 0.0;
    if (start > 1)
        turns = std::trunc((static_cast<double>(dst[start - 1]) - static_cast<double>(dst[0])) / full_turn);
    for (long long i = start; i != stop; ++i) {
        const double re = static_cast<double>(src[2 * i]), im = static_cast<double>(src[2 * i + 1]);
        dst[i] = static_cast<T>((std::atan2(im, re) + turns * kTwoPi) * k);
        if (i > 0) {
            const double here = static_cast<double>(dst[i]);
            const double d = here - static_cast<double>(dst[i - 1]);
            if (d < -half_turn) {
                turns += 1.0;
                dst[i] = static_cast<T>(here + full_turn);
            } else if (d > half_turn) {
                turns -= 1.0;
                dst[i] = static_cast<T>(here - full_turn);
            }
        }
    }
    return stop;
}

template <class T> void format_buffer(int code, const T* src, T* dst, int start, int stop) noexcept {
    if (!src || !dst || start < 0 || stop <= start) return;
    switch (code) {
    case 0:  // log magnitude
        per_point(src, dst, start, stop, [](double re, double im) { return 10.0 * std::log10(re * re + im * im); });
        break;
    case 1:  // linear magnitude
        per_point(src, dst, start, stop, [](double re, double im) { return std::sqrt(re * re + im * im); });
        break;
    case 2:  // phase in degrees
        per_point(src, dst, start, stop, [](double re, double im) { return std::atan2(im, re) * kPhaseDegrees; });
        break;
    case 3:  // unwrapped phase in degrees
        unwrap_phase(src, start, stop, dst, 1);
        break;
    case 4:  // standing-wave ratio
        per_point(src, dst, start, stop, [](double re, double im) {
            const double m = std::sqrt(re * re + im * im);
            return m > kSwrMagnitudeLimit ? kSwrLimit : (1.0 + m) / (1.0 - m);
        });
        break;
    case 5:  // return loss
        per_point(src, dst, start, stop, [](double re, double im) { return -10.0 * std::log10(re * re + im * im); });
        break;
    default:
        break;
    }
}

template int unwrap_phase<double>(const double*, int, int, double*, int) noexcept;
template int unwrap_phase<float>(const float*, int, int, float*, int) noexcept;
template void format_buffer<double>(int, const double*, double*, int, int) noexcept;
template void format_buffer<float>(int, const float*, float*, int, int) noexcept;

}  // namespace zf
