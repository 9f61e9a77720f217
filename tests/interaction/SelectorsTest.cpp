#include "app/frmTolvane.h"
#include "geometry/CPoint3D.h"
#include "geometry/M3Ops.h"
#include "geometry/Rounding.h"
#include "interaction/ClickHandleFaceSelector.h"
#include "interaction/ClickHandleProfileSelector.h"
#include "interaction/ClickHandleSolidSelector.h"
#include "interaction/ClickHandleWorkPlaneSelector.h"
#include "render/KorvanOpsConsts.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedModalHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>

namespace {

constexpr int top = 0; // picOrtho(0) shows the top view, the eye straight above the origin
constexpr int isometric = 3;

// The main window with four 400 x 300 viewports; clicks go through its mouse dispatch.
struct Window {
    ScriptedPrompts prompts;
    ScriptedModalHost dialogs;
    std::array<RecordingCanvas, 4> canvases;
    frmTolvane form{dialogs};

    Window() {
        form.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
        form.setViewportLayout(4);
        form.Form_Resize(1000, 600);
    }

    SceneDocument& document() { return form.getDocument(); }
    SceneTreeNode& node(const std::string& key) { return *form.getSceneTree().findSceneNode(key); }

    // A left click on canvas index where the world point (x, y, z) is seen.
    void clickAt(int index, float x, float y, float z) {
        const Matrix4 full = KorvanOpsConsts::getFullViewMatrix(
            canvases[static_cast<size_t>(index)], form.getViewSpecs(index + 1));
        Point4 seen;
        M3Ops::transformPoint(Point4{x, y, z, 1}, full, seen);
        form.picOrtho_MouseDown(index, 1, 0, seen.x, seen.y);
    }

    std::shared_ptr<Transformed3d> addSolid(const std::shared_ptr<Solid3d>& solid) {
        auto object = std::make_shared<Transformed3d>();
        object->setSolid(solid);
        document().solids.push_back(object);
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
        auto workPlane = std::make_shared<WorkPlane>();
        workPlane->initialize(2, 0, 0, 0, 0);
        w.document().workPlanes.push_back(workPlane);
        w.form.addWorkplaneNode(workPlane, "Workplane");
    }
    w.form.setMouseMode(std::make_unique<ClickHandleWorkPlaneSelector>());
    w.clickAt(isometric, 0.1f, 0.2f, 0);

    EXPECT_TRUE(w.document().workPlanes[0]->isSelected());
    EXPECT_TRUE(w.document().workPlanes[1]->isSelected());
    EXPECT_EQ(w.node("w1").BackColor, 65535);
    EXPECT_EQ(w.node("w2").BackColor, 65535);
    EXPECT_TRUE(w.prompts.messages().empty());
    EXPECT_TRUE(w.form.isPropertyMenuEnabled());
    EXPECT_EQ(w.form.getMouseMode().getMouseIcon(), MousePointer::Crosshair);
}

TEST(Selectors, FacesOfTwoSolidsUnderOneClickNeedTheUsersYes) {
    Window w;
    const auto upper = w.addSolid(makeCube(1));
    const auto lower = w.addSolid(makeCube(1, 0, -4, 0));
    w.form.getSceneTree().addSolidNode(upper, 1, "Solid");
    w.form.getSceneTree().addSolidNode(lower, 2, "Solid");
    w.form.setMouseMode(std::make_unique<ClickHandleFaceSelector>());
    const auto upperTop = upper->getFaces()[4]; // +y, face 5
    const auto lowerTop = lower->getFaces()[4];

    w.prompts.queueAnswer(MessageAnswer::Yes);
    w.clickAt(top, 0.2f, 1, 0.3f);
    ASSERT_EQ(w.prompts.messages().size(), 1u);
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
    EXPECT_FALSE(w.form.isPropertyMenuEnabled());
    EXPECT_EQ(w.node("f5-s1").BackColor, 16776960);
}

TEST(Selectors, ASolidUnderTheClickSeveralTimesIsSelectedOnce) {
    Window w;
    const auto object = w.addSolid(twoStackedSquares());
    w.form.getSceneTree().addSolidNode(object, 1, "Solid");
    w.form.setMouseMode(std::make_unique<ClickHandleSolidSelector>());
    w.clickAt(top, 0.05f, 1, 0.1f);

    EXPECT_TRUE(w.prompts.messages().empty());
    EXPECT_TRUE(object->isSelected());
    EXPECT_EQ(w.node("s1").BackColor, 255);

    // Empty space clears every selection and every highlight.
    w.form.picOrtho_MouseDown(top, 1, 0, 2, 2);
    EXPECT_FALSE(object->isSelected());
    EXPECT_EQ(w.node("s1").BackColor, 16777215);
    EXPECT_FALSE(w.form.isPropertyMenuEnabled());
}

TEST(Selectors, AHitWithoutATreeNodeIsSelectedAllTheSame) {
    Window w;
    const auto object = w.addSolid(makeCube(1));
    w.form.setMouseMode(std::make_unique<ClickHandleSolidSelector>());
    w.clickAt(top, 0.2f, 1, 0.3f);
    EXPECT_TRUE(object->isSelected());
    EXPECT_TRUE(w.form.isPropertyMenuEnabled());
}

TEST(Selectors, AProfileEnclosingTheClickIsSelectedAndPaintedMagenta) {
    Window w;
    auto profile = std::make_shared<Profile>();
    for (const auto& [x, z] :
         {std::pair{-1.0f, -1.0f}, {1.0f, -1.0f}, {1.0f, 1.0f}, {-1.0f, 1.0f}}) {
        PointRecord record;
        record.coord = Point4{x, 0, z, 1};
        profile->addPointRecord(record);
    }
    w.document().profiles.push_back(profile);
    w.form.getSceneTree().addProfileNode(profile, "Profile");
    w.form.setMouseMode(std::make_unique<ClickHandleProfileSelector>());
    w.clickAt(isometric, 0.2f, 0, 0.3f);

    EXPECT_TRUE(profile->isSelected());
    EXPECT_EQ(w.node("r1").BackColor, 16711935);
}
