#include "app/ViewportSet.h"

#include "geometry/CPoint3D.h"
#include "scene/GridSolid3D.h"
#include "scene/Profile.h"
#include "scene/Transformed3d.h"
#include "scene/WorkPlane.h"
#include "support/RecordingCanvas.h"
#include "support/TestSolids.h"
#include "support/TestWindow.h"

#include <gtest/gtest.h>
#include <sstream>

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

namespace {

// Every projected point of the document (objects, workplanes, profiles and the grid) with
// whether the redraw left it marked as transformed.
std::string afterRedraw(TestWindow& w) {
    std::ostringstream out;
    const auto add = [&](const Solid3d& solid) {
        for (int32_t i = 1; i <= solid.getPointUpperBound(); ++i) {
            const Point4 p = solid.getPointRecord(i).trans;
            out << p.x << "," << p.y << "," << p.z << solid.hasTransformedPoint(i) << " ";
        }
    };
    SceneDocument& document = w.form.getDocument();
    add(*document.solids[0]->getSolid());
    add(*document.workPlanes[0]->getSolid());
    add(*document.grid->getSolid());
    for (const auto& point : document.profiles[0]->getPoints()) {
        out << point->getRecord().trans.x << "," << point->getRecord().trans.y << " ";
    }
    return out.str();
}

// A one-viewport window holding a cube off to the side (so that the hidden top view sees
// faces the isometric view culls), a workplane and a profile; forced shows the hidden
// canvases again, which turns off the skip.
std::string redrawn(bool forced) {
    TestWindow w;
    w.form.getDocument().solids.push_back(makeObject(makeCube(1.0f, 5.0f, 0.0f, 0.0f)));
    w.form.getDocument().workPlanes.push_back(makeWorkPlane(2, 0.3f, 0, 0, 1));
    w.form.getDocument().profiles.push_back(makeDiamondProfile());
    for (size_t i = 0; i < 3; ++i) {
        w.canvases[i].setVisible(forced);
        w.canvases[i].forget();
    }
    w.canvases[3].forget();
    w.form.redrawAllViewports();
    EXPECT_EQ(w.canvases[0].calls().empty(), !forced);
    return afterRedraw(w);
}

} // namespace

TEST(ViewportSet, AHiddenViewportIsProjectedButNotPaintedLeavingEverythingAsAFullRedraw) {
    EXPECT_EQ(redrawn(false), redrawn(true));
}
