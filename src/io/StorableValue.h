#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

// The one rule for the values of a solid that the program reads or writes: every coordinate
// and coefficient is finite (NaN or infinity would poison every later calculation on the
// solid), and every specular exponent lies in the 16-bit range of the program's own setters
// (shading multiplies once per unit of it, so drawing would stall).
namespace StorableValue {

inline bool value(float number) {
    return std::isfinite(number);
}

inline bool exponent(float number) {
    return number >= std::numeric_limits<int16_t>::min() &&
           number <= std::numeric_limits<int16_t>::max();
}

} // namespace StorableValue
