#pragma once

#include "interaction/ClickHandleNavigation.h"

// Turns the eye about the target: right-left drags change the azimuth, up-down the elevation.
class ClickHandleRotate : public ClickHandleNavigation {
public:
    MousePointer getMouseIcon() const override { return MousePointer::SizeAll; }

protected:
    void drag(ViewSpecs& specs, double sensitivity, int32_t dx, int32_t dy) const override;
};
