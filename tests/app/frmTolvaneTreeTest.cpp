#include "app/frmTolvane.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>

namespace {

// A main window whose document holds three cubes, each with its node in the tree.
struct Window {
    ScriptedPrompts prompts;
    ScriptedModalHost dialogs;
    std::array<RecordingCanvas, 4> canvases;
    frmTolvane form{dialogs};

    Window() {
        form.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
        for (int n = 1; n <= 3; ++n) {
            auto object = std::make_shared<Transformed3d>();
            object->setSolid(makeCube(1));
            form.getDocument().solids.push_back(object);
            form.getSceneTree().addSolidNode(object, n, "Solid");
        }
    }

    SceneTreeNode& node(const std::string& key) { return *form.getSceneTree().findSceneNode(key); }
    const SceneTreeNodes& topNodes() { return form.getSceneTree().root().children(); }
};

} // namespace

TEST(frmTolvaneTree, DeleteRemovesTheClickedSolidAndTheTreeIsNumberedAfresh) {
    Window w;
    const auto third = w.form.getDocument().solids[2];
    w.form.TreeView1_NodeClick(w.node("s2"));
    EXPECT_TRUE(w.form.getDocument().solids[1]->isSelected());
    EXPECT_EQ(w.node("s2").BackColor, 255);
    EXPECT_TRUE(w.form.isPropertyMenuEnabled());

    w.form.TreeView1_KeyDown(frmTolvane::keyCodeDelete);
    ASSERT_EQ(w.form.getDocument().solids.size(), 2u);
    EXPECT_EQ(w.form.getDocument().solids[1], third);
    // The deleted solid is no longer selected, so Properties cannot reach it.
    EXPECT_TRUE(w.form.getSelection().selectedSolids.empty());
    EXPECT_FALSE(w.form.isPropertyMenuEnabled());
    ASSERT_EQ(w.topNodes().size(), 2u);
    EXPECT_EQ(w.topNodes()[1]->key, "s2");
    EXPECT_EQ(w.topNodes()[1]->text, "Solid 2");

    // After the rebuild no node is selected: Delete removes nothing more.
    w.form.TreeView1_KeyDown(frmTolvane::keyCodeDelete);
    EXPECT_EQ(w.form.getDocument().solids.size(), 2u);
}

TEST(frmTolvaneTree, RemoveSolidLeavesTextsUntilAnyKeyRebuilds) {
    Window w;
    w.form.TreeView1_NodeClick(w.node("s3"));
    w.form.removeSolid(1, "s1");
    ASSERT_EQ(w.topNodes().size(), 2u);
    EXPECT_EQ(w.topNodes()[0]->key, "s1");
    EXPECT_EQ(w.topNodes()[0]->text, "Solid 2");

    w.form.TreeView1_KeyDown('A');
    EXPECT_EQ(w.topNodes()[0]->text, "Solid 1");
    EXPECT_EQ(w.topNodes()[1]->text, "Solid 2");
    EXPECT_EQ(w.form.getDocument().solids.size(), 2u);
    // The selected solid's new node keeps the selection's colour.
    EXPECT_EQ(w.topNodes()[0]->BackColor, SceneTreeNode::white);
    EXPECT_EQ(w.topNodes()[1]->BackColor, 255);
}

TEST(frmTolvaneTree, NodeClicksSelectByKeyAndChildNodesSelectNothing) {
    Window w;
    w.form.TreeView1_NodeClick(w.node("f3-s2"));
    const auto face = w.form.getDocument().solids[1]->getFaces()[2];
    EXPECT_TRUE(face->isSelected());
    EXPECT_EQ(w.node("f3-s2").BackColor, 16776960);

    w.form.TreeView1_KeyDown('A'); // a rebuild keeps the face's node painted
    EXPECT_EQ(w.node("f3-s2").BackColor, 16776960);

    // The "Points" child: the whole selection cleared, nothing selected.
    w.form.TreeView1_NodeClick(*w.node("s1").children()[0]);
    EXPECT_FALSE(face->isSelected());
    EXPECT_EQ(w.node("f3-s2").BackColor, 16777215);
    EXPECT_FALSE(w.form.isPropertyMenuEnabled());

    // Delete on a face node removes nothing.
    w.form.TreeView1_NodeClick(w.node("f3-s2"));
    w.form.TreeView1_KeyDown(frmTolvane::keyCodeDelete);
    EXPECT_EQ(w.form.getDocument().solids.size(), 3u);
}

TEST(frmTolvaneTree, AProfileAloneKeepsThePropertyMenuUntilAnotherUpdate) {
    Window w;
    auto profile = std::make_shared<Profile>();
    w.form.getDocument().profiles.push_back(profile);
    w.form.getSceneTree().addProfileNode(profile, "Profile");
    w.form.TreeView1_NodeClick(w.node("r1"));
    EXPECT_TRUE(profile->isSelected());
    EXPECT_EQ(w.node("r1").BackColor, 16711935);
    // Selecting a profile leaves the menu be; the next update sees the profile.
    w.form.resetSelectFaces();
    EXPECT_TRUE(w.form.isPropertyMenuEnabled());

    w.form.resetSelectProfiles();
    EXPECT_FALSE(profile->isSelected());
    EXPECT_TRUE(w.form.isPropertyMenuEnabled());
    w.form.resetSelectWorkplanes();
    EXPECT_FALSE(w.form.isPropertyMenuEnabled());
}
