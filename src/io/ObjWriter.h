#pragma once

#include "io/TavrinMeshIO.h"

#include <string>

// Wavefront OBJ with its material library (.mtl). Each object is one "o solidN" group
// (N from 1) listing its points as "v" lines in their order, then its faces as "f" lines with
// their corners in their order, numbered through the whole file from 1. Every distinct set of
// the eight surface coefficients (compared bit for bit) is one material "korvanN", which a
// face names by "usemtl" when it differs from the face before. The library holds Ka (the
// ambient triple), Kd (the diffuse triple), Ks (the specular coefficient in all three
// channels) and Ns (the specular exponent). Every number is written as the shortest text that
// reads back to the same float, so that ObjReader gets back exactly what was written.
namespace ObjWriter {

struct Text {
    std::string obj;
    std::string mtl;
};

// mtlName is the library's file name as "mtllib" gives it, beside the .obj file.
Text encode(const ObjectList& objects, const std::string& mtlName);

} // namespace ObjWriter
