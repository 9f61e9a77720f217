#include "app/frmMouseSensivity.h"

#include "app/MouseSensivityTarget.h"
#include "geometry/NumberText.h"
#include "geometry/Rounding.h"
#include "platform/Prompts.h"

frmMouseSensivity::frmMouseSensivity() {
    addControl("HScroll1", HScroll1, [this] { HScroll1_Change(); });
    addControl("lblSens", lblSens);
    addControl("lblDull", lblDull);
    addControl("lblNervous", lblNervous);
    addControl("mnuAccept", mnuAccept, [this] { mnuAccept_Click(); });
    addControl("mnuCancel", mnuCancel, [this] { mnuCancel_Click(); });
    Form_Load();
}

void frmMouseSensivity::Form_Load() {
    HScroll1.Min = 1000;
    HScroll1.Max = 1;
    // An arrow moves the percentage shown by 1, the trough by 10.
    HScroll1.SmallChange = 10;
    HScroll1.LargeChange = 100;
    // A bar starts at its left end until the caller shows a sensitivity.
    HScroll1.Value = HScroll1.Min;
}

void frmMouseSensivity::setSensivityDisplayValue(float Sensivity) {
    HScroll1.Value = HScroll1.clamped(Rounding::toInt32(1.0f / Sensivity));
    // Also when the thumb stays where it was (0.001 leaves it at the left end): the label
    // still reads "Sensivity:" until it is first given a value.
    HScroll1_Change();
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
    close();
}

void frmMouseSensivity::mnuCancel_Click() {
    close();
}
