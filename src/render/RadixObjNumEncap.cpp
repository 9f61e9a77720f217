#include "render/RadixObjNumEncap.h"

#include "geometry/RootMod.h"

#include <cmath>

int32_t RadixObjNumEncap::initialize(std::shared_ptr<void> obj, float value, int16_t precision) {
    obj_ = std::move(obj);
    value_ = value;
    workValue_ = std::fabs(value);
    int32_t integerDigits = 0;
    // The integer part of a non-negative value is non-zero exactly when it is at least 1;
    // an infinite key would never get there and is left unscaled.
    while (workValue_ >= 1.0f && std::isfinite(workValue_)) {
        workValue_ = static_cast<float>(static_cast<double>(workValue_) * 0.1);
        ++integerDigits;
    }
    digitCount_ = integerDigits + precision;
    return digitCount_;
}

int32_t RadixObjNumEncap::getRadixValue(int32_t position) const {
    if (position > digitCount_ || position < 0) {
        return 0;
    }
    // The digit is read as the last integer digit of the next product rather than as the
    // first decimal of this one: rounding each product to a single can carry into the
    // integer part (1.2999999 x 10 gives 13), and reading both positions from the same
    // product keeps that carry, where the decimal would still say 2 and the next position 0.
    float w = workValue_;
    for (int32_t i = position; i <= digitCount_; ++i) {
        w = w * 10.0f;
    }
    // A key too large for a single overflows to infinity here (and NaN stays NaN); such a
    // digit counts as 0.
    if (!std::isfinite(w)) {
        return 0;
    }
    // Whole 64-bit arithmetic is several times faster than fmod on this hot path.
    if (w < 9.0e18f) {
        return static_cast<int32_t>(static_cast<int64_t>(w) % 10);
    }
    return static_cast<int32_t>(std::fmod(std::trunc(w), 10.0f));
}

void RadixObjNumEncap::pushPrecision(int32_t total) {
    if (digitCount_ < total) {
        workValue_ = workValue_ * RootMod::SngRoot(0.1f, static_cast<float>(total - digitCount_));
    }
}
