#pragma once

#include "scene/Solid3d.h"

class Canvas;

// A small three-line glyph labelled X, Y and Z that shows a view's orientation, either in
// the canvas's bottom-left corner or where the view's target is drawn. Its solid holds four
// points, origin and the x, y and z tips, and no faces.
class AxesXYZ {
public:
    AxesXYZ();

    // Draws in white, one twelfth of the canvas per world unit, whatever the view's zoom;
    // the canvas's draw style and fore colour are restored afterwards.
    void draw(Canvas& pic, float EyeR, float EyeTheta, float EyePhi, int ProjectionType,
              bool shiftToBottomLeft, float shiftx, float shifty);
    const Solid3d& getSolid() const { return solid_; }

private:
    Solid3d solid_;
};
