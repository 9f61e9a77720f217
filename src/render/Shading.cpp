#include "render/Shading.h"

#include "geometry/PackedColor.h"
#include "geometry/RootMod.h"
#include "geometry/Rounding.h"

#include <cmath>

namespace Shading {

namespace {

struct Channels {
    int32_t red;
    int32_t green;
    int32_t blue;
};

float length(float x, float y, float z) {
    return static_cast<float>(std::sqrt(static_cast<double>(x) * x + static_cast<double>(y) * y +
                                        static_cast<double>(z) * z));
}

void addLights(Channels& c, const ShadedSurface& s, const LightList& lights, const EyePoint& eye,
               bool useShift) {
    const float ex = eye.x - s.px;
    const float ey = eye.y - s.py;
    const float ez = eye.z - s.pz;
    const float eyeDistance = length(ex, ey, ez);
    const float vx = ex / eyeDistance;
    const float vy = ey / eyeDistance;
    const float vz = ez / eyeDistance;
    // First each light's geometry, then the specular powers of the lit ones together (their
    // multiplications are most of the work and independent of each other), then the sums in
    // the lights' order.
    struct Lit {
        const LightSource* light;
        double f;
    };
    constexpr size_t batch = 8;
    Lit lit[batch];
    float bases[batch];
    float powers[batch];
    size_t count = 0;
    const auto addLit = [&] {
        RootMod::SngRoots(bases, static_cast<int>(count), s.SpecularN, powers);
        for (size_t k = 0; k < count; ++k) {
            const LightSource& light = *lit[k].light;
            const double f = lit[k].f;
            c.red = Rounding::toInt32(c.red + light.Ir * static_cast<double>(s.DiffuseKr) * f);
            c.green = Rounding::toInt32(c.green + light.Ig * static_cast<double>(s.DiffuseKg) * f);
            c.blue = Rounding::toInt32(c.blue + light.Ib * static_cast<double>(s.DiffuseKb) * f);
            const double specular =
                static_cast<double>(powers[k]) * static_cast<double>(s.SpecularK);
            c.red = Rounding::toInt32(c.red + light.Ir * specular);
            c.green = Rounding::toInt32(c.green + light.Ig * specular);
            c.blue = Rounding::toInt32(c.blue + light.Ib * specular);
        }
        count = 0;
    };
    for (const auto& light : lights) {
        const float lx = (useShift ? light->x2 : light->x) - s.px;
        const float ly = light->y - s.py;
        const float lz = (useShift ? light->z2 : light->z) - s.pz;
        const float dist = length(lx, ly, lz);
        const float Lx = lx / dist;
        const float Ly = ly / dist;
        const float Lz = lz / dist;
        const float cosine = Lx * s.nx + Ly * s.ny + Lz * s.nz;
        if (!(cosine > 0)) {
            continue; // turned away from this light
        }
        const float att = (light->Kdist + light->Rmin) / (light->Kdist + dist);
        // L reflected about the normal, against the direction to the eye.
        const float rx = 2 * s.nx * cosine - Lx;
        const float ry = 2 * s.ny * cosine - Ly;
        const float rz = 2 * s.nz * cosine - Lz;
        const auto rv =
            static_cast<float>(static_cast<double>(rx) * vx + static_cast<double>(ry) * vy +
                               static_cast<double>(rz) * vz);
        lit[count] = Lit{light.get(), std::fabs(static_cast<double>(cosine) * att)};
        bases[count] = rv;
        if (++count == batch) {
            addLit();
        }
    }
    addLit();
}

} // namespace

int32_t shadeColor(const ShadedSurface& surface, const LightList& lights, const EyePoint& eye,
                   bool useShift) {
    Channels c{0, 0, 0};
    addLights(c, surface, lights, eye, useShift);
    return PackedColor::pack(c.red, c.green, c.blue);
}

int32_t shadeForcedColor(const ShadedSurface& surface, const LightList& lights,
                         int16_t ambient_light, const EyePoint& eye, bool useShift, int red,
                         int green, int blue) {
    Channels c{red, green, blue};
    addLights(c, surface, lights, eye, useShift);
    c.red = Rounding::toInt32(ambient_light * static_cast<double>(surface.AmbientKr) + c.red);
    c.green = Rounding::toInt32(ambient_light * static_cast<double>(surface.AmbientKg) + c.green);
    c.blue = Rounding::toInt32(ambient_light * static_cast<double>(surface.AmbientKb) + c.blue);
    return PackedColor::pack(c.red, c.green, c.blue);
}

} // namespace Shading
