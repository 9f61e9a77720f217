#include "geometry/NumberText.h"

#include <cmath>
#include <cstdio>

namespace NumberText {

std::string single(float value) {
    if (value == 0.0f) {
        return "0"; // also for -0
    }
    if (std::isnan(value)) {
        return "NaN";
    }
    if (std::isinf(value)) {
        return value > 0 ? "Infinity" : "-Infinity";
    }
    char buffer[32];
    // %G switches to exponent form below 1E-4 and from 1E+7 on, and drops trailing zeros.
    std::snprintf(buffer, sizeof buffer, "%.7G", static_cast<double>(value));
    return buffer;
}

} // namespace NumberText
