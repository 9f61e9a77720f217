#include "app/MouseDispatch.h"

#include "app/SceneDocument.h"
#include "app/SceneTreeModel.h"
#include "app/StatusText.h"
#include "app/ViewportSet.h"
#include "geometry/Rounding.h"
#include "interaction/ClickHandleRotate.h"
#include "platform/Canvas.h"
#include "platform/WindowFrame.h"
#include "render/KorvanOpsConsts.h"

#include <algorithm>

MouseDispatch::MouseDispatch(ViewportSet& viewports, SceneDocument& document, SceneTreeModel& tree,
                             SelectionReceiver& selection, ProfileReceiver& profileTool)
    : viewports_(viewports), document_(document), tree_(tree), selection_(selection),
      profileTool_(profileTool), mode_(std::make_unique<ClickHandleRotate>()) {}

void MouseDispatch::attachFrame(WindowFrame& frame) {
    frame_ = &frame;
    showPointerPosition("");
}

void MouseDispatch::setMouseMode(std::unique_ptr<ClickHandleNothing> mode) {
    mode_ = std::move(mode);
    showPointerPosition("");
}

void MouseDispatch::showPointerPosition(const std::string& position) {
    if (frame_ != nullptr) {
        const std::string hint = StatusText::modeHint(*mode_);
        frame_->showModeHint(position.empty() ? hint : hint + "    " + position);
    }
}

MouseEventArgs MouseDispatch::eventArgs(Canvas& canvas, int32_t x, int32_t y,
                                        std::optional<viewInfo>& view) {
    return MouseEventArgs{
        canvas,           selection_,           profileTool_,       x,    y, sensitivity_, view,
        document_.solids, document_.workPlanes, document_.profiles, tree_};
}

int32_t MouseDispatch::canvasPixel(float coordinate) {
    // No screen is a million pixels across; beyond that a position means nothing more, and
    // differences of positions stay far inside 32 bits.
    constexpr int32_t limit = 1 << 20;
    return std::clamp(Rounding::toInt32(coordinate), -limit, limit);
}

void MouseDispatch::drawOverlay(Canvas& canvas, const ViewSpecs& record) {
    float ex;
    float ey;
    float ez;
    KorvanOpsConsts::getEyePosition(record, ex, ey, ez);
    std::optional<viewInfo> copy{viewInfo{}};
    copy->setSpecs(record);
    MouseEventArgs args = eventArgs(canvas, Rounding::toInt32(ex), Rounding::toInt32(ey), copy);
    mode_->drawDatum(args);
}

bool MouseDispatch::mouseDown(int index, int button, float x, float y) {
    Canvas* canvas = viewports_.canvas(index);
    if (canvas == nullptr) {
        return false;
    }
    ViewSpecs& record = viewports_.viewSpecs(index + 1);
    std::optional<viewInfo> vi{viewInfo{}};
    vi->setSpecs(record);
    MouseEventArgs args = eventArgs(*canvas, canvasPixel(x), canvasPixel(y), vi);
    std::optional<viewInfo> result;
    switch (button) {
    case 1:
        result = mode_->handleLeftClick(args);
        break;
    case 2:
        result = mode_->handleRightClick(args);
        break;
    case 4:
        result = mode_->handleMiddleClick(args);
        break;
    default:
        break; // several buttons at once: no handler
    }
    if (result) {
        record = result->getSpecs();
    }
    if (button == 2) {
        popupViewport_ = index + 1;
        // Shown after the handler's record is stored, so that the chosen command's change to
        // the record stays; it runs before this press redraws.
        if (frame_ != nullptr) {
            frame_->showPopupMenu(*canvas, canvasPixel(x), canvasPixel(y));
        }
    }
    return true;
}

bool MouseDispatch::mouseMove(int index, int button, float x, float y) {
    Canvas* canvas = viewports_.canvas(index);
    if (canvas == nullptr) {
        return false;
    }
    ViewSpecs& record = viewports_.viewSpecs(index + 1);
    const int32_t mouseX = canvasPixel(x);
    const int32_t mouseY = canvasPixel(y);
    std::optional<viewInfo> vi{viewInfo{}};
    vi->setSpecs(record);
    if (button == 1) {
        canvas->setMousePointer(mode_->getMouseIcon());
        MouseEventArgs args = eventArgs(*canvas, mouseX, mouseY, vi);
        // The move handler below gets this result, none included.
        vi = mode_->handleMouseMoveLeftClick(args);
        if (vi) {
            record = vi->getSpecs();
        }
    } else if (button != 2 && button != 4) {
        canvas->setMousePointer(MousePointer::Crosshair);
    }
    record.anchorX = mouseX;
    record.anchorY = mouseY;
    MouseEventArgs args = eventArgs(*canvas, mouseX, mouseY, vi);
    mode_->handleMouseMove(args);
    return true;
}
