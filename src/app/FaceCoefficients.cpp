#include "app/FaceCoefficients.h"

#include "scene/Face3d.h"

namespace FaceCoefficients {

Set of(const Face3d& face) {
    return {face.AmbientKr, face.AmbientKg, face.AmbientKb, face.DiffuseKr,
            face.DiffuseKg, face.DiffuseKb, face.SpecularK, face.SpecularN};
}

void write(Face3d& face, const Set& coefficients) {
    const auto& k = coefficients;
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
