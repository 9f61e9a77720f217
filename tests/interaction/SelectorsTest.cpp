#include "interaction/ClickHandleFaceSelector.h"
#include "interaction/ClickHandleProfileSelector.h"
#include "interaction/ClickHandleSolidSelector.h"
#include "interaction/ClickHandleWorkPlaneSelector.h"
#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

namespace {

constexpr int top = 0; // picOrtho(0) shows the top view, the eye straight above the origin
constexpr int isometric = 3;

// The main window with four viewports; clicks go through its mouse dispatch.
struct Window : TestWindow {
    Window() { showFourViewports(); }

    SceneDocument& document() { return form.getDocument(); }
    SceneTreeNode& node(const std::string& key) { return *form.getSceneTree().findSceneNode(key); }

    // A left click on canvas index where the world point (x, y, z) is seen.
    void clickAt(int index, float x, float y, float z) {
        const Point4 seen = pixel(index, x, y, z);
        form.picOrtho_MouseDown(index, 1, 0, seen.x, seen.y);
    }

    std::shared_ptr<Transformed3d> addSolid(const std::shared_ptr<Solid3d>& solid, bool withNode) {
        const auto object = makeObject(solid);
        document().solids.push_back(object);
        if (withNode) {
            form.getSceneTree().addSolidNode(object, static_cast<int32_t>(document().solids.size()),
                                             "Solid");
        }
        return object;
    }
};

// Two squares facing up, one above the other: from the top both hold the same pixels.
std::shared_ptr<Solid3d> twoStackedSquares() {
    auto solid = std::make_shared<Solid3d>();
    const float h = 0.2f; // small enough to leave the corners of the canvas empty
    solid->addPointsArray(std::vector<float>{-h, 1,  -h, -h, 1,  h, h, 1,  h, h, 1,  -h,
                                             -h, -3, -h, -h, -3, h, h, -3, h, h, -3, -h});
    solid->AddFace(std::vector<int32_t>{1, 2, 3, 4});
    solid->AddFace(std::vector<int32_t>{5, 6, 7, 8});
    return solid;
}

} // namespace

TEST(Selectors, OverlappingWorkplanesAreBothSelectedAndPaintedYellow) {
    Window w;
    for (int i = 0; i < 2; ++i) {
        w.document().workPlanes.push_back(makeWorkPlane(2, 0, 0));
        w.form.getSceneTree().addWorkplaneNode(w.document().workPlanes.back(), "Workplane");
    }
    w.form.getMouse().setMouseMode(std::make_unique<ClickHandleWorkPlaneSelector>());
    w.clickAt(isometric, 0.1f, 0.2f, 0);

    EXPECT_TRUE(w.document().workPlanes[0]->isSelected());
    EXPECT_TRUE(w.document().workPlanes[1]->isSelected());
    EXPECT_EQ(w.node("w1").BackColor, 65535);
    EXPECT_EQ(w.node("w2").BackColor, 65535);
    EXPECT_TRUE(w.prompts.messages().empty());
    EXPECT_TRUE(w.form.getSelection().isPropertyMenuEnabled());
    EXPECT_EQ(w.form.getMouse().getMouseMode().getMouseIcon(), MousePointer::Crosshair);
}

TEST(Selectors, FacesOrSolidsOfTwoSolidsUnderOneClickNeedTheUsersYes) {
    Window w;
    const auto upper = w.addSolid(makeCube(1), true);
    const auto lower = w.addSolid(makeCube(1, 0, -4, 0), true);
    w.form.getMouse().setMouseMode(std::make_unique<ClickHandleFaceSelector>());
    const auto upperTop = upper->getFaces()[4]; // +y, face 5
    const auto lowerTop = lower->getFaces()[4];

    w.prompts.queueAnswer(MessageAnswer::Yes);
    w.clickAt(top, 0.2f, 1, 0.3f);
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].text,
              "The face selector has selected more than one face.  Do you want to keep them "
              "both?  No will undo new selection.");
    EXPECT_EQ(w.prompts.messages()[0].title, "Multiple face selection");
    EXPECT_TRUE(upperTop->isSelected());
    EXPECT_TRUE(lowerTop->isSelected());
    EXPECT_EQ(w.node("f5-s1").BackColor, 16776960);
    EXPECT_EQ(w.node("f5-s2").BackColor, 16776960);

    // No: the new faces lose their flag, and the selection the click reset stays empty;
    // their nodes stay painted until the next reset.
    w.clickAt(top, 0.2f, 1, 0.3f);
    EXPECT_EQ(w.prompts.messages().size(), 2u);
    EXPECT_FALSE(upperTop->isSelected());
    EXPECT_FALSE(lowerTop->isSelected());
    EXPECT_FALSE(w.form.getSelection().isPropertyMenuEnabled());
    EXPECT_EQ(w.node("f5-s1").BackColor, 16776960);

    // Solids ask their own question under the same title.
    w.form.getMouse().setMouseMode(std::make_unique<ClickHandleSolidSelector>());
    w.prompts.queueAnswer(MessageAnswer::Yes);
    w.clickAt(top, 0.2f, 1, 0.3f);
    ASSERT_EQ(w.prompts.messages().size(), 3u);
    EXPECT_EQ(w.prompts.messages()[2].text,
              "The solid selector has selected more than one solid.  Do you want to keep them "
              "both?  No will undo new selection.");
    EXPECT_EQ(w.prompts.messages()[2].title, "Multiple face selection");
    EXPECT_EQ(w.form.getSelection().selectedSolids.size(), 2u);
    EXPECT_TRUE(lower->isSelected());
}

// Two faces of one solid under the click select it once; a solid without a tree node is
// selected all the same; empty space clears every selection and highlight.
TEST(Selectors, ASolidUnderTheClickSeveralTimesIsSelectedOnce) {
    Window w;
    const auto object = w.addSolid(twoStackedSquares(), true);
    const auto cube = w.addSolid(makeCube(0.3f, 2, 0, 0), false);
    w.form.getMouse().setMouseMode(std::make_unique<ClickHandleSolidSelector>());
    w.clickAt(top, 0.05f, 1, 0.1f);
    EXPECT_TRUE(w.prompts.messages().empty());
    EXPECT_TRUE(object->isSelected());
    EXPECT_EQ(w.node("s1").BackColor, 255);
    w.clickAt(top, 2, 1, 0.1f);
    EXPECT_FALSE(object->isSelected());
    EXPECT_TRUE(cube->isSelected());
    EXPECT_EQ(w.node("s1").BackColor, 16777215);

    w.form.picOrtho_MouseDown(top, 1, 0, 2, 2);
    EXPECT_FALSE(cube->isSelected());
    EXPECT_FALSE(w.form.getSelection().isPropertyMenuEnabled());
}

TEST(Selectors, AProfileEnclosingTheClickIsSelectedAndPaintedMagenta) {
    Window w;
    const auto profile = makeProfile({{-1, 0, -1, 1}, {1, 0, -1, 1}, {1, 0, 1, 1}, {-1, 0, 1, 1}});
    w.document().profiles.push_back(profile);
    w.form.getSceneTree().addProfileNode(profile, "Profile");
    w.form.getMouse().setMouseMode(std::make_unique<ClickHandleProfileSelector>());
    w.clickAt(isometric, 0.2f, 0, 0.3f);

    EXPECT_TRUE(profile->isSelected());
    EXPECT_EQ(w.node("r1").BackColor, 16711935);
    EXPECT_EQ(w.form.getSelection().selectedProfiles, std::vector{profile});
}
