#include "app/SceneTreeModel.h"

namespace {

std::shared_ptr<SceneTreeNode> find(const std::vector<std::shared_ptr<SceneTreeNode>>& nodes,
                                    const std::string& key) {
    for (const auto& node : nodes) {
        if (node->key == key) {
            return node;
        }
        if (auto found = find(node->children, key)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

std::shared_ptr<TreeDisplayNode> SceneTreeModel::findNode(const std::string& key) const {
    // Child nodes without a key never match a search for one.
    return key.empty() ? nullptr : find(Nodes, key);
}
