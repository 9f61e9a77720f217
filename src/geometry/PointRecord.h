#pragma once

#include "geometry/Point4.h"

// One point of a solid, a profile or a sweep. coord is the model point (w = 1) that is
// stored and saved; coord2 a second model-space slot some transformations write; trans
// the projected point: canvas x and y in pixels and the undivided eye-space depth.
struct PointRecord {
    Point4 coord;
    Point4 coord2;
    Point4 trans;

    bool operator==(const PointRecord&) const = default;
};

static_assert(sizeof(PointRecord) == 48, "a point record is three 4-vectors of singles");
