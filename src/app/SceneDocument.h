#pragma once

#include "render/LightSource.h"
#include "render/ViewportScene.h"

#include <cstdint>
#include <memory>
#include <vector>

class AxesXYZ;
class GridSolid3D;
class Profile;
class Transformed3d;
class WorkPlane;

// The open document: the scene objects, lights, workplanes and profiles, the profile being
// drawn, the grid, the two axes glyphs and the display switches. The editor's main window
// owns one; the command-line tool builds one from a file.
struct SceneDocument {
    std::vector<std::shared_ptr<Transformed3d>> solids;
    LightList light_sources;
    std::vector<std::shared_ptr<WorkPlane>> workPlanes;
    std::vector<std::shared_ptr<Profile>> profiles;
    // The profile being drawn, or the one last closed; nothing once it has left profiles, so
    // that the profile commands never work on a profile the document no longer has.
    std::shared_ptr<Profile> currentProfile;
    std::shared_ptr<GridSolid3D> grid;
    std::shared_ptr<AxesXYZ> referenceAxes;
    std::shared_ptr<AxesXYZ> zeroAxes;
    bool showGrid = true;
    bool showZeroAxes = true;
    bool showReferenceAxes = true;
    int profileRed = 0;
    int profileGreen = 100;
    int profileBlue = 255;

    // The document as the editor starts: no objects, four white lights, the 20 x 20 grid
    // and both axes glyphs, every switch on.
    static SceneDocument startUp();

    // Removes profile n (1-based; another number removes nothing), forgetting it as the
    // current profile when it is that.
    void removeProfile(int32_t n);

    // What a viewport redraw paints of it; valid while the document lives.
    ViewportScene scene() const;
};
