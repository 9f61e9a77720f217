#pragma once

#include "geometry/Matrix4.h"
#include "geometry/PointRecord.h"
#include "render/LightSource.h"
#include "scene/Face3d.h"
#include "scene/SolidProjection.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

class CPoint3D;
class FaceRegionEncap;
class GDIRegion;

using FaceList = std::vector<std::shared_ptr<Face3d>>;

// A polygon mesh: shared point records and the faces that index into them (1-based). Every
// face in a solid's list has that solid as its container and indexes only its records.
// It owns the transformed-point cache through which its faces transform each shared
// point once per redraw, forwards the pipeline's per-face operations to every face in
// list order, and orders its faces for painting.
class Solid3d {
public:
    FaceList faces;        // in creation order
    float zmax = 0;        // largest face depth, set by SetZMax
    bool IsConvex = false; // convex solids paint without sorting
    bool HideSurfaces = false;

    Solid3d();
    ~Solid3d();
    Solid3d(const Solid3d&) = delete;
    Solid3d& operator=(const Solid3d&) = delete;

    // Appends points from a flat list x, y, z, x, y, z, ...; a trailing partial triple is
    // ignored. Both names take the same list.
    void addPoints(std::span<const double> values);
    void addPointsArray(std::span<const float> values);
    // Creates a face with the given 1-based point indices, numbered by the new face count.
    std::shared_ptr<Face3d> AddFace(std::span<const int32_t> indices);
    std::shared_ptr<Face3d> AddFaceArray(std::span<const int32_t> indices);
    // Appends an existing face as it is (container and order number untouched).
    void AddFace3D(const std::shared_ptr<Face3d>& face);
    // One point per record, 1 to the upper bound: a solid without points reports one
    // point at the origin.
    std::vector<std::shared_ptr<CPoint3D>> getPoints() const;
    int32_t GetFaceNum() const { return static_cast<int32_t>(faces.size()); }
    FaceList copyFaceList() const { return faces; }

    // A point record read in place: its three parts refer to the solid's storage.
    struct PointRecordRef {
        const Point4& coord;
        const Point4& coord2;
        const Point4& trans;
        operator PointRecord() const { return PointRecord{coord, coord2, trans}; }
    };
    // The point records, 1 to getPointUpperBound(); the number of added points is
    // getNextPointIndex() - 1. A solid without points holds no storage for its one record at
    // the origin until something writes it: a file of many empty objects stays small.
    PointRecordRef getPointRecord(int32_t index) const {
        if (points_.empty()) {
            return {origin_.coord, origin_.coord2, origin_.trans};
        }
        const auto i = static_cast<size_t>(index);
        return {points_[i].coord, coord2_.empty() ? origin_.coord2 : coord2_[i], points_[i].trans};
    }
    void setPointRecord(int32_t index, const PointRecord& record);
    void appendPointRecord(const PointRecord& record);
    int32_t getPointUpperBound() const {
        return points_.empty() ? 1 : static_cast<int32_t>(points_.size()) - 1;
    }
    int32_t getNextPointIndex() const { return nextPointIndex_; }
    // What one point's storage takes: coord, trans, coord2 once kept, and the flag below.
    size_t bytesPerPoint() const {
        return sizeof(StoredPoint) + (coord2_.empty() ? 0 : sizeof(Point4)) + sizeof(uint8_t);
    }

    void SetDiffuseCoefficients(float kr, float kg, float kb);
    void SetAmbientCoefficients(float kr, float kg, float kb);
    void SetSpecularCoefficients(float K, int16_t N);
    void setSpecularK(float value);
    void setSpecularN(float value);

    bool hasTransformedPoint(int32_t index) const {
        return !transformed_.empty() && transformed_[static_cast<size_t>(index)] != 0;
    }
    void activateTransformedPoint(int32_t index) {
        makeStorage();
        transformed_[static_cast<size_t>(index)] = 1;
    }
    void resetTransformedPoints();

    void ApplyFull(const Matrix4& M, bool toCoord2);
    void ApplyFullTrans(const Matrix4& M);
    void ApplyFullCoord2(const Matrix4& M);
    void ApplyFullCoord(const Matrix4& M);
    void Apply(const Matrix4& M);
    void ApplyCoord(const Matrix4& M);
    void cull(float eye_x, float eye_y, float eye_z);
    void clipEye(float eyeR);
    void deselectFaces();
    // Sets every face's culling; culling everything also marks every point transformed, so
    // that nothing is transformed until the next reset.
    void Culled(bool flag);
    void SetZMax();
    // Leaves what projecting the solid for one viewport leaves: the projected points it
    // reached; and with wholly, also its faces' culling, its transformed-point flags and its
    // largest depth, as after that viewport alone.
    void storeProjection(const SolidProjection& seen, bool wholly);
    // The transformed corner 1 of the first face that is not culled.
    void GetTransformedPoint(float& x, float& y, float& z) const;
    void getRMinRMax(float light_x, float light_y, float light_z, float& Rmin, float& Rmax) const;
    void CheckVisibility(int32_t x1, int32_t y1, int32_t x2, int32_t y2);
    bool isVisible() const { return visible_; }

    // Painter's order, back to front, resolving overlaps pairwise; culled faces lead.
    FaceList SortFaces() const;
    void draw(Canvas& pic, const LightList& light_sources, int16_t ambient_light, float eye_x,
              float eye_y, float eye_z, bool UseShift, bool ResetAfterDraw, bool wireFrame,
              int FRed, int FGreen, int FBlue, int FFaceRed, int FFaceGreen, int FFaceBlue);
    void DrawCounted(Canvas& pic, const LightList& light_sources, int16_t ambient_light,
                     float eye_x, float eye_y, float eye_z, bool UseShift, bool ResetAfterDraw,
                     int32_t count);

    std::vector<std::shared_ptr<GDIRegion>>
    createRegions(bool useSortedFaces, bool excludeCulledFaces, int regionFillMode) const;
    std::vector<std::shared_ptr<FaceRegionEncap>>
    createFaceRegionEncaps(bool useSortedFaces, bool excludeCulledFaces, int regionFillMode) const;

private:
    friend class Face3d;
    // Where a face's transformation writes: the model point and the projected one, and
    // coord2, which takes its storage for every point the first time it is written.
    struct StoredPoint {
        Point4 coord;
        Point4 trans;
    };
    StoredPoint& pointForTransform(int32_t index) {
        makeStorage();
        return points_[static_cast<size_t>(index)];
    }
    Point4& coord2ForTransform(int32_t index) {
        makeStorage();
        makeCoord2Storage();
        return coord2_[static_cast<size_t>(index)];
    }
    void makeCoord2Storage() { coord2_.resize(points_.size()); }
    void storePointRecord(int32_t index, const PointRecord& record);
    // Index 0 unused and the origin record at 1.
    void makeStorage() {
        if (points_.empty()) {
            points_.resize(2);
            transformed_.resize(2, 0);
        }
    }
    FaceList paintOrder() const;
    template <class Each>
    void forEachRegionFace(bool useSortedFaces, bool excludeCulledFaces, Each each) const;

    static inline const PointRecord origin_{};
    std::vector<StoredPoint> points_; // index 0 unused; empty until needed
    std::vector<Point4> coord2_;      // empty until a coord2 that is not zero is written
    int32_t nextPointIndex_ = 1;
    std::vector<uint8_t> transformed_; // index 0 unused
    bool visible_ = false;
};
