#pragma once

#include <cstdint>

// The common colour dialog.
class ColorChooser {
public:
    virtual ~ColorChooser() = default;
    // The chosen colour (red + 256 * green + 65536 * blue), or -1 when the user cancelled.
    virtual int32_t chooseColor(int32_t initial) = 0;
};
