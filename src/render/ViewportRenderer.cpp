#include "render/ViewportRenderer.h"

#include "render/KorvanOpsConsts.h"
#include "render/LightRanges.h"
#include "scene/AxesXYZ.h"
#include "scene/GridSolid3D.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"

void ViewportRenderer::transform(const Canvas& canvas, const ViewSpecs& record,
                                 const ViewportScene& scene) {
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

void ViewportRenderer::project(const Canvas& canvas, const ViewSpecs& record,
                               const ViewportScene& scene) {
    transform(canvas, record, scene);
    // Painting the grid forgets which of its points are transformed; without that, the next
    // viewport would leave them where this one put them.
    if (scene.showGrid && scene.grid) {
        scene.grid->resetTransformedPoints();
    }
}

void ViewportRenderer::redrawViewport(Canvas& canvas, const ViewSpecs& record,
                                      const ViewportScene& scene) {
    transform(canvas, record, scene);
    float ex;
    float ey;
    float ez;
    KorvanOpsConsts::getEyePosition(record, ex, ey, ez);
    const bool showGrid = scene.showGrid && scene.grid;
    const auto sorted = sortSolidsByDepth(scene.solids);
    LightRanges::updateLightRanges(scene.light_sources, scene.solids);

    canvas.setFillStyle(FillSolid);
    canvas.setDrawStyle(DrawInvisible);
    canvas.clear();
    if (showGrid) {
        scene.grid->draw(canvas, scene.light_sources, ambientLight, ex, ey, ez, false, true,
                         gridGrey, gridGrey, gridGrey);
    }
    for (const auto& object : sorted) {
        const bool selected = object->isSelected();
        object->draw(canvas, scene.light_sources, ambientLight, ex, ey, ez, false, false,
                     record.wireFrame, selected ? selectedObjectRed : -1,
                     selected ? selectedObjectGreen : -1, selected ? selectedObjectBlue : -1,
                     selectedFaceRed, selectedFaceGreen, selectedFaceBlue);
    }
    for (const auto& workPlane : scene.workPlanes) {
        workPlane->draw(canvas, workplaneFillStyle, workplaneTintRed, workplaneTintGreen,
                        workplaneTintBlue);
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

std::vector<std::shared_ptr<Transformed3d>>
ViewportRenderer::sortSolidsByDepth(const std::vector<std::shared_ptr<Transformed3d>>& solids) {
    if (!depthSorter_) {
        depthSorter_ = std::make_unique<RadixSort<Transformed3d>>();
    }
    depthSorter_->reset(8);
    for (const auto& object : solids) {
        object->SetZMax();
        depthSorter_->addObject(object, object->zmax());
    }
    return depthSorter_->getSortedObjects();
}
