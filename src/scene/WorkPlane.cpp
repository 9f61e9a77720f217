#include "scene/WorkPlane.h"

#include "geometry/CPoint3D.h"
#include "geometry/M3Ops.h"
#include "geometry/PackedColor.h"
#include "geometry/Rounding.h"
#include "platform/Canvas.h"
#include "platform/Prompts.h"
#include "render/CanvasStateGuard.h"
#include "render/GDIRegion.h"
#include "scene/Solid3d.h"

#include <array>
#include <vector>

WorkPlane::WorkPlane() : solid(std::make_shared<Solid3d>()) {}

void WorkPlane::initialize(float workPlaneSize, float xRotate, float yRotate, float workPlaneOffset,
                           int32_t workPlaneColor) {
    size = workPlaneSize;
    xRotation = xRotate;
    yRotation = yRotate;
    offset = workPlaneOffset;
    color = workPlaneColor;

    const float h = size / 2;
    const std::array<Point4, 5> local = {Point4{-h, -h, offset, 1}, Point4{-h, h, offset, 1},
                                         Point4{h, h, offset, 1}, Point4{h, -h, offset, 1},
                                         Point4{0, 0, 0, 1}};
    Matrix4 Rx;
    Matrix4 Ry;
    M3Ops::setRotationX(Rx, xRotation);
    M3Ops::setRotationY(Ry, yRotation);
    // p' = p Rx Ry, one rotation at a time.
    std::vector<float> values;
    for (const Point4& p : local) {
        Point4 aboutX;
        Point4 rotated;
        M3Ops::transformPoint(p, Rx, aboutX);
        M3Ops::transformPoint(aboutX, Ry, rotated);
        values.insert(values.end(), {rotated.x, rotated.y, rotated.z});
    }
    solid = std::make_shared<Solid3d>();
    solid->addPointsArray(values);
    solid->AddFace(std::vector<int32_t>{1, 2, 3, 4});
}

void WorkPlane::ApplyFull(const Matrix4& M) {
    if (!visible || !hasGeometry()) {
        return;
    }
    // A workplane is never back-face culled, so its transform is where each viewport starts:
    // the clipping and the cache another viewport left must not keep the face from moving.
    solid->Culled(false);
    solid->ApplyFull(M, false);
    // The centre belongs to no face, so the face's transform does not reach it.
    PointRecord centre = solid->getPointRecord(5);
    M3Ops::transformPoint(centre.coord, M, centre.trans);
    solid->setPointRecord(5, centre);
}

void WorkPlane::clipEye(float eyeR) {
    if (visible) {
        solid->clipEye(eyeR);
    }
}

void WorkPlane::draw(Canvas& pic, int fillStyleMode, int selectedR, int selectedG, int selectedB) {
    if (!visible || !hasGeometry()) {
        return;
    }
    int32_t c = color;
    if (selected) {
        const PackedColor plain = PackedColor::split(c);
        c = PackedColor::pack(plain.red + selectedR, plain.green + selectedG,
                              plain.blue + selectedB);
    }

    const CanvasStateGuard guard(pic);
    pic.setFillStyle(fillStyleMode);
    pic.setFillColor(c);
    pic.setForeColor(c);
    pic.setDrawStyle(DrawSolid);

    std::vector<CanvasPoint> corners;
    for (int32_t i = 1; i <= 4; ++i) {
        const Point4& p = solid->getPointRecord(i).trans;
        corners.push_back({Rounding::toInt32(p.x), Rounding::toInt32(p.y)});
    }
    pic.moveTo(corners[0].x, corners[0].y);
    for (int i = 1; i < 4; ++i) {
        pic.lineTo(corners[i].x, corners[i].y);
    }
    pic.lineTo(corners[0].x, corners[0].y);
    pic.polygon(corners);

    solid->resetTransformedPoints();
}

std::shared_ptr<GDIRegion> WorkPlane::createRegion() const {
    if (!isVisible()) {
        return nullptr;
    }
    const auto regions = solid->createRegions(true, true, GDIRegion::WindingFill);
    if (regions.size() == 1) {
        return regions.front();
    }
    showMessage("Error in region Algorithm for workPlane.  See createRegion in class WorkPlane", "",
                MessageIcon::Critical);
    return nullptr;
}

void WorkPlane::resetTransformedPoints() {
    solid->resetTransformedPoints();
}

std::shared_ptr<CPoint3D> WorkPlane::getCenterCoord() const {
    auto center = std::make_shared<CPoint3D>();
    if (hasGeometry()) {
        center->setRecord(solid->getPointRecord(5));
    }
    return center;
}

bool WorkPlane::hasGeometry() const {
    return solid->getPointUpperBound() >= 5;
}
