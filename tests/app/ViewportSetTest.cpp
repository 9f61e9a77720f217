#include "app/ViewportSet.h"

#include "support/RecordingCanvas.h"

#include <gtest/gtest.h>

TEST(ViewportSet, LaysOutOneOrFourViewportsBesideTheTree) {
    std::array<RecordingCanvas, 4> canvases;
    ViewportSet viewports;
    viewports.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
    viewports.setClientSize(1000, 600);
    viewports.layoutViewports();
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_FALSE(canvases[i].isVisible());
        EXPECT_EQ(canvases[i].scaleWidth(), 0);
    }
    EXPECT_TRUE(canvases[3].isVisible());
    EXPECT_EQ(canvases[3].scaleWidth(), 800);
    EXPECT_EQ(canvases[3].scaleHeight(), 600);
    EXPECT_EQ(viewports.getTreePlacement(), (ControlPlacement{800, 0, 200, 600}));

    // Below a height of 120 the canvases are laid out as if it were 120; the tree is not.
    viewports.setClientSize(1000, 90);
    viewports.layoutViewports();
    EXPECT_EQ(canvases[3].scaleHeight(), 120);
    EXPECT_EQ(viewports.getTreePlacement().height, 90);

    viewports.viewportLayout = 4;
    viewports.setClientSize(1000, 600);
    viewports.layoutViewports();
    for (const auto& canvas : canvases) {
        EXPECT_TRUE(canvas.isVisible());
        EXPECT_EQ(canvas.scaleWidth(), 400);
        EXPECT_EQ(canvas.scaleHeight(), 300);
    }
    EXPECT_EQ(canvases[3].left(), 400);
    EXPECT_EQ(canvases[3].top(), 300);
    EXPECT_EQ(canvases[1].left(), 400);
    EXPECT_EQ(canvases[1].top(), 0);
}
