#include "app/frmTolvane.h"

#include "interaction/ClickHandleScroll.h"
#include "interaction/ClickHandleZoom.h"
#include "render/LightSource.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedModalHost.h"

#include <gtest/gtest.h>

namespace {

// A main window with four recording canvases attached.
struct Window {
    ScriptedModalHost dialogs;
    std::array<RecordingCanvas, 4> canvases;
    frmTolvane form{dialogs};

    Window() {
        form.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
        form.Form_Load();
    }

    // A drag from (x0, y0) to (x1, y1) on canvas index: the pointer arrives, then moves
    // with the given buttons held.
    void drag(int index, int buttons, float x0, float y0, float x1, float y1) {
        form.picOrtho_MouseMove(index, 0, 0, x0, y0);
        form.picOrtho_MouseMove(index, buttons, 0, x1, y1);
    }
};

// A mode whose left drag leaves the view alone (returns none); it notes what the move
// handler of the same event receives.
struct DragReturnsNone : ClickHandleNothing {
    std::vector<bool> moveGotView;
    std::optional<viewInfo> handleMouseMove(MouseEventArgs& args) override {
        moveGotView.push_back(args.viewSpecs.has_value());
        return std::nullopt;
    }
};

} // namespace

TEST(frmTolvane, StartsWithTheDocumentViewsAndSingleViewport) {
    Window w;
    EXPECT_EQ(w.form.caption(), "Korvan Version 2.0");
    EXPECT_EQ(w.form.getMouseSensivity(), 0.0025f);
    EXPECT_EQ(w.form.getViewportLayout(), 1);
    EXPECT_EQ(w.form.getMouseMode().getMouseIcon(), MousePointer::SizeAll); // rotate

    const float quarter = static_cast<float>(3.14159265358979 / 2);
    EXPECT_EQ(w.form.getViewSpecs(1).EyePhi, quarter); // top
    EXPECT_EQ(w.form.getViewSpecs(2).EyeTheta, 0.0f);  // side
    EXPECT_EQ(w.form.getViewSpecs(2).EyePhi, 0.0f);
    EXPECT_EQ(w.form.getViewSpecs(3).EyeTheta, quarter); // front
    EXPECT_EQ(w.form.getViewSpecs(4).EyeTheta, static_cast<float>(0.6283185307179581));
    for (int i = 1; i <= 4; ++i) {
        const ViewSpecs& v = w.form.getViewSpecs(i);
        EXPECT_EQ(v.zoom, 200.0f);
        EXPECT_EQ(v.ProjectionType, 1);
        EXPECT_EQ(v.EyeR, 10.0f);
        EXPECT_TRUE(v.HideSurfaces);
        EXPECT_FALSE(v.wireFrame);
    }

    const LightList& lights = w.form.getDocument().light_sources;
    ASSERT_EQ(lights.size(), 4u);
    EXPECT_EQ(lights[0]->x, -300.0f);
    EXPECT_EQ(lights[0]->y, 300.0f);
    EXPECT_EQ(lights[3]->y, -300.0f);
    EXPECT_EQ(lights[1]->Ir, 200.0f);

    // Loading drew every viewport: cleared, then refreshed.
    for (const auto& canvas : w.canvases) {
        ASSERT_FALSE(canvas.calls().empty());
        EXPECT_EQ(canvas.calls().front().kind, RecordingCanvas::Kind::Clear);
        EXPECT_EQ(canvas.calls().back().kind, RecordingCanvas::Kind::Refresh);
    }
}

