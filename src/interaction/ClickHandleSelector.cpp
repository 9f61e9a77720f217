#include "interaction/ClickHandleSelector.h"

#include "render/KorvanOpsConsts.h"
#include "scene/Transformed3d.h"

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

void ClickHandleSelector::projectForClick(Transformed3d& object, const MouseEventArgs& args,
                                          const Matrix4& full) {
    float ex;
    float ey;
    float ez;
    KorvanOpsConsts::getEyePosition(args.viewSpecs->getSpecs(), ex, ey, ez);
    object.Culled(false);
    object.cull(ex, ey, ez);
    object.ApplyFull(full);
}
