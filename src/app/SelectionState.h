#pragma once

#include <cstdint>
#include <memory>
#include <vector>

class Face3d;
class Profile;
class Transformed3d;
class TreeDisplayNode;
class WorkPlane;

// What is selected: the selected items of each kind, whose own selected flags drive the
// highlighting in the viewports, and the tree nodes painted for them. A collection is
// replaced whole, never edited in place.
class SelectionState {
public:
    std::vector<std::shared_ptr<Transformed3d>> selectedSolids;
    std::vector<std::shared_ptr<Face3d>> selectedFaces;
    std::vector<std::shared_ptr<WorkPlane>> selectedWorkplanes;
    std::vector<std::shared_ptr<Profile>> selectedProfiles;
    std::vector<std::shared_ptr<TreeDisplayNode>> selectNodes;

    // Two or more faces or solids from one click are kept only when the user says so; on No
    // the new ones lose their flag and the old selection stays.
    void setSelectedFaces(const std::vector<std::shared_ptr<Face3d>>& faces);
    void setSelectedSolids(const std::vector<std::shared_ptr<Transformed3d>>& solids);

    void resetSelectSolids();
    void resetSelectFaces();
    void resetSelectWorkplanes();
    void resetSelectProfiles();
    // Paints every remembered node white again and forgets them.
    void resetSelectNodes();
    // Solids, faces, workplanes, nodes, profiles: every selection and highlight cleared.
    void resetAllSelect();
    void AddSelectNode(const std::shared_ptr<TreeDisplayNode>& node, int32_t color);
};
