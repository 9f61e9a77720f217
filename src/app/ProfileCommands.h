#pragma once

#include "geometry/PointRecord.h"

struct SceneDocument;
class SelectionState;

// The commands that build the profile being drawn, on the one selected workplane.
class ProfileCommands {
public:
    ProfileCommands(SceneDocument& drawnInto, const SelectionState& selected)
        : document(drawnInto), selection(selected) {}

    // Moves a clicked point by the selected workplane's offset vector and appends it to the
    // current profile; without exactly one selected workplane it says why and adds nothing.
    void addProfilePoint(PointRecord r);
    // Always false. Without a current profile it says that nothing can be closed.
    bool closeProfile();

private:
    SceneDocument& document;
    const SelectionState& selection;
};
