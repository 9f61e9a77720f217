#pragma once

#include "geometry/Matrix4.h"
#include "geometry/PointRecord.h"
#include "scene/Solid3d.h"

#include <memory>
#include <vector>

// A scene object: a solid together with the recipe it was swept from, a profile curve and
// one matrix per extrusion step. It forwards the pipeline, coefficient and picking
// operations to its solid (doing nothing, or answering empty, when it has none) and
// carries the object's selection flag.
class Transformed3d {
public:
    // Building.
    void AddCurvePoint(float x, float y, float z);
    void SetTransformation(const Matrix4& M);
    // Sweeps the curve through the matrices into a new solid: ring k is the curve moved by
    // matrix k alone; each segment adds its own 2 x curve-count points and two triangles
    // per curve edge; the caps (when asked) close the first and the last ring.
    void Transform(bool cap_ends);
    void setSolid(const std::shared_ptr<Solid3d>& solid) { solid_ = solid; }
    std::shared_ptr<Solid3d> getSolid() const { return solid_; }
    int16_t getCurvePointCount() const { return static_cast<int16_t>(curve_.size()); }
    int16_t getTransformationCount() const { return static_cast<int16_t>(transformations_.size()); }
    // Curve points 1 to getCurvePointCount().
    const PointRecord& getCurvePoint(int index) const {
        return curve_[static_cast<size_t>(index - 1)];
    }

    // Forwarded to the solid.
    bool HideSurfaces() const;
    void HideSurfaces(bool flag);
    void IsConvex(bool flag);
    void cull(float eye_x, float eye_y, float eye_z);
    void Culled(bool flag);
    void clipEye(float eyeR);
    void SetZMax();
    float zmax() const;
    void getRMinRMax(float light_x, float light_y, float light_z, float& Rmin, float& Rmax) const;
    void draw(Canvas& pic, const LightList& light_sources, int16_t ambient_light, float eye_x,
              float eye_y, float eye_z, bool UseShift, bool ResetAfterDraw, bool wireFrame,
              int FRed, int FGreen, int FBlue, int FFaceRed, int FFaceGreen, int FFaceBlue);
    void SetAmbientCoefficients(float kr, float kg, float kb);
    void SetDiffuseCoefficients(float kr, float kg, float kb);
    void SetSpecularCoefficients(float K, int16_t N);
    void setSpecularK(float value);
    void setSpecularN(float value);
    std::vector<std::shared_ptr<CPoint3D>> getPoints() const;
    FaceList getFaces() const;
    FaceList getSortedFaces() const;
    std::vector<std::shared_ptr<GDIRegion>>
    createRegions(bool useSortedFaces, bool excludeCulledFaces, int regionFillMode) const;
    std::vector<std::shared_ptr<FaceRegionEncap>>
    createFaceRegionEncaps(bool useSortedFaces, bool excludeCulledFaces, int regionFillMode) const;
    void deselectFaces();

    void setSelected(bool flag) { selected_ = flag; }
    bool isSelected() const { return selected_; }

    // Projection of the curve and the solid for display (full) and for modelling (affine).
    void ApplyFull(const Matrix4& M);
    // The curve's part of ApplyFull.
    void projectCurve(const Matrix4& M);
    void Apply(const Matrix4& M);

private:
    std::vector<PointRecord> curve_;
    std::vector<Matrix4> transformations_;
    std::shared_ptr<Solid3d> solid_;
    bool selected_ = false;
};
