#include "scene/Face3d.h"

#include "geometry/M3Ops.h"
#include "geometry/Rounding.h"
#include "platform/Canvas.h"
#include "render/CanvasStateGuard.h"
#include "render/GDIRegion.h"
#include "render/Shading.h"
#include "scene/FaceRelations.h"
#include "scene/Solid3d.h"

#include <algorithm>
#include <cmath>

namespace {

// A face's transformed corners, read through its solid's point records.
class TransformedCorners {
public:
    explicit TransformedCorners(const Face3d& face)
        : solid_(face.getSolidContainer()), indices_(face.getIndices().data()),
          count_(solid_ != nullptr ? face.NumPts : 0) {}
    int size() const { return count_; }
    const Point4& operator[](int corner) const {
        return solid_->getPointRecord(indices_[corner]).trans;
    }

private:
    const Solid3d* solid_;
    const int32_t* indices_;
    int count_;
};

void normalOf(const Point4& p1, const Point4& p2, const Point4& p3, float& x, float& y, float& z) {
    M3Ops::crossProduct(x, y, z, p2.x - p1.x, p2.y - p1.y, p2.z - p1.z, p3.x - p2.x, p3.y - p2.y,
                        p3.z - p2.z);
}

} // namespace

void Face3d::addIndex(int32_t index) {
    indices_.push_back(index);
    NumPts = static_cast<int32_t>(indices_.size());
}

void Face3d::SetPoints(const std::vector<int32_t>& indices) {
    indices_ = CornerIndices(indices);
    NumPts = static_cast<int32_t>(indices_.size());
}

bool Face3d::deletePointIndex(int32_t index) {
    if (indices_.size() < 4) {
        return false;
    }
    const auto found = std::find(indices_.begin(), indices_.end(), index);
    if (found == indices_.end()) {
        return false;
    }
    indices_.erase(found);
    NumPts = static_cast<int32_t>(indices_.size());
    return true;
}

void Face3d::switchIndexOrientation() {
    std::reverse(indices_.begin(), indices_.end());
}

const Point4& Face3d::coordOf(int corner) const {
    return solid_->getPointRecord(indices_[static_cast<size_t>(corner - 1)]).coord;
}

const Point4& Face3d::transOf(int corner) const {
    return solid_->getPointRecord(indices_[static_cast<size_t>(corner - 1)]).trans;
}

void Face3d::GetTransformedPoint(int corner, float& x, float& y, float& z) const {
    if (solid_ == nullptr) {
        x = y = z = 0;
        return;
    }
    const Point4& t = transOf(corner);
    x = t.x;
    y = t.y;
    z = t.z;
}

void Face3d::GetExtent(float& Xmin, float& xmax, float& ymin, float& ymax, float& Zmin,
                       float& zmax) const {
    Xmin = xmax = ymin = ymax = Zmin = zmax = 0;
    for (int corner = 1; corner <= cornerCount(); ++corner) {
        const Point4& t = transOf(corner);
        if (corner == 1) {
            Xmin = xmax = t.x;
            ymin = ymax = t.y;
            Zmin = zmax = t.z;
            continue;
        }
        Xmin = std::min(Xmin, t.x);
        xmax = std::max(xmax, t.x);
        ymin = std::min(ymin, t.y);
        ymax = std::max(ymax, t.y);
        Zmin = std::min(Zmin, t.z);
        zmax = std::max(zmax, t.z);
    }
}

void Face3d::NormalVector(float& x, float& y, float& z) const {
    x = y = z = 0;
    if (cornerCount() >= 3) {
        normalOf(coordOf(1), coordOf(2), coordOf(3), x, y, z);
    }
}

void Face3d::TransformedNormalVector(float& x, float& y, float& z) const {
    x = y = z = 0;
    if (cornerCount() >= 3) {
        normalOf(transOf(1), transOf(2), transOf(3), x, y, z);
    }
}

void Face3d::UnitNormalVector(float& x, float& y, float& z) const {
    NormalVector(x, y, z);
    toUnitLength(x, y, z);
}

void Face3d::toUnitLength(float& x, float& y, float& z) {
    const auto length = static_cast<float>(std::sqrt(
        static_cast<double>(x) * x + static_cast<double>(y) * y + static_cast<double>(z) * z));
    if (!(length > 0)) {
        return; // no direction to scale to: the zero normal stands
    }
    x = x / length;
    y = y / length;
    z = z / length;
}

