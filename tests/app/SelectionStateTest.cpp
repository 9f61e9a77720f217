#include "app/SelectionState.h"

#include "app/SceneTreeModel.h"
#include "app/SceneTreeNode.h"
#include "scene/Face3d.h"
#include "scene/Transformed3d.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

template <class Item> std::shared_ptr<Item> selected() {
    auto item = std::make_shared<Item>();
    item->setSelected(true);
    return item;
}

} // namespace

TEST(SelectionState, SeveralItemsFromOneClickAreKeptOnlyOnYesAndResetClearsAll) {
    ScriptedPrompts prompts;
    SceneTreeModel tree;
    SelectionState selection{tree};
    const auto earlier = selected<Face3d>();
    selection.setSelectedFaces({earlier}); // one face: no question
    EXPECT_TRUE(prompts.messages().empty());

    const auto a = selected<Face3d>();
    const auto b = selected<Face3d>();
    selection.setSelectedFaces({a, b}); // unscripted: No
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text,
              "The face selector has selected more than one face.  Do you want to keep them "
              "both?  No will undo new selection.");
    EXPECT_EQ(prompts.messages()[0].title, "Multiple face selection");
    EXPECT_FALSE(a->isSelected());
    EXPECT_FALSE(b->isSelected());
    EXPECT_EQ(selection.selectedFaces, (std::vector<std::shared_ptr<Face3d>>{earlier}));

    // Solids ask their own question under the same title.
    prompts.queueAnswer(MessageAnswer::Yes);
    const auto c = selected<Transformed3d>();
    const auto d = selected<Transformed3d>();
    selection.setSelectedSolids({c, d});
    ASSERT_EQ(prompts.messages().size(), 2u);
    EXPECT_EQ(prompts.messages()[1].text,
              "The solid selector has selected more than one solid.  Do you want to keep them "
              "both?  No will undo new selection.");
    EXPECT_EQ(selection.selectedSolids, (std::vector<std::shared_ptr<Transformed3d>>{c, d}));
    EXPECT_TRUE(c->isSelected());

    // Resetting clears flags, collections and node colours.
    auto node = std::make_shared<SceneTreeNode>();
    selection.AddSelectNode(node, 65535);
    selection.AddSelectNode(nullptr, 255); // a hit without a node in the tree
    selection.resetAllSelect();
    EXPECT_FALSE(c->isSelected());
    EXPECT_TRUE(selection.selectedSolids.empty());
    EXPECT_EQ(node->BackColor, 16777215);
    EXPECT_FALSE(selection.isPropertyMenuEnabled());
}
