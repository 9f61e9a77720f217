#pragma once

#include "render/LightSource.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace LightRanges {

// Fits each light's distance attenuation to what is about to be painted (call it after
// culling): Rmin and Rmax are the nearest and farthest corners of faces that are not
// culled, and the attenuation becomes 1 at Rmin and 0.5 at Rmax. Any object that reports
// getRMinRMax will do: the main window fits its scene objects, the splash its bare solids.
template <class Object>
void updateLightRanges(const LightList& lights,
                       const std::vector<std::shared_ptr<Object>>& objects) {
    for (const auto& light : lights) {
        float Rmin = 1e30f;
        float Rmax = -1e30f;
        for (const auto& object : objects) {
            float objectMin;
            float objectMax;
            object->getRMinRMax(light->x, light->y, light->z, objectMin, objectMax);
            Rmin = std::min(Rmin, objectMin);
            Rmax = std::max(Rmax, objectMax);
        }
        light->Rmin = Rmin;
        light->Kdist = Rmax - 2 * Rmin;
    }
}

} // namespace LightRanges
