#include "render/ScanlineFiller.h"

#include <cstddef>
#include <cstring>

namespace {

// Corners are clamped to this range so that an edge's stepping fits 32 bits (and setting it up
// 64); that bends only edges with a corner hundreds of millions of pixels away.
constexpr int64_t coordinateLimit = int64_t{1} << 28;

int64_t floorDiv(int64_t a, int64_t b) { // b > 0
    const int64_t q = a / b;
    return q - (a % b < 0 ? 1 : 0);
}

} // namespace

void ScanlineFiller::prepare(int height, const std::vector<CanvasPoint>& points, int& top,
                             int& bottom) {
    edges_.clear();
    top = height;
    bottom = 0;
    for (size_t i = 0; i < points.size(); ++i) {
        const CanvasPoint& a = points[i];
        const CanvasPoint& b = points[i + 1 < points.size() ? i + 1 : 0];
        if (a.y == b.y) {
            continue; // a level edge crosses no centre line
        }
        const CanvasPoint& upper = a.y < b.y ? a : b;
        const CanvasPoint& lower = a.y < b.y ? b : a;
        // Row y's centre line is y + 0.5, so the edge crosses rows upper.y to lower.y - 1.
        const int first = std::max(upper.y, 0);
        const int last = std::min(lower.y, height);
        if (first >= last) {
            continue;
        }
        const int64_t x0 = std::clamp<int64_t>(upper.x, -coordinateLimit, coordinateLimit);
        const int64_t y0 = std::clamp<int64_t>(upper.y, -coordinateLimit, coordinateLimit);
        const int64_t dx = std::clamp<int64_t>(lower.x, -coordinateLimit, coordinateLimit) - x0;
        const int64_t dy = std::clamp<int64_t>(lower.y, -coordinateLimit, coordinateLimit) - y0;
        // On row y the edge crosses at x0 + (2 (y - y0) + 1) dx / (2 dy); the first pixel whose
        // centre lies right of it is x0 + floor(((2 (y - y0) + 1) dx - dy) / (2 dy)) + 1.
        const int64_t divisor = 2 * dy;
        const int64_t numerator = (2 * (first - y0) + 1) * dx - dy;
        const int64_t whole = floorDiv(numerator, divisor);
        const int64_t stepWhole = floorDiv(2 * dx, divisor);
        edges_.push_back(
            {first, last, static_cast<int32_t>(x0 + whole + 1),
             static_cast<int32_t>(numerator - whole * divisor), static_cast<int32_t>(stepWhole),
             static_cast<int32_t>(2 * dx - stepWhole * divisor), static_cast<int32_t>(divisor)});
        top = std::min(top, first);
        bottom = std::max(bottom, last);
    }
}

void ScanlineFiller::fill(uint32_t* pixels, int stride, int width, int height,
                          const std::vector<CanvasPoint>& points, uint32_t color) {
    const uint32_t quad[4] = {color, color, color, color};
    forEachSpan(width, height, points, [&](int y, int32_t left, int32_t right) {
        // Four pixels to a store where the span allows.
        uint32_t* pixel = pixels + static_cast<std::ptrdiff_t>(y) * stride + left;
        uint32_t* const end = pixels + static_cast<std::ptrdiff_t>(y) * stride + right;
        for (; end - pixel >= 4; pixel += 4) {
            std::memcpy(pixel, quad, sizeof quad);
        }
        for (; pixel < end; ++pixel) {
            *pixel = color;
        }
    });
}
