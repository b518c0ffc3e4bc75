// Interpolation of complex traces (calibration error terms, for instance)
// along the circle arcs through neighbouring points.
#pragma once

namespace zf {

// The value at frequency f on the arc through the three complex points z of
// frequencies fr[0] < fr[1] < fr[2]: 1 along the arc, 0 along the straight
// line of the two points around f when the three are collinear, -1 for bad
// arguments (nothing written).
int interpolate_circular(const double* fr, const double* z, double f, double* out) noexcept;

// The trace (freq, points) of n points resampled at the m frequencies
// new_freq into new_points. m, or -1 for bad arguments (nothing written).
int circular_interpolation(const double* freq, const double* points, int n, const double* new_freq,
                           double* new_points, int m) noexcept;

}  // namespace zf
