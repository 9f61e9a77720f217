#include "render/ViewportRenderer.h"

#include "geometry/M3Ops.h"
#include "geometry/Rounding.h"
#include "render/BlankCanvas.h"
#include "render/DepthBuffer.h"
#include "render/KorvanOpsConsts.h"
#include "render/Shading.h"
#include "scene/AxesXYZ.h"
#include "scene/FaceOrder.h"
#include "scene/GridSolid3D.h"
#include "scene/Profile.h"
#include "scene/SolidProjection.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <thread>

// One viewport's part of a redraw.
struct ViewportRenderer::View {
    ViewportTarget target;
    Matrix4 full;
    float ex = 0, ey = 0, ez = 0;
    std::vector<SolidProjection> objects; // per scene object
    std::vector<size_t> order;            // places in the scene's objects, back to front
    std::vector<float> lightRanges;       // Rmin, Kdist per light
    LightList lights;                     // copies of the scene's lights with these ranges
    RadixSort<Transformed3d>* depthSorter = nullptr;
    DepthBuffer* depthBuffer = nullptr;

    bool painted() const {
        return target.paint == ViewportPaint::Exact || target.paint == ViewportPaint::Depth;
    }
    // Shown and projected: its lights are fitted.
    bool fitted() const { return painted() || target.paint == ViewportPaint::Keep; }
};

namespace {

// Runs work(i) for i below count, on two threads when there is more than one; an exception
// thrown by either is thrown again here once both are done.
template <class Work> void onBothCores(size_t count, Work work) {
    if (count < 2) {
        for (size_t i = 0; i < count; ++i) {
            work(i);
        }
        return;
    }
    std::exception_ptr failure;
    const auto share = [&](size_t first) {
        try {
            for (size_t i = first; i < count; i += 2) {
                work(i);
            }
        } catch (...) {
            failure = std::current_exception();
        }
    };
    std::exception_ptr own;
    std::thread other(share, 1);
    try {
        for (size_t i = 0; i < count; i += 2) {
            work(i);
        }
    } catch (...) {
        own = std::current_exception();
    }
    other.join();
    if (own) {
        std::rethrow_exception(own);
    }
    if (failure) {
        std::rethrow_exception(failure);
    }
}

} // namespace

ViewportRenderer::ViewportRenderer() = default;
ViewportRenderer::~ViewportRenderer() = default;

void ViewportRenderer::redrawViewport(Canvas& canvas, const ViewSpecs& record,
                                      const ViewportScene& scene) {
    redraw({ViewportTarget{&canvas, &record, ViewportPaint::Exact}}, scene);
}

