#include "scene/WorkPlane.h"

#include "geometry/CPoint3D.h"
#include "render/GDIRegion.h"
#include "scene/Solid3d.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

Point4 corner(const WorkPlane& plane, int32_t index) {
    return plane.getSolid()->getPointRecord(index).coord;
}

} // namespace

TEST(WorkPlane, InitializeLaysOutTheCornersAndKeepsTheCentreAtTheOrigin) {
    WorkPlane plane;
    plane.initialize(10, 0, 0, 2, 0);
    const Point4 expected[] = {
        {-5, -5, 2, 1}, {-5, 5, 2, 1}, {5, 5, 2, 1}, {5, -5, 2, 1}, {0, 0, 0, 1}};
    for (int32_t i = 1; i <= 5; ++i) {
        EXPECT_EQ(corner(plane, i), expected[i - 1]) << "point " << i;
    }

    // A quarter turn about y has an exact zero cosine; about x the rounded one leaves a trace.
    const float quarter = std::numbers::pi_v<float> / 2;
    plane.initialize(10, 0, quarter, 0, 0);
    EXPECT_EQ(corner(plane, 1), (Point4{0, -5, 5, 1}));
    plane.initialize(10, quarter, 0, 0, 0);
    EXPECT_NE(corner(plane, 1).y, 0.0f);
    EXPECT_LT(std::fabs(corner(plane, 1).y), 1e-6f);
    EXPECT_FLOAT_EQ(corner(plane, 1).z, -5.0f);
}

TEST(WorkPlane, SelectedPlaneDrawsTintedHatchedSquareIsPickedAndHidesOrClipsAway) {
    ScriptedPrompts prompts;
    WorkPlane plane;
    plane.initialize(10, 0, 0, 2, 200 + 256 * 120 + 65536 * 10);
    plane.setSelected(true);
    plane.ApplyFull(canvasLayout(10, 100, 100));
    EXPECT_EQ(plane.getCenterCoord()->getRecord().trans, (Point4{100, 100, 0, 1}));
    const auto region = plane.createRegion();
    ASSERT_NE(region, nullptr);
    EXPECT_TRUE(region->inRegion(100, 100));
    EXPECT_FALSE(region->inRegion(40, 100));

    RecordingCanvas canvas;
    canvas.setForeColor(1);
    plane.draw(canvas, FillDiagonalCross, 0, 150, 0);
    const int32_t tinted = 200 + 256 * 255 + 65536 * 10; // green clamped
    const auto& calls = canvas.calls();
    ASSERT_EQ(calls.size(), 6u);
    const int expected[5][2] = {{50, 50}, {50, 150}, {150, 150}, {150, 50}, {50, 50}};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(std::pair(calls[i].points[0].x, calls[i].points[0].y),
                  std::pair(expected[i][0], expected[i][1]))
            << i;
        EXPECT_EQ(calls[i].foreColor, tinted) << i;
    }
    EXPECT_EQ(std::tuple(calls[5].kind, calls[5].fillStyle, calls[5].fillColor),
              std::tuple(RecordingCanvas::Kind::Polygon, FillDiagonalCross, tinted));
    EXPECT_EQ(canvas.foreColor(), 1); // the canvas is left as it was

    // Hidden, it is neither transformed, drawn nor picked, and says nothing.
    canvas.forget();
    plane.hide();
    plane.ApplyFull(canvasLayout(1, 0, 0));
    EXPECT_EQ(plane.getSolid()->getPointRecord(1).trans, (Point4{50, 50, 2, 1}));
    plane.draw(canvas, FillDiagonalCross, 0, 150, 0);
    EXPECT_TRUE(canvas.calls().empty());
    EXPECT_EQ(plane.createRegion(), nullptr);
    EXPECT_TRUE(prompts.messages().empty());

    // The plane lies at depth 2, so an eye at 1 clips it away.
    plane.show();
    plane.clipEye(1);
    EXPECT_EQ(plane.createRegion(), nullptr);
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text,
              "Error in region Algorithm for workPlane.  See createRegion in class WorkPlane");

    // The clipping holds for that viewport only: the next transform brings the face back.
    plane.ApplyFull(canvasLayout(10, 100, 100));
    EXPECT_NE(plane.createRegion(), nullptr);
}
