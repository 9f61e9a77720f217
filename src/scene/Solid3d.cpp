#include "scene/Solid3d.h"

#include "geometry/CPoint3D.h"
#include "render/FaceRegionEncap.h"
#include "render/GDIRegion.h"
#include "scene/FaceOrder.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

Solid3d::Solid3d() = default;

Solid3d::~Solid3d() {
    // Faces may outlive their solid in a selection; they must not point at freed memory.
    for (const auto& face : faces) {
        if (face->getSolidContainer() == this) {
            face->setSolidContainer(nullptr);
        }
    }
}

void Solid3d::addPoints(std::span<const double> values) {
    for (size_t i = 0; i + 2 < values.size(); i += 3) {
        appendPointRecord(
            PointRecord{Point4{static_cast<float>(values[i]), static_cast<float>(values[i + 1]),
                               static_cast<float>(values[i + 2]), 1.0f},
                        {},
                        {}});
    }
    resetTransformedPoints();
}

void Solid3d::addPointsArray(std::span<const float> values) {
    // Room for all at once: growing point by point could take twice the memory.
    if (const size_t added = values.size() / 3; added > 0) {
        points_.reserve(static_cast<size_t>(nextPointIndex_) + added);
        transformed_.reserve(points_.capacity());
    }
    for (size_t i = 0; i + 2 < values.size(); i += 3) {
        appendPointRecord(
            PointRecord{Point4{values[i], values[i + 1], values[i + 2], 1.0f}, {}, {}});
    }
    resetTransformedPoints();
}

void Solid3d::appendPointRecord(const PointRecord& record) {
    // The array grows to the next point index; the first point replaces the dummy record.
    if (static_cast<size_t>(nextPointIndex_) >= points_.size()) {
        points_.resize(static_cast<size_t>(nextPointIndex_) + 1);
        transformed_.resize(points_.size(), 0);
        if (!coord2_.empty()) {
            makeCoord2Storage();
        }
    }
    storePointRecord(nextPointIndex_, record);
    ++nextPointIndex_;
}

void Solid3d::setPointRecord(int32_t index, const PointRecord& record) {
    makeStorage();
    storePointRecord(index, record);
}

void Solid3d::storePointRecord(int32_t index, const PointRecord& record) {
    const auto i = static_cast<size_t>(index);
    points_[i] = StoredPoint{record.coord, record.trans};
    // Bit for bit, so that a -0 is kept as it was written.
    if (coord2_.empty() && std::memcmp(&record.coord2, &origin_.coord2, sizeof(Point4)) == 0) {
        return;
    }
    makeCoord2Storage();
    coord2_[i] = record.coord2;
}

std::shared_ptr<Face3d> Solid3d::AddFace(std::span<const int32_t> indices) {
    return AddFaceArray(indices);
}

std::shared_ptr<Face3d> Solid3d::AddFaceArray(std::span<const int32_t> indices) {
    auto face = std::make_shared<Face3d>();
    faces.push_back(face);
    face->setSolidContainer(this);
    face->setOrderNumber(GetFaceNum());
    for (const int32_t index : indices) {
        face->addIndex(index);
    }
    return face;
}

void Solid3d::AddFace3D(const std::shared_ptr<Face3d>& face) {
    faces.push_back(face);
}

std::vector<std::shared_ptr<CPoint3D>> Solid3d::getPoints() const {
    std::vector<std::shared_ptr<CPoint3D>> result;
    for (int32_t i = 1; i <= getPointUpperBound(); ++i) {
        PointRecord record;
        record.coord = getPointRecord(i).coord;
        auto point = std::make_shared<CPoint3D>();
        point->setRecord(record);
        result.push_back(point);
    }
    return result;
}

void Solid3d::SetDiffuseCoefficients(float kr, float kg, float kb) {
    for (const auto& face : faces) {
        face->DiffuseKr = kr;
        face->DiffuseKg = kg;
        face->DiffuseKb = kb;
    }
}

