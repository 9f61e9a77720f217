#pragma once

#include <cstdint>

class Canvas;
class Vector3D;
class viewInfo;

// Draws one vector as a line from a world start point with an outlined 10-pixel square at
// the start, as a direction marker. The view's full matrix places it, zoom and shift
// included, so the arrow stands where the scene shows its start point and points the way it
// goes there (a unit vector is as long as one world unit looks). Nothing is drawn when
// either end is at or behind the eye.
class Vector3DDrawer {
public:
    // v may be null (no vector to show); lineStyle is a canvas draw style. The canvas's draw
    // style, fore colour and fill style are restored afterwards.
    void draw(Canvas& pic, const Vector3D* v, const viewInfo& view, float shiftx, float shifty,
              float shiftZ, int32_t vColor, int lineStyle) const;
};
