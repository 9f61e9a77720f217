#pragma once

#include "platform/Canvas.h"

#include <algorithm>
#include <cstdint>
#include <vector>

// Finds the pixels of a polygon of whole-pixel corners, row by row, clipped to a width x height
// picture: even-odd rule, a pixel is inside when its centre lies inside (a centre on a left edge
// is outside, on a right edge inside). These are the pixels QPainter fills for a brush without
// pen, found without QPainter's set-up per call, which is most of the cost of the small faces a
// redraw is made of.
class ScanlineFiller {
public:
    // Calls span(y, left, right) for each run of inside pixels left <= x < right of row y.
    template <class Span>
    void forEachSpan(int width, int height, const std::vector<CanvasPoint>& points, Span span);
    // Fills the polygon with one colour in 32-bit pixels, stride pixels from row to row.
    void fill(uint32_t* pixels, int stride, int width, int height,
              const std::vector<CanvasPoint>& points, uint32_t color);

private:
    // An edge's crossing with the centre line of the current row, kept exactly as a whole
    // part and a remainder so that a centre on an edge always falls on the same side.
    struct Edge {
        int top;           // first row whose centre line the edge crosses, on the picture
        int bottom;        // one past the last
        int32_t start;     // first pixel whose centre lies right of the crossing
        int32_t remainder; // 0 <= remainder < divisor
        int32_t startStep; // per row
        int32_t remainderStep;
        int32_t divisor;
    };
    // Sets up the edges; the rows top to bottom - 1 may hold inside pixels.
    void prepare(int height, const std::vector<CanvasPoint>& points, int& top, int& bottom);
    // Moves the edge's crossing on to the next row.
    static void step(Edge& edge) {
        edge.start += edge.startStep;
        edge.remainder += edge.remainderStep;
        // Without a branch: the carry comes as often as not.
        const int32_t carry = edge.remainder >= edge.divisor ? 1 : 0;
        edge.start += carry;
        edge.remainder -= carry * edge.divisor;
    }

    // Kept between calls, so that filling allocates nothing once the buffers have grown.
    std::vector<Edge> edges_;
    std::vector<int32_t> starts_;
};

template <class Span>
void ScanlineFiller::forEachSpan(int width, int height, const std::vector<CanvasPoint>& points,
                                 Span span) {
    int top = 0;
    int bottom = 0;
    prepare(height, points, top, bottom);
    starts_.resize(edges_.size());
    int32_t* starts = starts_.data();
    // Row by row within stretches where the same edges cross every row. Where just two do, as
    // everywhere in a convex face, the pixels between their crossings are the row's one span.
    for (int y = top; y < bottom;) {
        int end = bottom;
        Edge* crossing[2] = {nullptr, nullptr};
        size_t crossings = 0;
        for (Edge& edge : edges_) {
            if (edge.top > y) {
                end = std::min(end, edge.top);
            } else if (edge.bottom > y) {
                end = std::min(end, edge.bottom);
                crossing[crossings < 2 ? crossings : 1] = &edge;
                ++crossings;
            }
        }
        if (crossings == 2) {
            Edge& a = *crossing[0];
            Edge& b = *crossing[1];
            for (; y < end; ++y) {
                const int32_t left = std::max(std::min(a.start, b.start), 0);
                const int32_t right = std::min(std::max(a.start, b.start), width);
                if (left < right) {
                    span(y, left, right);
                }
                step(a);
                step(b);
            }
            continue;
        }
        for (; y < end; ++y) {
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
                step(edge);
            }
            // Even-odd: the pixels from one start up to the next are inside, then outside.
            for (size_t k = 0; k + 1 < count; k += 2) {
                const int32_t left = std::max(starts[k], 0);
                const int32_t right = std::min(starts[k + 1], width);
                if (left < right) {
                    span(y, left, right);
                }
            }
        }
    }
}
