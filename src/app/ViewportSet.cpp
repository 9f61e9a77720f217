#include "app/ViewportSet.h"

#include "geometry/Rounding.h"
#include "platform/Canvas.h"
#include "render/KorvanOpsConsts.h"

#include <algorithm>

ViewportSet::ViewportSet() {
    const int views[4] = {KorvanOpsConsts::viewTop, KorvanOpsConsts::viewSide,
                          KorvanOpsConsts::viewFront, KorvanOpsConsts::viewIsometric};
    for (size_t i = 0; i < 4; ++i) {
        KorvanOpsConsts::setOrthoView(views[i], records[i]);
    }
}

Canvas* ViewportSet::canvas(int index) const {
    return index < 0 || index > 3 ? nullptr : picOrtho[static_cast<size_t>(index)];
}

std::optional<viewInfo> ViewportSet::getViewInfo(int32_t index) const {
    if (index < 1 || index > 4) {
        return std::nullopt;
    }
    viewInfo info;
    info.setSpecs(viewSpecs(index));
    return info;
}

void ViewportSet::setClientSize(int width, int height) {
    clientWidth = width;
    clientHeight = height;
}

void ViewportSet::layoutViewports() {
    const double W = clientWidth - clientWidth / 5.0;
    const double H = std::max(clientHeight, 120);
    const auto px = [](double value) { return Rounding::toInt32(value); };
    const bool attached =
        std::all_of(picOrtho.begin(), picOrtho.end(), [](const Canvas* c) { return c != nullptr; });
    if (attached && viewportLayout == 4) {
        for (Canvas* c : picOrtho) {
            c->setVisible(true);
        }
        picOrtho[0]->move(0, 0, px(W / 2), px(H / 2));
        picOrtho[1]->move(px(W / 2), 0, px(W / 2), px(H / 2));
        picOrtho[2]->move(0, px(H / 2), px(W / 2), px(H / 2));
        picOrtho[3]->move(px(W / 2), px(H / 2), px(W / 2), px(H / 2));
    } else if (attached && viewportLayout == 1) {
        for (size_t i = 0; i < 3; ++i) {
            picOrtho[i]->setVisible(false);
        }
        picOrtho[3]->setVisible(true);
        for (size_t i = 0; i < 3; ++i) {
            picOrtho[i]->move(0, 0, 0, 0);
        }
        picOrtho[3]->move(0, 0, px(W), px(H));
    }
    treePlacement = ControlPlacement{px(W), 0, px(clientWidth / 5.0), clientHeight};
}

void ViewportSet::redrawAll(const ViewportScene& scene,
                            const std::function<void(Canvas&, const ViewSpecs&)>& drawOverlay) {
    for (size_t i = 0; i < 4; ++i) {
        if (picOrtho[i] == nullptr) {
            continue;
        }
        if (!picOrtho[i]->isVisible()) {
            renderer.project(*picOrtho[i], records[i], scene);
            continue;
        }
        renderer.redrawViewport(*picOrtho[i], records[i], scene);
        drawOverlay(*picOrtho[i], records[i]);
        picOrtho[i]->refresh();
    }
}
