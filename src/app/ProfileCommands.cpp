#include "app/ProfileCommands.h"

#include "app/EditorPort.h"
#include "app/ListChange.h"
#include "app/MainMenu.h"
#include "app/SceneDocument.h"
#include "app/SceneTreeModel.h"
#include "app/SelectionState.h"
#include "app/StatusText.h"
#include "app/UndoHistory.h"
#include "app/ViewportSet.h"
#include "geometry/M3Ops.h"
#include "geometry/Pi.h"
#include "geometry/Vector3D.h"
#include "interaction/ClickHandleProfile.h"
#include "modelling/frmOrientation.h"
#include "platform/ModalHost.h"
#include "platform/Prompts.h"
#include "scene/COrientation.h"
#include "scene/Orientation2D.h"
#include "scene/Profile.h"
#include "scene/WorkPlane.h"

#include <algorithm>
#include <any>
#include <string>
#include <vector>

void ProfileCommands::bind(MainMenu& menus) {
    for (const char* name : {"mnuCreateProfile", "mnuPopupProfile"}) {
        menus.bind(name, [this] { startProfile(); });
    }
    menus.bind("mnuCloseProfile", [this] { closeProfile(); });
    menus.bind("mnuRedrawProfile", [this] { redrawProfile(); });
    menus.bind("mnuCancelProfile", [this] { cancelProfile(); });
}

void ProfileCommands::startProfile() {
    editor_.setMouseMode(std::make_unique<ClickHandleProfile>());
    createProfile();
}

void ProfileCommands::createProfile() {
    const auto& workPlanes = selection_.selectedWorkplanes;
    if (workPlanes.size() > 1) {
        showMessage("Only one workplane can be selected for use in profile creation.  Please "
                    "reselect one workplane to continue.",
                    "Cannot create profile", MessageIcon::Information);
        return;
    }
    if (workPlanes.empty()) {
        showMessage("No workplane was selected for profile creation.  Please select a workplane "
                    "by using the workplane selector.",
                    "Cannot create profile", MessageIcon::Information);
        return;
    }
    const WorkPlane& wp = *workPlanes.front();
    auto profile = std::make_shared<Profile>();
    document_.profiles.push_back(profile);
    setCurrentProfile(profile);
    // The fourth viewport looks along the workplane's normal while the profile is drawn.
    ViewSpecs& eye = viewports_.viewSpecs(4);
    eye.EyePhi = wp.getXRotation();
    eye.EyeTheta = static_cast<float>(wp.getYRotation() + 1.570796326794895);
    editor_.redrawAllViewports();
}

void ProfileCommands::setCurrentProfile(const std::shared_ptr<Profile>& profile) {
    document_.currentProfile = profile;
}

void ProfileCommands::addProfilePoint(const PointRecord& clicked) {
    if (!document_.currentProfile) {
        return;
    }
    const auto& workPlanes = selection_.selectedWorkplanes;
    if (workPlanes.size() != 1) {
        showMessage(workPlanes.empty()
                        ? "Cannot add profile point since no workplanes were selected.  Please "
                          "select a workplane using the workplane selector and proceed with "
                          "profile creation."
                        : "Cannot add profile point since more than one workplane are currently "
                          "selected.  Make sure that only one workplane is selected, then "
                          "proceed with profile creation.",
                    "Cannot add profile point", MessageIcon::Information);
        return;
    }
    document_.currentProfile->addPointRecord(onWorkplane(*workPlanes.front(), clicked));
}

void ProfileCommands::pointerMoved(const PointRecord& seen) {
    const auto& workPlanes = selection_.selectedWorkplanes;
    if (workPlanes.size() != 1) {
        editor_.showPointerPosition("");
        return;
    }
    const Point4 at = onWorkplane(*workPlanes.front(), seen).coord;
    editor_.showPointerPosition(StatusText::pointerPosition(at.x, at.y, at.z));
}

PointRecord ProfileCommands::onWorkplane(const WorkPlane& wp, const PointRecord& clicked) {
    // The workplane lies offset along its normal; its points are moved by that vector.
    Vector3D offset;
    offset.initializeAmpThetaPhi(wp.getOffset(),
                                 static_cast<float>(wp.getYRotation() + Pi::pi14 / 2),
                                 static_cast<float>(wp.getXRotation() + Pi::pi14));
    Matrix4 shift;
    M3Ops::setTranslation(shift, offset.getX(), offset.getY(), offset.getZ());
    PointRecord r = clicked;
    r.trans = Point4{};
    M3Ops::transformPoint(r.coord, shift, r.trans);
    r.coord = r.trans;
    return r;
}

