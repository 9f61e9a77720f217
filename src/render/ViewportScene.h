#pragma once

#include "render/LightSource.h"

#include <memory>
#include <vector>

class AxesXYZ;
class GridSolid3D;
class Profile;
class Transformed3d;
class WorkPlane;

// What a viewport redraw paints: the collections it draws, seen where their owner keeps
// them, and the display switches. A missing grid or axes glyph is not drawn.
struct ViewportScene {
    const std::vector<std::shared_ptr<Transformed3d>>& solids;
    const LightList& light_sources;
    const std::vector<std::shared_ptr<WorkPlane>>& workPlanes;
    const std::vector<std::shared_ptr<Profile>>& profiles;
    GridSolid3D* grid = nullptr;
    AxesXYZ* referenceAxes = nullptr;
    AxesXYZ* zeroAxes = nullptr;
    bool showGrid = true;
    bool showZeroAxes = true;
    bool showReferenceAxes = true;
    int profileRed = 0;
    int profileGreen = 100;
    int profileBlue = 255;
};
