#include "interaction/ClickHandleZoom.h"

void ClickHandleZoom::drag(ViewSpecs& specs, double sensitivity, int32_t, int32_t dy) const {
    specs.zoom = static_cast<float>(specs.zoom + (sensitivity * dy / 0.001) / 3);
}
