#include "app/SelectionState.h"

#include "app/SceneTreeNode.h"
#include "scene/Face3d.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

std::shared_ptr<Face3d> selectedFace() {
    auto face = std::make_shared<Face3d>();
    face->setSelected(true);
    return face;
}

} // namespace

TEST(SelectionState, SeveralFacesFromOneClickAreKeptOnlyOnYes) {
    ScriptedPrompts prompts;
    SelectionState selection;
    const auto earlier = selectedFace();
    selection.setSelectedFaces({earlier}); // one face: no question
    EXPECT_TRUE(prompts.messages().empty());

    const auto a = selectedFace();
    const auto b = selectedFace();
    selection.setSelectedFaces({a, b}); // unscripted: No
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].title, "Multiple face selection");
    EXPECT_EQ(prompts.messages()[0].buttons, MessageButtons::YesNo);
    EXPECT_FALSE(a->isSelected());
    EXPECT_FALSE(b->isSelected());
    EXPECT_EQ(selection.selectedFaces, (std::vector<std::shared_ptr<Face3d>>{earlier}));

    prompts.queueAnswer(MessageAnswer::Yes);
    const auto c = selectedFace();
    const auto d = selectedFace();
    selection.setSelectedFaces({c, d});
    EXPECT_EQ(selection.selectedFaces, (std::vector<std::shared_ptr<Face3d>>{c, d}));
    EXPECT_TRUE(c->isSelected());
}

TEST(SelectionState, ResetAllClearsFlagsCollectionsAndNodeColours) {
    SelectionState selection;
    auto workPlane = std::make_shared<WorkPlane>();
    workPlane->setSelected(true);
    selection.selectedWorkplanes = {workPlane};
    auto node = std::make_shared<SceneTreeNode>();
    selection.AddSelectNode(node, 65535);
    EXPECT_EQ(node->BackColor, 65535);
    selection.AddSelectNode(nullptr, 255); // a hit without a node in the tree

    selection.resetAllSelect();
    EXPECT_FALSE(workPlane->isSelected());
    EXPECT_TRUE(selection.selectedWorkplanes.empty());
    EXPECT_EQ(node->BackColor, 16777215);
    EXPECT_TRUE(selection.selectNodes.empty());
}

TEST(SelectionState, SeveralSolidsAskTheirOwnQuestionUnderTheFaceTitle) {
    ScriptedPrompts prompts;
    SelectionState selection;
    const auto a = std::make_shared<Transformed3d>();
    const auto b = std::make_shared<Transformed3d>();
    a->setSelected(true);
    b->setSelected(true);
    prompts.queueAnswer(MessageAnswer::Yes);
    selection.setSelectedSolids({a, b});
    selection.setSelectedFaces({selectedFace(), selectedFace()});
    ASSERT_EQ(prompts.messages().size(), 2u);
    EXPECT_EQ(prompts.messages()[0].text,
              "The solid selector has selected more than one solid.  Do you want to keep them "
              "both?  No will undo new selection.");
    EXPECT_EQ(prompts.messages()[0].title, "Multiple face selection");
    EXPECT_EQ(prompts.messages()[1].text,
              "The face selector has selected more than one face.  Do you want to keep them "
              "both?  No will undo new selection.");
    EXPECT_EQ(selection.selectedSolids.size(), 2u);
    EXPECT_TRUE(selection.isPropertyMenuEnabled());
}
