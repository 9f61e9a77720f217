#pragma once

#include "modelling/WorkPlaneDialog.h"

#include <memory>
#include <string>

class WorkPlane;

// Edits a workplane in place: its size, rotations, offset, colour and visibility. Accept
// rebuilds the plane's geometry from the fields (also when none changed); Cancel leaves it
// as it was. The Qt view (qt/frmWorkPlanePropertyView) shows it.
//
// Usage: initialize with the workplane, then show the dialog modally.
class frmWorkPlaneProperty : public WorkPlaneDialog {
public:
    CheckBoxState chkVisible{"Visible"};

    explicit frmWorkPlaneProperty(ColorChooser& colors);

    std::string caption() const override { return "Workplane Properties"; }

    // Fills the fields from the workplane and remembers it.
    void initialize(const std::shared_ptr<WorkPlane>& workPlane);

protected:
    void apply(float size, float xRotation, float yRotation, float offset, int32_t color) override;

private:
    std::shared_ptr<WorkPlane> workplane;
};
