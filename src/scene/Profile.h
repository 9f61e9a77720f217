#pragma once

#include "geometry/Matrix4.h"
#include "geometry/PointRecord.h"

#include <cstdint>
#include <memory>
#include <vector>

class Canvas;
class CPoint3D;
class GDIRegion;

using CPointList = std::vector<std::shared_ptr<CPoint3D>>;

// A polyline drawn on a workplane, later extruded into a solid. Points are shared objects:
// a closed profile ends with its first point object again, and clones share every point.
class Profile {
public:
    void addCPoint(const std::shared_ptr<CPoint3D>& point);
    // Projects every point into its trans slot; a hidden profile is left as it is.
    void ApplyFull(const Matrix4& M);
    void draw(Canvas& pic, int profileRed, int profileGreen, int profileBlue) const;
    // The point at a 1-based index, given only while the profile holds more than one point.
    std::shared_ptr<CPoint3D> getCPoint(int32_t index) const;
    int32_t getPointCount() const { return static_cast<int32_t>(points.size()); }
    CPointList getPoints() const { return points; }
    bool isSelected() const { return selected; }
    void setSelected(bool value) { selected = value; }
    // Reverses the drawing order.
    void changeOrientation();
    std::shared_ptr<Profile> clone() const;
    // The region of the points projected by M, without touching the points.
    std::shared_ptr<GDIRegion> createRegion(const Matrix4& M) const;
    bool isVisible() const { return visible; }
    void setVisible(bool value) { visible = value; }
    void clear() { points.clear(); }

    // For the program's own classes: append a copy of a record as a new point, and read a
    // point's record by the same index rule as getCPoint (zeros otherwise).
    void addPointRecord(const PointRecord& record);
    PointRecord getPointRecord(int32_t index) const;

private:
    CPointList points;
    bool selected = false;
    bool visible = true;
};
