#pragma once

#include "scene/Face3d.h"

#include <array>

// A face's eight surface coefficients in the order every mesh format of the program keeps
// them: the ambient triple, the diffuse triple, SpecularK, SpecularN.
namespace FaceCoefficients {

using Values = std::array<float, 8>;

// What a mesh file does not say (a file without materials): the values of an extrusion's
// unticked surface groups, 0.5 for each colour channel and SpecularK, 50 for SpecularN.
inline constexpr Values unsaid = {0.5f, 0.5f, 0.5f, 0.5f, 0.5f, 0.5f, 0.5f, 50};

inline Values of(const Face3d& face) {
    return {face.AmbientKr, face.AmbientKg, face.AmbientKb, face.DiffuseKr,
            face.DiffuseKg, face.DiffuseKb, face.SpecularK, face.SpecularN};
}

inline void set(Face3d& face, const Values& k) {
    face.AmbientKr = k[0];
    face.AmbientKg = k[1];
    face.AmbientKb = k[2];
    face.DiffuseKr = k[3];
    face.DiffuseKg = k[4];
    face.DiffuseKb = k[5];
    face.SpecularK = k[6];
    face.SpecularN = k[7];
}

} // namespace FaceCoefficients
