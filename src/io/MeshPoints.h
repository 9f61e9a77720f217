#pragma once

#include "geometry/PointRecord.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

#include <cstdint>

// What the exporters write of an object: the points that a mesh file of the program holds
// (1 to the solid's upper bound, so that a solid without points has its one at the origin)
// and its faces. An object without a solid has neither.
namespace MeshPoints {

inline int32_t count(const Transformed3d& object) {
    const auto solid = object.getSolid();
    return solid ? solid->getPointUpperBound() : 0;
}

// Point 1 to count(object).
inline const Point4& at(const Transformed3d& object, int32_t index) {
    return object.getSolid()->getPointRecord(index).coord;
}

} // namespace MeshPoints
