#include "modelling/frmWorkPlaneProperty.h"

#include "geometry/NumberText.h"
#include "scene/WorkPlane.h"

frmWorkPlaneProperty::frmWorkPlaneProperty(ColorChooser& colors) : WorkPlaneDialog(colors) {
    addControl("chkVisible", chkVisible);
}

void frmWorkPlaneProperty::initialize(const std::shared_ptr<WorkPlane>& workPlane) {
    workplane = workPlane;
    Text1.Text = NumberText::single(workplane->getSize());
    Text2.Text = NumberText::single(workplane->getXRotation());
    Text3.Text = NumberText::single(workplane->getYRotation());
    Text5.Text = NumberText::single(workplane->getOffset());
    picWPColor.BackColor = workplane->getColor();
    chkVisible.Value = workplane->isVisible();
}

void frmWorkPlaneProperty::apply(float size, float xRotation, float yRotation, float offset,
                                 int32_t color) {
    // Shown without a workplane, there is nothing to change.
    if (!workplane) {
        return;
    }
    workplane->initialize(size, xRotation, yRotation, offset, color);
    workplane->setVisibility(chkVisible.Value);
}
