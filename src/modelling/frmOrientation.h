#pragma once

#include "platform/ModalDialog.h"
#include "scene/COrientation.h"

#include <cstdint>
#include <string>

// Asks the user to confirm which way a just-closed profile runs, showing the profile tool's
// guess. The Qt view (qt/frmOrientationView) shows it.
//
// Usage: initialize with the guess, show the dialog modally; when hasConfirmed, read
// getOrientation (1 clockwise, 2 counter-clockwise).
class frmOrientation : public ModalDialog {
public:
    LabelState Label1{"Guessed Orientation:"};
    LabelState lblGuessOrientation{"Unknown"};
    LabelState Frame1{"Confirm Orientation"};
    OptionState optCW{"Clockwise"};
    OptionState optCCW{"Counter-Clockwise"};
    ButtonState mnuConfirm{"&Confirm"};
    ButtonState mnuCancel{"&Cancel"};

    frmOrientation();

    std::string caption() const override { return "Confirm Orientation"; }

    // Shows the guess and preselects its option; an unknown guess (-1) selects none, and a
    // code that is no orientation changes nothing.
    void initialize(const COrientation& orientation);
    bool hasConfirmed() const { return confirmed; }
    // The confirmed choice, or -1 when the user did not confirm.
    COrientation getOrientation() const;

    void optCW_Click() { optCCW.Value = false; }
    void optCCW_Click() { optCW.Value = false; }
    // Refused with a message while neither option is chosen.
    void mnuConfirm_Click();
    void mnuCancel_Click();

private:
    bool confirmed = false;
    // Set only by a valid Confirm, so that anything else reads as no confirmed orientation.
    int32_t choice = -1;
};
