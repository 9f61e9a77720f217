#include "app/SceneDocument.h"

#include "scene/AxesXYZ.h"
#include "scene/GridSolid3D.h"

SceneDocument SceneDocument::startUp() {
    SceneDocument document;
    const float positions[4][3] = {{-300, 300, 300}, {0, 0, -300}, {300, 300, 300}, {0, -300, 0}};
    for (const auto& p : positions) {
        auto light = std::make_shared<LightSource>();
        light->initialize(p[0], p[1], p[2], 200, 200, 200);
        document.light_sources.push_back(light);
    }
    document.grid = std::make_shared<GridSolid3D>();
    document.grid->initialize(10.0f, -1.0f, 20, 10.0f, -1.0f, 20);
    document.referenceAxes = std::make_shared<AxesXYZ>();
    document.zeroAxes = std::make_shared<AxesXYZ>();
    return document;
}

void SceneDocument::removeProfile(int32_t n) {
    if (n < 1 || static_cast<size_t>(n) > profiles.size()) {
        return;
    }
    const auto removed = profiles.begin() + (n - 1);
    if (*removed == currentProfile) {
        currentProfile.reset();
    }
    profiles.erase(removed);
}

ViewportScene SceneDocument::scene() const {
    return ViewportScene{solids,       light_sources,       workPlanes,     profiles,
                         grid.get(),   referenceAxes.get(), zeroAxes.get(), showGrid,
                         showZeroAxes, showReferenceAxes,   profileRed,     profileGreen,
                         profileBlue};
}
