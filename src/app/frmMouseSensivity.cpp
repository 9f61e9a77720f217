#include "app/frmMouseSensivity.h"

#include "app/frmTolvane.h"
#include "geometry/NumberText.h"
#include "geometry/Rounding.h"
#include "platform/Prompts.h"

frmMouseSensivity::frmMouseSensivity() {
    Form_Load();
}

void frmMouseSensivity::Form_Load() {
    HScroll1.Min = 1000;
    HScroll1.Max = 1;
    // A bar starts at its left end until the caller shows a sensitivity.
    HScroll1.Value = HScroll1.Min;
}

void frmMouseSensivity::setSensivityDisplayValue(float Sensivity) {
    const int value = HScroll1.clamped(Rounding::toInt32(1.0f / Sensivity));
    // Like the control, the label follows only when the value really changes.
    if (value != HScroll1.Value) {
        HScroll1.Value = value;
        HScroll1_Change();
    }
}

void frmMouseSensivity::HScroll1_Change() {
    const double percent = (1.0 - HScroll1.Value / 1000.0) * 100.0;
    lblSens.Caption = "Sensivity: " + NumberText::single(static_cast<float>(percent)) + "%";
}

void frmMouseSensivity::mnuAccept_Click() {
    const float Sensivity = 1.0f / static_cast<float>(HScroll1.Value);
    if (callBackForm_ != nullptr) {
        callBackForm_->setMouseSensivity(Sensivity);
    } else {
        showMessage("Unable to callback Form to set the Mouse Sensivity!",
                    "Error Passing Mouse Sensivity Message", MessageIcon::Exclamation);
    }
    closed_ = true;
}

void frmMouseSensivity::mnuCancel_Click() {
    closed_ = true;
}
