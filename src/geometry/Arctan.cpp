#include "geometry/Arctan.h"

#include "geometry/Pi.h"

#include <cmath>

namespace Arctan {

float ArcTan(float y, float x, bool fullRange) {
    if (std::fabs(x) >= 0.01f) {
        double r = std::atan(static_cast<double>(y) / static_cast<double>(x));
        if (fullRange && x < 0) {
            r = r + Pi::pi8;
        }
        return static_cast<float>(r);
    }
    return y < 0 ? static_cast<float>(-Pi::pi8 / 2) : static_cast<float>(Pi::pi8 / 2);
}

} // namespace Arctan
