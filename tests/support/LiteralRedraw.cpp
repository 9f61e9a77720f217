#include "support/LiteralRedraw.h"

#include "render/RadixSort.h"
#include "render/ViewportRenderer.h"

#include "render/KorvanOpsConsts.h"
#include "render/LightRanges.h"
#include "scene/AxesXYZ.h"
#include "scene/GridSolid3D.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"

namespace LiteralRedraw {

namespace {

void transform(const Canvas& canvas, const ViewSpecs& record, const ViewportScene& scene) {
    float ex;
    float ey;
    float ez;
    KorvanOpsConsts::getEyePosition(record, ex, ey, ez);
    const Matrix4 full = KorvanOpsConsts::getFullViewMatrix(canvas, record);

    // Pure wireframe shows back faces too; every other mode culls them.
    const bool cullBackFaces = !(record.wireFrame && !record.HideSurfaces);
    for (const auto& object : scene.solids) {
        object->Culled(false);
        object->HideSurfaces(record.HideSurfaces);
        if (cullBackFaces) {
            object->cull(ex, ey, ez);
        }
    }
    for (const auto& object : scene.solids) {
        object->ApplyFull(full);
        object->clipEye(record.EyeR);
    }
    for (const auto& workPlane : scene.workPlanes) {
        workPlane->ApplyFull(full);
        workPlane->clipEye(record.EyeR);
    }
    for (const auto& profile : scene.profiles) {
        profile->ApplyFull(full);
    }
    const bool showGrid = scene.showGrid && scene.grid;
    if (showGrid) {
        scene.grid->cull(ex, ey, ez);
        scene.grid->ApplyFull(full);
        scene.grid->clipEye(record.EyeR);
    }
}

} // namespace

void project(const Canvas& canvas, const ViewSpecs& record, const ViewportScene& scene) {
    transform(canvas, record, scene);
    // Painting the grid forgets which of its points are transformed; without that, the next
    // viewport would leave them where this one put them.
    if (scene.showGrid && scene.grid) {
        scene.grid->resetTransformedPoints();
    }
}

void redrawViewport(Canvas& canvas, const ViewSpecs& record, const ViewportScene& scene) {
    transform(canvas, record, scene);
    float ex;
    float ey;
    float ez;
    KorvanOpsConsts::getEyePosition(record, ex, ey, ez);
    const bool showGrid = scene.showGrid && scene.grid;
    RadixSort<Transformed3d> depthSorter;
    depthSorter.reset(8);
    for (const auto& object : scene.solids) {
        object->SetZMax();
        depthSorter.addObject(object, object->zmax());
    }
    const auto sorted = depthSorter.getSortedObjects();
    LightRanges::updateLightRanges(scene.light_sources, scene.solids);

    canvas.setFillStyle(FillSolid);
    canvas.setDrawStyle(DrawInvisible);
    canvas.clear();
    if (showGrid) {
        scene.grid->draw(canvas, scene.light_sources, ViewportRenderer::ambientLight, ex, ey, ez,
                         false, true, ViewportRenderer::gridGrey, ViewportRenderer::gridGrey,
                         ViewportRenderer::gridGrey);
    }
    for (const auto& object : sorted) {
        const bool selected = object->isSelected();
        object->draw(canvas, scene.light_sources, ViewportRenderer::ambientLight, ex, ey, ez, false,
                     false, record.wireFrame, selected ? ViewportRenderer::selectedObjectRed : -1,
                     selected ? ViewportRenderer::selectedObjectGreen : -1,
                     selected ? ViewportRenderer::selectedObjectBlue : -1,
                     ViewportRenderer::selectedFaceRed, ViewportRenderer::selectedFaceGreen,
                     ViewportRenderer::selectedFaceBlue);
    }
    for (const auto& workPlane : scene.workPlanes) {
        workPlane->draw(canvas, ViewportRenderer::workplaneFillStyle,
                        ViewportRenderer::workplaneTintRed, ViewportRenderer::workplaneTintGreen,
                        ViewportRenderer::workplaneTintBlue);
    }
    for (const auto& profile : scene.profiles) {
        profile->draw(canvas, scene.profileRed, scene.profileGreen, scene.profileBlue);
    }
    if (scene.showReferenceAxes && scene.referenceAxes) {
        scene.referenceAxes->draw(canvas, record.EyeR, record.EyeTheta, record.EyePhi,
                                  record.ProjectionType, true, 0, 0);
    }
    if (scene.showZeroAxes && scene.zeroAxes) {
        scene.zeroAxes->draw(canvas, record.EyeR, record.EyeTheta, record.EyePhi,
                             record.ProjectionType, false, record.shiftx, record.shifty);
    }
}

} // namespace LiteralRedraw
