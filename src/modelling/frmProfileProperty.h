#pragma once

#include "geometry/Point4.h"
#include "platform/ModalDialog.h"
#include "scene/Profile.h"

#include <memory>
#include <optional>
#include <string>

// Edits a profile's points: add, change, remove and reorder them, reverse the profile and
// hide it. The buttons work on a list that shares its point objects with the profile, so
// Add, Remove, Up and Down reach the profile only on Accept, while Modify changes a shared
// point at once, and stays changed after Cancel. The Qt view (qt/frmProfilePropertyView)
// shows it.
//
// Usage: initialize with the profile, then show the dialog modally.
class frmProfileProperty : public ModalDialog {
public:
    LabelState Label4{"Point Indices:"};
    ListState listPointIndex;
    ButtonState cmdAdd{"Add"};
    ButtonState cmdModify{"Modify"};
    ButtonState cmdRemove{"Remove"};
    ButtonState cmdUp{"Up"};
    ButtonState cmdDown{"Down"};
    CheckBoxState chkSwitchOrientation{"Switch Orientation"};
    CheckBoxState chkVisible{"Visible"};
    ButtonState mnuAccept{"&Accept"};
    ButtonState mnuCancel{"&Cancel"};

    frmProfileProperty();

    std::string caption() const override { return "Profile Properties"; }

    void initialize(const std::shared_ptr<Profile>& editedProfile);

    // Modify, Remove, Up and Down act on the selected line and do nothing without one.
    void cmdAdd_Click();
    void cmdModify_Click();
    void cmdRemove_Click();
    // The first point moves up to the end, the last one down to the start.
    void cmdUp_Click();
    void cmdDown_Click();
    void mnuAccept_Click();
    void mnuCancel_Click();

private:
    // Asks for x, y and z in turn; nothing when the user gives up on one of them.
    static std::optional<Point4> enterPoint(const Point4& defaults);
    // Lists the working points, with the line of the given point index selected (-1: none).
    void fillList(int selected);

    std::shared_ptr<Profile> profile;
    CPointList points;
};
