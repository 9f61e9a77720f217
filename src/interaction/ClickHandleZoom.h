#pragma once

#include "interaction/ClickHandleNavigation.h"

// Zooms with up-down drags; dragging down enlarges, and sideways drags do nothing.
class ClickHandleZoom : public ClickHandleNavigation {
public:
    MousePointer getMouseIcon() const override { return MousePointer::SizeVertical; }

protected:
    void drag(ViewSpecs& specs, double sensitivity, int32_t dx, int32_t dy) const override;
};
