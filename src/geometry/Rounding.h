#pragma once

#include <cmath>
#include <cstdint>

namespace Rounding {

// The one float-to-integer conversion of the program: nearest, halves to even (the
// default rounding mode). Values beyond the 32-bit range saturate and NaN gives 0, so
// that corrupt coordinates can never make the conversion itself undefined.
inline int32_t toInt32(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    const double rounded = std::nearbyint(value);
    if (rounded >= 2147483647.0) {
        return INT32_MAX;
    }
    if (rounded <= -2147483648.0) {
        return INT32_MIN;
    }
    return static_cast<int32_t>(rounded);
}

} // namespace Rounding
