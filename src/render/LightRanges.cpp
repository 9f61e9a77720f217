#include "render/LightRanges.h"

#include "scene/Transformed3d.h"

#include <algorithm>

namespace LightRanges {

void updateLightRanges(const LightList& lights,
                       std::span<const std::shared_ptr<Transformed3d>> solids) {
    for (const auto& light : lights) {
        float Rmin = 1e30f;
        float Rmax = -1e30f;
        for (const auto& solid : solids) {
            float solidMin;
            float solidMax;
            solid->getRMinRMax(light->x, light->y, light->z, solidMin, solidMax);
            Rmin = std::min(Rmin, solidMin);
            Rmax = std::max(Rmax, solidMax);
        }
        light->Rmin = Rmin;
        light->Kdist = Rmax - 2 * Rmin;
    }
}

} // namespace LightRanges
