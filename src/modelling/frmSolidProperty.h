#pragma once

#include "platform/ModalDialog.h"

#include <memory>
#include <string>

class ColorChooser;
class Transformed3d;

// Sets surface properties on every face of a scene object, group by group: only the groups
// whose check box is ticked are written, on Accept; Switch Orientation reverses every face.
// A group's controls are enabled exactly while its box is ticked. Nothing is read from the
// object, so the swatches start mid grey (128, 128, 128), which writes 0.5 per channel when
// a group is ticked without choosing a colour. The Qt view (qt/frmSolidPropertyView) shows
// it.
//
// Usage: initialize(object), then show the dialog modally.
class frmSolidProperty : public ModalDialog {
public:
    CheckBoxState useAmbient{.Caption = "Use Ambient"};
    LabelState lblAmbColor{"Ambient Color:"};
    SwatchState picAmbColor;
    ButtonState cmdColorSelect{"Select"};
    CheckBoxState useDiffuse{.Caption = "Use Diffuse"};
    LabelState lblDifColor{"Diffuse Color:"};
    SwatchState picDifColor;
    ButtonState cmdColorSelect2{"Select"};
    CheckBoxState UseSpecularK{.Caption = "Use Specular Coefficient"};
    LabelState lblReflectionLeast{"Least:"};
    LabelState lblReflection;
    LabelState lblReflectionMost{"Most"};
    ScrollBarState HScrollSpecK;
    CheckBoxState useSpecularN{.Caption = "Use Specular Intensity"};
    LabelState lblIntensityLeast{"Least:"};
    LabelState lblIntensity;
    LabelState lblIntensityMost{"Most"};
    ScrollBarState HScrollSpecN;
    CheckBoxState OrientSwitch{.Caption = "Switch Orientation"};
    ButtonState mnuAccept{"&Accept"};
    ButtonState mnuCancel{"&Cancel"};

    // colors serves the Select buttons.
    explicit frmSolidProperty(ColorChooser& colors);

    std::string caption() const override { return "Solid Properties"; }

    // Remembers the object to write to on Accept; without one the dialog closes at once.
    void initialize(const std::shared_ptr<Transformed3d>& object);

    void cmdColorSelect_Click();
    void cmdColorSelect2_Click();
    void HScrollSpecK_Change();
    void HScrollSpecN_Change();
    void mnuAccept_Click();
    void mnuCancel_Click();

private:
    void updateEnabled();

    ColorChooser& colors_;
    std::shared_ptr<Transformed3d> object_;
};
