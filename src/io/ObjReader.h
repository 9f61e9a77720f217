#pragma once

#include "io/TavrinMeshIO.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

// Reads Wavefront OBJ text with its material libraries, keeping the vertex list in its order
// and every face's corners as the file lists them (no triangulation, no joining of vertices).
//
// Each "o" line starts an object (what comes before the first is an object of its own when it
// has vertices or faces), and each object becomes one solid. A solid's points are the vertices
// listed under its "o" line, in their order, widened to take in every vertex its faces use
// (as in files where objects share one vertex list); a face's corners are its solid's point
// numbers. "v" takes the first three numbers (a fourth weight or a colour is passed over); "f"
// takes the vertex part of each corner ("7", "7/2", "7/2/5", "7//5"; negative numbers count
// back from the last vertex read). "usemtl" names the material of the faces after it, "mtllib"
// the library that defines it (the rest of the line is one file name): Ka the ambient triple,
// Kd the diffuse triple, Ks the specular coefficient (the largest of its three channels), Ns
// the specular exponent, each with one value or three (one stands for all three). A face
// without a material, or whose material no library defines, has 0 for every coefficient (a
// face's own defaults); a library that cannot be read defines none. Other lines are passed over.
// Faces are numbered in file order.
//
// Refused, with MeshFormatError naming the line: a value that is not a number or that the mesh
// file cannot store (see StorableValue), a vertex number of 0 or beyond the vertex list, solids
// that would hold more than 16 times the file's vertices in all (objects that each span a
// shared list).
namespace ObjReader {

// The text of the material library of that name, or nothing when it cannot be read.
using LibraryReader = std::function<std::optional<std::string>(const std::string& name)>;

ObjectList parse(std::string_view text, const LibraryReader& libraries);

} // namespace ObjReader
