#pragma once

#include "io/TavrinMeshIO.h"

#include <cstdint>
#include <vector>

// PLY, binary little-endian: every object in one mesh. The vertex element lists the objects'
// points, object after object, each in its order; the face element lists their faces with
// their corners in their order ("vertex_indices", numbered through the whole file from 0,
// its length a uchar, or a uint when a face has more than 255 corners), the diffuse colour
// as "red green blue" uchars for other viewers (each coefficient times 255, rounded, within
// 0 to 255), and the eight surface coefficients as float properties named "korvan_ambient_red"
// ... "korvan_specular_exponent" (PlyReader::coefficientNames). Both elements carry a uint
// "korvan_solid": the object, from 0, that the vertex or face belongs to; an object's
// vertices follow those of the object before it. PlyReader so gets back exactly what was
// written.
namespace PlyWriter {

std::vector<uint8_t> encode(const ObjectList& objects);

} // namespace PlyWriter