void ViewportRenderer::redraw(const std::vector<ViewportTarget>& targets,
                              const ViewportScene& scene) {
    std::vector<View> views(targets.size());
    while (depthSorters_.size() < targets.size()) {
        depthSorters_.push_back(std::make_unique<RadixSort<Transformed3d>>());
    }
    // One more depth buffer than viewports, for painting one viewport on both cores.
    while (depthBuffers_.size() < targets.size() + 1) {
        depthBuffers_.push_back(std::make_unique<DepthBuffer>());
    }
    for (size_t i = 0; i < targets.size(); ++i) {
        View& view = views[i];
        view.target = targets[i];
        view.full = KorvanOpsConsts::getFullViewMatrix(*view.target.canvas, *view.target.record);
        KorvanOpsConsts::getEyePosition(*view.target.record, view.ex, view.ey, view.ez);
        view.depthSorter = depthSorters_[i].get();
        view.depthBuffer = depthBuffers_[i].get();
    }
    gatherNormals(scene);
    onBothCores(views.size(), [&](size_t i) {
        if (views[i].target.paint != ViewportPaint::Untouched) {
            see(views[i], scene);
        }
    });
    gatherLightSquares(scene, views);
    onBothCores(views.size(), [&](size_t i) {
        if (views[i].fitted()) {
            fitLights(views[i], scene);
        }
    });

    // The grid, one viewport after the other: it keeps its projection in the document.
    const bool showGrid = scene.showGrid && scene.grid;
    for (View& view : views) {
        if (view.target.paint == ViewportPaint::Untouched) {
            continue;
        }
        Canvas& canvas = *view.target.canvas;
        BlankCanvas nothing(canvas.scaleWidth(), canvas.scaleHeight());
        Canvas& target = view.painted() ? canvas : static_cast<Canvas&>(nothing);
        if (showGrid) {
            scene.grid->cull(view.ex, view.ey, view.ez);
            scene.grid->ApplyFull(view.full);
            scene.grid->clipEye(view.target.record->EyeR);
        }
        if (view.target.paint == ViewportPaint::Project) {
            if (showGrid) {
                scene.grid->resetTransformedPoints();
            }
            continue;
        }
        target.setFillStyle(FillSolid);
        target.setDrawStyle(DrawInvisible);
        target.clear();
        if (showGrid) {
            scene.grid->draw(target, view.lights, ambientLight, view.ex, view.ey, view.ez, false,
                             true, gridGrey, gridGrey, gridGrey);
        }
    }
    std::vector<View*> painted;
    for (View& view : views) {
        if (view.painted()) {
            painted.push_back(&view);
        }
    }
    if (painted.size() == 1 && depthBuffered(*painted.front())) {
        paintDepthOnBothCores(*painted.front(), scene);
    } else {
        onBothCores(painted.size(), [&](size_t i) { paintObjects(*painted[i], scene); });
    }
    for (View& view : views) {
        if (view.target.paint == ViewportPaint::Untouched) {
            continue;
        }
        Canvas& canvas = *view.target.canvas;
        BlankCanvas nothing(canvas.scaleWidth(), canvas.scaleHeight());
        drawRest(view, scene, view.painted() ? canvas : static_cast<Canvas&>(nothing));
    }
    std::erase_if(views,
                  [](const View& view) { return view.target.paint == ViewportPaint::Untouched; });
    store(views, scene);
    facts_.clear();
}

