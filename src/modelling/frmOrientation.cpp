#include "modelling/frmOrientation.h"

#include "platform/Prompts.h"

frmOrientation::frmOrientation() {
    addControl("Label1", Label1);
    addControl("lblGuessOrientation", lblGuessOrientation);
    addControl("Frame1", Frame1);
    addControl("optCW", optCW, [this] { optCW_Click(); });
    addControl("optCCW", optCCW, [this] { optCCW_Click(); });
    addControl("mnuConfirm", mnuConfirm, [this] { mnuConfirm_Click(); });
    addControl("mnuCancel", mnuCancel, [this] { mnuCancel_Click(); });
}

void frmOrientation::initialize(const COrientation& orientation) {
    switch (orientation.getOrientation()) {
    case -1:
        lblGuessOrientation.Caption = "Unknown";
        optCW.Value = false;
        optCCW.Value = false;
        break;
    case 1:
        lblGuessOrientation.Caption = optCW.Caption;
        optCW.Value = true;
        optCCW.Value = false;
        break;
    case 2:
        lblGuessOrientation.Caption = optCCW.Caption;
        optCW.Value = false;
        optCCW.Value = true;
        break;
    default:
        break;
    }
}

COrientation frmOrientation::getOrientation() const {
    COrientation result;
    result.setOrientation(choice);
    return result;
}

void frmOrientation::mnuConfirm_Click() {
    if (!optCW.Value && !optCCW.Value) {
        showMessage("Please select a profile orientation.", "No selected orientation",
                    MessageIcon::Information);
        return;
    }
    choice = optCW.Value ? 1 : 2;
    confirmed = true;
    close();
}

void frmOrientation::mnuCancel_Click() {
    close();
}
