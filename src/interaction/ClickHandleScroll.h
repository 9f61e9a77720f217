#pragma once

#include "interaction/ClickHandleNavigation.h"

// Pans the picture on the canvas; the picture moves by half the change of the shift.
class ClickHandleScroll : public ClickHandleNavigation {
public:
    MousePointer getMouseIcon() const override { return MousePointer::SizeDiagonal; }

protected:
    void drag(ViewSpecs& specs, double sensitivity, int32_t dx, int32_t dy) const override;
};
