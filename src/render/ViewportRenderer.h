#pragma once

#include "render/RadixSort.h"
#include "render/ViewSpecs.h"
#include "render/ViewportScene.h"

#include <memory>
#include <vector>

class Canvas;
class Transformed3d;

// Redraws one viewport of a document: culls, transforms and clips everything with the
// viewport's full matrix, orders the objects back to front, fits the lights, clears the
// canvas and paints grid, objects, workplanes, profiles and the axes glyphs. The caller
// adds its mouse mode's overlay and refreshes the canvas. The editor and the command-line
// tool both draw through it, so that they draw the same pictures.
class ViewportRenderer {
public:
    // Rendering constants of every viewport.
    static constexpr int16_t ambientLight = 50;
    static constexpr int selectedObjectRed = 150, selectedObjectGreen = 0, selectedObjectBlue = 0;
    static constexpr int selectedFaceRed = 0, selectedFaceGreen = 50, selectedFaceBlue = 150;
    static constexpr int gridGrey = 100;
    static constexpr int workplaneFillStyle = 7;
    static constexpr int workplaneTintRed = 0, workplaneTintGreen = 150, workplaneTintBlue = 0;

    void redrawViewport(Canvas& canvas, const ViewSpecs& record, const ViewportScene& scene);
    // What a redraw leaves in the document, without painting: culls, transforms and clips
    // everything for the canvas. A point of faces culled here keeps the projection of the
    // last viewport that reached it, so a viewport nobody sees is still projected.
    void project(const Canvas& canvas, const ViewSpecs& record, const ViewportScene& scene);
    // The objects in painting order: ascending largest depth, farthest first.
    std::vector<std::shared_ptr<Transformed3d>>
    sortSolidsByDepth(const std::vector<std::shared_ptr<Transformed3d>>& solids);

private:
    void transform(const Canvas& canvas, const ViewSpecs& record, const ViewportScene& scene);

    std::unique_ptr<RadixSort<Transformed3d>> depthSorter_;
};
