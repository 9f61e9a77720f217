#pragma once

#include "io/TavrinMeshIO.h"

#include <cstdint>
#include <span>

// Reads STL meshes, binary or ASCII, as one solid: a file that starts with "solid" and reads
// as facets is ASCII (several solid ... endsolid blocks go into the one solid), any other is
// binary (an 80-byte header, the count of facets, 50 bytes per facet). Each facet becomes a
// face of three corners, in the file's order and winding; STL has no list of points, so
// corners at the same place (the same bits of x, y and z, with -0 taken as 0) are joined into
// one point, in the order they first appear. The facets' normals are read past. Every face
// takes the surface coefficients of a file without materials (FaceCoefficients::unsaid).
//
// Refused, with MeshFormatError saying what is wrong: a file larger than
// AssimpMeshImporter::maxFileBytes or with more than AssimpMeshImporter::maxFaces facets, a
// binary file shorter than its count of facets needs (checked before anything is allocated),
// ASCII that does not read as facets of three vertices, a point that is not a finite number,
// a file without facets.
namespace StlReader {

ObjectList parse(std::span<const uint8_t> bytes);

} // namespace StlReader
