#include "qt/ScanlineFiller.h"

#include <algorithm>
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

void ScanlineFiller::fill(QImage& image, const std::vector<CanvasPoint>& points, QRgb color) {
    const int width = image.width();
    const int height = image.height();
    edges_.clear();
    int top = height;
    int bottom = 0;
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
    const QRgb quad[4] = {color, color, color, color};
    uchar* bits = image.bits();
    const qsizetype stride = image.bytesPerLine();
    starts_.resize(edges_.size());
    int32_t* starts = starts_.data();
    for (int y = top; y < bottom; ++y) {
        size_t count = 0;
        for (Edge& edge : edges_) {
            if (y < edge.top || y >= edge.bottom) {
                continue;
            }
            // Insertion sort: a row of a face crosses few edges.
            size_t k = count++;
            for (; k > 0 && starts[k - 1] > edge.start; --k) {
                starts[k] = starts[k - 1];
            }
            starts[k] = edge.start;
            edge.start += edge.startStep;
            edge.remainder += edge.remainderStep;
            // Without a branch: the carry comes as often as not.
            const int32_t carry = edge.remainder >= edge.divisor ? 1 : 0;
            edge.start += carry;
            edge.remainder -= carry * edge.divisor;
        }
        auto* row = reinterpret_cast<QRgb*>(bits + y * stride);
        // Even-odd: the pixels from one start up to the next are inside, then outside.
        for (size_t k = 0; k + 1 < count; k += 2) {
            const int32_t left = std::max(starts[k], 0);
            const int32_t right = std::min(starts[k + 1], width);
            if (left >= right) {
                continue;
            }
            // Four pixels to a store where the span allows.
            QRgb* pixel = row + left;
            QRgb* const end = row + right;
            for (; end - pixel >= 4; pixel += 4) {
                std::memcpy(pixel, quad, sizeof quad);
            }
            for (; pixel < end; ++pixel) {
                *pixel = color;
            }
        }
    }
}
