#pragma once

#include "geometry/Matrix4.h"

#include <cstdint>
#include <memory>

class Canvas;
class CPoint3D;
class GDIRegion;
class Solid3d;

// A square construction plane in world space. Its geometry is a one-face solid so that it
// shares the solids' transformation, clipping and picking, but it paints itself as a
// hatched outline. Points 1 to 4 are the corners and point 5 the centre of rotation; other
// code relies on that numbering.
class WorkPlane {
public:
    WorkPlane();

    void initialize(float workPlaneSize, float xRotate, float yRotate, float workPlaneOffset,
                    int32_t workPlaneColor);
    // Clears what the last viewport's clipping left, then projects all five points.
    void ApplyFull(const Matrix4& M);
    void clipEye(float eyeR);
    void draw(Canvas& pic, int fillStyleMode, int selectedR, int selectedG, int selectedB);
    void setColor(int32_t newColor) { color = newColor; }
    void show() { visible = true; }
    void hide() { visible = false; }
    void setVisibility(bool Newvisible) { visible = Newvisible; }
    bool isVisible() const { return visible; }
    void isVisible(bool value) { visible = value; }
    void setSelected(bool value) { selected = value; }
    bool isSelected() const { return selected; }
    // The plane's hit region, or nothing when it is hidden or its face gave no region.
    std::shared_ptr<GDIRegion> createRegion() const;
    float getXRotation() const { return xRotation; }
    float getYRotation() const { return yRotation; }
    float getSize() const { return size; }
    float getOffset() const { return offset; }
    int32_t getColor() const { return color; }
    void resetTransformedPoints();
    // A copy of the centre point's record, as the last ApplyFull left it.
    std::shared_ptr<CPoint3D> getCenterCoord() const;
    const std::shared_ptr<Solid3d>& getSolid() const { return solid; }

private:
    // Whether initialize has built the five points; before that there is nothing to draw.
    bool hasGeometry() const;

    std::shared_ptr<Solid3d> solid;
    int32_t color = 0;
    bool visible = true;
    bool selected = false;
    float xRotation = 0;
    float yRotation = 0;
    float offset = 0;
    float size = 0;
};
