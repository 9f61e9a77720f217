#pragma once

#include "platform/Canvas.h"

#include <QImage>
#include <cstdint>
#include <vector>

// Fills a polygon of whole-pixel corners with one colour, straight into a 32-bit image:
// even-odd rule, a pixel is filled when its centre lies inside (a centre on a left edge is
// outside, on a right edge inside), clipped to the image. It gives the pixels QPainter gives
// for a brush without pen, but without QPainter's set-up per call, which is most of the cost
// of the small faces a redraw is made of.
class ScanlineFiller {
public:
    void fill(QImage& image, const std::vector<CanvasPoint>& points, QRgb color);

private:
    // An edge's crossing with the centre line of the current row, kept exactly as a whole
    // part and a remainder so that a centre on an edge always falls on the same side.
    struct Edge {
        int top;           // first row whose centre line the edge crosses, on the image
        int bottom;        // one past the last
        int32_t start;     // first pixel whose centre lies right of the crossing
        int32_t remainder; // 0 <= remainder < divisor
        int32_t startStep; // per row
        int32_t remainderStep;
        int32_t divisor;
    };

    // Kept between calls, so that filling allocates nothing once the buffers have grown.
    std::vector<Edge> edges_;
    std::vector<int32_t> starts_;
};
