#pragma once

#include "interaction/ClickHandleNavigation.h"

// Turns the eye about the target: right-left drags change the azimuth, up-down the elevation.
class ClickHandleRotate : public ClickHandleNavigation {
public:
    int16_t getMouseIcon() const override { return 15; }

protected:
    void drag(ViewSpecs& specs, double sensitivity, int32_t dx, int32_t dy) const override;
};
