#pragma once

#include "platform/Canvas.h"

#include <cstdint>
#include <vector>

// The pixels a screen polygon covers, for picking what was painted there.
//
// Pixel (x, y) is covered when its centre (x + 0.5, y + 0.5) lies inside the polygon under
// the fill rule. Corners are whole numbers and centres never are, so a centre never meets a
// corner or a horizontal edge; a centre exactly on a slanted or vertical edge counts with the
// side to its right. This gives the usual pixel coverage: left and top edges inclusive,
// right and bottom edges exclusive, and a polygon without area (fewer than three distinct
// corners, or all corners on one line) covers nothing.
//
// Crossings are worked out in double from 64-bit differences, so corners anywhere in the
// 32-bit range (points behind the eye project far away) cannot overflow; the result is
// exact while corners stay within +-2^24 and rounded to double precision beyond that.
class GDIRegion {
public:
    static constexpr int AlternateFill = 1; // even-odd
    static constexpr int WindingFill = 2;   // non-zero

    // Replaces the current polygon: corners in order, closed from the last back to the first.
    // Like the platform, a fill mode other than 1 or 2 makes no region, so it covers nothing.
    void createPolygonRegion(const std::vector<CanvasPoint>& points, int fillmode);
    bool inRegion(int32_t x, int32_t y) const;
    // True when any pixel of the rectangle is covered.
    bool rectWithinRegionParameter(int32_t Left, int32_t top, int32_t Right, int32_t bottom) const;
    bool rectInRegion(const PixelBox& rect) const;

private:
    // A slanted or vertical edge, kept from its upper end to its lower end; direction says
    // which way the polygon runs along it (+1 downwards), for the winding count. Edge
    // (xTop, yTop)-(xBottom, yBottom) crosses the centres of rows yTop to yBottom - 1.
    struct Edge {
        int64_t xTop;
        int64_t yTop;
        int64_t xBottom;
        int64_t yBottom;
        int direction;
        // Where the edge crosses the line through the centres of the given row.
        double crossingX(int64_t row) const;
    };

    bool covers(int winding) const;

    std::vector<Edge> edges_; // horizontal edges cross no row of centres and are left out
    int fillMode_ = WindingFill;
};
