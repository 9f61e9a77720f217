#pragma once

#include "geometry/ArithmeticError.h"

#include <cmath>

// Arithmetic that raises ArithmeticError where the plain operation would produce an
// infinity or NaN from finite arguments.
namespace CheckedMath {

inline double finite(double value) {
    if (!std::isfinite(value)) {
        throw ArithmeticError("overflow");
    }
    return value;
}

inline double divide(double numerator, double denominator) {
    if (denominator == 0.0) {
        throw ArithmeticError("division by zero");
    }
    return finite(numerator / denominator);
}

inline double squareRoot(double value) {
    if (value < 0.0) {
        throw ArithmeticError("invalid procedure call");
    }
    return std::sqrt(value);
}

// Stores a double into a single, failing when it does not fit.
inline float toSingle(double value) {
    return static_cast<float>(finite(static_cast<float>(value)));
}

} // namespace CheckedMath
