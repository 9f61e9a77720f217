#include "modelling/frmWorkPlaneParametric.h"

#include "scene/WorkPlane.h"

void frmWorkPlaneParametric::apply(float size, float xRotation, float yRotation, float offset,
                                   int32_t color) {
    workplane = std::make_shared<WorkPlane>();
    workplane->initialize(size, xRotation, yRotation, offset, color);
    created = true;
}
