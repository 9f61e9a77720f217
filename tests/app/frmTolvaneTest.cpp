#include "app/frmTolvane.h"

#include "app/ListChange.h"
#include "interaction/ClickHandleScroll.h"
#include "interaction/ClickHandleZoom.h"
#include "support/MemorySettings.h"
#include "support/TempFolder.h"
#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

namespace {

using Host = ScriptedModalHost;

// A drag on canvas index: the pointer arrives at (x0, y0), then moves with the buttons held.
void drag(TestWindow& w, int buttons, float x0, float y0, float x1, float y1) {
    w.form.picOrtho_MouseMove(3, 0, 0, x0, y0);
    w.form.picOrtho_MouseMove(3, buttons, 0, x1, y1);
}

// A mode whose left drag leaves the view alone (returns none); it notes what the move
// handler of the same event receives.
struct DragReturnsNone : ClickHandleNothing {
    std::vector<bool> moveGotView;
    std::optional<viewInfo> handleMouseMove(MouseEventArgs& args) override {
        moveGotView.push_back(args.viewSpecs.has_value());
        return std::nullopt;
    }
};

// A main window whose document holds three cubes, each with its node in the tree.
struct Window : TestWindow {
    Window() {
        form.getDocument().solids = {makeObject(), makeObject(), makeObject()};
        form.rebuildTree();
    }

    SceneTreeNode& node(const std::string& key) { return *form.getSceneTree().findSceneNode(key); }
    std::vector<std::string> topNodes() { return ::topNodes(form.getSceneTree()); }
};

} // namespace

TEST(frmTolvane, ModesFollowTheMouseFromTheAnchorAtTheSensitivityOfTheDialog) {
    TestWindow w;
    w.form.getMouse().setMouseSensivity(0.01f);
    const ViewSpecs before = w.form.getViewports().viewSpecs(4);
    drag(w, 1, 100, 100, 110, 95);
    const ViewSpecs& turned = w.form.getViewports().viewSpecs(4);
    EXPECT_NEAR(turned.EyeTheta - before.EyeTheta, 0.1, 1e-6);
    EXPECT_NEAR(turned.EyePhi - before.EyePhi, -0.05, 1e-6);
    EXPECT_EQ(turned.anchorX, 110);
    EXPECT_EQ(turned.anchorY, 95);
    EXPECT_EQ(w.canvases[3].mousePointer(), MousePointer::SizeAll);
    EXPECT_EQ(w.form.getViewports().viewSpecs(1).EyeTheta, 0.0f); // only the record under the mouse

    w.form.getMouse().setMouseSensivity(0.0025f);
    w.form.getMouse().setMouseMode(std::make_unique<ClickHandleZoom>());
    drag(w, 1, 0, 0, 0, 30);
    EXPECT_NEAR(w.form.getViewports().viewSpecs(4).zoom, 225.0f, 1e-4);
    w.form.getMouse().setMouseMode(std::make_unique<ClickHandleScroll>());
    drag(w, 1, 0, 0, 4, -2);
    EXPECT_NEAR(w.form.getViewports().viewSpecs(4).shiftx, 5.0f, 1e-5);
    EXPECT_NEAR(w.form.getViewports().viewSpecs(4).shifty, -2.5f, 1e-5);

    // Left and right together change nothing but the anchor, under the crosshair.
    ViewSpecs expected = w.form.getViewports().viewSpecs(4);
    w.form.picOrtho_MouseMove(3, 3, 0, 40, 40);
    expected.anchorX = 40;
    expected.anchorY = 40;
    EXPECT_EQ(w.form.getViewports().viewSpecs(4), expected);
    EXPECT_EQ(w.canvases[3].mousePointer(), MousePointer::Crosshair);

    // A position far off the canvas counts as a million pixels off.
    drag(w, 3, 3e9f, 0, -3e9f, 1e30f);
    EXPECT_EQ(w.form.getViewports().viewSpecs(4).anchorX, -(1 << 20));
    EXPECT_EQ(w.form.getViewports().viewSpecs(4).anchorY, 1 << 20);

    auto mode = std::make_unique<DragReturnsNone>();
    const auto& moveGotView = mode->moveGotView;
    w.form.getMouse().setMouseMode(std::move(mode));
    drag(w, 1, 10, 10, 20, 20);
    ASSERT_EQ(moveGotView.size(), 2u);
    EXPECT_TRUE(moveGotView[0]);  // no button: the copy of the record
    EXPECT_FALSE(moveGotView[1]); // left drag: what the drag handler returned

    w.dialogs.queueDialog({Host::scroll("HScroll1", 1), Host::press("mnuAccept")});
    w.choose({"&Options", "&Set Mouse Sensivity"});
    EXPECT_EQ(w.form.getMouse().getMouseSensivity(), 1.0f);
    w.dialogs.queueDialog({Host::scroll("HScroll1", 1000), Host::press("mnuCancel")});
    w.choose({"&Options", "&Set Mouse Sensivity"});
    EXPECT_EQ(w.form.getMouse().getMouseSensivity(), 1.0f);
}

