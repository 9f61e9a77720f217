#pragma once

#include "geometry/Matrix4.h"
#include "render/ViewSpecs.h"

#include <array>
#include <cstdint>

class Canvas;

// Turns a view record into the matrices that map world points onto a canvas, plus the
// small conversions the dialogs share.
namespace KorvanOpsConsts {

// The standard views, by their viewConst.
constexpr int viewTop = 1;
constexpr int viewFront = 2;
constexpr int viewSide = 3;
constexpr int viewIsometric = 4;

// Sets the angles of a standard view (and for the isometric view the distance 10).
// Any other viewConst leaves the record as it is and says so in a message box.
void setOrthoView(int viewConst, ViewSpecs& view);
// The viewing transformation: target to the origin, eye on +z, world up on +y.
Matrix4 getViewMatrix(const ViewSpecs& view);
// Eye space to canvas pixels: scaled by zoom with y flipped so that up points up the
// canvas, then moved to the canvas centre plus half the shift.
Matrix4 getCanvasMatrix(const Canvas& pic, const ViewSpecs& view);
// getViewMatrix times getCanvasMatrix: the matrix the renderer applies to every point.
Matrix4 getFullViewMatrix(const Canvas& pic, const ViewSpecs& view);
// The eye in world space (not offset by the target), for culling and shading.
void getEyePosition(const ViewSpecs& view, float& x, float& y, float& z);

void splitColor(int32_t color, int& red, int& green, int& blue);
int toCheckValue(bool flag);
void unpackXYZ(const std::array<float, 3>& values, float& x, float& y, float& z);

} // namespace KorvanOpsConsts
