#pragma once

#include "platform/ModalDialog.h"

#include <string>

class MouseSensivityTarget;

// The mouse sensitivity dialog's logic. The scroll bar holds the reciprocal of the
// sensitivity, from 1000 ("Dull", sensitivity 0.001) at the left end to 1 ("Nervous",
// sensitivity 1.0) at the right. The Qt view (qt/frmMouseSensivityView) shows it.
//
// Usage: setSensivityDisplayValue, setCallBackForm, then show the dialog modally.
class frmMouseSensivity : public ModalDialog {
public:
    ScrollBarState HScroll1;
    LabelState lblSens{"Sensivity:"};
    LabelState lblDull{"Dull"};
    LabelState lblNervous{"Nervous"};
    ButtonState mnuAccept{"&Accept"};
    ButtonState mnuCancel{"&Cancel"};

    // The dialog loads when it is created, the way a form loads on its first use.
    frmMouseSensivity();

    std::string caption() const override { return "Set Mouse Sensivity"; }

    // Puts the thumb at 1 / Sensivity. A sensitivity beyond the bar's range (or zero,
    // negative, not a number) puts it at the nearer end instead of failing.
    void setSensivityDisplayValue(float Sensivity);
    void setCallBackForm(MouseSensivityTarget* form) { callBackForm_ = form; }

    // After every change of HScroll1.Value, also while the thumb is dragged.
    void HScroll1_Change();
    void mnuAccept_Click();
    void mnuCancel_Click();

private:
    void Form_Load();

    MouseSensivityTarget* callBackForm_ = nullptr;
};
