#pragma once

#include <cstdint>
#include <memory>
#include <vector>

class Face3d;
class Profile;
class Transformed3d;
class TreeDisplayNode;
class WorkPlane;

// What a selector calls back on the window: it clears the selection, hands over what the
// click hit, and has the hits' tree nodes painted. Each collection replaces the old one.
class SelectionReceiver {
public:
    virtual ~SelectionReceiver() = default;
    virtual void resetAllSelect() = 0;
    virtual void setSelectedSolids(const std::vector<std::shared_ptr<Transformed3d>>& solids) = 0;
    virtual void setSelectedFaces(const std::vector<std::shared_ptr<Face3d>>& faces) = 0;
    virtual void
    setSelectedWorkplanes(const std::vector<std::shared_ptr<WorkPlane>>& workPlanes) = 0;
    virtual void setSelectedProfiles(const std::vector<std::shared_ptr<Profile>>& profiles) = 0;
    // Paints the node in the colour and remembers it, so that the next reset paints it white.
    virtual void AddSelectNode(const std::shared_ptr<TreeDisplayNode>& node, int32_t color) = 0;
};
