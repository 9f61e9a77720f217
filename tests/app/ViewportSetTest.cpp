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

namespace {

// Every projected point of the document (objects, workplanes, profiles and the grid), and
// whether the redraw left it marked as transformed.
std::vector<std::pair<Point4, bool>> projectedPoints(SceneDocument& document) {
    std::vector<std::pair<Point4, bool>> points;
    const auto add = [&](const Solid3d& solid) {
        for (int32_t i = 1; i <= solid.getPointUpperBound(); ++i) {
            points.emplace_back(solid.getPointRecord(i).trans, solid.hasTransformedPoint(i));
        }
    };
    for (const auto& object : document.solids) {
        add(*object->getSolid());
    }
    for (const auto& workPlane : document.workPlanes) {
        add(*workPlane->getSolid());
    }
    add(*document.grid->getSolid());
    for (const auto& profile : document.profiles) {
        for (const auto& point : profile->getPoints()) {
            points.emplace_back(point->getRecord().trans, false);
        }
    }
    return points;
}

std::vector<std::string> drawing(const RecordingCanvas& canvas) {
    std::vector<std::string> calls;
    for (const auto& call : canvas.calls()) {
        std::string text = std::to_string(static_cast<int>(call.kind)) + call.text;
        for (const auto& point : call.points) {
            text += " " + std::to_string(point.x) + "," + std::to_string(point.y);
        }
        calls.push_back(text + " " + std::to_string(call.fillStyle) + " " +
                        std::to_string(call.drawStyle) + " " + std::to_string(call.foreColor) +
                        " " + std::to_string(call.fillColor));
    }
    return calls;
}

// A one-viewport window holding a cube off to the side (so that the hidden top view sees
// faces the isometric view culls), a workplane and a profile; forced shows the hidden
// canvases again, which turns off the skip.
struct Scene : TestWindow {
    explicit Scene(bool forced) {
        auto object = std::make_shared<Transformed3d>();
        object->setSolid(makeCube(1.0f, 5.0f, 0.0f, 0.0f));
        form.getDocument().solids.push_back(object);
        auto workPlane = std::make_shared<WorkPlane>();
        workPlane->initialize(2, 0.3f, 0, 0, 1);
        form.getDocument().workPlanes.push_back(workPlane);
        auto profile = std::make_shared<Profile>();
        for (const auto& [x, z] : {std::pair{-1.0f, -1.0f}, {1.0f, -1.0f}, {1.0f, 1.0f}}) {
            PointRecord record;
            record.coord = Point4{x, 0, z, 1};
            profile->addPointRecord(record);
        }
        form.getDocument().profiles.push_back(profile);
        for (size_t i = 0; i < 3; ++i) {
            canvases[i].setVisible(forced);
        }
        for (auto& canvas : canvases) {
            canvas.forget();
        }
        form.redrawAllViewports();
    }
};

} // namespace

TEST(ViewportSet, AHiddenViewportIsProjectedButNotPaintedLeavingEverythingAsAFullRedraw) {
    Scene skipped(false);
    Scene full(true);
    EXPECT_EQ(projectedPoints(skipped.form.getDocument()),
              projectedPoints(full.form.getDocument()));
    EXPECT_EQ(drawing(skipped.canvases[3]), drawing(full.canvases[3]));
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_TRUE(skipped.canvases[i].calls().empty());
    }
}
