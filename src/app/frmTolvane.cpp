#include "app/frmTolvane.h"

#include "geometry/Rounding.h"
#include "interaction/ClickHandleRotate.h"
#include "platform/Canvas.h"
#include "render/KorvanOpsConsts.h"

#include <algorithm>

frmTolvane::frmTolvane()
    : document(SceneDocument::startUp()), mouseMode(std::make_unique<ClickHandleRotate>()) {
    // Records 1 to 4: top, side, front and isometric, all in perspective.
    const int views[4] = {KorvanOpsConsts::viewTop, KorvanOpsConsts::viewSide,
                          KorvanOpsConsts::viewFront, KorvanOpsConsts::viewIsometric};
    for (size_t i = 0; i < 4; ++i) {
        viewSpecs[i] = ViewSpecs{};
        KorvanOpsConsts::setOrthoView(views[i], viewSpecs[i]);
    }
}

void frmTolvane::attachCanvases(const std::array<Canvas*, 4>& canvases) {
    picOrtho = canvases;
}

void frmTolvane::Form_Load() {
    redrawAllViewports();
}

void frmTolvane::Form_Resize(int width, int height) {
    clientWidth = width;
    clientHeight = height;
    layoutViewports();
}

void frmTolvane::layoutViewports() {
    const double W = clientWidth - clientWidth / 5.0;
    const double H = std::max(clientHeight, 120);
    const auto px = [](double value) { return Rounding::toInt32(value); };
    const bool attached = std::all_of(picOrtho.begin(), picOrtho.end(),
                                      [](const Canvas* canvas) { return canvas != nullptr; });
    if (attached && viewportLayout == 4) {
        for (Canvas* canvas : picOrtho) {
            canvas->setVisible(true);
        }
        picOrtho[0]->move(0, 0, px(W / 2), px(H / 2));
        picOrtho[1]->move(px(W / 2), 0, px(W / 2), px(H / 2));
        picOrtho[2]->move(0, px(H / 2), px(W / 2), px(H / 2));
        picOrtho[3]->move(px(W / 2), px(H / 2), px(W / 2), px(H / 2));
    } else if (attached && viewportLayout == 1) {
        for (int i = 0; i < 3; ++i) {
            picOrtho[static_cast<size_t>(i)]->setVisible(false);
        }
        picOrtho[3]->setVisible(true);
        for (int i = 0; i < 3; ++i) {
            picOrtho[static_cast<size_t>(i)]->move(0, 0, 0, 0);
        }
        picOrtho[3]->move(0, 0, px(W), px(H));
    }
    treePlacement = ControlPlacement{px(W), 0, px(clientWidth / 5.0), clientHeight};
    redrawAllViewports();
}

void frmTolvane::redrawAllViewports() {
    for (int i = 0; i < 4; ++i) {
        redrawViewport(i);
    }
}

void frmTolvane::redrawViewport(int index) {
    Canvas* canvas = picOrtho[static_cast<size_t>(index)];
    if (canvas == nullptr) {
        return;
    }
    const ViewSpecs& record = specsOf(index);
    renderer.redrawViewport(*canvas, record, document);
    float ex;
    float ey;
    float ez;
    KorvanOpsConsts::getEyePosition(record, ex, ey, ez);
    viewInfo copy;
    copy.setSpecs(record);
    MouseEventArgs args{*canvas,          *this, Rounding::toInt32(ex), Rounding::toInt32(ey),
                        MouseSensivity,   copy,  document.solids,       document.workPlanes,
                        document.profiles};
    mouseMode->drawDatum(args);
    canvas->refresh();
}

std::optional<viewInfo> frmTolvane::getViewInfo(int32_t index) const {
    if (index < 1 || index > 4) {
        return std::nullopt;
    }
    viewInfo info;
    info.setSpecs(viewSpecs[static_cast<size_t>(index - 1)]);
    return info;
}

void frmTolvane::getPicOrthoBounds(int32_t& lower, int32_t& upper) const {
    lower = 0;
    upper = 3;
}

MouseEventArgs frmTolvane::eventArgs(int index, float x, float y, viewInfo& view) {
    return MouseEventArgs{*picOrtho[static_cast<size_t>(index)],
                          *this,
                          Rounding::toInt32(x),
                          Rounding::toInt32(y),
                          MouseSensivity,
                          view,
                          document.solids,
                          document.workPlanes,
                          document.profiles};
}

void frmTolvane::picOrtho_MouseDown(int index, int button, int, float x, float y) {
    if (index < 0 || index > 3 || picOrtho[static_cast<size_t>(index)] == nullptr) {
        return;
    }
    viewInfo vi;
    vi.setSpecs(specsOf(index));
    MouseEventArgs args = eventArgs(index, x, y, vi);
    std::optional<viewInfo> result;
    switch (button) {
    case 1:
        result = mouseMode->handleLeftClick(args);
        break;
    case 2:
        result = mouseMode->handleRightClick(args);
        popupViewport = index + 1;
        break;
    case 4:
        result = mouseMode->handleMiddleClick(args);
        break;
    default:
        break; // several buttons at once: no handler
    }
    if (result) {
        specsOf(index) = result->getSpecs();
    }
    HandleCollectedDatum();
    redrawAllViewports();
}

void frmTolvane::picOrtho_MouseMove(int index, int button, int, float x, float y) {
    if (index < 0 || index > 3 || picOrtho[static_cast<size_t>(index)] == nullptr) {
        return;
    }
    Canvas& canvas = *picOrtho[static_cast<size_t>(index)];
    viewInfo vi;
    vi.setSpecs(specsOf(index));
    if (button == 1) {
        canvas.setMousePointer(mouseMode->getMouseIcon());
        MouseEventArgs args = eventArgs(index, x, y, vi);
        const std::optional<viewInfo> result = mouseMode->handleMouseMoveLeftClick(args);
        if (result) {
            vi = *result;
            specsOf(index) = result->getSpecs();
        }
    } else if (button != 2 && button != 4) {
        canvas.setMousePointer(2);
    }
    specsOf(index).anchorX = Rounding::toInt32(x);
    specsOf(index).anchorY = Rounding::toInt32(y);
    MouseEventArgs args = eventArgs(index, x, y, vi);
    mouseMode->handleMouseMove(args);
    HandleCollectedDatum();
    redrawAllViewports();
    canvas.refresh();
}
