#include "geometry/TrigFunctions.h"

#include "geometry/CheckedMath.h"

#include <cmath>

namespace TrigFunctions {

float ArcSin(float x) {
    const double v = x;
    return static_cast<float>(
        std::atan(CheckedMath::divide(v, CheckedMath::squareRoot(1 - v * v))));
}

float ArcCos(float x) {
    const double v = x;
    return static_cast<float>(
        std::atan(CheckedMath::divide(-v, CheckedMath::squareRoot(1 - v * v))) +
        2 * std::atan(1.0));
}

} // namespace TrigFunctions
