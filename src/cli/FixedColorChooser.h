#pragma once

#include "platform/ColorChooser.h"

// Answers every colour dialog with the colour it was set to, -1 (cancelled) until then.
class FixedColorChooser : public ColorChooser {
public:
    void setColor(int32_t color) { color_ = color; }
    int32_t chooseColor() override { return color_; }

private:
    int32_t color_ = -1;
};
