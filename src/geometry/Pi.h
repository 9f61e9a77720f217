#pragma once

#include <numbers>

// The program's values of pi. Each precision is kept where it is used because
// single-precision results (view angles, rotations, winding sums) depend on the last digit.
namespace Pi {

// Pi to 14 decimals: the views, the exact-zero rule of the y rotation and the winding test.
inline constexpr double pi14 = 3.14159265358979;
// Twice pi14, that is 6.28318530717958 (doubling is exact).
inline constexpr double twoPi14 = 2 * pi14;
// The guarded arctangent's shorter pi, which its quadrant corrections carry.
inline constexpr double pi8 = 3.14159265;
// Pi in full double precision: the spherical form of a vector.
inline constexpr double full = std::numbers::pi;
// Pi as a single: the grid's colour table and the splash camera. Rounding pi14 to a single
// gives the same value.
inline constexpr float single = std::numbers::pi_v<float>;
static_assert(single == static_cast<float>(pi14));

} // namespace Pi