TEST(frmTolvane, NavigationModesFollowTheMouseFromTheAnchor) {
    Window w;
    w.form.setMouseSensivity(0.01f);
    const ViewSpecs before = w.form.getViewSpecs(4);
    w.drag(3, 1, 100, 100, 110, 95);
    const ViewSpecs& turned = w.form.getViewSpecs(4);
    EXPECT_NEAR(turned.EyeTheta - before.EyeTheta, 0.1, 1e-6);
    EXPECT_NEAR(turned.EyePhi - before.EyePhi, -0.05, 1e-6);
    EXPECT_EQ(turned.anchorX, 110);
    EXPECT_EQ(turned.anchorY, 95);
    EXPECT_EQ(w.canvases[3].mousePointer(), MousePointer::SizeAll);
    // Only the record of the canvas under the mouse changes.
    EXPECT_EQ(w.form.getViewSpecs(1).EyeTheta, 0.0f);

    w.form.setMouseSensivity(0.0025f);
    w.form.setMouseMode(std::make_unique<ClickHandleZoom>());
    w.drag(3, 1, 0, 0, 50, 0);
    EXPECT_EQ(w.form.getViewSpecs(4).zoom, 200.0f);
    w.drag(3, 1, 0, 0, 0, 30);
    EXPECT_NEAR(w.form.getViewSpecs(4).zoom, 225.0f, 1e-4);

    w.form.setMouseMode(std::make_unique<ClickHandleScroll>());
    w.drag(3, 1, 0, 0, 4, -2);
    EXPECT_NEAR(w.form.getViewSpecs(4).shiftx, 5.0f, 1e-5);
    EXPECT_NEAR(w.form.getViewSpecs(4).shifty, -2.5f, 1e-5);

    // Left and right together change nothing but the anchor, under the crosshair.
    const ViewSpecs held = w.form.getViewSpecs(4);
    w.drag(3, 3, 0, 0, 40, 40);
    ViewSpecs expected = held;
    expected.anchorX = 40;
    expected.anchorY = 40;
    EXPECT_EQ(w.form.getViewSpecs(4), expected);
    EXPECT_EQ(w.canvases[3].mousePointer(), MousePointer::Crosshair);
}

TEST(frmTolvane, APositionFarOffTheCanvasCountsAsAMillionPixelsOff) {
    Window w;
    w.drag(3, 1, 3e9f, 0, -3e9f, 1e30f);
    EXPECT_EQ(w.form.getViewSpecs(4).anchorX, -(1 << 20));
    EXPECT_EQ(w.form.getViewSpecs(4).anchorY, 1 << 20);
}

TEST(frmTolvane, MoveHandlerGetsNoViewAfterALeftDragHandlerReturnedNone) {
    Window w;
    auto mode = std::make_unique<DragReturnsNone>();
    const auto& moveGotView = mode->moveGotView;
    w.form.setMouseMode(std::move(mode));
    w.drag(3, 1, 10, 10, 20, 20);
    ASSERT_EQ(moveGotView.size(), 2u);
    EXPECT_TRUE(moveGotView[0]);  // no button: the copy of the record
    EXPECT_FALSE(moveGotView[1]); // left drag: what the drag handler returned
}

TEST(frmTolvane, RightPressRemembersItsViewportAndViewInfoIsACopy) {
    Window w;
    const ViewSpecs before = w.form.getViewSpecs(2);
    w.form.picOrtho_MouseDown(1, 2, 0, 10, 10);
    EXPECT_EQ(w.form.getPopupViewport(), 2);
    EXPECT_EQ(w.form.getViewSpecs(2), before);

    EXPECT_FALSE(w.form.getViewInfo(0));
    EXPECT_FALSE(w.form.getViewInfo(5));
    auto info = w.form.getViewInfo(4);
    ASSERT_TRUE(info);
    ViewSpecs changed = info->getSpecs();
    changed.zoom = 1;
    info->setSpecs(changed);
    EXPECT_EQ(w.form.getViewSpecs(4).zoom, 200.0f);
}

TEST(frmTolvane, SetMouseSensivityRunsTheDialogModally) {
    Window w;
    w.dialogs.queueDialog(
        {ScriptedModalHost::scroll("HScroll1", 1), ScriptedModalHost::press("mnuAccept")});
    w.form.mnuSetMouseSensivity_Click();
    EXPECT_EQ(w.form.getMouseSensivity(), 1.0f);

    w.dialogs.queueDialog(
        {ScriptedModalHost::scroll("HScroll1", 1000), ScriptedModalHost::press("mnuCancel")});
    w.form.mnuSetMouseSensivity_Click();
    EXPECT_EQ(w.form.getMouseSensivity(), 1.0f);
    EXPECT_EQ(w.dialogs.shown(),
              (std::vector<std::string>{"Set Mouse Sensivity", "Set Mouse Sensivity"}));
}
