#pragma once

#include "platform/Canvas.h"
#include "render/ScanlineFiller.h"

#include <algorithm>
#include <cstdint>
#include <vector>

// A picture drawn with a depth buffer instead of a painting order: each pixel keeps the nearest
// face that covers it, nearest meaning the largest depth (depths grow towards the eye), and of
// faces as near the one with the larger number. Faces are filled in the order of their numbers,
// into one buffer or shared out between two that are painted from together. A face covers the
// pixels a filled polygon of its rounded corners covers, and its depth at a pixel centre is that of
// the plane through its first three corners in canvas x, y and depth; a face seen edge-on takes its
// largest corner depth.
//
// Faces are filled by number, from 1 up (0 stands for no face), and coloured only once all are
// in, so that only the faces that show are shaded. Faces may be shared out between two buffers
// and painted from both, by bands of rows, so that each core can take one.
class DepthBuffer {
public:
    // Sizes the picture and uncovers every pixel (at the same size, only those covered).
    void reset(int width, int height);
    // Covers the pixels where face number `face`, larger than those filled before, is nearest.
    // depths: x and y in canvas pixels and the depth of each transformed corner; points: the same
    // corners rounded, as the polygon is filled. Each thread brings a filler of its own.
    void fill(ScanlineFiller& filler, const std::vector<CanvasPoint>& points,
              const std::vector<float>& depths, uint32_t face);
    // The pixels outside which no face has been filled.
    const PixelBox& covered() const { return covered_; }
    // Gives the pixels of box the colour of their face, colorOf(face) with 0xFF in the top
    // byte, so that Canvas::overlayPixels paints just the covered ones; the picture's other
    // pixels are left as they are. With other (of the same size, its faces numbered apart from
    // this one's), a pixel shows the nearer face of the two buffers. Each face that shows is
    // asked for once: colors holds the answers, 0 for faces not yet asked.
    template <class ColorOf>
    void paint(std::vector<uint32_t>& colors, const PixelBox& box, ColorOf colorOf,
               const DepthBuffer* other = nullptr);
    const Bitmap& picture() const { return picture_; }

private:
    Bitmap picture_;
    PixelBox covered_;
    // Each pixel's depth and face number, in rows of stride_ pixels.
    size_t stride_ = 4;
    std::vector<float> depth_;
    std::vector<uint32_t> faces_;
    // The nearer face of this buffer's and other's at count pixels from place `at` on.
    void nearest(const DepthBuffer& other, size_t at, int count, uint32_t* faces) const;
};

template <class ColorOf>
void DepthBuffer::paint(std::vector<uint32_t>& colors, const PixelBox& box, ColorOf colorOf,
                        const DepthBuffer* other) {
    const int left = std::max(box.left, 0);
    const int right = std::min(box.right, picture_.width);
    std::vector<uint32_t> nearer(static_cast<size_t>(std::max(right - left, 0)) + 4);
    for (int y = std::max(box.top, 0); y < std::min(box.bottom, picture_.height); ++y) {
        const size_t first = static_cast<size_t>(y) * stride_ + static_cast<size_t>(left);
        const uint32_t* faces = faces_.data() + first;
        if (other != nullptr) {
            nearest(*other, first, right - left, nearer.data());
            faces = nearer.data();
        }
        uint32_t* pixels = picture_.pixels.data() + static_cast<size_t>(y) * picture_.width;
        for (int x = left; x < right; ++x) {
            const uint32_t face = faces[x - left];
            if (face != 0 && colors[face] == 0) {
                colors[face] = 0xFF000000u | colorOf(face);
            }
            pixels[x] = colors[face];
        }
    }
}
