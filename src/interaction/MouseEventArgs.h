#pragma once

#include "render/viewInfo.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class Canvas;
class ClickReceiver;
class Profile;
class Transformed3d;
class TreeDisplay;
class WorkPlane;

// The ten arguments every mouse-mode operation receives: the canvas that got the event, the
// window to call back, the mouse position in canvas pixels, the sensitivity, a private
// copy of that canvas's view record (or none, when an earlier handler of the same event
// returned none), the document's collections and the scene tree.
struct MouseEventArgs {
    Canvas& messageSender;
    ClickReceiver& messageReceiver;
    int32_t mouseX;
    int32_t mouseY;
    float MouseSensivity;
    std::optional<viewInfo>& viewSpecs;
    std::vector<std::shared_ptr<Transformed3d>>& solids;
    std::vector<std::shared_ptr<WorkPlane>>& workPlanes;
    std::vector<std::shared_ptr<Profile>>& profiles;
    TreeDisplay& treeDisplay;
};
