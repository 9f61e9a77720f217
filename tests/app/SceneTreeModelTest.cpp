#include "app/SceneTreeModel.h"

#include "app/SceneDocument.h"
#include "app/SceneTreeListener.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>

namespace {

std::shared_ptr<Transformed3d> cubeObject() {
    auto object = std::make_shared<Transformed3d>();
    object->setSolid(makeCube(1));
    return object;
}

std::vector<std::string> topKeys(const SceneTreeModel& tree) {
    std::vector<std::string> keys;
    for (const auto& node : tree.root().children()) {
        keys.push_back(node->key);
    }
    return keys;
}

std::vector<std::string> topTexts(const SceneTreeModel& tree) {
    std::vector<std::string> texts;
    for (const auto& node : tree.root().children()) {
        texts.push_back(node->text);
    }
    return texts;
}

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

TEST(SceneTreeModel, KeysRunOnAfterARemovalWhileTextsKeepTheirNumbers) {
    SceneTreeModel tree;
    for (int n = 1; n <= 3; ++n) {
        tree.addSolidNode(cubeObject(), n, "Solid");
    }
    auto workPlane = std::make_shared<WorkPlane>();
    workPlane->initialize(2.5f, 0.5f, 0, 0, 0);
    tree.addWorkplaneNode(workPlane, "Workplane");

    tree.removeNode("s2");
    EXPECT_EQ(topKeys(tree), (std::vector<std::string>{"s1", "s2", "w1"}));
    EXPECT_EQ(topTexts(tree), (std::vector<std::string>{"Solid 1", "Solid 3", "Workplane 1"}));

    // A new solid is numbered after the solids in the tree.
    tree.addSolidNode(cubeObject(), 3, "Solid");
    EXPECT_EQ(tree.root().children().back()->key, "s3");
    EXPECT_EQ(tree.root().children().back()->text, "Solid 3");

    const auto& parameters = tree.findSceneNode("w1")->children();
    ASSERT_EQ(parameters.size(), 3u);
    EXPECT_EQ(parameters[0]->text, "Size: 2.5");
    EXPECT_EQ(parameters[1]->text, "X Rotation: 0.5");
    EXPECT_EQ(parameters[2]->text, "Y Rotation: 0");
}

TEST(SceneTreeModel, PointAndFaceListsAreMadeWhenFirstNeeded) {
    SceneTreeModel tree;
    RecordingListener listener;
    tree.setListener(&listener);
    tree.addSolidNode(cubeObject(), 1, "Solid");
    tree.addSolidNode(cubeObject(), 2, "Solid");
    // One change told, however many nodes it added.
    EXPECT_EQ(listener.events, (std::vector<std::string>{"about", "changed", "about", "changed"}));
    listener.events.clear();

    const auto& lists = tree.findSceneNode("s1")->children();
    ASSERT_EQ(lists.size(), 2u);
    SceneTreeNode& points = *lists[0];
    SceneTreeNode& faces = *lists[1];
    EXPECT_EQ(points.text, "Points");
    EXPECT_EQ(faces.text, "Faces");
    EXPECT_EQ(faces.laterChildCount(), 6);
    EXPECT_TRUE(faces.children().empty());

    // Searching for a face key makes that solid's faces only.
    const auto face = tree.findSceneNode("f3-s2");
    ASSERT_NE(face, nullptr);
    EXPECT_EQ(face->text, "Face 3");
    ASSERT_EQ(face->children().size(), 1u);
    EXPECT_EQ(face->children()[0]->text, " 2 3 7 6");
    EXPECT_EQ(faces.laterChildCount(), 6);
    EXPECT_EQ(listener.events, (std::vector<std::string>{"make Faces 6", "made"}));

    tree.makeLaterChildren(points);
    ASSERT_EQ(points.children().size(), 8u);
    EXPECT_EQ(points.children()[6]->text, "7: X:1, Y:1,Z:1");
    EXPECT_EQ(tree.findSceneNode("f7-s1"), nullptr);
}

TEST(SceneTreeModel, RebuildShowsTheNoticeAndListsEveryKind) {
    SceneTreeModel tree;
    RecordingListener listener;
    tree.setListener(&listener);
    SceneDocument document;
    document.solids = {cubeObject()};
    document.workPlanes = {std::make_shared<WorkPlane>()};
    auto profile = std::make_shared<Profile>();
    PointRecord record;
    record.coord = Point4{1.5f, -2, 0, 1};
    profile->addPointRecord(record);
    profile->addPointRecord(record);
    document.profiles = {profile};
    tree.addSolidNode(cubeObject(), 1, "Solid");
    tree.SelectedItem = tree.findSceneNode("s1");
    listener.events.clear();

    tree.rebuildTree(document);
    EXPECT_EQ(listener.events,
              (std::vector<std::string>{"notice Rebulding", "about", "changed", "done"}));
    EXPECT_EQ(topKeys(tree), (std::vector<std::string>{"s1", "w1", "r1"}));
    EXPECT_EQ(topTexts(tree), (std::vector<std::string>{"Solid 1", "Workplane 1", "Profile 1"}));
    EXPECT_EQ(tree.SelectedItem, nullptr);
    const auto& profilePoints = tree.findSceneNode("r1")->children();
    ASSERT_EQ(profilePoints.size(), 2u);
    EXPECT_EQ(profilePoints[1]->text, "Point: 2");
    ASSERT_EQ(profilePoints[1]->children().size(), 1u);
    EXPECT_EQ(profilePoints[1]->children()[0]->text, "X:1.5, Y:-2,Z:0");
}
