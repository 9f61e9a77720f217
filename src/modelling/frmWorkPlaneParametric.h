#pragma once

#include "modelling/WorkPlaneDialog.h"

#include <memory>
#include <string>

class WorkPlane;

// Creates a new workplane from typed size, rotations and offset and a chosen colour. The Qt
// view (qt/frmWorkPlaneParametricView) shows it.
//
// Usage: show the dialog modally; when hasCreated, take getWorkPlane into the document.
class frmWorkPlaneParametric : public WorkPlaneDialog {
public:
    // A new plane's swatch starts light grey: black, a swatch's own start, would draw the
    // plane invisibly on the viewports' black background until it is selected.
    static constexpr int32_t startColor = 0xC0C0C0;

    explicit frmWorkPlaneParametric(ColorChooser& colors) : WorkPlaneDialog(colors) {
        picWPColor.BackColor = startColor;
    }

    std::string caption() const override { return "Parametric WorkPlane Creation"; }

    bool hasCreated() const { return created; }
    // The new workplane; nothing until Accept has made one.
    std::shared_ptr<WorkPlane> getWorkPlane() const { return workplane; }

protected:
    void apply(float size, float xRotation, float yRotation, float offset, int32_t color) override;

private:
    bool created = false;
    std::shared_ptr<WorkPlane> workplane;
};
