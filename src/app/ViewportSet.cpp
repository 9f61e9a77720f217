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

ViewportSet::PictureKey ViewportSet::keyOf(size_t index, const ViewportScene& scene) const {
    const Canvas& canvas = *picOrtho[index];
    PictureKey key;
    key.record = records[index];
    key.record.anchorX = 0;
    key.record.anchorY = 0;
    key.width = canvas.scaleWidth();
    key.height = canvas.scaleHeight();
    const bool depth = depthBufferedAtRest || draggedViewport == static_cast<int>(index);
    key.paint = !canvas.isVisible() ? ViewportPaint::Project
                : depth             ? ViewportPaint::Depth
                                    : ViewportPaint::Exact;
    key.showGrid = scene.showGrid;
    key.showZeroAxes = scene.showZeroAxes;
    key.showReferenceAxes = scene.showReferenceAxes;
    return key;
}

namespace {

// How a redraw treats a viewport whose picture stays: a hidden one is still only projected,
// a shown one projected and drawn into nothing.
ViewportPaint kept(ViewportPaint paint) {
    return paint == ViewportPaint::Project ? ViewportPaint::Project : ViewportPaint::Keep;
}

} // namespace

void ViewportSet::redrawAll(const ViewportScene& scene,
                            const std::function<void(Canvas&, const ViewSpecs&)>& drawOverlay,
                            bool documentChanged) {
    std::vector<ViewportTarget> targets;
    std::array<bool, 4> rendered{};
    bool any = false;
    for (size_t i = 0; i < 4; ++i) {
        if (picOrtho[i] == nullptr) {
            continue;
        }
        const PictureKey key = keyOf(i, scene);
        const bool again = documentChanged || kept_[i] != key;
        rendered[i] = again;
        any = any || again;
        kept_[i] = key;
        targets.push_back(
            ViewportTarget{picOrtho[i], &records[i], again ? key.paint : kept(key.paint)});
    }
    // A step of a drag renders its viewport alone; the rest waits for the release.
    const bool dragStep =
        !documentChanged && draggedViewport >= 0 &&
        std::all_of(targets.begin(), targets.end(), [&](const ViewportTarget& target) {
            return target.canvas == picOrtho[static_cast<size_t>(draggedViewport)] ||
                   target.paint == ViewportPaint::Keep || target.paint == ViewportPaint::Project;
        });
    if (dragStep) {
        for (ViewportTarget& target : targets) {
            if (target.canvas != picOrtho[static_cast<size_t>(draggedViewport)]) {
                target.paint = ViewportPaint::Untouched;
            }
        }
    } else if (draggedBefore_) {
        any = true; // the first redraw after a drag projects every viewport again
    }
    draggedBefore_ = dragStep && any;
    if (any) {
        renderer.redraw(targets, scene);
    }
    for (size_t i = 0; i < 4; ++i) {
        Canvas* canvas = picOrtho[i];
        if (canvas == nullptr || !canvas->isVisible()) {
            continue;
        }
        if (rendered[i]) {
            canvas->keepPicture();
        } else if (!canvas->restorePicture()) {
            // A canvas that keeps no picture is rendered again, alone: nothing else changed.
            std::vector<ViewportTarget> alone = targets;
            for (ViewportTarget& target : alone) {
                target.paint = target.canvas == canvas ? kept_[i]->paint : kept(target.paint);
            }
            renderer.redraw(alone, scene);
        }
        drawOverlay(*canvas, records[i]);
        canvas->refresh();
    }
}
