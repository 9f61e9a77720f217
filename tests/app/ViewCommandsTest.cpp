#include "app/MainMenu.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

TEST(ViewCommands, BarItemsSetEveryRecordAndRedrawPopupItemsTheRightClickedOne) {
    TestWindow w;
    w.canvases[3].forget();
    w.choose({"&View", "&Projection Type", "P&arallel"});
    for (int number = 1; number <= 4; ++number) {
        EXPECT_EQ(w.form.getViewports().viewSpecs(number).ProjectionType, 0) << number;
    }
    EXPECT_FALSE(w.canvases[3].calls().empty());

    // A pop-up's projection acts on the right-clicked viewport: frmTolvaneView's test.
    w.popup(3, {"Se&t View", "&Top"});
    EXPECT_EQ(w.form.getViewports().viewSpecs(4).EyeTheta,
              w.form.getViewports().viewSpecs(1).EyeTheta);
    EXPECT_EQ(w.form.getViewports().viewSpecs(4).EyePhi, w.form.getViewports().viewSpecs(1).EyePhi);
    EXPECT_NE(w.form.getViewports().viewSpecs(3).EyeTheta,
              w.form.getViewports().viewSpecs(1).EyeTheta);
}

TEST(ViewCommands, BarAndPopupKeepTheirOwnCheckMarksAndGridAndAxesAreWhatTheRedrawShows) {
    TestWindow w;
    MainMenu& menus = w.form.getMenus();
    w.popup(1, {"&Display", "&Backface Removal"});
    EXPECT_FALSE(menus.item("mnuPopupBackfaceRemoval").isChecked());
    EXPECT_TRUE(menus.item("mnuBackfaceRemoval").isChecked());
    EXPECT_FALSE(w.form.getViewports().viewSpecs(2).HideSurfaces);
    EXPECT_TRUE(w.form.getViewports().viewSpecs(3).HideSurfaces);

    // The bar writes its own new state, off, to every record; then on again.
    w.choose({"&View", "&Display", "&Backface Removal"});
    EXPECT_FALSE(w.form.getViewports().viewSpecs(3).HideSurfaces);
    w.choose({"&View", "&Display", "&Backface Removal"});
    EXPECT_TRUE(w.form.getViewports().viewSpecs(2).HideSurfaces);
    EXPECT_FALSE(menus.item("mnuPopupBackfaceRemoval").isChecked());

    for (const char* caption : {"&Grid", "&Zero Axes", "&Reference Axes"}) {
        SCOPED_TRACE(caption);
        w.canvases[3].forget();
        w.form.redrawAllViewports();
        const size_t before = w.canvases[3].calls().size();
        w.canvases[3].forget();
        w.choose({"&View", "&Display", caption});
        EXPECT_LT(w.canvases[3].calls().size(), before);
        w.canvases[3].forget();
        w.choose({"&View", "&Display", caption}); // on again
        EXPECT_EQ(w.canvases[3].calls().size(), before);
    }
}

TEST(ModeCommands, BarAndPopupInstallTheChosenMode) {
    TestWindow w;
    const std::pair<std::vector<std::string>, MousePointer> cases[] = {
        {{"&View", "&Movement", "&Zoom"}, MousePointer::SizeVertical},
        {{"&View", "&Movement", "&Scoll"}, MousePointer::SizeDiagonal},
        {{"&Selectors", "&Face Selector"}, MousePointer::Crosshair},
        {{"&View", "&Movement", "&Rotate"}, MousePointer::SizeAll}};
    for (const auto& [path, pointer] : cases) {
        w.choose(path);
        EXPECT_EQ(w.form.getMouse().getMouseMode().getMouseIcon(), pointer) << path.back();
    }
    w.popup(3, {"&Movement", "&Zoom"});
    EXPECT_EQ(w.form.getMouse().getMouseMode().getMouseIcon(), MousePointer::SizeVertical);
}
