#pragma once

#include "geometry/PointRecord.h"
#include "interaction/ProfileReceiver.h"

#include <cstdint>
#include <memory>

class EditorPort;
class MainMenu;
class ModalHost;
class Profile;
class SceneTreeModel;
class SelectionState;
class ViewportSet;
class WorkPlane;
struct SceneDocument;

// The commands of the profile being drawn on the one selected workplane: starting it,
// its points, closing it with a confirmed orientation, drawing it again and cancelling it.
// The current profile is always the document's last profile; when it leaves the document
// (cancelled, drawn again, removed from the tree, a new document) it is forgotten, so a
// command never closes or removes a profile that is no longer there. The profile tool hands
// its points and its close here.
class ProfileCommands : public ProfileReceiver {
public:
    ProfileCommands(EditorPort& editor, SceneDocument& document, const SelectionState& selection,
                    SceneTreeModel& tree, ViewportSet& viewports, ModalHost& dialogs)
        : editor_(editor), document_(document), selection_(selection), tree_(tree),
          viewports_(viewports), dialogs_(dialogs) {}

    // Makes the Create menu's and the pop-up's "&Profile" and the Profile menu run these.
    void bind(MainMenu& menus);

    // Installs the profile tool, then createProfile; the tool stays when that refuses.
    void startProfile();
    // A new, empty current profile on the one selected workplane; the fourth viewport's eye
    // is turned by the workplane's rotations so that it looks at the plane. Refused with a
    // message without exactly one selected workplane.
    void createProfile();
    void setCurrentProfile(const std::shared_ptr<Profile>& profile);
    // Moves a clicked point by the selected workplane's offset vector and appends it to the
    // current profile; without exactly one selected workplane it says why and adds nothing.
    void addProfilePoint(const PointRecord& clicked) override;
    // Shows where a click would put the point, with exactly one selected workplane.
    void pointerMoved(const PointRecord& seen) override;
    // Always false. Ends the profile where it began, has the user confirm which way it runs
    // (stored clockwise), and gives it its tree node; when the user cancels, the profile is
    // removed again. A confirmed first close is the step that adds the profile to the
    // history; starting it and clicking its points are not steps of their own. Without a current
    // profile it says that nothing can be closed; one of fewer than two points stays open.
    bool closeProfile() override;
    // After a Yes, the current profile is removed and a new one started in its place.
    void redrawProfile();
    // After a Yes, the current profile is removed and the profile tool put away.
    void cancelProfile();

private:
    // The clicked point moved by the workplane's offset vector.
    static PointRecord onWorkplane(const WorkPlane& wp, const PointRecord& clicked);
    // Whether there is a profile to work on; otherwise says so, with the title both
    // commands share.
    bool hasProfileFor(const char* refusal) const;
    bool confirmed(const char* question, const char* title) const;
    // The profile's 1-based place in the document's list, 0 when it is not there.
    int32_t listPlace(const std::shared_ptr<Profile>& profile) const;
    // Removes the last profile and its tree node, if it has one, as the step named.
    void removeLastProfile(const char* step);

    EditorPort& editor_;
    SceneDocument& document_;
    const SelectionState& selection_;
    SceneTreeModel& tree_;
    ViewportSet& viewports_;
    ModalHost& dialogs_;
};
