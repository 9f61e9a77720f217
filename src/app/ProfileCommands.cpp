#include "app/ProfileCommands.h"

#include "app/SceneDocument.h"
#include "app/SelectionState.h"
#include "geometry/M3Ops.h"
#include "geometry/Pi.h"
#include "geometry/Vector3D.h"
#include "platform/Prompts.h"
#include "scene/Profile.h"
#include "scene/WorkPlane.h"

void ProfileCommands::addProfilePoint(PointRecord r) {
    if (!document.currentProfile) {
        return;
    }
    const auto& workPlanes = selection.selectedWorkplanes;
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
    // The workplane lies offset along its normal; its points are moved by that vector.
    const WorkPlane& wp = *workPlanes.front();
    Vector3D offset;
    offset.initializeAmpThetaPhi(wp.getOffset(),
                                 static_cast<float>(wp.getYRotation() + Pi::pi14 / 2),
                                 static_cast<float>(wp.getXRotation() + Pi::pi14));
    Matrix4 shift;
    M3Ops::setTranslation(shift, offset.getX(), offset.getY(), offset.getZ());
    r.trans = Point4{};
    M3Ops::transformPoint(r.coord, shift, r.trans);
    r.coord = r.trans;
    document.currentProfile->addPointRecord(r);
}

bool ProfileCommands::closeProfile() {
    if (!document.currentProfile) {
        showMessage("No profiles have been created that can be closed.  First create a "
                    "workplane, then create a profile on that workplane.  Only then is the "
                    "profile closable",
                    "Error Closing Profile", MessageIcon::None);
    }
    return false;
}
