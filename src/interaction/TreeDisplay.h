#pragma once

#include <memory>
#include <string>

class TreeDisplayNode;

// The scene tree as the mouse modes see it: they find the node of an item by its key
// ("s1", "w2", "f3-s1", "r1") and have the tree painted again once they coloured nodes.
class TreeDisplay {
public:
    virtual ~TreeDisplay() = default;
    // The node with that key, or nullptr when the tree has none (it may be out of step
    // with the document; a selection goes on without the node).
    virtual std::shared_ptr<TreeDisplayNode> findNode(const std::string& key) = 0;
    virtual void refresh() = 0;
};
