#include "geometry/Arctan.h"

#include <cmath>

namespace Arctan {

float ArcTan(float y, float x, bool fullRange) {
    constexpr double pi = 3.14159265;
    if (std::fabs(x) >= 0.01f) {
        double r = std::atan(static_cast<double>(y) / static_cast<double>(x));
        if (fullRange && x < 0) {
            r = r + pi;
        }
        return static_cast<float>(r);
    }
    return y < 0 ? static_cast<float>(-pi / 2) : static_cast<float>(pi / 2);
}

} // namespace Arctan
