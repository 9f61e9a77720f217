#include "app/MainMenu.h"
#include "render/KorvanOpsConsts.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

namespace {

const std::vector<std::string> barParallel = {"&View", "&Projection Type", "P&arallel"};
const std::vector<std::string> barBackface = {"&View", "&Display", "&Backface Removal"};
const std::vector<std::string> popupBackface = {"&Display", "&Backface Removal"};

size_t callCount(const RecordingCanvas& canvas) {
    return canvas.calls().size();
}

} // namespace

TEST(ViewCommands, BarProjectionSetsEveryRecordAndRedraws) {
    TestWindow w;
    w.canvases[3].forget();
    w.choose(barParallel);
    for (int number = 1; number <= 4; ++number) {
        EXPECT_EQ(w.form.getViewSpecs(number).ProjectionType, 0) << number;
    }
    EXPECT_GT(callCount(w.canvases[3]), 0u);
    w.choose({"&View", "&Projection Type", "P&erspective"});
    EXPECT_EQ(w.form.getViewSpecs(2).ProjectionType, 1);
}

TEST(ViewCommands, PopupViewItemsActOnTheRightClickedViewportBeforeItsRedraw) {
    TestWindow w;
    size_t callsWhenChosen = 0;
    w.frame.queuePopupChoice([&] {
        w.form.getMenus().getPopupMenu().findPath({"&Projection Type", "P&arallel"})->click();
        callsWhenChosen = callCount(w.canvases[3]);
    });
    // Only the fourth canvas is shown, and painted.
    w.canvases[3].forget();
    w.form.picOrtho_MouseDown(1, 2, 0, 10, 10);
    EXPECT_EQ(w.frame.popups(), 1);
    EXPECT_EQ(w.form.getViewSpecs(2).ProjectionType, 0);
    EXPECT_EQ(w.form.getViewSpecs(1).ProjectionType, 1);
    EXPECT_EQ(w.form.getViewSpecs(4).ProjectionType, 1);
    // The item itself drew nothing; the press redrew after it.
    EXPECT_EQ(callsWhenChosen, 0u);
    EXPECT_GT(callCount(w.canvases[3]), 0u);

    w.popup(3, {"Se&t View", "&Top"});
    EXPECT_EQ(w.form.getViewSpecs(4).EyeTheta, w.form.getViewSpecs(1).EyeTheta);
    EXPECT_EQ(w.form.getViewSpecs(4).EyePhi, w.form.getViewSpecs(1).EyePhi);
    EXPECT_EQ(w.form.getViewSpecs(3).EyeTheta,
              static_cast<float>(3.14159265358979 / 2)); // still the front view
}

TEST(ViewCommands, BarAndPopupKeepTheirOwnCheckMarks) {
    TestWindow w;
    MainMenu& menus = w.form.getMenus();
    w.popup(1, popupBackface);
    EXPECT_FALSE(menus.item("mnuPopupBackfaceRemoval").isChecked());
    EXPECT_TRUE(menus.item("mnuBackfaceRemoval").isChecked());
    EXPECT_FALSE(w.form.getViewSpecs(2).HideSurfaces);
    EXPECT_TRUE(w.form.getViewSpecs(3).HideSurfaces);

    // The bar writes its own new state, off, to every record; then on again.
    w.choose(barBackface);
    EXPECT_FALSE(w.form.getViewSpecs(3).HideSurfaces);
    w.choose(barBackface);
    EXPECT_TRUE(menus.item("mnuBackfaceRemoval").isChecked());
    EXPECT_TRUE(w.form.getViewSpecs(2).HideSurfaces);
    EXPECT_FALSE(menus.item("mnuPopupBackfaceRemoval").isChecked());

    w.popup(0, {"&Display", "&WireFrame"});
    EXPECT_TRUE(w.form.getViewSpecs(1).wireFrame);
    EXPECT_FALSE(menus.item("mnuWireframe").isChecked());
    w.choose({"&View", "&Display", "&Wireframe"});
    EXPECT_TRUE(w.form.getViewSpecs(4).wireFrame);
    EXPECT_TRUE(menus.item("mnuPopupWireFrame").isChecked());
}

TEST(ViewCommands, GridAndAxesChecksAreWhatTheRedrawShows) {
    TestWindow w;
    for (const char* caption : {"&Grid", "&Zero Axes", "&Reference Axes"}) {
        w.canvases[3].forget();
        w.form.redrawAllViewports();
        const size_t before = callCount(w.canvases[3]);
        w.canvases[3].forget();
        w.choose({"&View", "&Display", caption});
        EXPECT_LT(callCount(w.canvases[3]), before) << caption;
    }
    // Turned on again, they show again.
    w.canvases[3].forget();
    w.choose({"&View", "&Display", "&Grid"});
    const size_t withGrid = callCount(w.canvases[3]);
    w.canvases[3].forget();
    w.form.getMenus().item("mnuGrid").setChecked(false);
    w.form.redrawAllViewports();
    EXPECT_LT(callCount(w.canvases[3]), withGrid);
}

TEST(ViewCommands, LayoutSwitchesShowAndHideTheFirstThreeViewports) {
    TestWindow w;
    w.choose({"&Options", "&Set Viewports", "&Four Windows"});
    EXPECT_TRUE(w.canvases[0].isVisible());
    w.choose({"&Options", "&Set Viewports", "&One Window"});
    EXPECT_FALSE(w.canvases[0].isVisible());
}

TEST(ModeCommands, BarAndPopupInstallTheChosenMode) {
    TestWindow w;
    w.choose({"&View", "&Movement", "&Zoom"});
    EXPECT_EQ(w.form.getMouseMode().getMouseIcon(), MousePointer::SizeVertical);
    w.popup(3, {"&Movement", "&Scroll"});
    EXPECT_EQ(w.form.getMouseMode().getMouseIcon(), MousePointer::SizeDiagonal);
    w.choose({"&Selectors", "&Face Selector"});
    EXPECT_EQ(w.form.getMouseMode().getMouseIcon(), MousePointer::Crosshair);
    w.popup(3, {"&Movement", "&Rotate"});
    EXPECT_EQ(w.form.getMouseMode().getMouseIcon(), MousePointer::SizeAll);
}

TEST(frmTolvane, EveryKeyRedrawsAndCClosesTheProfile) {
    TestWindow w;
    w.canvases[3].forget();
    w.form.Form_KeyDown(65);
    EXPECT_GT(callCount(w.canvases[3]), 0u);
    EXPECT_TRUE(w.prompts.messages().empty());
    // With no profile being drawn, closing it says so.
    w.form.Form_KeyDown(67);
    ASSERT_EQ(w.prompts.messages().size(), 1u);
    EXPECT_EQ(w.prompts.messages()[0].title, "Error Closing Profile");
}
