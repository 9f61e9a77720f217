#pragma once

#include "render/LightSource.h"

#include <cstdint>

// What flat shading needs to know of a face: its unit normal, its first corner (both in
// model space) and its surface coefficients. The diffuse coefficients act as the colour.
struct ShadedSurface {
    float nx = 0, ny = 0, nz = 0;
    float px = 0, py = 0, pz = 0;
    float DiffuseKr = 0, DiffuseKg = 0, DiffuseKb = 0;
    float AmbientKr = 0, AmbientKg = 0, AmbientKb = 0;
    float SpecularK = 0;
    float SpecularN = 0;
};

struct EyePoint {
    float x = 0, y = 0, z = 0;
};

// Flat shading of one face by point lights: a diffuse term attenuated by distance and a
// specular term per light, channels rounded after every term, then clamped to 0..255 and
// packed as red + 256 * green + 65536 * blue.
namespace Shading {

// Starts from black and adds no ambient term.
int32_t shadeColor(const ShadedSurface& surface, const LightList& lights, const EyePoint& eye,
                   bool useShift);
// Starts from the base colour (red, green, blue) and adds ambient_light times the ambient
// coefficients after all lights.
int32_t shadeForcedColor(const ShadedSurface& surface, const LightList& lights,
                         int16_t ambient_light, const EyePoint& eye, bool useShift, int red,
                         int green, int blue);

} // namespace Shading
