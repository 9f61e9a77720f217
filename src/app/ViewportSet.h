#pragma once

#include "modelling/ExtrusionPreviewTarget.h"
#include "render/ViewSpecs.h"
#include "render/ViewportRenderer.h"
#include "render/viewInfo.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

class Canvas;
struct ViewportScene;

// Where the window puts a control: its rectangle in the client area.
struct ControlPlacement {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const ControlPlacement&) const = default;
};

// The four viewports: their canvases picOrtho(0) to picOrtho(3), the view record of each
// (viewSpecs(i + 1) belongs to picOrtho(i)), their layout beside the scene tree, and their
// redraw.
class ViewportSet : public ExtrusionPreviewTarget {
public:
    // Records 1 to 4: top, side, front and isometric, all in perspective.
    ViewportSet();

    void attachCanvases(const std::array<Canvas*, 4>& canvases) { picOrtho = canvases; }
    // Canvas picOrtho(index), or nullptr for an index outside 0 to 3 or before attaching.
    Canvas* canvas(int index) const;
    // Record number 1 to 4.
    ViewSpecs& viewSpecs(int number) { return records[static_cast<size_t>(number - 1)]; }
    const ViewSpecs& viewSpecs(int number) const {
        return records[static_cast<size_t>(number - 1)];
    }
    // A copy of record index for index 1 to 4, nothing otherwise.
    std::optional<viewInfo> getViewInfo(int32_t index) const override;
    // The extrusion preview draws into canvases 0 to 3.
    void getPicOrthoBounds(int32_t& lower, int32_t& upper) const override {
        lower = 0;
        upper = 3;
    }
    Canvas* getPicOrtho(int32_t index) const override { return canvas(index); }

    // 1: the fourth viewport alone; 4: all four in a 2 x 2 grid.
    int32_t viewportLayout = 1;
    void setClientSize(int width, int height);
    // Places the canvases in four fifths of the client width and the tree in the last fifth.
    void layoutViewports();
    const ControlPlacement& getTreePlacement() const { return treePlacement; }

    // Redraws the viewports in order; drawOverlay adds the mouse mode's overlay to a canvas
    // before it is shown. A hidden canvas is only projected, not painted: its image is never
    // seen nor exported (with one canvas shown, the export takes picOrtho(3)), and showing
    // it lays the canvases out again, which redraws. Projecting it keeps the points of
    // faces culled in later viewports where a full redraw leaves them. picOrtho(3) is
    // never hidden and comes last, so depths and light ranges stay those it sets.
    //
    // Each canvas keeps its rendered picture. With documentChanged false the caller vouches
    // that nothing a picture shows changed since the last redraw but the view records, sizes
    // and switches, and only the viewports whose own changed are rendered again; the others
    // get their kept picture back under a fresh overlay. Whenever one is rendered, all four are
    // projected, so that the document is left as a full redraw leaves it.
    void redrawAll(const ViewportScene& scene,
                   const std::function<void(Canvas&, const ViewSpecs&)>& drawOverlay,
                   bool documentChanged = true);
    // Pictures at rest drawn with a depth buffer instead of the face order (the main window
    // sets it from its Options menu before each redraw).
    bool depthBufferedAtRest = false;
    // The viewport, 0 to 3, that a navigation drag turns: drawn with a depth buffer until the
    // drag ends (-1: none). Its picture is rendered again, exactly, at the next redraw after.
    int draggedViewport = -1;

private:
    std::array<ViewSpecs, 4> records;
    std::array<Canvas*, 4> picOrtho{};
    int clientWidth = 0;
    int clientHeight = 0;
    ControlPlacement treePlacement;
    ViewportRenderer renderer;
    // What a kept picture was rendered from; a picture is rendered again when it differs.
    struct PictureKey {
        ViewSpecs record; // with the anchors zeroed: the mouse position draws nothing
        int width = 0;
        int height = 0;
        ViewportPaint paint = ViewportPaint::Project;
        bool showGrid = false, showZeroAxes = false, showReferenceAxes = false;
        bool operator==(const PictureKey&) const = default;
    };
    PictureKey keyOf(size_t index, const ViewportScene& scene) const;
    std::array<std::optional<PictureKey>, 4> kept_;
    bool draggedBefore_ = false; // the last redraw rendered a drag step alone
};
