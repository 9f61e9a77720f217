#include "interaction/ClickHandleNavigation.h"

std::optional<viewInfo> ClickHandleNavigation::handleMouseMoveLeftClick(MouseEventArgs& args) {
    if (!args.viewSpecs) {
        return std::nullopt;
    }
    ViewSpecs specs = args.viewSpecs->getSpecs();
    const int32_t dx = args.mouseX - specs.anchorX;
    const int32_t dy = args.mouseY - specs.anchorY;
    drag(specs, args.MouseSensivity, dx, dy);
    args.viewSpecs->setSpecs(specs);
    return args.viewSpecs;
}

std::optional<viewInfo> ClickHandleNavigation::handleLeftClick(MouseEventArgs& args) {
    return args.viewSpecs;
}

std::optional<viewInfo> ClickHandleNavigation::handleRightClick(MouseEventArgs& args) {
    return args.viewSpecs;
}

std::optional<viewInfo> ClickHandleNavigation::handleMiddleClick(MouseEventArgs& args) {
    return args.viewSpecs;
}

std::optional<viewInfo> ClickHandleNavigation::handleMouseMove(MouseEventArgs& args) {
    return args.viewSpecs;
}
