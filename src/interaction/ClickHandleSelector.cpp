#include "interaction/ClickHandleSelector.h"

#include "render/KorvanOpsConsts.h"

std::optional<viewInfo> ClickHandleSelector::handleMouseMoveLeftClick(MouseEventArgs& args) {
    return args.viewSpecs;
}

std::optional<viewInfo> ClickHandleSelector::handleRightClick(MouseEventArgs& args) {
    return args.viewSpecs;
}

std::optional<viewInfo> ClickHandleSelector::handleMiddleClick(MouseEventArgs& args) {
    return args.viewSpecs;
}

std::optional<viewInfo> ClickHandleSelector::handleMouseMove(MouseEventArgs& args) {
    return args.viewSpecs;
}

Matrix4 ClickHandleSelector::fullMatrix(const MouseEventArgs& args) {
    return KorvanOpsConsts::getFullViewMatrix(args.messageSender, args.viewSpecs->getSpecs());
}