void Solid3d::SetAmbientCoefficients(float kr, float kg, float kb) {
    for (const auto& face : faces) {
        face->AmbientKr = kr;
        face->AmbientKg = kg;
        face->AmbientKb = kb;
    }
}

void Solid3d::SetSpecularCoefficients(float K, int16_t N) {
    setSpecularK(K);
    setSpecularN(N);
}

void Solid3d::setSpecularK(float value) {
    for (const auto& face : faces) {
        face->SpecularK = value;
    }
}

void Solid3d::setSpecularN(float value) {
    for (const auto& face : faces) {
        face->SpecularN = value;
    }
}

void Solid3d::resetTransformedPoints() {
    std::fill(transformed_.begin(), transformed_.end(), 0);
}

void Solid3d::ApplyFull(const Matrix4& M, bool toCoord2) {
    for (const auto& face : faces) {
        face->ApplyFull(M, toCoord2);
    }
}

void Solid3d::ApplyFullTrans(const Matrix4& M) {
    for (const auto& face : faces) {
        face->ApplyFullTrans(M);
    }
}

void Solid3d::ApplyFullCoord2(const Matrix4& M) {
    for (const auto& face : faces) {
        face->ApplyFullCoord2(M);
    }
}

void Solid3d::ApplyFullCoord(const Matrix4& M) {
    for (const auto& face : faces) {
        face->ApplyFullCoord(M);
    }
}

void Solid3d::Apply(const Matrix4& M) {
    for (const auto& face : faces) {
        face->Apply(M);
    }
}

void Solid3d::ApplyCoord(const Matrix4& M) {
    for (const auto& face : faces) {
        face->ApplyCoord(M);
    }
}

void Solid3d::cull(float eye_x, float eye_y, float eye_z) {
    for (const auto& face : faces) {
        face->cull(eye_x, eye_y, eye_z);
    }
}

void Solid3d::clipEye(float eyeR) {
    for (const auto& face : faces) {
        face->clipEye(eyeR);
    }
}

void Solid3d::deselectFaces() {
    for (const auto& face : faces) {
        face->setSelected(false);
    }
}

void Solid3d::Culled(bool flag) {
    for (const auto& face : faces) {
        face->IsCulled = flag;
    }
    std::fill(transformed_.begin(), transformed_.end(), flag ? 1 : 0);
}

void Solid3d::SetZMax() {
    zmax = -1e30f;
    for (const auto& face : faces) {
        zmax = std::max(zmax, face->zmax());
    }
}

void Solid3d::storeProjection(const SolidProjection& seen, bool wholly) {
    // Storage is made only for a point reached; without storage only record 1 can be.
    if (seen.reached.size() > 1 && seen.reached[1] != 0) {
        makeStorage();
    }
    // Without a branch: reached and passed-over points alternate.
    for (size_t i = 1; i < std::min(seen.reached.size(), points_.size()); ++i) {
        const Point4& from = seen.reached[i] != 0 ? seen.points[i] : points_[i].trans;
        points_[i].trans = from;
    }
    if (!wholly) {
        return;
    }
    for (size_t f = 0; f < faces.size(); ++f) {
        faces[f]->IsCulled = seen.culled[f] != 0;
    }
    std::fill(transformed_.begin(), transformed_.end(), 0);
    for (size_t i = 1; i < seen.reached.size() && i < transformed_.size(); ++i) {
        transformed_[i] = seen.reached[i];
    }
    zmax = seen.zmax;
}

void Solid3d::GetTransformedPoint(float& x, float& y, float& z) const {
    x = y = z = 0;
    for (const auto& face : faces) {
        if (!face->IsCulled && face->NumPts > 0) {
            face->GetTransformedPoint(1, x, y, z);
            return;
        }
    }
}

void Solid3d::getRMinRMax(float light_x, float light_y, float light_z, float& Rmin,
                          float& Rmax) const {
    Rmin = 1e30f;
    Rmax = -1e30f;
    for (const auto& face : faces) {
        float faceMin;
        float faceMax;
        face->getRMinRMax(light_x, light_y, light_z, faceMin, faceMax);
        Rmin = std::min(Rmin, faceMin);
        Rmax = std::max(Rmax, faceMax);
    }
}

