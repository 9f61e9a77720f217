#pragma once

#include "platform/ModalDialog.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class CPoint3D;
class ColorChooser;
class Face3d;
class ModalHost;

// Edits one face: its ambient and diffuse colours, specular coefficient and exponent, its
// point indices and its orientation. Everything is edited on copies and reaches the face
// only on Accept. The Qt view (qt/frmFacePropertyView) shows it.
//
// Swatch channels are coefficients x 256, so a coefficient of 1 comes back as 255/256.
// The exponent bar runs to 100: a larger exponent shows as 100 (its label gives the true
// value) and is kept unless the user moves the bar.
//
// Usage: initialize(face), then show the dialog modally.
class frmFaceProperty : public ModalDialog {
public:
    LabelState lblAmbColor{"Ambient Color:"};
    SwatchState picAmbColor;
    ButtonState cmdColorSelect{"Select"};
    LabelState lblDifColor{"Diffuse Color:"};
    SwatchState picDifColor;
    ButtonState Command1{"Select"};
    LabelState fraSpecular{"Specular:"};
    LabelState lblCoefficient{"Coefficient:"};
    LabelState lblLeast{"Least:"};
    ScrollBarState HScrollSpecK;
    LabelState lblMost{"Most"};
    LabelState lblReflection;
    LabelState lblNormal{"Normal:"};
    ScrollBarState HScrollSpecN;
    LabelState lblIntensity;
    LabelState lblPointIndices{"Point Indices:"};
    ListState listPointIndex;
    ButtonState cmdAddIndex{"Add"};
    ButtonState cmdModifyIndex{"Modify"};
    ButtonState cmdRemoveIndex{"Remove"};
    CheckBoxState OrientSwitch{"Switch Orientation"};
    ButtonState mnuAccept{"&Accept"};
    ButtonState mnuCancel{"&Cancel"};

    // The point picker is shown through dialogs; colors serves the Select buttons.
    frmFaceProperty(ModalHost& dialogs, ColorChooser& colors);

    std::string caption() const override { return "Face Properties"; }

    // Fills the dialog from the face; without a face the dialog closes at once.
    void initialize(const std::shared_ptr<Face3d>& face);

    void cmdColorSelect_Click();
    void Command1_Click();
    void HScrollSpecK_Change();
    void HScrollSpecN_Change();
    // Add, Modify and Remove act on the selected line and do nothing without one.
    void cmdAddIndex_Click();
    void cmdModifyIndex_Click();
    void cmdRemoveIndex_Click();
    void mnuAccept_Click();
    void mnuCancel_Click();

private:
    // The point the user picks, preselecting point goToPointIndex; nothing when cancelled.
    std::optional<int32_t> pickPoint(int32_t goToPointIndex);
    // Lists the edited indices with the given line selected (-1: none).
    void fillList(int selected);

    ModalHost& dialogs_;
    ColorChooser& colors_;
    std::shared_ptr<Face3d> face_;
    std::vector<std::shared_ptr<CPoint3D>> points_;
    std::vector<int32_t> indices_;
    bool exponentMoved_ = false;
};
