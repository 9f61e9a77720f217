#pragma once

#include "platform/Canvas.h"
#include "render/ScanlineFiller.h"

#include <algorithm>
#include <cstdint>
#include <vector>

// A picture drawn with a depth buffer instead of a painting order: each pixel keeps the nearest
// face that covers it, nearest meaning the largest depth (depths grow towards the eye), and of
// faces as near the one with the larger number. Faces are filled in the order of their numbers,
// into one buffer or into several merged after. A face covers the pixels a filled polygon of its
// rounded corners covers, and its depth at a pixel centre is that of the plane through its first
// three corners in canvas x, y and depth; a face seen edge-on takes its largest corner depth.
//
// Faces are filled by number, from 1 up (0 stands for no face), and coloured only once all are
// in, so that only the faces that show are shaded. Merging and painting go by bands of rows, so
// that each core can take one.
class DepthBuffer {
public:
    // Sizes the picture and uncovers every pixel.
    void reset(int width, int height);
    int height() const { return picture_.height; }
    // Covers the pixels where face number `face`, larger than those filled before, is nearest.
    // depths: x and y in canvas pixels and the depth of each transformed corner; points: the same
    // corners rounded, as the polygon is filled. Each thread brings a filler of its own.
    void fill(ScanlineFiller& filler, const std::vector<CanvasPoint>& points,
              const std::vector<float>& depths, uint32_t face);
    // The pixels outside which no face has been filled.
    const PixelBox& covered() const { return covered_; }
    // Each pixel of rows top <= y < bottom that a face of the other, of the same size, covers
    // nearer takes that face and depth.
    void takeNearer(const DepthBuffer& other, int top, int bottom);
    // Gives the pixels of box the colour of their face, colorOf(face) with 0xFF in the top
    // byte, so that Canvas::overlayPixels paints just the covered ones; the picture's other
    // pixels are left as they are. Each face that shows is asked for once: colors holds the
    // answers, 0 for faces not yet asked.
    template <class ColorOf>
    void paint(std::vector<uint32_t>& colors, const PixelBox& box, ColorOf colorOf);
    const Bitmap& picture() const { return picture_; }

private:
    Bitmap picture_;
    PixelBox covered_;
    // Each pixel's depth and face number, in rows of stride_ pixels.
    size_t stride_ = 4;
    std::vector<float> depth_;
    std::vector<uint32_t> faces_;
};

template <class ColorOf>
void DepthBuffer::paint(std::vector<uint32_t>& colors, const PixelBox& box, ColorOf colorOf) {
    for (int y = std::max(box.top, 0); y < std::min(box.bottom, picture_.height); ++y) {
        const uint32_t* faces = faces_.data() + static_cast<size_t>(y) * stride_;
        uint32_t* pixels = picture_.pixels.data() + static_cast<size_t>(y) * picture_.width;
        for (int x = std::max(box.left, 0); x < std::min(box.right, picture_.width); ++x) {
            const uint32_t face = faces[x];
            if (face != 0 && colors[face] == 0) {
                colors[face] = 0xFF000000u | colorOf(face);
            }
            pixels[x] = colors[face];
        }
    }
}
