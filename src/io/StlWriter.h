#pragma once

#include "io/TavrinMeshIO.h"

#include <cstdint>
#include <vector>

// STL, the triangle soup of 3-D printing: every face of every object fanned into triangles
// from its first corner (corners 1, k, k + 1), each with the unit normal of the triangle by
// the right-hand rule (zero for a degenerate one). Faces with fewer than three corners give
// none. Binary (80-byte header, triangle count, 50 bytes a triangle, little-endian) or ASCII
// ("solid korvan" ... "endsolid korvan", values in the shortest text that reads back the
// same). STL keeps neither shared points nor colours.
namespace StlWriter {

// Empty when the triangles are more than the binary count can number.
std::vector<uint8_t> encode(const ObjectList& objects, bool ascii);

} // namespace StlWriter
