#pragma once

#include "render/viewInfo.h"

#include <cstdint>
#include <optional>

class Canvas;

// What the extrusion dialog's Preview draws into: the main window's viewports. Canvas
// index i shows view record i + 1.
class ExtrusionPreviewTarget {
public:
    virtual ~ExtrusionPreviewTarget() = default;
    // The first and last canvas index.
    virtual void getPicOrthoBounds(int32_t& lower, int32_t& upper) const = 0;
    // Canvas picOrtho(index), or nullptr.
    virtual Canvas* getPicOrtho(int32_t index) const = 0;
    // A copy of view record index (1 to 4), or nothing.
    virtual std::optional<viewInfo> getViewInfo(int32_t index) const = 0;
};
