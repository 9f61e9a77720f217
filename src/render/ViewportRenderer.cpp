#include "render/ViewportRenderer.h"

#include "geometry/M3Ops.h"
#include "geometry/PackedColor.h"
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
#include <atomic>
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

// Runs work(i) for i below count, on two threads when there is more than one, each taking
// the next i not yet taken, so that unequal pieces of work share out; an exception thrown by
// either is thrown again here once both are done.
template <class Work> void onBothCores(size_t count, Work work) {
    if (count < 2) {
        for (size_t i = 0; i < count; ++i) {
            work(i);
        }
        return;
    }
    std::atomic<size_t> next{0};
    std::exception_ptr failures[2];
    const auto share = [&](size_t thread) {
        try {
            for (size_t i = next++; i < count; i = next++) {
                work(i);
            }
        } catch (...) {
            failures[thread] = std::current_exception();
        }
    };
    std::thread other(share, 1);
    share(0);
    other.join();
    for (const std::exception_ptr& failure : failures) {
        if (failure) {
            std::rethrow_exception(failure);
        }
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
    gatherFacts(scene);
    onBothCores(views.size(), [&](size_t i) {
        if (views[i].target.paint != ViewportPaint::Untouched) {
            see(views[i], scene);
        }
    });
    onBothCores(views.size(), [&](size_t i) {
        if (views[i].fitted()) {
            fitLights(views[i], scene);
        }
    });

    // The document takes the projections on one core while the grid is drawn on the other:
    // neither reads what the other writes.
    std::vector<const View*> stored;
    for (const View& view : views) {
        if (view.target.paint != ViewportPaint::Untouched) {
            stored.push_back(&view);
        }
    }
    onBothCores(2, [&](size_t job) {
        if (job == 0) {
            drawGrid(views, scene);
        } else {
            store(stored, scene);
        }
    });
    std::vector<View*> painted;
    for (View& view : views) {
        if (view.painted()) {
            painted.push_back(&view);
        }
    }
    if (painted.size() == 1 && depthBuffered(*painted.front())) {
        paintDepth(*painted.front(), scene, 2);
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
        seen.pixels.resize(records);
        seen.reached.assign(records, 0);
        seen.lit.assign(records, 0);
        // Each face kept has its points projected, is clipped at the eye, and counts to the
        // largest depth of the faces kept (a culled face counts as depth 0).
        seen.zmax = -1e30f;
        const float* normal = facts_[k].normals.data();
        for (size_t f = 0; f < faces.size(); ++f, normal += 3) {
            const Face3d& face = *faces[f];
            const Solid3d* container = face.getSolidContainer();
            if (cullBackFaces &&
                (container == nullptr || face.NumPts < 1 ||
                 Face3d::facesAway(normal[0], normal[1], normal[2],
                                   container->getPointRecord(face.getIndices().front()).coord,
                                   view.ex, view.ey, view.ez))) {
                seen.culled[f] = 1;
                seen.zmax = std::max(seen.zmax, 0.0f);
                continue;
            }
            if (container == nullptr) {
                continue; // depth -1e30
            }
            float faceMax = -1e30f;
            for (const int32_t index : face.getIndices()) {
                const auto i = static_cast<size_t>(index);
                if (seen.reached[i] == 0) {
                    Point4& point = seen.points[i];
                    M3Ops::transformPoint(solid->getPointRecord(index).coord, view.full, point);
                    seen.pixels[i] = {Rounding::toInt32(point.x), Rounding::toInt32(point.y)};
                    seen.reached[i] = 1;
                }
                const float z = seen.points[i].z;
                seen.culled[f] |= static_cast<uint8_t>(Face3d::behindEye(z, record.EyeR));
                faceMax = std::max(faceMax, z);
            }
            if (seen.culled[f] != 0) {
                faceMax = 0;
            } else if (face.NumPts >= 3) {
                for (const int32_t index : face.getIndices()) {
                    seen.lit[static_cast<size_t>(index)] = 1;
                }
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

void ViewportRenderer::gatherFacts(const ViewportScene& scene) {
    // In parts of about equal size, so that one large object keeps both cores busy: each part
    // is of one object, its faces' normals or its points' light distances.
    struct Part {
        size_t object;
        bool points;
        size_t first, end;
    };
    std::vector<Part> parts;
    constexpr size_t partSize = 8192;
    const size_t lightCount = scene.light_sources.size();
    facts_.assign(scene.solids.size(), {});
    for (size_t k = 0; k < scene.solids.size(); ++k) {
        const auto solid = scene.solids[k]->getSolid();
        const size_t faces = solid ? solid->faces.size() : 0;
        const size_t records = solid ? static_cast<size_t>(solid->getPointUpperBound()) + 1 : 0;
        facts_[k].normals.resize(faces * 3);
        facts_[k].lightSquares.resize(records * lightCount);
        for (size_t first = 0; first < faces; first += partSize) {
            parts.push_back(Part{k, false, first, std::min(first + partSize, faces)});
        }
        for (size_t first = 0; first < records && lightCount > 0; first += partSize) {
            parts.push_back(Part{k, true, first, std::min(first + partSize, records)});
        }
    }
    onBothCores(parts.size(), [&](size_t p) {
        const Part& part = parts[p];
        const Solid3d& solid = *scene.solids[part.object]->getSolid();
        ObjectFacts& facts = facts_[part.object];
        for (size_t i = part.first; i < part.end; ++i) {
            if (!part.points) {
                float* normal = facts.normals.data() + i * 3;
                solid.faces[i]->NormalVector(normal[0], normal[1], normal[2]);
                continue;
            }
            const Point4& c = solid.getPointRecord(static_cast<int32_t>(i)).coord;
            double* squares = facts.lightSquares.data() + i * lightCount;
            for (size_t l = 0; l < lightCount; ++l) {
                const LightSource& light = *scene.light_sources[l];
                squares[l] = Face3d::squaredDistance(c, light.x, light.y, light.z);
            }
        }
    });
}

void ViewportRenderer::fitLights(View& view, const ViewportScene& scene) const {
    // Attenuation 1 at the nearest and 0.5 at the farthest corner of the faces kept. A root,
    // and its rounding to single precision, never reverse an order, so the nearest of the
    // faces' rounded roots is the rounded root of the nearest square: one root per light, of
    // the nearest of the squares of the faces' corners. (Where these are all undefined, the
    // fitting of single faces passes over them too.)
    const size_t lightCount = scene.light_sources.size();
    view.lights.clear();
    for (size_t l = 0; l < lightCount; ++l) {
        double smallest = 1e300;
        double largest = -1e300;
        for (size_t k = 0; k < scene.solids.size(); ++k) {
            const std::vector<uint8_t>& lit = view.objects[k].lit;
            const double* squares = facts_[k].lightSquares.data() + l;
            for (size_t i = 0; i < lit.size(); ++i) {
                if (lit[i] != 0) {
                    smallest = std::min(smallest, squares[i * lightCount]);
                    largest = std::max(largest, squares[i * lightCount]);
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
    if (depthBuffered(view)) {
        paintDepth(view, scene, 1);
        return;
    }
    Canvas& canvas = *view.target.canvas;
    const ViewSpecs& record = *view.target.record;
    std::vector<CanvasPoint> points;
    std::vector<float> corners;
    std::vector<uint32_t> listOrder;
    for (const size_t place : view.order) {
        const SolidProjection& seen = view.objects[place];
        const auto solid = scene.solids[place]->getSolid();
        if (!solid) {
            continue;
        }
        const FaceList& faces = solid->faces;
        std::vector<uint32_t> sorted;
        const bool ordered = record.HideSurfaces && !solid->IsConvex;
        if (ordered) {
            sorted = FaceOrder::order(faces, seen);
        } else {
            listOrder.resize(faces.size());
            for (uint32_t f = 0; f < listOrder.size(); ++f) {
                listOrder[f] = f;
            }
        }
        canvas.setDrawStyle(DrawInvisible);
        for (const uint32_t f : ordered ? sorted : listOrder) {
            if (project(view, seen, *faces[f], f, points, corners)) {
                Face3d::paintPolygon(canvas, points, shade(view, scene, place, f),
                                     record.wireFrame);
            }
        }
        canvas.setDrawStyle(DrawSolid);
        canvas.setFillStyle(FillSolid);
    }
}

void ViewportRenderer::paintDepth(View& view, const ViewportScene& scene, size_t cores) const {
    // Faces are numbered from 1 through all objects' lists, each object from the number after
    // the last of the one before, and filled in that order: no order of the objects is needed.
    std::vector<uint32_t> firsts(scene.solids.size() + 1, 1);
    for (size_t k = 0; k < scene.solids.size(); ++k) {
        const auto solid = scene.solids[k]->getSolid();
        firsts[k + 1] = firsts[k] + static_cast<uint32_t>(solid ? solid->faces.size() : 0);
    }
    Canvas& canvas = *view.target.canvas;
    DepthBuffer& buffer = *view.depthBuffer;
    // Each core fills every other face into a buffer of its own, then takes a band of rows to
    // paint from both, shading each face the band shows once.
    onBothCores(cores, [&](size_t part) {
        DepthBuffer& own = part == 0 ? buffer : *depthBuffers_.back();
        own.reset(canvas.scaleWidth(), canvas.scaleHeight());
        ScanlineFiller filler;
        std::vector<CanvasPoint> points;
        std::vector<float> corners;
        for (size_t place = 0; place < scene.solids.size(); ++place) {
            const auto solid = scene.solids[place]->getSolid();
            if (!solid) {
                continue;
            }
            const FaceList& faces = solid->faces;
            for (size_t f = part; f < faces.size(); f += cores) {
                if (project(view, view.objects[place], *faces[f], f, points, corners)) {
                    own.fill(filler, points, corners, firsts[place] + static_cast<uint32_t>(f));
                }
            }
        }
    });
    // Only the rows and columns some face may cover are painted and laid over.
    PixelBox box = buffer.covered();
    if (cores > 1) {
        box.include(depthBuffers_.back()->covered());
    }
    onBothCores(cores, [&](size_t band) {
        const auto height = static_cast<size_t>(std::max(box.bottom - box.top, 0));
        const PixelBox rows{box.left, box.top + static_cast<int>(height * band / cores), box.right,
                            box.top + static_cast<int>(height * (band + 1) / cores)};
        std::vector<uint32_t> colors(firsts.back(), 0);
        const DepthBuffer* other = cores > 1 ? depthBuffers_.back().get() : nullptr;
        buffer.paint(
            colors, rows,
            [&](uint32_t face) {
                const size_t k =
                    static_cast<size_t>(std::upper_bound(firsts.begin(), firsts.end(), face) -
                                        firsts.begin()) -
                    1;
                const PackedColor rgb = PackedColor::split(shade(view, scene, k, face - firsts[k]));
                return (static_cast<uint32_t>(rgb.red & 0xFF) << 16) |
                       (static_cast<uint32_t>(rgb.green & 0xFF) << 8) |
                       static_cast<uint32_t>(rgb.blue & 0xFF);
            },
            other);
    });
    canvas.overlayPixels(buffer.picture(), box);
    // The canvas is left with the styles a painted object leaves.
    if (std::any_of(view.order.begin(), view.order.end(),
                    [&](size_t place) { return scene.solids[place]->getSolid() != nullptr; })) {
        canvas.setDrawStyle(DrawSolid);
        canvas.setFillStyle(FillSolid);
    }
}

bool ViewportRenderer::project(const View& view, const SolidProjection& seen, const Face3d& face,
                               size_t f, std::vector<CanvasPoint>& points,
                               std::vector<float>& corners) {
    if (seen.culled[f] != 0 || face.getSolidContainer() == nullptr || face.NumPts < 3) {
        return false;
    }
    points.clear();
    corners.clear();
    for (const int32_t index : face.getIndices()) {
        const auto i = static_cast<size_t>(index);
        points.push_back(seen.pixels[i]);
        corners.insert(corners.end(), {seen.points[i].x, seen.points[i].y, seen.points[i].z});
    }
    return !Face3d::allOffCanvas(points, *view.target.canvas);
}

int32_t ViewportRenderer::shade(const View& view, const ViewportScene& scene, size_t place,
                                size_t f) const {
    const auto& object = scene.solids[place];
    const Face3d& face = *object->getSolid()->faces[f];
    float unit[3];
    std::copy_n(facts_[place].normals.data() + f * 3, 3, unit);
    Face3d::toUnitLength(unit[0], unit[1], unit[2]);
    const ShadedSurface surface = face.shadedSurface(unit[0], unit[1], unit[2]);
    const EyePoint eye{view.ex, view.ey, view.ez};
    if (face.isSelected()) {
        return Shading::shadeForcedColor(surface, view.lights, ambientLight, eye, false,
                                         selectedFaceRed, selectedFaceGreen, selectedFaceBlue);
    }
    if (object->isSelected()) {
        return Shading::shadeForcedColor(surface, view.lights, ambientLight, eye, false,
                                         selectedObjectRed, selectedObjectGreen,
                                         selectedObjectBlue);
    }
    return Shading::shadeColor(surface, view.lights, eye, false);
}

void ViewportRenderer::drawGrid(std::vector<View>& views, const ViewportScene& scene) const {
    // One viewport after the other: the grid keeps its projection in the document.
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

void ViewportRenderer::store(const std::vector<const View*>& views,
                             const ViewportScene& scene) const {
    if (views.empty()) {
        return;
    }
    for (size_t i = 0; i < views.size(); ++i) {
        const bool last = i + 1 == views.size();
        for (size_t k = 0; k < scene.solids.size(); ++k) {
            const auto& object = scene.solids[k];
            if (const auto solid = object->getSolid()) {
                solid->storeProjection(views[i]->objects[k], last);
            }
        }
    }
    const View& last = *views.back();
    for (const auto& object : scene.solids) {
        object->HideSurfaces(last.target.record->HideSurfaces);
        object->projectCurve(last.full);
    }
    // The lights keep the ranges of the last viewport fitted.
    for (auto view = views.rbegin(); view != views.rend(); ++view) {
        if ((*view)->fitted()) {
            for (size_t l = 0; l < scene.light_sources.size(); ++l) {
                scene.light_sources[l]->Rmin = (*view)->lights[l]->Rmin;
                scene.light_sources[l]->Kdist = (*view)->lights[l]->Kdist;
            }
            break;
        }
    }
}
