#include "app/SceneTreeModel.h"

#include <gtest/gtest.h>

TEST(SceneTreeModel, FindsNodesByKeyAtAnyDepth) {
    SceneTreeModel tree;
    auto solid = std::make_shared<SceneTreeNode>();
    solid->key = "s1";
    auto faces = std::make_shared<SceneTreeNode>();
    faces->text = "Faces"; // a child node: no key
    auto face = std::make_shared<SceneTreeNode>();
    face->key = "f3-s1";
    faces->children = {face};
    solid->children = {faces};
    tree.Nodes = {solid};

    EXPECT_EQ(tree.findNode("s1"), solid);
    EXPECT_EQ(tree.findNode("f3-s1"), face);
    EXPECT_EQ(tree.findNode("w1"), nullptr);
    EXPECT_EQ(tree.findNode(""), nullptr);
}
