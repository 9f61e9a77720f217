#pragma once

#include "interaction/TreeDisplayNode.h"

#include <any>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// One node of the scene tree. Top-level nodes stand for a solid, workplane or profile and
// carry a key ("s1", "w2", "r1"); their children list points, faces and parameters.
class SceneTreeNode : public TreeDisplayNode {
public:
    std::string key; // empty for child nodes
    std::string text;
    std::string image; // "solid", "rotation", "workplane", "face", "point", "profile"
    std::any tag;      // the item a top-level node stands for
    int32_t BackColor = 16777215;
    std::vector<std::shared_ptr<SceneTreeNode>> children;

    void setBackColor(int32_t color) override { BackColor = color; }
};
