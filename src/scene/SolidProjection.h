#pragma once

#include "geometry/Point4.h"
#include "platform/Canvas.h"

#include <cstdint>
#include <vector>

// One solid as one viewport sees it, kept apart from the solid so that several viewports can
// be projected at once: each face's culling (list order) and each point record's projection,
// for the records some face that was not culled reached (index 0 unused, as in the solid), and
// which records are corners of the faces kept that have three corners or more, those the lights
// are fitted to.
struct SolidProjection {
    std::vector<uint8_t> culled;
    std::vector<Point4> points;
    std::vector<CanvasPoint> pixels; // the points' x and y rounded, as faces are painted
    std::vector<uint8_t> reached;
    std::vector<uint8_t> lit;
    float zmax = 0;
};