void Face3d::getRMinRMax(float light_x, float light_y, float light_z, float& Rmin,
                         float& Rmax) const {
    Rmin = 1e30f;
    Rmax = -1e30f;
    if (IsCulled || cornerCount() < 3) {
        return;
    }
    double smallest = 1e300;
    double largest = -1e300;
    for (int corner = 1; corner <= cornerCount(); ++corner) {
        const double squared = squaredDistance(coordOf(corner), light_x, light_y, light_z);
        smallest = std::min(smallest, squared);
        largest = std::max(largest, squared);
    }
    Rmin = static_cast<float>(std::sqrt(smallest));
    Rmax = static_cast<float>(std::sqrt(largest));
}

float Face3d::zmax() const {
    if (IsCulled) {
        return 0;
    }
    float result = -1e30f;
    for (int corner = 1; corner <= cornerCount(); ++corner) {
        result = std::max(result, transOf(corner).z);
    }
    return result;
}

template <class Step> void Face3d::transformCorners(Step step) {
    if (IsCulled || solid_ == nullptr) {
        return;
    }
    Solid3d& solid = *solid_;
    for (const int32_t index : indices_) {
        if (!solid.hasTransformedPoint(index)) {
            step(solid, index);
            solid.activateTransformedPoint(index);
        }
    }
}

void Face3d::ApplyFull(const Matrix4& M, bool toCoord2) {
    if (toCoord2) {
        transformCorners([&M](Solid3d& solid, int32_t index) {
            M3Ops::transformPoint(solid.pointForTransform(index).coord, M,
                                  solid.coord2ForTransform(index));
        });
    } else {
        transformCorners([&M](Solid3d& solid, int32_t index) {
            auto& r = solid.pointForTransform(index);
            M3Ops::transformPoint(r.coord, M, r.trans);
        });
    }
}

void Face3d::ApplyFullTrans(const Matrix4& M) {
    transformCorners([&M](Solid3d& solid, int32_t index) {
        auto& r = solid.pointForTransform(index);
        M3Ops::transformPoint(r.trans, M, r.trans);
    });
}

void Face3d::ApplyFullCoord2(const Matrix4& M) {
    transformCorners([&M](Solid3d& solid, int32_t index) {
        M3Ops::transformPoint(solid.getPointRecord(index).coord2, M,
                              solid.pointForTransform(index).trans);
    });
}

void Face3d::ApplyFullCoord(const Matrix4& M) {
    transformCorners([&M](Solid3d& solid, int32_t index) {
        auto& r = solid.pointForTransform(index);
        M3Ops::transformPoint(r.coord, M, r.coord);
    });
}

void Face3d::Apply(const Matrix4& M) {
    transformCorners([&M](Solid3d& solid, int32_t index) {
        auto& r = solid.pointForTransform(index);
        M3Ops::transformPointAffine(r.coord, M, r.trans);
    });
}

void Face3d::ApplyCoord(const Matrix4& M) {
    transformCorners([&M](Solid3d& solid, int32_t index) {
        auto& r = solid.pointForTransform(index);
        M3Ops::transformPointAffine(r.coord, M, r.coord);
    });
}

void Face3d::cull(float eye_x, float eye_y, float eye_z) {
    IsCulled = facesAwayFrom(eye_x, eye_y, eye_z);
}

bool Face3d::facesAwayFrom(float eye_x, float eye_y, float eye_z) const {
    if (cornerCount() < 1) {
        return true;
    }
    float nx;
    float ny;
    float nz;
    NormalVector(nx, ny, nz);
    return facesAway(nx, ny, nz, coordOf(1), eye_x, eye_y, eye_z);
}

void Face3d::clipEye(float eyeR) {
    if (IsCulled) {
        return;
    }
    for (int corner = 1; corner <= cornerCount(); ++corner) {
        if (behindEye(transOf(corner).z, eyeR)) {
            IsCulled = true;
            return;
        }
    }
}

bool Face3d::isOnSideOf(const Face3d& other, bool towardsViewer) const {
    float nx;
    float ny;
    float nz;
    other.TransformedNormalVector(nx, ny, nz);
    return FaceRelations::onSideOf(TransformedCorners(*this), TransformedCorners(other), nx, ny, nz,
                                   towardsViewer);
}

