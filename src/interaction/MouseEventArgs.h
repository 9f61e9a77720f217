#pragma once

#include "render/viewInfo.h"

#include <cstdint>
#include <memory>
#include <vector>

class Canvas;
class ClickReceiver;
class Profile;
class Transformed3d;
class WorkPlane;

// The arguments every mouse-mode operation receives: the canvas that got the event, the
// window to call back, the mouse position in canvas pixels, the sensitivity, a private
// copy of that canvas's view record, and the document's collections.
struct MouseEventArgs {
    Canvas& messageSender;
    ClickReceiver& messageReceiver;
    int32_t mouseX;
    int32_t mouseY;
    float MouseSensivity;
    viewInfo& viewSpecs;
    std::vector<std::shared_ptr<Transformed3d>>& solids;
    std::vector<std::shared_ptr<WorkPlane>>& workPlanes;
    std::vector<std::shared_ptr<Profile>>& profiles;
};
