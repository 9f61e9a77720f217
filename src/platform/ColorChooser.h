#pragma once

#include <cstdint>

// The common colour dialog. It opens with nothing preselected and fresh custom colours every
// time, whatever colour the swatch that asks shows, so that every colour button of the program
// behaves alike.
class ColorChooser {
public:
    virtual ~ColorChooser() = default;
    // The chosen colour (red + 256 * green + 65536 * blue), or -1 when the user cancelled.
    virtual int32_t chooseColor() = 0;
};
