#pragma once

#include "app/SceneTreeNode.h"
#include "interaction/TreeDisplay.h"

#include <memory>
#include <string>
#include <vector>

// The scene tree as a plain tree of nodes, in the order the tree shows them; the Qt tree
// view mirrors it.
class SceneTreeModel : public TreeDisplay {
public:
    std::vector<std::shared_ptr<SceneTreeNode>> Nodes;

    // Searches the whole tree, in the order it is shown.
    std::shared_ptr<TreeDisplayNode> findNode(const std::string& key) const override;
};
