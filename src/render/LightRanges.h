#pragma once

#include "render/LightSource.h"

#include <memory>
#include <span>

class Transformed3d;

namespace LightRanges {

// Fits each light's distance attenuation to what is about to be painted (call it after
// culling): Rmin and Rmax are the nearest and farthest corners of faces that are not
// culled, and the attenuation becomes 1 at Rmin and 0.5 at Rmax.
void updateLightRanges(const LightList& lights,
                       std::span<const std::shared_ptr<Transformed3d>> solids);

} // namespace LightRanges
