#pragma once

#include "interaction/ClickHandleNavigation.h"

// Zooms with up-down drags; dragging down enlarges, and sideways drags do nothing.
class ClickHandleZoom : public ClickHandleNavigation {
public:
    int16_t getMouseIcon() const override { return 7; }

protected:
    void drag(ViewSpecs& specs, double sensitivity, int32_t dx, int32_t dy) const override;
};
