#pragma once

#include "geometry/Rounding.h"

#include <algorithm>
#include <cstdint>

// A colour coefficient (0 to 1) as the byte channel other programs show.
inline uint8_t colorChannel(float coefficient) {
    return static_cast<uint8_t>(std::clamp(Rounding::toInt32(coefficient * 255.0), 0, 255));
}