void ViewportRenderer::see(View& view, const ViewportScene& scene) const {
    const ViewSpecs& record = *view.target.record;
    // Pure wireframe shows back faces too; every other mode culls them.
    const bool cullBackFaces = !(record.wireFrame && !record.HideSurfaces);
    view.objects.resize(scene.solids.size());
    view.depthSorter->reset(8);
    for (size_t k = 0; k < scene.solids.size(); ++k) {
        SolidProjection& seen = view.objects[k];
        const auto solid = scene.solids[k]->getSolid();
        if (!solid) {
            seen.zmax = 0;
            view.depthSorter->addObject(scene.solids[k], seen.zmax);
            continue;
        }
        const FaceList& faces = solid->faces;
        const auto records = static_cast<size_t>(solid->getPointUpperBound()) + 1;
        seen.culled.assign(faces.size(), 0);
        seen.points.resize(records);
        seen.reached.assign(records, 0);
        const float* normal = facts_[k].normals.data();
        for (size_t f = 0; f < faces.size(); ++f, normal += 3) {
            const Face3d& face = *faces[f];
            if (cullBackFaces &&
                face.facesAway(normal[0], normal[1], normal[2], view.ex, view.ey, view.ez)) {
                seen.culled[f] = 1;
                continue;
            }
            if (face.getSolidContainer() == nullptr) {
                continue;
            }
            for (const int32_t index : face.getIndices()) {
                const auto i = static_cast<size_t>(index);
                if (seen.reached[i] == 0) {
                    M3Ops::transformPoint(solid->getPointRecord(index).coord, view.full,
                                          seen.points[i]);
                    seen.reached[i] = 1;
                }
            }
        }
        // Clipping at the eye, and the largest depth of the faces kept (a culled face counts
        // as depth 0).
        seen.zmax = -1e30f;
        for (size_t f = 0; f < faces.size(); ++f) {
            const Face3d& face = *faces[f];
            float faceMax = 0;
            if (seen.culled[f] == 0) {
                faceMax = -1e30f;
                if (face.getSolidContainer() != nullptr) {
                    for (const int32_t index : face.getIndices()) {
                        const float z = seen.points[static_cast<size_t>(index)].z;
                        if (z >= record.EyeR) {
                            seen.culled[f] = 1;
                        }
                        faceMax = std::max(faceMax, z);
                    }
                }
                faceMax = seen.culled[f] != 0 ? 0 : faceMax;
            }
            seen.zmax = std::max(seen.zmax, faceMax);
        }
        view.depthSorter->addObject(scene.solids[k], seen.zmax);
    }
    // Back to places in the list: an object listed twice paints from its first place, whose
    // projection is the same.
    std::vector<std::pair<const Transformed3d*, size_t>> places;
    places.reserve(scene.solids.size());
    for (size_t k = 0; k < scene.solids.size(); ++k) {
        places.emplace_back(scene.solids[k].get(), k);
    }
    std::stable_sort(places.begin(), places.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    view.order.clear();
    for (const auto& object : view.depthSorter->getSortedObjects()) {
        const auto found = std::lower_bound(
            places.begin(), places.end(), object.get(),
            [](const auto& entry, const Transformed3d* key) { return entry.first < key; });
        view.order.push_back(found->second);
    }
}

template <class Work> void ViewportRenderer::inParts(const ViewportScene& scene, Work work) {
    // In parts of about equal size, so that one large object keeps both cores busy.
    struct Part {
        size_t object, first, end;
    };
    std::vector<Part> parts;
    constexpr size_t partSize = 8192;
    for (size_t k = 0; k < scene.solids.size(); ++k) {
        const auto solid = scene.solids[k]->getSolid();
        const size_t count = solid ? solid->faces.size() : 0;
        for (size_t first = 0; first < count; first += partSize) {
            parts.push_back(Part{k, first, std::min(first + partSize, count)});
        }
    }
    onBothCores(parts.size(), [&](size_t p) {
        const Part& part = parts[p];
        const FaceList& faces = scene.solids[part.object]->getSolid()->faces;
        for (size_t f = part.first; f < part.end; ++f) {
            work(part.object, f, *faces[f]);
        }
    });
}

void ViewportRenderer::gatherNormals(const ViewportScene& scene) {
    facts_.assign(scene.solids.size(), {});
    for (size_t k = 0; k < scene.solids.size(); ++k) {
        const auto solid = scene.solids[k]->getSolid();
        facts_[k].normals.resize(solid ? solid->faces.size() * 3 : 0);
        facts_[k].unitNormals.resize(facts_[k].normals.size());
    }
    inParts(scene, [&](size_t k, size_t f, const Face3d& face) {
        float* normal = facts_[k].normals.data() + f * 3;
        face.NormalVector(normal[0], normal[1], normal[2]);
        float* unit = facts_[k].unitNormals.data() + f * 3;
        std::copy(normal, normal + 3, unit);
        Face3d::toUnitLength(unit[0], unit[1], unit[2]);
    });
}

void ViewportRenderer::gatherLightSquares(const ViewportScene& scene,
                                          const std::vector<View>& views) {
    const size_t lightCount = scene.light_sources.size();
    for (size_t k = 0; k < scene.solids.size(); ++k) {
        facts_[k].lightSquares.resize(facts_[k].normals.size() / 3 * lightCount * 2);
    }
    inParts(scene, [&](size_t k, size_t f, const Face3d& face) {
        // Only the faces some fitted viewport keeps are fitted to; a face of fewer than
        // three corners never is.
        const bool fitted = face.NumPts >= 3 && face.getSolidContainer() != nullptr &&
                            std::any_of(views.begin(), views.end(), [&](const View& view) {
                                return view.fitted() && view.objects[k].culled[f] == 0;
                            });
        double* squares = facts_[k].lightSquares.data() + f * lightCount * 2;
        for (size_t l = 0; l < lightCount; ++l) {
            const LightSource& light = *scene.light_sources[l];
            squares[2 * l] = 1e300;
            squares[2 * l + 1] = -1e300;
            if (fitted) {
                face.squaredLightDistances(light.x, light.y, light.z, squares[2 * l],
                                           squares[2 * l + 1]);
            }
        }
    });
}

void ViewportRenderer::fitLights(View& view, const ViewportScene& scene) const {
    // Attenuation 1 at the nearest and 0.5 at the farthest corner of the faces kept. A root,
    // and its rounding to single precision, never reverse an order, so the nearest of the
    // faces' rounded roots is the rounded root of the nearest square: one root per light.
    // (A face whose corners are all undefined leaves 1e300 and -1e300, whose roots the
    // fitting of single faces passes over too.)
    const size_t lightCount = scene.light_sources.size();
    view.lights.clear();
    for (size_t l = 0; l < lightCount; ++l) {
        double smallest = 1e300;
        double largest = -1e300;
        for (size_t k = 0; k < scene.solids.size(); ++k) {
            const SolidProjection& seen = view.objects[k];
            if (seen.culled.empty()) {
                continue; // no solid, or one without faces
            }
            const double* squares = facts_[k].lightSquares.data() + 2 * l;
            for (size_t f = 0; f < seen.culled.size(); ++f) {
                if (seen.culled[f] == 0) {
                    smallest = std::min(smallest, squares[f * lightCount * 2]);
                    largest = std::max(largest, squares[f * lightCount * 2 + 1]);
                }
            }
        }
        const float Rmin = std::min(1e30f, static_cast<float>(std::sqrt(smallest)));
        const float Rmax = std::max(-1e30f, static_cast<float>(std::sqrt(largest)));
        auto light = std::make_shared<LightSource>(*scene.light_sources[l]);
        light->Rmin = Rmin;
        light->Kdist = Rmax - 2 * Rmin;
        view.lights.push_back(light);
    }
}

bool ViewportRenderer::depthBuffered(const View& view) {
    // The depth buffer stands in for the face order; outlines and unordered faces keep theirs.
    const ViewSpecs& record = *view.target.record;
    return view.target.paint == ViewportPaint::Depth && record.HideSurfaces && !record.wireFrame;
}

void ViewportRenderer::paintObjects(View& view, const ViewportScene& scene) const {
    Canvas& canvas = *view.target.canvas;
    if (!depthBuffered(view)) {
        shadeFaces(
            view, scene, 0, 1,
            [&](const std::vector<CanvasPoint>& points, const std::vector<float>&, int32_t color) {
                Face3d::paintPolygon(canvas, points, color, view.target.record->wireFrame);
            });
        return;
    }
    view.depthBuffer->reset(canvas.scaleWidth(), canvas.scaleHeight());
    shadeFaces(view, scene, 0, 1, [&](const auto& points, const auto& corners, int32_t color) {
        view.depthBuffer->fill(points, corners, color);
    });
    canvas.overlayPixels(view.depthBuffer->picture());
}

void ViewportRenderer::paintDepthOnBothCores(View& view, const ViewportScene& scene) {
    // Every other face into a second buffer, merged after: a drag paints one viewport alone.
    Canvas& canvas = *view.target.canvas;
    DepthBuffer& other = *depthBuffers_.back();
    view.depthBuffer->reset(canvas.scaleWidth(), canvas.scaleHeight());
    other.reset(canvas.scaleWidth(), canvas.scaleHeight());
    onBothCores(2, [&](size_t part) {
        DepthBuffer& buffer = part == 0 ? *view.depthBuffer : other;
        shadeFaces(view, scene, part, 2,
                   [&](const auto& points, const auto& corners, int32_t color) {
                       buffer.fill(points, corners, color);
                   });
    });
    view.depthBuffer->takeNearer(other);
    canvas.overlayPixels(view.depthBuffer->picture());
}

template <class Paint>
void ViewportRenderer::shadeFaces(const View& view, const ViewportScene& scene, size_t part,
                                  size_t parts, Paint paint) const {
    Canvas& canvas = *view.target.canvas;
    const ViewSpecs& record = *view.target.record;
    const bool depth = depthBuffered(view);
    std::vector<CanvasPoint> points;
    std::vector<float> corners;
    std::vector<uint32_t> listOrder;
    bool painted = false;
    for (const size_t place : view.order) {
        const auto& object = scene.solids[place];
        const SolidProjection& seen = view.objects[place];
        const auto solid = object->getSolid();
        if (!solid) {
            continue;
        }
        painted = true;
        const FaceList& faces = solid->faces;
        std::vector<uint32_t> sorted;
        const bool ordered = record.HideSurfaces && !solid->IsConvex && !depth;
        if (ordered) {
            sorted = FaceOrder::order(faces, seen);
        } else {
            listOrder.resize(faces.size());
            for (uint32_t f = 0; f < listOrder.size(); ++f) {
                listOrder[f] = f;
            }
        }
        const bool objectSelected = object->isSelected();
        if (!depth) {
            canvas.setDrawStyle(DrawInvisible);
        }
        for (const uint32_t f : ordered ? sorted : listOrder) {
            const Face3d& face = *faces[f];
            if (seen.culled[f] != 0 || face.getSolidContainer() == nullptr || face.NumPts < 3 ||
                f % parts != part) {
                continue;
            }
            points.clear();
            corners.clear();
            for (const int32_t index : face.getIndices()) {
                const Point4& t = seen.points[static_cast<size_t>(index)];
                points.push_back({Rounding::toInt32(t.x), Rounding::toInt32(t.y)});
                corners.insert(corners.end(), {t.x, t.y, t.z});
            }
            if (Face3d::allOffCanvas(points, canvas)) {
                continue;
            }
            const float* unit = facts_[place].unitNormals.data() + size_t{f} * 3;
            const ShadedSurface surface = face.shadedSurface(unit[0], unit[1], unit[2]);
            const EyePoint eye{view.ex, view.ey, view.ez};
            int32_t color = 0;
            if (face.isSelected()) {
                color =
                    Shading::shadeForcedColor(surface, view.lights, ambientLight, eye, false,
                                              selectedFaceRed, selectedFaceGreen, selectedFaceBlue);
            } else if (objectSelected) {
                color = Shading::shadeForcedColor(surface, view.lights, ambientLight, eye, false,
                                                  selectedObjectRed, selectedObjectGreen,
                                                  selectedObjectBlue);
            } else {
                color = Shading::shadeColor(surface, view.lights, eye, false);
            }
            paint(points, corners, color);
        }
        if (!depth) {
            canvas.setDrawStyle(DrawSolid);
            canvas.setFillStyle(FillSolid);
        }
    }
    // The canvas is left with the styles a painted object leaves.
    if (depth && painted && part == 0) {
        canvas.setDrawStyle(DrawSolid);
        canvas.setFillStyle(FillSolid);
    }
}

void ViewportRenderer::drawRest(View& view, const ViewportScene& scene, Canvas& canvas) const {
    const ViewSpecs& record = *view.target.record;
    const bool drawing = view.target.paint != ViewportPaint::Project;
    for (const auto& workPlane : scene.workPlanes) {
        workPlane->ApplyFull(view.full);
        workPlane->clipEye(record.EyeR);
        if (drawing) {
            workPlane->draw(canvas, workplaneFillStyle, workplaneTintRed, workplaneTintGreen,
                            workplaneTintBlue);
        }
    }
    for (const auto& profile : scene.profiles) {
        profile->ApplyFull(view.full);
        if (drawing) {
            profile->draw(canvas, scene.profileRed, scene.profileGreen, scene.profileBlue);
        }
    }
    if (!drawing) {
        return;
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

void ViewportRenderer::store(const std::vector<View>& views, const ViewportScene& scene) const {
    if (views.empty()) {
        return;
    }
    for (size_t i = 0; i < views.size(); ++i) {
        const bool last = i + 1 == views.size();
        for (size_t k = 0; k < scene.solids.size(); ++k) {
            const auto& object = scene.solids[k];
            if (const auto solid = object->getSolid()) {
                solid->storeProjection(views[i].objects[k], last);
            }
        }
    }
    const View& last = views.back();
    for (const auto& object : scene.solids) {
        object->HideSurfaces(last.target.record->HideSurfaces);
        object->projectCurve(last.full);
    }
    // The lights keep the ranges of the last viewport fitted.
    for (auto view = views.rbegin(); view != views.rend(); ++view) {
        if (view->fitted()) {
            for (size_t l = 0; l < scene.light_sources.size(); ++l) {
                scene.light_sources[l]->Rmin = view->lights[l]->Rmin;
                scene.light_sources[l]->Kdist = view->lights[l]->Kdist;
            }
            break;
        }
    }
}
