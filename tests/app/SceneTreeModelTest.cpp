#include "app/SceneTreeModel.h"

#include "app/SceneDocument.h"
#include "app/SceneTreeListener.h"
#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

namespace {

// Writes down what the tree tells its view.
struct RecordingListener : SceneTreeListener {
    std::vector<std::string> events;
    void nodesAboutToChange() override { events.push_back("about"); }
    void nodesChanged() override { events.push_back("changed"); }
    void childrenAboutToBeMade(const SceneTreeNode& node, int count) override {
        events.push_back("make " + node.text + " " + std::to_string(count));
    }
    void childrenMade() override { events.push_back("made"); }
    void refresh() override { events.push_back("refresh"); }
    void rebuildStarted(const frmRebuild& notice) override {
        events.push_back("notice " + notice.caption());
    }
    void rebuildFinished() override { events.push_back("done"); }
};

} // namespace

TEST(SceneTreeModel, ListsAreMadeWhenFirstNeededAndARebuildListsEveryKind) {
    SceneTreeModel tree;
    RecordingListener listener;
    tree.setListener(&listener);
    tree.addSolidNode(makeObject(), 1, "Solid");
    tree.addSolidNode(makeObject(), 2, "Solid");
    // One change told, however many nodes it added.
    EXPECT_EQ(listener.events, (std::vector<std::string>{"about", "changed", "about", "changed"}));
    listener.events.clear();

    const auto& lists = tree.findSceneNode("s1")->children();
    ASSERT_EQ(lists.size(), 2u);
    SceneTreeNode& points = *lists[0];
    SceneTreeNode& faces = *lists[1];
    EXPECT_EQ(faces.laterChildCount(), 6);
    EXPECT_TRUE(faces.children().empty());

    // Searching for a face key makes that solid's faces only (their texts: the tree view's
    // tests).
    EXPECT_NE(tree.findSceneNode("f3-s2"), nullptr);
    EXPECT_EQ(listener.events, (std::vector<std::string>{"make Faces 6", "made"}));

    tree.makeLaterChildren(points);
    ASSERT_EQ(points.children().size(), 8u);
    EXPECT_EQ(points.children()[6]->text, "7: X:1, Y:1,Z:1");
    EXPECT_EQ(tree.findSceneNode("f7-s1"), nullptr);

    // A rebuild lists every kind afresh (keys after a removal: the main window's tests).
    SceneDocument document;
    document.solids = {makeObject()};
    document.workPlanes = {makeWorkPlane(2.5f, 0.5f, 0)};
    document.profiles = {makeProfile({{1.5f, -2, 0, 1}, {1.5f, -2, 0, 1}})};
    tree.SelectedItem = tree.findSceneNode("s1");
    listener.events.clear();
    tree.rebuildTree(document);
    EXPECT_EQ(listener.events,
              (std::vector<std::string>{"notice Rebulding", "about", "changed", "done"}));
    ASSERT_EQ(topNodes(tree),
              (std::vector<std::string>{"s1: Solid 1", "w1: Workplane 1", "r1: Profile 1"}));
    EXPECT_EQ(tree.SelectedItem, nullptr);
    EXPECT_EQ(tree.findSceneNode("w1")->children()[1]->text, "X Rotation: 0.5");
    const auto& profilePoints = tree.findSceneNode("r1")->children();
    ASSERT_EQ(profilePoints.size(), 2u);
    EXPECT_EQ(profilePoints[1]->text, "Point: 2");
    ASSERT_EQ(profilePoints[1]->children().size(), 1u);
    EXPECT_EQ(profilePoints[1]->children()[0]->text, "X:1.5, Y:-2,Z:0");
}
