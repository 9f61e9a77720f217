#pragma once

#include "modelling/SurfaceGroup.h"
#include "platform/ModalDialog.h"

#include <memory>
#include <string>

class ColorChooser;
class Transformed3d;

// Sets surface properties on every face of a scene object, group by group (SurfaceGroup):
// only the groups whose check box is ticked are written, on Accept; Switch Orientation
// reverses every face. The Qt view (qt/frmSolidPropertyView) shows it.
//
// Usage: initialize(object), then show the dialog modally.
class frmSolidProperty : public ModalDialog {
public:
    SurfaceGroup surface;
    CheckBoxState OrientSwitch{.Caption = "Switch Orientation"};
    ButtonState mnuAccept{"&Accept"};
    ButtonState mnuCancel{"&Cancel"};

    // colors serves the Select buttons.
    explicit frmSolidProperty(ColorChooser& colors);

    std::string caption() const override { return "Solid Properties"; }

    // Remembers the object to write to on Accept; without one the dialog closes at once.
    void initialize(const std::shared_ptr<Transformed3d>& object);

    void mnuAccept_Click();
    void mnuCancel_Click();

    // Whether Accept reversed the corners of every face (Switch Orientation ticked). A box
    // ticked and then cancelled reversed nothing.
    bool reversedFaces() const { return reversedFaces_; }

private:
    std::shared_ptr<Transformed3d> object_;
    bool reversedFaces_ = false;
};
