#pragma once

#include "geometry/Matrix4.h"
#include "geometry/Point4.h"
#include "render/LightSource.h"
#include "render/Shading.h"
#include "scene/CornerIndices.h"

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/Canvas.h"

class GDIRegion;
class Solid3d;
struct Point4;

// One planar polygon of a solid. It holds no coordinates: it lists 1-based indices into
// its solid's point records in the order its corners are visited, and carries the
// surface coefficients that shading uses. Corners are numbered 1 to NumPts.
//
// A face may outlive its solid (a selection, a dialog or a face/region pair still holds it
// after the solid is gone). Such a face keeps its indices and coefficients, and its
// geometry reads as that of a face without corners: transformed points, extent and
// normals are 0, getRMinRMax leaves 1e30 and -1e30, zmax is -1e30 (0 once culled),
// transformations and clipping do nothing, cull culls it, IsAbove and IsBelow hold
// (no corner lies on the wrong side), Obscures and PointInside are false, drawing paints
// nothing and createRegion gives a region that covers nothing.
class Face3d {
public:
    int32_t NumPts = 0;
    bool IsCulled = false; // not to be drawn in the current redraw (back face or clipped)
    float DiffuseKr = 0;
    float DiffuseKg = 0;
    float DiffuseKb = 0;
    float AmbientKr = 0;
    float AmbientKg = 0;
    float AmbientKb = 0;
    float SpecularK = 0;
    float SpecularN = 0; // used as a whole power

    // Structure and identity.
    void addIndex(int32_t index);
    void SetPoints(const std::vector<int32_t>& indices);
    // Removes the first occurrence of index, unless that would leave fewer than 3 corners.
    bool deletePointIndex(int32_t index);
    // Reverses the corner order, which flips the normal.
    void switchIndexOrientation();
    const CornerIndices& getIndices() const { return indices_; }
    // The solid whose points the indices refer to. The face does not own it; the solid
    // clears it when it is destroyed.
    void setSolidContainer(Solid3d* solid) { solid_ = solid; }
    Solid3d* getSolidContainer() const { return solid_; }
    void setSelected(bool flag) { selected_ = flag; }
    bool isSelected() const { return selected_; }
    void setOrderNumber(int32_t number) { orderNumber_ = number; }
    int32_t getOrderNum() const { return orderNumber_; }

    // Geometry. Faces with fewer than three corners have a zero normal, and a zero normal
    // has a zero unit normal.
    void GetTransformedPoint(int corner, float& x, float& y, float& z) const;
    void GetExtent(float& Xmin, float& xmax, float& ymin, float& ymax, float& Zmin,
                   float& zmax) const;
    void NormalVector(float& x, float& y, float& z) const;
    void TransformedNormalVector(float& x, float& y, float& z) const;
    void UnitNormalVector(float& x, float& y, float& z) const;
    // Scales a vector to unit length as UnitNormalVector does; a zero vector stays.
    static void toUnitLength(float& x, float& y, float& z);
    void getRMinRMax(float light_x, float light_y, float light_z, float& Rmin, float& Rmax) const;
    // The square of a corner's distance from a light, as getRMinRMax measures it before
    // taking the root.
    static double squaredDistance(const Point4& corner, float light_x, float light_y,
                                  float light_z) {
        const double dx = corner.x - light_x;
        const double dy = corner.y - light_y;
        const double dz = corner.z - light_z;
        return dx * dx + dy * dy + dz * dz;
    }
    float zmax() const;

    // Transformations through the solid's cache: a point shared by several faces is
    // transformed once until the solid's flags are reset. A culled face transforms nothing.
    void ApplyFull(const Matrix4& M, bool toCoord2);
    void ApplyFullTrans(const Matrix4& M);
    void ApplyFullCoord2(const Matrix4& M);
    void ApplyFullCoord(const Matrix4& M);
    void Apply(const Matrix4& M);
    void ApplyCoord(const Matrix4& M);

    // Visibility: back faces and faces edge-on to the eye are culled; so are faces with a
    // corner at or behind the eye.
    void cull(float eye_x, float eye_y, float eye_z);
    // What cull decides, without deciding it.
    bool facesAwayFrom(float eye_x, float eye_y, float eye_z) const;
    // Whether a face with the normal (its NormalVector) and first corner given faces away:
    // only faces turned towards the eye by more than the tolerance stay; edge-on is culled.
    static bool facesAway(float nx, float ny, float nz, const Point4& corner, float eye_x,
                          float eye_y, float eye_z) {
        const auto d = static_cast<float>(static_cast<double>(nx) * (corner.x - eye_x) +
                                          static_cast<double>(ny) * (corner.y - eye_y) +
                                          static_cast<double>(nz) * (corner.z - eye_z));
        return !(-0.0001 >= d);
    }
    // A face with a corner this deep or deeper (at or behind the eye) is culled.
    static bool behindEye(float depth, float eyeR) { return depth >= eyeR; }
    void clipEye(float eyeR);

    // Depth relations for the painter's sort, all on the transformed points.
    bool IsAbove(const Face3d& other) const;
    bool IsBelow(const Face3d& other) const;
    bool Obscures(const Face3d& other) const;
    bool PointInside(float x, float y) const;

    void DrawNoForceColor(Canvas& pic, const LightList& light_sources, int16_t ambient_light,
                          float eye_x, float eye_y, float eye_z, bool UseShift, bool wireFrame);
    void DrawForceColor(Canvas& pic, const LightList& light_sources, int16_t ambient_light,
                        float eye_x, float eye_y, float eye_z, bool UseShift, int FRed, int FGreen,
                        int FBlue, bool wireFrame);

    // What shading reads of the face: its unit normal, its first corner and its coefficients.
    ShadedSurface shadedSurface() const;
    // The same with the unit normal given.
    ShadedSurface shadedSurface(float nx, float ny, float nz) const;
    // Whether every corner lies off the canvas: then the face paints nothing.
    static bool allOffCanvas(const std::vector<CanvasPoint>& points, const Canvas& pic);
    // Fills points with the face colour (outlines only, in that colour, for a wireframe),
    // leaving the canvas's styles and colours as they were.
    static void paintPolygon(Canvas& pic, const std::vector<CanvasPoint>& points, int32_t color,
                             bool wireFrame);
    // A hit region from the rounded transformed corners, culled or not.
    std::shared_ptr<GDIRegion> createRegion(int fillmode) const;

private:
    // NumPts while the face has a solid to read its points from, else 0.
    int32_t cornerCount() const { return solid_ != nullptr ? NumPts : 0; }
    const Point4& coordOf(int corner) const;
    const Point4& transOf(int corner) const;
    template <class Step> void transformCorners(Step step);
    bool isOnSideOf(const Face3d& other, bool towardsViewer) const;
    // The corners' transformed x and y, rounded to whole pixels.
    std::vector<CanvasPoint> canvasPoints() const;

    CornerIndices indices_;
    Solid3d* solid_ = nullptr;
    bool selected_ = false;
    int32_t orderNumber_ = 0;
};
