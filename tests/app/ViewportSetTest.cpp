#include "app/ViewportSet.h"

#include "support/TestWindow.h"

#include <gtest/gtest.h>

TEST(ViewportSet, LaysOutOneOrFourViewportsBesideTheTree) {
    std::array<RecordingCanvas, 4> canvases;
    ViewportSet viewports;
    viewports.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
    viewports.setClientSize(1000, 600);
    viewports.layoutViewports();
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_FALSE(canvases[i].isVisible());
    }
    EXPECT_TRUE(canvases[3].isVisible());
    EXPECT_EQ(std::pair(canvases[3].scaleWidth(), canvases[3].scaleHeight()), std::pair(800, 600));
    EXPECT_EQ(viewports.getTreePlacement(), (ControlPlacement{800, 0, 200, 600}));

    // Below a height of 120 the canvases are laid out as if it were 120; the tree is not.
    viewports.setClientSize(1000, 90);
    viewports.layoutViewports();
    EXPECT_EQ(canvases[3].scaleHeight(), 120);
    EXPECT_EQ(viewports.getTreePlacement().height, 90);

    viewports.viewportLayout = 4;
    viewports.setClientSize(1000, 600);
    viewports.layoutViewports();
    EXPECT_TRUE(canvases[0].isVisible());
    EXPECT_EQ(std::pair(canvases[1].left(), canvases[1].top()), std::pair(400, 0));
    EXPECT_EQ(std::pair(canvases[3].left(), canvases[3].top()), std::pair(400, 300));
    EXPECT_EQ(std::pair(canvases[3].scaleWidth(), canvases[3].scaleHeight()), std::pair(400, 300));
}

TEST(ViewportSet, AHiddenViewportIsNotPainted) {
    TestWindow w; // one viewport: the first three canvases are hidden
    w.canvases[0].forget();
    w.form.redrawAllViewports();
    EXPECT_TRUE(w.canvases[0].calls().empty());
}
