#pragma once

#include <array>

class Face3d;

// A face's surface coefficients as one value, in the order ambient red, green, blue, diffuse
// red, green, blue, specular coefficient, specular exponent; edits keep and compare them so.
namespace FaceCoefficients {

using Set = std::array<float, 8>;

Set of(const Face3d& face);
void write(Face3d& face, const Set& coefficients);

} // namespace FaceCoefficients
