#pragma once

#include "interaction/SelectionReceiver.h"

#include <cstdint>
#include <memory>
#include <vector>

class Face3d;
class Profile;
class Transformed3d;
class TreeDisplay;
class TreeDisplayNode;
class WorkPlane;
struct SceneDocument;

// What is selected: the selected items of each kind, whose own selected flags drive the
// highlighting in the viewports, and the tree nodes painted for them. A collection is
// replaced whole, never edited in place. The selectors hand their hits here; the tree is
// painted again after every change of its nodes' colours that a selector or command makes.
class SelectionState : public SelectionReceiver {
public:
    explicit SelectionState(TreeDisplay& tree) : tree_(tree) {}

    std::vector<std::shared_ptr<Transformed3d>> selectedSolids;
    std::vector<std::shared_ptr<Face3d>> selectedFaces;
    std::vector<std::shared_ptr<WorkPlane>> selectedWorkplanes;
    std::vector<std::shared_ptr<Profile>> selectedProfiles;
    std::vector<std::shared_ptr<TreeDisplayNode>> selectNodes;

    // Two or more faces or solids from one click are kept only when the user says so; on No
    // the new ones lose their flag and the old selection stays.
    void setSelectedFaces(const std::vector<std::shared_ptr<Face3d>>& faces) override;
    void setSelectedSolids(const std::vector<std::shared_ptr<Transformed3d>>& solids) override;
    void setSelectedWorkplanes(const std::vector<std::shared_ptr<WorkPlane>>& workPlanes) override;
    // Leaves the property menu as it was.
    void setSelectedProfiles(const std::vector<std::shared_ptr<Profile>>& profiles) override;

    void resetSelectSolids();
    void resetSelectFaces();
    void resetSelectWorkplanes();
    // Leaves the property menu as it was.
    void resetSelectProfiles();
    // Paints every remembered node white again and forgets them.
    void resetSelectNodes();
    // Solids, faces, workplanes, nodes, profiles: every selection and highlight cleared.
    void resetAllSelect() override;
    void AddSelectNode(const std::shared_ptr<TreeDisplayNode>& node, int32_t color) override;
    // Forgets the selected items the document no longer holds (deleted, cancelled, undone,
    // replaced by Open or New) and clears their selected flags, so that no command acts on
    // them; the property menu follows when anything was forgotten.
    void forgetAllBut(const SceneDocument& document);
    // After the tree's nodes were made anew: paints the nodes of the selected items in their
    // kind's colour and remembers them instead of the nodes that are gone.
    void repaintNodes(const SceneDocument& document);

    // The property menu is enabled when something of any kind is selected. It is worked out
    // again only where the selection says so, not after every change: profiles leave it be.
    void updatePropertyMenu();
    bool isPropertyMenuEnabled() const { return propertyMenuEnabled_; }

private:
    // Paints the node and remembers it, without painting the tree again.
    void paintNode(const std::shared_ptr<TreeDisplayNode>& node, int32_t color);

    TreeDisplay& tree_;
    bool propertyMenuEnabled_ = false;
};
