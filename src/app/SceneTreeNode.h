#pragma once

#include "interaction/TreeDisplayNode.h"

#include <any>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class SceneTreeNode;
using SceneTreeNodes = std::vector<std::shared_ptr<SceneTreeNode>>;

// One node of the scene tree. Top-level nodes stand for a solid, workplane or profile and
// carry a key ("s1", "w2", "r1"); their children list points, faces and parameters.
//
// A solid of many faces would add hundreds of thousands of nodes nobody looks at, so the
// lists under "Points" and "Faces" may be left for later: the node then knows how many
// children it will have and how to make them, and the tree makes them when they are first
// shown or searched for.
class SceneTreeNode : public TreeDisplayNode, public std::enable_shared_from_this<SceneTreeNode> {
public:
    static constexpr int32_t white = 16777215;

    std::string key; // empty for child nodes
    std::string text;
    std::string image; // "solid", "rotation", "workplane", "face", "point", "profile"
    std::any tag;      // the item a top-level node stands for
    int32_t BackColor = white;

    void setBackColor(int32_t color) override { BackColor = color; }
    // The address of the solid, workplane or profile a top-level node stands for, by which a
    // view knows it again after a rebuild renumbered it; nullptr for other nodes.
    const void* itemAddress() const;

    // The children made so far, in the order shown.
    const SceneTreeNodes& children() const { return children_; }
    // The node this one is a child of (the tree's invisible root for top-level nodes),
    // and its position there; nullptr and 0 outside a tree.
    SceneTreeNode* parent() const { return parent_; }
    int row() const { return row_; }

    void appendChild(const std::shared_ptr<SceneTreeNode>& child);
    void removeChild(int row);
    void removeAllChildren();

    // Children left for later: how many, how to make them, and which keys they will carry
    // (every key begins with keyLetter and ends with keySuffix; no keys when keyLetter is 0).
    struct LaterChildren {
        int count = 0;
        std::function<SceneTreeNodes()> make;
        char keyLetter = 0;
        std::string keySuffix;
    };
    void leaveChildrenForLater(LaterChildren later) { later_ = std::move(later); }
    // The number of children left for later; 0 once they are made.
    int laterChildCount() const { return later_.count; }
    // Whether making the later children could give a node with that key, or with a key
    // beginning with that prefix; judged from the key's letter and ending alone, so it may
    // say yes when none would match.
    bool laterChildrenMayHoldKey(const std::string& wanted) const;
    bool laterChildrenMayHoldKeyPrefix(const std::string& prefix) const;
    // Makes the children left for later (the tree does this, so that its views hear of it).
    void makeLaterChildren();

private:
    SceneTreeNodes children_;
    SceneTreeNode* parent_ = nullptr;
    int row_ = 0;
    LaterChildren later_;
};
