#pragma once

#include "platform/ModalDialog.h"

#include <cstdint>

class ColorChooser;

// What the two workplane dialogs share: the four number fields, the colour swatch with its
// Select button, and Accept, which checks the fields in order and hands the values on to
// the dialog's own apply. The Qt views (qt/WorkPlaneDialogView and its two subclasses)
// show it.
class WorkPlaneDialog : public ModalDialog {
public:
    LabelState lblSize{"Workplane Size:"};
    TextBoxState Text1;
    LabelState lblXRotation{"X Rotation (radians):"};
    TextBoxState Text2;
    LabelState lblYRotation{"Y Rotation (radians):"};
    TextBoxState Text3;
    LabelState lblOffset{"Workplane Offset:"};
    TextBoxState Text5;
    LabelState lblColor{"Workplane Color:"};
    SwatchState picWPColor;
    ButtonState Command1{"Select"};
    ButtonState mnuAccept{"&Accept"};
    ButtonState mnuCancel{"&Cancel"};

    // Select: the colour chooser; a cancelled chooser keeps the swatch's colour.
    void Command1_Click();
    // The first field that fails its check is reported, emptied and focused, and the
    // dialog stays open; when all pass, apply gets the values and the dialog closes.
    void mnuAccept_Click();
    void mnuCancel_Click();

protected:
    explicit WorkPlaneDialog(ColorChooser& colors);

    // The plane's new geometry and colour, once every field has passed its check.
    virtual void apply(float size, float xRotation, float yRotation, float offset,
                       int32_t color) = 0;

private:
    ColorChooser& colors_;
};
