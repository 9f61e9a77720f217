#pragma once

#include "geometry/Point4.h"
#include "geometry/Vector3D.h"
#include "modelling/SurfaceGroup.h"
#include "platform/ModalDialog.h"
#include "scene/Vector3DDrawer.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

class ColorChooser;
class ExtrusionPreviewTarget;
class ModalHost;
class Profile;
class Transformed3d;

// The extrusion dialog's logic: sweeps one closed profile along its normal in equal
// subdivisions, with optional per-step translations, rotations and scalings, into a new
// scene object with the chosen surface coefficients. The Qt view (qt/frmExtrudeView) shows
// it.
//
// Usage: initialize(profile), show the dialog modally, then getExtrusion().
class frmExtrude : public ModalDialog {
public:
    LabelState fraExtrusionLength{"Extrusion Length"};
    TextBoxState txtExtrusionLength{"1"};
    LabelState fraIncrements{"Subdivisions"};
    TextBoxState txtIncrements{"1"};
    LabelState fraOrientation{"Orientation"};
    // Registered as optExtrude(0) to optExtrude(2).
    std::array<OptionState, 3> optExtrude{{{"In", true}, {"Out"}, {"Split"}}};
    CheckBoxState chkCapEnds{.Caption = "Cap Ends", .Value = true};

    LabelState fraTransformations{"Additional Transformations"};
    ListState List1;
    ButtonState cmdAddTrans{"Add"};
    ButtonState cmdRemoveTrans{"Remove"};
    ButtonState cmdMoveUpTrans{"Up"};
    ButtonState cmdMoveDownTrans{"Down"};

    LabelState fraSurface{"Surface Properties:"};
    SurfaceGroup surface;

    ButtonState mnuExtrude{"&Extrude"};
    ButtonState mnuCancel{"&Cancel"};
    ButtonState mnuPreview{"&Preview"};

    // The picker of the Add button is shown through dialogs; colors is the colour chooser
    // of the Select buttons; Preview draws into the viewports of preview.
    frmExtrude(ModalHost& dialogs, ColorChooser& colors, ExtrusionPreviewTarget& preview);

    std::string caption() const override { return "Extrude"; }

    // The most points, and the most faces, an extrusion may have. A swept point and a face
    // together take about 430 bytes while the extrusion is made (point records, face
    // objects and their corner lists, the sweep's working copies), so the largest extrusion
    // needs about 4 GB, which an ordinary machine holds; larger ones are refused before
    // anything is made (the sweep's 32-bit point numbers would also run out at 2^31).
    static constexpr int64_t maxPointsOrFaces = 10'000'000;

    // Takes the profile and computes its unit normal; a missing profile or one without a
    // normal is reported and closes the dialog.
    void initialize(const std::shared_ptr<Profile>& profile);
    // The new scene object, or nullptr when the dialog was cancelled or failed.
    std::shared_ptr<Transformed3d> getExtrusion() const { return result_; }
    const Vector3D& getNormal() const { return normal_; }

    void mnuExtrude_Click();
    void mnuCancel_Click();
    void mnuPreview_Click();
    void optExtrude_Click(size_t Index);
    void cmdAddTrans_Click();
    void cmdRemoveTrans_Click();
    void cmdMoveUpTrans_Click();
    void cmdMoveDownTrans_Click();

private:
    void Form_Load();
    // Reports bad input in a text box, which is emptied and focused.
    void refuse(TextBoxState& box, const std::string& message);
    // The profile's points as the sweep takes them for the extrusion vector E.
    std::vector<Point4> sweptCurve(const Vector3D& E) const;
    bool hasSelectedEntry() const;
    // Moves the selected entry step places, the ends wrapping round; it stays selected.
    void moveSelectedEntry(int step);

    ModalHost& dialogs_;
    ExtrusionPreviewTarget& preview_;
    Vector3DDrawer arrow_;
    std::shared_ptr<Profile> profile_;
    Vector3D normal_;
    std::shared_ptr<Transformed3d> result_;
};
