#pragma once

#include <cstdint>

// The mouse pointers a canvas shows, by their platform cursor codes.
enum class MousePointer : int16_t {
    Default = 0,
    Crosshair = 2,
    SizeDiagonal = 6, // the pan mode
    SizeVertical = 7, // the zoom mode
    Hourglass = 11,
    SizeAll = 15, // four-way move: the rotate mode
};
