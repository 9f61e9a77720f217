#pragma once

#include "geometry/Matrix4.h"
#include "render/LightSource.h"
#include "scene/Solid3d.h"

#include <cstdint>
#include <memory>
#include <vector>

class Canvas;

// A flat reference grid of quads on the plane y = 0, drawn through the normal render
// pipeline as unlit outlines. Its solid keeps HideSurfaces off, so the quads paint in list
// order without the face sort.
class GridSolid3D {
public:
    GridSolid3D();

    // Replaces the solid by xnum columns of znum points from (x1, 0, z1) on, spaced by deltax
    // and deltaz, and the quads between them. With both spacings negative every quad faces +y,
    // so the grid is seen from above and culled from below.
    bool initialize(float x1, float deltax, int16_t xnum, float z1, float deltaz, int16_t znum);
    const std::shared_ptr<Solid3d>& getSolid() const { return solid_; }

    // Transforms the points of the quads that are not culled; the result is always false.
    bool ApplyFull(const Matrix4& M);
    void cull(float eye_x, float eye_y, float eye_z);
    void clipEye(float eyeR);
    void getRMinRMax(float light_x, float light_y, float light_z, float& Rmin, float& Rmax) const;
    void resetTransformedPoints();
    // Outlines every visible quad in (FRed, FGreen, FBlue) plus the ambient term; the lights
    // are ignored so that the grid never changes colour with the view.
    void draw(Canvas& pic, const LightList& light_sources, int16_t ambient_light, float eye_x,
              float eye_y, float eye_z, bool UseShift, bool ResetAfterDraw, int FRed, int FGreen,
              int FBlue);

    // Fills a table of colour offsets, a smooth hump over the canvas; nothing reads it yet.
    bool SetColorShift(float width, float height, float increment);

private:
    std::shared_ptr<Solid3d> solid_;
    std::vector<std::vector<float>> colorShift_; // rows x cols
};