bool ProfileCommands::closeProfile() {
    const auto profile = document_.currentProfile;
    if (!profile) {
        showMessage("No profiles have been created that can be closed.  First create a "
                    "workplane, then create a profile on that workplane.  Only then is the "
                    "profile closable",
                    "Error Closing Profile", MessageIcon::None);
        return false;
    }
    if (profile->getPointCount() < 2) {
        return false;
    }
    // A profile closed before (C pressed twice) is a step already.
    const bool closedBefore = profile->getCPoint(profile->getPointCount()) == profile->getCPoint(1);
    // The same point object again, so that the outline ends exactly where it began.
    profile->addCPoint(profile->getCPoint(1));

    // The profile tool's guess; another mode has none to offer.
    std::vector<std::any> datum;
    std::vector<std::any> castGuide;
    editor_.getMouseMode().getData(datum, castGuide);
    COrientation guess;
    guess.setOrientation(Orientation2D::Unknown);
    if (!datum.empty()) {
        if (const auto* reported = std::any_cast<COrientation>(&datum.front())) {
            guess = *reported;
        }
    }
    frmOrientation dialog;
    dialog.initialize(guess);
    dialogs_.showModal(dialog);

    if (dialog.hasConfirmed() &&
        dialog.getOrientation().getOrientation() == Orientation2D::CounterClockWise) {
        profile->changeOrientation(); // profiles are kept clockwise
    }
    // A profile closed again (C pressed twice) keeps one node; the node is made after the
    // profile is turned, so that it lists the points as they are stored.
    if (const std::string key = tree_.keyOf(profile); !key.empty()) {
        tree_.removeNode(key);
    }
    tree_.addProfileNode(profile, "Profile");
    if (!dialog.hasConfirmed()) {
        // Node and list place are both looked up by the profile, not taken from the list's
        // length: after Open the tree holds no nodes of the profiles drawn before it, so the
        // last list place would name another profile's node, or none.
        tree_.removeNode(tree_.keyOf(profile));
        document_.removeProfile(listPlace(profile));
        editor_.redrawAllViewports();
    } else if (!closedBefore) {
        // The points clicked since the profile was started join the document in this step.
        editor_.history().push(
            "Close Profile",
            ListChange<Profile>::inserted(profile, static_cast<size_t>(listPlace(profile))));
    }
    editor_.setMouseMode(std::make_unique<ClickHandleNothing>());
    return false;
}

bool ProfileCommands::hasProfileFor(const char* refusal) const {
    if (document_.profiles.empty() || !document_.currentProfile) {
        showMessage(refusal, "Error redrawing profile", MessageIcon::None);
        return false;
    }
    return true;
}

bool ProfileCommands::confirmed(const char* question, const char* title) const {
    return activePrompts().messageBox(question, title, MessageIcon::None,
                                      MessageButtons::YesNoDefaultNo) == MessageAnswer::Yes;
}

int32_t ProfileCommands::listPlace(const std::shared_ptr<Profile>& profile) const {
    const auto& profiles = document_.profiles;
    const auto found = std::find(profiles.begin(), profiles.end(), profile);
    return found == profiles.end() ? 0 : static_cast<int32_t>(found - profiles.begin() + 1);
}

void ProfileCommands::removeLastProfile(const char* step) {
    const auto last = document_.profiles.back();
    // A profile still being drawn has no node, nor has one drawn before an Open.
    if (const std::string key = tree_.keyOf(last); !key.empty()) {
        tree_.removeNode(key);
    }
    editor_.history().push(step, ListChange<Profile>::remove(document_, document_.profiles.size()));
}

void ProfileCommands::redrawProfile() {
    if (!hasProfileFor("Error, no profiles found to redraw.") ||
        !confirmed("Are you sure you want to redraw your profile?", "Redrawing Profile")) {
        return;
    }
    removeLastProfile("Redraw Profile");
    startProfile();
}

void ProfileCommands::cancelProfile() {
    if (!hasProfileFor("Error, no profiles found to cancel.") ||
        !confirmed("Are you sure you want to cancel your profile?", "Canceling Profile")) {
        return;
    }
    removeLastProfile("Cancel Profile");
    editor_.setMouseMode(std::make_unique<ClickHandleNothing>());
}
