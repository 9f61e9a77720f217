#pragma once

#include "platform/ModalDialog.h"

#include <string>

// The picker of one additional per-step transformation of an extrusion: the user chooses
// Translate, Rotate or Scale and answers three input boxes, and the picker builds the list
// entry, for example Rotate(0,0.5,0). What the user types is taken as it is; the extrusion
// checks the values. The Qt view (qt/frmAdditionalExtrusionsView) shows it.
class frmAdditionalExtrusions : public ModalDialog {
public:
    ListState List1; // "Translate", "Rotate", "Scale"
    ButtonState mnuSelect{"&Select"};
    ButtonState mnuCancel{"&Cancel"};

    frmAdditionalExtrusions();

    std::string caption() const override { return "Additional Extrusions"; }

    // The entry built by the last Select, or "" (cancelled, or no name chosen).
    const std::string& getFunction() const { return function_; }

    void mnuSelect_Click();
    void mnuCancel_Click();

private:
    std::string function_;
};