TEST(frmTolvaneTree, NodeClicksSelectByKeyDeleteRemovesTheSolidAndAnyKeyRenumbers) {
    Window w;
    w.form.TreeView1_NodeClick(w.node("f3-s2"));
    const auto face = w.form.getDocument().solids[1]->getFaces()[2];
    EXPECT_TRUE(face->isSelected());
    EXPECT_EQ(w.node("f3-s2").BackColor, 16776960);

    // The "Points" child: the whole selection cleared, nothing selected.
    w.form.TreeView1_NodeClick(*w.node("s1").children()[0]);
    EXPECT_FALSE(face->isSelected());
    EXPECT_FALSE(w.form.getSelection().isPropertyMenuEnabled());

    // Delete on a face node removes nothing.
    w.form.TreeView1_NodeClick(w.node("f3-s2"));
    w.form.TreeView1_KeyDown(frmTolvane::keyCodeDelete);
    EXPECT_EQ(w.form.getDocument().solids.size(), 3u);
    EXPECT_EQ(w.node("f3-s2").BackColor, 16776960); // the rebuilt tree keeps it painted

    const auto third = w.form.getDocument().solids[2];
    w.form.TreeView1_NodeClick(w.node("s2")); // selected and painted: SceneTreeView's test
    EXPECT_TRUE(w.form.getSelection().isPropertyMenuEnabled());

    w.form.TreeView1_KeyDown(frmTolvane::keyCodeDelete);
    ASSERT_EQ(w.form.getDocument().solids.size(), 2u);
    EXPECT_EQ(w.form.getDocument().solids[1], third);
    // The deleted solid is no longer selected, so Properties cannot reach it.
    EXPECT_FALSE(w.form.getSelection().isPropertyMenuEnabled());
    // After the rebuild no node is selected: Delete removes nothing more.
    w.form.TreeView1_KeyDown(frmTolvane::keyCodeDelete);
    EXPECT_EQ(w.form.getDocument().solids.size(), 2u);

    // After a key rebuilds the tree, the selected solid's new node keeps the selection's colour.
    w.form.TreeView1_NodeClick(w.node("s2"));
    w.form.getDocument().solids.erase(w.form.getDocument().solids.begin());
    w.form.TreeView1_KeyDown('A');
    EXPECT_EQ(w.topNodes(), (std::vector<std::string>{"s1: Solid 1"}));
    EXPECT_EQ(w.node("s1").BackColor, 255);

    // A profile alone keeps the Property menu until another update.
    auto profile = std::make_shared<Profile>();
    w.form.getDocument().profiles.push_back(profile);
    w.form.getSceneTree().addProfileNode(profile, "Profile");
    w.form.TreeView1_NodeClick(w.node("r1"));
    EXPECT_TRUE(profile->isSelected());
    EXPECT_EQ(w.node("r1").BackColor, 16711935);
    // Selecting a profile leaves the menu be; the next update sees the profile.
    w.form.getSelection().resetSelectFaces();
    EXPECT_TRUE(w.form.getSelection().isPropertyMenuEnabled());

    w.form.getSelection().resetSelectProfiles();
    EXPECT_FALSE(profile->isSelected());
    EXPECT_TRUE(w.form.getSelection().isPropertyMenuEnabled());
    w.form.getSelection().resetSelectWorkplanes();
    EXPECT_FALSE(w.form.getSelection().isPropertyMenuEnabled());
}

TEST(frmTolvane, AFileNamedGoesThroughOpenOrImportAndJoinsTheRecentFiles) {
    TempFolder folder;
    MemorySettings store;
    TestWindow w;
    w.form.attachSettings(store);
    w.form.getDocument().solids.push_back(makeObject());
    w.files.queueAnswer(folder.file("b.obj"));
    w.choose({"&File", "E&xport Mesh..."});
    w.form.openFile(folder.file("b.obj"));
    EXPECT_EQ(w.form.getDocument().solids.size(), 2u);
    EXPECT_EQ(w.frame.status(), "Imported b.obj (1 solid, 6 faces)");
    w.files.queueAnswer(folder.file("a.tvm"));
    w.choose({"&File", "&Save"});
    EXPECT_EQ(w.frame.status(), "Saved a.tvm (2 solids, 12 faces)");

    SceneDocument& document = w.form.getDocument(); // unsaved: Cancel stops Open before it asks
    w.form.history().push("Extrude", ListChange<Transformed3d>::insert(document, makeObject(), 0));
    w.prompts.queueAnswer(MessageAnswer::Cancel);
    w.form.openFile(folder.file("a.tvm"));
    w.prompts.queueAnswer(MessageAnswer::Discard);
    w.choose({"&File", "&Open"}); // so it is not answered with the name either: cancelled
    EXPECT_EQ(document.solids.size(), 3u);
    w.prompts.queueAnswer(MessageAnswer::Discard);
    w.form.openFile(folder.file("a.tvm"));
    EXPECT_EQ(w.frame.status(), "Opened a.tvm (2 solids, 12 faces)");
    EXPECT_EQ(w.form.getMenus().item("mnuRecentFile2").getCaption(),
              "&2 " + std::filesystem::canonical(folder.file("b.obj")).string());
}
