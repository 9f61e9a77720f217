#include "geometry/RootMod.h"

#include "geometry/NumberText.h"
#include "platform/Prompts.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace RootMod {

namespace {

// The count of extra factors, clamped to the 32-bit range it is held in (a NaN exponent
// counts as the largest), so that no exponent makes the conversion undefined.
int64_t extraFactors(float exponent) {
    const double extra = std::nearbyint(static_cast<double>(exponent) - 1.0);
    return static_cast<int64_t>(
        std::fmax(std::fmin(extra, static_cast<double>(std::numeric_limits<int32_t>::max())),
                  static_cast<double>(std::numeric_limits<int32_t>::min())));
}

} // namespace

void SngRoots(const float* bases, int count, float exponent, float* results) {
    // Side by side only where nothing can overflow and the steps are few: a base below 1 in
    // size never leaves that range, and once its power's size stops changing every further
    // factor only flips the sign as the single loop's shortcut does.
    constexpr int most = 8;
    const int64_t repetitions = extraFactors(exponent);
    const bool plain = count <= most && repetitions >= 1 && repetitions <= 4096 &&
                       std::all_of(bases, bases + count, [](float b) { return std::fabs(b) < 1; });
    if (!plain) {
        for (int i = 0; i < count; ++i) {
            results[i] = SngRoot(bases[i], exponent);
        }
        return;
    }
    float power[most];
    float base[most];
    for (int i = 0; i < most; ++i) {
        base[i] = i < count ? bases[i] : 0.0f;
        power[i] = base[i];
    }
    for (int64_t step = 0; step < repetitions; ++step) {
        for (int i = 0; i < most; ++i) {
            power[i] *= base[i];
        }
    }
    std::copy(power, power + count, results);
}

float SngRoot(float base, float exponent) {
    float result = exponent == 0.0f ? 1.0f : base;
    const int64_t repetitions = extraFactors(exponent);
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
