#pragma once

#include <cstdint>

class Canvas;
class Vector3D;
class viewInfo;

// Draws one vector as a line from a world start point with an outlined 10-pixel square at
// the start, as a direction marker. Only the view's viewing transformation places it: the
// endpoints land at one pixel per world unit around the canvas's top-left corner, without
// the viewport's zoom and shift. Nothing is drawn when either end is at or behind the eye.
class Vector3DDrawer {
public:
    // v may be null (no vector to show); lineStyle is a canvas draw style. The canvas's draw
    // style, fore colour and fill style are restored afterwards.
    void draw(Canvas& pic, const Vector3D* v, const viewInfo& view, float shiftx, float shifty,
              float shiftZ, int32_t vColor, int lineStyle) const;
};
