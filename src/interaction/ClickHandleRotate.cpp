#include "interaction/ClickHandleRotate.h"

void ClickHandleRotate::drag(ViewSpecs& specs, double sensitivity, int32_t dx, int32_t dy) const {
    specs.EyeTheta = static_cast<float>(specs.EyeTheta + sensitivity * dx);
    specs.EyePhi = static_cast<float>(specs.EyePhi + sensitivity * dy);
}
