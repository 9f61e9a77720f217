#pragma once

#include "io/TavrinMeshIO.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

// Reads PLY meshes, ASCII or binary of either byte order, keeping the vertex list in its order
// and every face's corners as the file lists them (no triangulation, no joining of vertices).
// The "vertex" element needs x, y and z; the "face" element a list "vertex_indices" (or
// "vertex_index") of 0-based vertex numbers. Each face takes its surface coefficients from its
// properties: the diffuse triple from "red green blue" (an integer channel divided by 255, a
// float taken as it is) and each of the eight from the float property coefficientNames names,
// which wins; a coefficient without either is 0 (a face's own default). Other elements
// and properties are read past. Faces are numbered in file order.
//
// The whole file is one solid, unless its vertices carry "korvan_solid" (as PlyWriter writes
// them): then the first vertex is of solid 0 and each next one of the same solid as the one
// before it or of the next, and each face's "korvan_solid" names the solid whose vertices its
// corners use (0 without one).
//
// Refused, with MeshFormatError saying what is wrong: a header that is not PLY or names an
// unknown type, a file that ends early or holds text that is not a number, an element count or
// list length that the bytes left cannot hold, an element without properties, a corner outside
// its solid's vertices, a value that the mesh file cannot store (see StorableValue). Memory
// stays in proportion to the file's size.
namespace PlyReader {

inline constexpr std::array<std::string_view, 8> coefficientNames = {
    "korvan_ambient_red", "korvan_ambient_green",    "korvan_ambient_blue",
    "korvan_diffuse_red", "korvan_diffuse_green",    "korvan_diffuse_blue",
    "korvan_specular",    "korvan_specular_exponent"};

ObjectList parse(std::span<const uint8_t> bytes);

} // namespace PlyReader
