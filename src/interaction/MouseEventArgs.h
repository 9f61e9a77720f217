#pragma once

#include "render/viewInfo.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class Canvas;
class Profile;
class ProfileReceiver;
class SelectionReceiver;
class Transformed3d;
class TreeDisplay;
class WorkPlane;

// The arguments every mouse-mode operation receives: the canvas that got the event, the
// selection that selectors hand their hits to, the profile commands that the profile tool
// hands its points to, the mouse position in canvas pixels, the sensitivity, a private
// copy of that canvas's view record (or none, when an earlier handler of the same event
// returned none), the document's collections and the scene tree.
struct MouseEventArgs {
    Canvas& messageSender;
    SelectionReceiver& selection;
    ProfileReceiver& profileTool;
    int32_t mouseX;
    int32_t mouseY;
    float MouseSensivity;
    std::optional<viewInfo>& viewSpecs;
    std::vector<std::shared_ptr<Transformed3d>>& solids;
    std::vector<std::shared_ptr<WorkPlane>>& workPlanes;
    std::vector<std::shared_ptr<Profile>>& profiles;
    TreeDisplay& treeDisplay;
};
