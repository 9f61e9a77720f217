#pragma once

#include <cstdint>
#include <memory>

// One object of the depth sort paired with its key. The key's magnitude is kept scaled
// below 1 so that its decimal digits can be read off one position at a time. The object
// is opaque here; RadixSort gives it back its type.
class RadixObjNumEncap {
public:
    // Returns the digit count: the integer digits of |value| plus the precision.
    int32_t initialize(std::shared_ptr<void> obj, float value, int16_t precision);

    const std::shared_ptr<void>& getObject() const { return obj_; }
    float getValue() const { return value_; }

    // The decimal digit at position (digit count = most significant, 1 = the last
    // place of the precision, 0 one place further); 0 outside 0 to digit count.
    int32_t getRadixValue(int32_t position) const;

    // Shifts the digits of a key with fewer than total digits further down, so that it
    // sorts below every key with more integer digits. The digit count stays as it is.
    void pushPrecision(int32_t total);

private:
    std::shared_ptr<void> obj_;
    float value_ = 0.0f;
    float workValue_ = 0.0f;
    int32_t digitCount_ = 0;
};
