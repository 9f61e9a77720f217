#pragma once

#include "platform/Canvas.h"
#include "render/RadixSort.h"
#include "render/ViewSpecs.h"
#include "render/ViewportScene.h"

#include <memory>
#include <vector>

class Canvas;
class DepthBuffer;
class Face3d;
struct SolidProjection;
class Transformed3d;

// How a redraw treats one viewport.
enum class ViewportPaint {
    Untouched, // left as it is: neither projected nor drawn
    Project,   // hidden: projected only, nothing painted
    Keep,      // shown, its picture kept: projected and drawn into nothing
    Exact,     // painted back to front in the painter's face order
    Depth,     // painted with a depth buffer where the order would be needed
};

// One viewport of a redraw: its canvas (whose size places the picture), its view record and
// what is painted.
struct ViewportTarget {
    Canvas* canvas;
    const ViewSpecs* record;
    ViewportPaint paint;
};

// Redraws viewports of a document: culls, transforms and clips everything with each
// viewport's full matrix, orders the objects back to front, fits the lights, clears the canvas
// and paints grid, objects, workplanes, profiles and the axes glyphs. The caller adds its mouse
// mode's overlay and refreshes the canvas. The editor and the command-line tool both draw
// through it, so that they draw the same pictures.
//
// Several viewports are redrawn at once: the objects of each are projected into buffers of
// its own and painted on both cores (the document is only read meanwhile), the small rest
// (grid, workplanes, profiles, axes) one viewport after the other, the grid while the
// projections are stored. The document is left as redrawing the viewports one after another
// in order leaves it: a point keeps the projection of the last viewport whose faces reached
// it, and the faces' culling, the objects' depths and flags and the lights' ranges are those
// of the last viewport. Viewports left untouched take no part: a redraw that leaves some is
// one step of a drag, and the document holds what a full redraw leaves only once one without
// them follows.
class ViewportRenderer {
public:
    // Rendering constants of every viewport.
    static constexpr int16_t ambientLight = 50;
    static constexpr int selectedObjectRed = 150, selectedObjectGreen = 0, selectedObjectBlue = 0;
    static constexpr int selectedFaceRed = 0, selectedFaceGreen = 50, selectedFaceBlue = 150;
    static constexpr int gridGrey = 100;
    static constexpr int workplaneFillStyle = 7;
    static constexpr int workplaneTintRed = 0, workplaneTintGreen = 150, workplaneTintBlue = 0;

    ViewportRenderer();
    ~ViewportRenderer();
    ViewportRenderer(const ViewportRenderer&) = delete;
    ViewportRenderer& operator=(const ViewportRenderer&) = delete;

    void redraw(const std::vector<ViewportTarget>& targets, const ViewportScene& scene);
    // One viewport, painted in the exact order.
    void redrawViewport(Canvas& canvas, const ViewSpecs& record, const ViewportScene& scene);

private:
    struct View;
    void see(View& view, const ViewportScene& scene) const;
    void fitLights(View& view, const ViewportScene& scene) const;
    static bool depthBuffered(const View& view);
    // In the painter's face order, or with the depth buffer on as many cores as given (one or
    // two).
    void paintObjects(View& view, const ViewportScene& scene) const;
    void paintDepth(View& view, const ViewportScene& scene, size_t cores) const;
    // The colour of face f of the object at place in the scene's list, as the view shows it.
    int32_t shade(const View& view, const ViewportScene& scene, size_t place, size_t f) const;
    // Sets points to the corners of face f of an object as the view projects them, rounded,
    // and corners to them unrounded (x, y and depth); false when the view does not show it.
    static bool project(const View& view, const SolidProjection& seen, const Face3d& face, size_t f,
                        std::vector<CanvasPoint>& points, std::vector<float>& corners);
    void drawGrid(std::vector<View>& views, const ViewportScene& scene) const;
    void drawRest(View& view, const ViewportScene& scene, Canvas& canvas) const;
    // Leaves in the document what redrawing the viewports one after the other leaves.
    void store(const std::vector<const View*>& views, const ViewportScene& scene) const;

    // Per viewport, kept so that the object order's and the depth buffer's memory is reused.
    std::vector<std::unique_ptr<RadixSort<Transformed3d>>> depthSorters_;
    std::vector<std::unique_ptr<DepthBuffer>> depthBuffers_;
    // What every viewport reads, per object, computed once per redraw: each face's normal
    // (three values) and each point record's squared distance from each light.
    struct ObjectFacts {
        std::vector<float> normals;
        std::vector<double> lightSquares;
    };
    void gatherFacts(const ViewportScene& scene);
    std::vector<ObjectFacts> facts_;
};
