#include "interaction/ClickHandleScroll.h"

void ClickHandleScroll::drag(ViewSpecs& specs, double sensitivity, int32_t dx, int32_t dy) const {
    specs.shiftx = static_cast<float>(specs.shiftx + (sensitivity * dx / 0.001) / 2);
    specs.shifty = static_cast<float>(specs.shifty + (sensitivity * dy / 0.001) / 2);
}