bool Face3d::IsAbove(const Face3d& other) const {
    return isOnSideOf(other, true);
}

bool Face3d::IsBelow(const Face3d& other) const {
    return isOnSideOf(other, false);
}

bool Face3d::Obscures(const Face3d& other) const {
    return FaceRelations::obscures(TransformedCorners(*this), TransformedCorners(other));
}

bool Face3d::PointInside(float x, float y) const {
    return FaceRelations::pointInside(TransformedCorners(*this), x, y);
}

std::vector<CanvasPoint> Face3d::canvasPoints() const {
    std::vector<CanvasPoint> points(static_cast<size_t>(cornerCount()));
    for (int corner = 1; corner <= cornerCount(); ++corner) {
        const Point4& t = transOf(corner);
        points[static_cast<size_t>(corner - 1)] = {Rounding::toInt32(t.x), Rounding::toInt32(t.y)};
    }
    return points;
}

void Face3d::paintPolygon(Canvas& pic, const std::vector<CanvasPoint>& points, int32_t color,
                          bool wireFrame) {
    const CanvasStateGuard guard(pic);
    pic.setFillColor(color);
    if (wireFrame) {
        pic.setFillStyle(FillTransparent);
        pic.setDrawStyle(DrawSolid);
        pic.setForeColor(pic.fillColor());
    }
    pic.polygon(points);
}

bool Face3d::allOffCanvas(const std::vector<CanvasPoint>& points, const Canvas& pic) {
    const int width = pic.scaleWidth();
    const int height = pic.scaleHeight();
    return std::all_of(points.begin(), points.end(), [&](const CanvasPoint& p) {
        return p.x < 0 || p.y < 0 || p.x > width || p.y > height;
    });
}

ShadedSurface Face3d::shadedSurface() const {
    float nx;
    float ny;
    float nz;
    UnitNormalVector(nx, ny, nz);
    return shadedSurface(nx, ny, nz);
}

ShadedSurface Face3d::shadedSurface(float nx, float ny, float nz) const {
    ShadedSurface s;
    s.nx = nx;
    s.ny = ny;
    s.nz = nz;
    const Point4& p = solid_->getPointRecord(indices_.front()).coord;
    s.px = p.x;
    s.py = p.y;
    s.pz = p.z;
    s.DiffuseKr = DiffuseKr;
    s.DiffuseKg = DiffuseKg;
    s.DiffuseKb = DiffuseKb;
    s.AmbientKr = AmbientKr;
    s.AmbientKg = AmbientKg;
    s.AmbientKb = AmbientKb;
    s.SpecularK = SpecularK;
    s.SpecularN = SpecularN;
    return s;
}

void Face3d::DrawNoForceColor(Canvas& pic, const LightList& light_sources, int16_t, float eye_x,
                              float eye_y, float eye_z, bool UseShift, bool wireFrame) {
    // ambient_light is accepted for symmetry with DrawForceColor: unforced shading adds no
    // ambient term.
    if (IsCulled || cornerCount() < 3) {
        return;
    }
    const std::vector<CanvasPoint> points = canvasPoints();
    if (allOffCanvas(points, pic)) {
        return;
    }
    const int32_t color = Shading::shadeColor(shadedSurface(), light_sources,
                                              EyePoint{eye_x, eye_y, eye_z}, UseShift);
    paintPolygon(pic, points, color, wireFrame);
}

void Face3d::DrawForceColor(Canvas& pic, const LightList& light_sources, int16_t ambient_light,
                            float eye_x, float eye_y, float eye_z, bool UseShift, int FRed,
                            int FGreen, int FBlue, bool wireFrame) {
    if (IsCulled || cornerCount() < 3) {
        return;
    }
    const std::vector<CanvasPoint> points = canvasPoints();
    if (allOffCanvas(points, pic)) {
        return;
    }
    const int32_t color =
        Shading::shadeForcedColor(shadedSurface(), light_sources, ambient_light,
                                  EyePoint{eye_x, eye_y, eye_z}, UseShift, FRed, FGreen, FBlue);
    paintPolygon(pic, points, color, wireFrame);
}

std::shared_ptr<GDIRegion> Face3d::createRegion(int fillmode) const {
    auto region = std::make_shared<GDIRegion>();
    region->createPolygonRegion(canvasPoints(), fillmode);
    return region;
}