void Solid3d::CheckVisibility(int32_t x1, int32_t y1, int32_t x2, int32_t y2) {
    const int64_t dx = static_cast<int64_t>(x2) - x1;
    const int64_t dy = static_cast<int64_t>(y2) - y1;
    visible_ = std::llabs(dy) < 71 || std::llabs(dx) < 71;
}

FaceList Solid3d::SortFaces() const {
    return FaceOrder::sorterInUse(faces);
}

FaceList Solid3d::paintOrder() const {
    return HideSurfaces && !IsConvex ? SortFaces() : faces;
}

void Solid3d::draw(Canvas& pic, const LightList& light_sources, int16_t ambient_light, float eye_x,
                   float eye_y, float eye_z, bool UseShift, bool ResetAfterDraw, bool wireFrame,
                   int FRed, int FGreen, int FBlue, int FFaceRed, int FFaceGreen, int FFaceBlue) {
    const FaceList order = paintOrder();
    pic.setDrawStyle(DrawInvisible);
    const bool forced = FRed != -1 && FGreen != -1 && FBlue != -1;
    for (const auto& face : order) {
        if (face->isSelected()) {
            face->DrawForceColor(pic, light_sources, ambient_light, eye_x, eye_y, eye_z, UseShift,
                                 FFaceRed, FFaceGreen, FFaceBlue, wireFrame);
        } else if (forced) {
            face->DrawForceColor(pic, light_sources, ambient_light, eye_x, eye_y, eye_z, UseShift,
                                 FRed, FGreen, FBlue, wireFrame);
        } else {
            face->DrawNoForceColor(pic, light_sources, ambient_light, eye_x, eye_y, eye_z, UseShift,
                                   wireFrame);
        }
    }
    if (ResetAfterDraw) {
        resetTransformedPoints();
    }
    pic.setDrawStyle(DrawSolid);
    pic.setFillStyle(FillSolid);
}

void Solid3d::DrawCounted(Canvas& pic, const LightList& light_sources, int16_t ambient_light,
                          float eye_x, float eye_y, float eye_z, bool UseShift, bool ResetAfterDraw,
                          int32_t) {
    pic.setDrawStyle(DrawInvisible);
    for (const auto& face : paintOrder()) {
        face->DrawNoForceColor(pic, light_sources, ambient_light, eye_x, eye_y, eye_z, UseShift,
                               false);
    }
    if (ResetAfterDraw) {
        resetTransformedPoints();
    }
    pic.setDrawStyle(DrawSolid);
}

template <class Each>
void Solid3d::forEachRegionFace(bool useSortedFaces, bool excludeCulledFaces, Each each) const {
    for (const auto& face : useSortedFaces ? SortFaces() : faces) {
        if (!(excludeCulledFaces && face->IsCulled)) {
            each(face);
        }
    }
}

std::vector<std::shared_ptr<GDIRegion>>
Solid3d::createRegions(bool useSortedFaces, bool excludeCulledFaces, int regionFillMode) const {
    std::vector<std::shared_ptr<GDIRegion>> regions;
    forEachRegionFace(useSortedFaces, excludeCulledFaces, [&](const std::shared_ptr<Face3d>& face) {
        regions.push_back(face->createRegion(regionFillMode));
    });
    return regions;
}

std::vector<std::shared_ptr<FaceRegionEncap>>
Solid3d::createFaceRegionEncaps(bool useSortedFaces, bool excludeCulledFaces,
                                int regionFillMode) const {
    std::vector<std::shared_ptr<FaceRegionEncap>> encaps;
    forEachRegionFace(useSortedFaces, excludeCulledFaces, [&](const std::shared_ptr<Face3d>& face) {
        auto encap = std::make_shared<FaceRegionEncap>();
        encap->setFace(face);
        encap->setRegion(face->createRegion(regionFillMode));
        encaps.push_back(encap);
    });
    return encaps;
}
