#pragma once

#include "platform/Canvas.h"

#include <QImage>
#include <vector>

// Fills a polygon of whole-pixel corners with one colour, straight into a 32-bit image:
// even-odd rule, a pixel is filled when its centre lies inside, clipped to the image. It
// gives the pixels QPainter gives for a brush without pen, without QPainter's set-up per
// call, which dominates the cost of the small faces a redraw is made of.
class ScanlineFiller {
public:
    void fill(QImage& image, const std::vector<CanvasPoint>& points, QRgb color);

private:
    struct Edge {
        int top;    // first row whose centre the edge crosses, on the image
        int bottom; // one past the last
        double x;   // upper end
        double y;
        double dx; // lower end minus upper end
        double dy;
    };

    // Kept between calls, so that filling allocates nothing once the buffers have grown.
    std::vector<Edge> edges_;
    std::vector<double> crossings_;
};
