#include "app/MainMenu.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>

TEST(ViewCommands, BarAndPopupKeepTheirOwnCheckMarksAndGridAndAxesAreWhatTheRedrawShows) {
    TestWindow w;
    MainMenu& menus = w.form.getMenus();
    w.popup(1, {"&Display", "&Backface Removal"});
    EXPECT_FALSE(menus.item("mnuPopupBackfaceRemoval").isChecked());
    EXPECT_TRUE(menus.item("mnuBackfaceRemoval").isChecked());
    EXPECT_FALSE(w.form.getViewports().viewSpecs(2).HideSurfaces);
    EXPECT_TRUE(w.form.getViewports().viewSpecs(3).HideSurfaces);
    const ViewportSet& views = w.form.getViewports();
    w.popup(3, {"Se&t View", "&Top"});
    EXPECT_EQ(std::pair(views.viewSpecs(4).EyeTheta, views.viewSpecs(4).EyePhi),
              std::pair(views.viewSpecs(1).EyeTheta, views.viewSpecs(1).EyePhi));

    // The bar writes its own new state, off, to every record, and redraws; then on again.
    w.canvases[3].forget();
    w.choose({"&View", "&Display", "&Backface Removal"});
    EXPECT_FALSE(w.form.getViewports().viewSpecs(3).HideSurfaces);
    EXPECT_FALSE(w.canvases[3].calls().empty());
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
