#pragma once

#include "platform/Canvas.h"
#include "render/ScanlineFiller.h"

#include <cstdint>
#include <vector>

// A picture drawn with a depth buffer instead of a painting order: each pixel keeps the colour
// of the nearest face that covers it, nearest meaning the largest depth (depths grow towards
// the eye). A face covers the pixels a filled polygon of its rounded corners covers, and its
// depth at a pixel centre is that of the plane through its first three corners in canvas x, y
// and depth; a face seen edge-on takes its largest corner depth. Covered pixels carry 0xFF in
// their top byte, so that Canvas::overlayPixels paints only them.
class DepthBuffer {
public:
    // Sizes the picture and uncovers every pixel.
    void reset(int width, int height);
    // depths: x and y in canvas pixels and the depth of each transformed corner; points: the
    // same corners rounded, as the polygon is filled.
    void fill(const std::vector<CanvasPoint>& points, const std::vector<float>& depths,
              int32_t color);
    // Each pixel the other covers nearer, or as near, takes the other's colour and depth.
    void takeNearer(const DepthBuffer& other);
    const Bitmap& picture() const { return picture_; }

private:
    Bitmap picture_;
    std::vector<float> depth_;
    ScanlineFiller filler_;
};
