#include "scene/Transformed3d.h"

#include "geometry/M3Ops.h"

void Transformed3d::AddCurvePoint(float x, float y, float z) {
    PointRecord record;
    record.coord = Point4{x, y, z, 1.0f};
    curve_.push_back(record);
}

void Transformed3d::SetTransformation(const Matrix4& M) {
    transformations_.push_back(M);
}

void Transformed3d::Transform(bool cap_ends) {
    solid_ = std::make_shared<Solid3d>();
    for (PointRecord& point : curve_) {
        point.trans = Point4{point.coord.x, point.coord.y, point.coord.z, point.trans.w};
    }
    const auto P = static_cast<int32_t>(curve_.size());
    std::vector<float> points;
    std::vector<std::vector<int32_t>> sideFaces;
    int32_t c = 0;
    for (const Matrix4& M : transformations_) {
        for (int32_t j = 1; j <= P; ++j) {
            PointRecord& point = curve_[static_cast<size_t>(j - 1)];
            const Point4 previous = point.trans;
            M3Ops::transformPoint(point.coord, M, point.trans);
            points.insert(points.end(), {previous.x, previous.y, previous.z, point.trans.x,
                                         point.trans.y, point.trans.z});
            c += 2;
            if (j >= 2) {
                sideFaces.push_back({c - 3, c - 1, c - 2});
                sideFaces.push_back({c - 1, c, c - 2});
            }
        }
    }
    solid_->addPointsArray(points);
    for (const auto& face : sideFaces) {
        solid_->AddFace(face);
    }
    if (cap_ends && !transformations_.empty()) {
        std::vector<int32_t> start;
        for (int32_t j = P - 1; j >= 1; --j) {
            start.push_back(2 * j - 1); // previous position of point j in the first segment
        }
        std::vector<int32_t> end;
        for (int32_t j = 2; j <= P; ++j) {
            end.push_back(c - 2 * P + 2 * j); // new position of point j in the last segment
        }
        solid_->AddFaceArray(start);
        solid_->AddFaceArray(end);
    }
}

bool Transformed3d::HideSurfaces() const {
    return solid_ && solid_->HideSurfaces;
}

void Transformed3d::HideSurfaces(bool flag) {
    if (solid_) {
        solid_->HideSurfaces = flag;
    }
}

void Transformed3d::IsConvex(bool flag) {
    if (solid_) {
        solid_->IsConvex = flag;
    }
}

void Transformed3d::cull(float eye_x, float eye_y, float eye_z) {
    if (solid_) {
        solid_->cull(eye_x, eye_y, eye_z);
    }
}

void Transformed3d::Culled(bool flag) {
    if (solid_) {
        solid_->Culled(flag);
    }
}

void Transformed3d::clipEye(float eyeR) {
    if (solid_) {
        solid_->clipEye(eyeR);
    }
}

void Transformed3d::SetZMax() {
    if (solid_) {
        solid_->SetZMax();
    }
}

float Transformed3d::zmax() const {
    return solid_ ? solid_->zmax : 0.0f;
}

void Transformed3d::getRMinRMax(float light_x, float light_y, float light_z, float& Rmin,
                                float& Rmax) const {
    Rmin = 1e30f;
    Rmax = -1e30f;
    if (solid_) {
        solid_->getRMinRMax(light_x, light_y, light_z, Rmin, Rmax);
    }
}

void Transformed3d::draw(Canvas& pic, const LightList& light_sources, int16_t ambient_light,
                         float eye_x, float eye_y, float eye_z, bool UseShift, bool ResetAfterDraw,
                         bool wireFrame, int FRed, int FGreen, int FBlue, int FFaceRed,
                         int FFaceGreen, int FFaceBlue) {
    if (solid_) {
        solid_->draw(pic, light_sources, ambient_light, eye_x, eye_y, eye_z, UseShift,
                     ResetAfterDraw, wireFrame, FRed, FGreen, FBlue, FFaceRed, FFaceGreen,
                     FFaceBlue);
    }
}

void Transformed3d::SetAmbientCoefficients(float kr, float kg, float kb) {
    if (solid_) {
        solid_->SetAmbientCoefficients(kr, kg, kb);
    }
}

void Transformed3d::SetDiffuseCoefficients(float kr, float kg, float kb) {
    if (solid_) {
        solid_->SetDiffuseCoefficients(kr, kg, kb);
    }
}

void Transformed3d::SetSpecularCoefficients(float K, int16_t N) {
    if (solid_) {
        solid_->SetSpecularCoefficients(K, N);
    }
}

void Transformed3d::setSpecularK(float value) {
    if (solid_) {
        solid_->setSpecularK(value);
    }
}

void Transformed3d::setSpecularN(float value) {
    if (solid_) {
        solid_->setSpecularN(value);
    }
}

std::vector<std::shared_ptr<CPoint3D>> Transformed3d::getPoints() const {
    return solid_ ? solid_->getPoints() : std::vector<std::shared_ptr<CPoint3D>>{};
}

FaceList Transformed3d::getFaces() const {
    return solid_ ? solid_->copyFaceList() : FaceList{};
}

FaceList Transformed3d::getSortedFaces() const {
    return solid_ ? solid_->SortFaces() : FaceList{};
}

std::vector<std::shared_ptr<GDIRegion>> Transformed3d::createRegions(bool useSortedFaces,
                                                                     bool excludeCulledFaces,
                                                                     int regionFillMode) const {
    if (!solid_) {
        return {};
    }
    return solid_->createRegions(useSortedFaces, excludeCulledFaces, regionFillMode);
}

std::vector<std::shared_ptr<FaceRegionEncap>>
Transformed3d::createFaceRegionEncaps(bool useSortedFaces, bool excludeCulledFaces,
                                      int regionFillMode) const {
    if (!solid_) {
        return {};
    }
    return solid_->createFaceRegionEncaps(useSortedFaces, excludeCulledFaces, regionFillMode);
}

void Transformed3d::deselectFaces() {
    if (solid_) {
        solid_->deselectFaces();
    }
}

void Transformed3d::ApplyFull(const Matrix4& M) {
    projectCurve(M);
    if (solid_) {
        solid_->ApplyFull(M, false);
    }
}

void Transformed3d::projectCurve(const Matrix4& M) {
    for (PointRecord& point : curve_) {
        M3Ops::transformPoint(point.coord, M, point.trans);
    }
}

void Transformed3d::Apply(const Matrix4& M) {
    for (PointRecord& point : curve_) {
        M3Ops::transformPointAffine(point.coord, M, point.trans);
    }
    if (solid_) {
        solid_->Apply(M);
    }
}
