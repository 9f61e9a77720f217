#pragma once

#include "io/TavrinMeshIO.h"

#include <cstdint>
#include <vector>

// 3MF, the package of 3-D printing, made by lib3mf: one mesh object and build item per object
// (those without a triangle are left out, since a 3MF object must enclose something), in
// millimetres, with all the object's points and its faces fanned into triangles from their
// first corner as STL fans them. A triangle that names a point twice or a point the object
// lacks is left out, as the format allows no such triangle. Each triangle carries its face's
// diffuse colour, which the package keeps in a colour group that slicers show.
namespace ThreeMfWriter {

// The package's bytes; empty when lib3mf refused the model (3MF numbers points and triangles
// in 32 bits).
std::vector<uint8_t> encode(const ObjectList& objects);

} // namespace ThreeMfWriter
