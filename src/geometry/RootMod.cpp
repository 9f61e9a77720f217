#include "geometry/RootMod.h"

#include "geometry/NumberText.h"
#include "platform/Prompts.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace RootMod {

float SngRoot(float base, float exponent) {
    float result = exponent == 0.0f ? 1.0f : base;
    const double extra = std::nearbyint(static_cast<double>(exponent) - 1.0);
    // Clamped to the 32-bit range the count is held in (a NaN exponent counts as the
    // largest), so that no exponent makes the conversion undefined.
    const auto repetitions = static_cast<int64_t>(
        std::fmax(std::fmin(extra, static_cast<double>(std::numeric_limits<int32_t>::max())),
                  static_cast<double>(std::numeric_limits<int32_t>::min())));
    if (repetitions >= 1 && (base == 1.0f || base == -1.0f || std::isnan(base))) {
        // Every other base reaches 0 or overflows in the end, where the loop stops; these
        // would run for as long as the exponent says without changing.
        if (base == -1.0f) {
            return repetitions % 2 == 1 ? 1.0f : -1.0f;
        }
        return base;
    }
    for (int64_t i = 1; i <= repetitions; ++i) {
        const float next = result * base;
        if (std::isinf(next)) {
            showMessage("Function SngRoot has failed because of an overflow error using base " +
                            NumberText::single(base) + " to the " + NumberText::single(exponent) +
                            " power.",
                        "Run-Time Error", MessageIcon::Critical);
            return 0.0f;
        }
        if (std::fabs(next) == std::fabs(result)) {
            // The magnitude no longer changes (zero, or a tiny value that rounds back to
            // itself), so the remaining factors can only flip the sign, once for each of
            // them when the base is negative. Without this a large exponent would keep the
            // loop running for seconds.
            const int64_t remaining = repetitions - i + 1;
            if (std::signbit(base) && remaining % 2 == 1) {
                result = -result;
            }
            break;
        }
        result = next;
    }
    return result;
}

} // namespace RootMod
