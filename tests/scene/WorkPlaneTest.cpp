#include "scene/WorkPlane.h"

#include "geometry/CPoint3D.h"
#include "render/GDIRegion.h"
#include "scene/Solid3d.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSolids.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr double pi = 3.14159265358979;

Point4 corner(const WorkPlane& plane, int32_t index) {
    return plane.getSolid()->getPointRecord(index).coord;
}

} // namespace

TEST(WorkPlane, InitializeLaysOutTheCornersAndKeepsTheCentreAtTheOrigin) {
    WorkPlane flat;
    flat.initialize(10, 0, 0, 2, 0);
    const float expected[5][3] = {{-5, -5, 2}, {-5, 5, 2}, {5, 5, 2}, {5, -5, 2}, {0, 0, 0}};
    for (int32_t i = 1; i <= 5; ++i) {
        EXPECT_EQ(corner(flat, i),
                  (Point4{expected[i - 1][0], expected[i - 1][1], expected[i - 1][2], 1}))
            << "point " << i;
    }
    ASSERT_EQ(flat.getSolid()->GetFaceNum(), 1);
    EXPECT_EQ(flat.getSolid()->faces[0]->getIndices(), (std::vector<int32_t>{1, 2, 3, 4}));
    EXPECT_EQ(flat.getCenterCoord()->getRecord().coord, (Point4{0, 0, 0, 1}));

    // A quarter turn about y has an exact zero cosine.
    WorkPlane aboutY;
    aboutY.initialize(10, 0, static_cast<float>(pi / 2), 0, 0);
    EXPECT_EQ(corner(aboutY, 1), (Point4{0, -5, 5, 1}));

    // About x the rounded cosine leaves a trace in y.
    WorkPlane aboutX;
    aboutX.initialize(10, static_cast<float>(pi / 2), 0, 0, 0);
    const Point4 p1 = corner(aboutX, 1);
    EXPECT_NE(p1.y, 0.0f);
    EXPECT_LT(std::fabs(p1.y), 1e-6f);
    EXPECT_FLOAT_EQ(p1.z, -5.0f);
}

TEST(WorkPlane, SelectedPlaneDrawsTintedHatchedSquareAndRestoresTheCanvas) {
    WorkPlane plane;
    plane.initialize(10, 0, 0, 2, 200 + 256 * 120 + 65536 * 10);
    plane.setSelected(true);
    plane.ApplyFull(canvasLayout(10, 100, 100));

    RecordingCanvas canvas;
    canvas.setFillStyle(FillTransparent);
    canvas.setDrawStyle(DrawInvisible);
    canvas.setForeColor(1);
    canvas.setFillColor(2);
    plane.draw(canvas, FillDiagonalCross, 0, 150, 0);

    const int32_t tinted = 200 + 256 * 255 + 65536 * 10;
    const auto& calls = canvas.calls();
    ASSERT_EQ(calls.size(), 6u);
    const int expected[5][2] = {{50, 50}, {50, 150}, {150, 150}, {150, 50}, {50, 50}};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(calls[i].kind,
                  i == 0 ? RecordingCanvas::Kind::MoveTo : RecordingCanvas::Kind::LineTo);
        EXPECT_EQ(calls[i].points[0].x, expected[i][0]);
        EXPECT_EQ(calls[i].points[0].y, expected[i][1]);
        EXPECT_EQ(calls[i].foreColor, tinted);
        EXPECT_EQ(calls[i].drawStyle, DrawSolid);
    }
    const auto& polygon = calls[5];
    EXPECT_EQ(polygon.kind, RecordingCanvas::Kind::Polygon);
    EXPECT_EQ(polygon.points.size(), 4u);
    EXPECT_EQ(polygon.fillStyle, FillDiagonalCross);
    EXPECT_EQ(polygon.foreColor, tinted);
    EXPECT_EQ(polygon.fillColor, tinted);

    EXPECT_EQ(canvas.fillStyle(), FillTransparent);
    EXPECT_EQ(canvas.drawStyle(), DrawInvisible);
    EXPECT_EQ(canvas.foreColor(), 1);
    EXPECT_EQ(canvas.fillColor(), 2);
    EXPECT_FALSE(plane.getSolid()->hasTransformedPoint(1));
}

TEST(WorkPlane, HiddenPlaneIsNeitherTransformedDrawnNorPickedAndSaysNothing) {
    ScriptedPrompts prompts;
    WorkPlane plane;
    plane.initialize(10, 0, 0, 2, 255);
    plane.hide();
    plane.ApplyFull(canvasLayout(10, 100, 100));
    EXPECT_EQ(plane.getSolid()->getPointRecord(1).trans, Point4{});

    RecordingCanvas canvas;
    plane.draw(canvas, FillDiagonalCross, 0, 150, 0);
    EXPECT_TRUE(canvas.calls().empty());
    EXPECT_EQ(plane.createRegion(), nullptr);
    EXPECT_TRUE(prompts.messages().empty());
}

TEST(WorkPlane, RegionCoversTheSquareUnlessTheFaceIsClipped) {
    ScriptedPrompts prompts;
    WorkPlane plane;
    plane.initialize(10, 0, 0, 2, 255);
    plane.ApplyFull(canvasLayout(10, 100, 100));
    const auto region = plane.createRegion();
    ASSERT_NE(region, nullptr);
    EXPECT_TRUE(region->inRegion(100, 100));
    EXPECT_FALSE(region->inRegion(40, 100));
    EXPECT_TRUE(prompts.messages().empty());

    // The plane lies at depth 2, so an eye at 1 clips it away.
    plane.clipEye(1);
    EXPECT_EQ(plane.createRegion(), nullptr);
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text,
              "Error in region Algorithm for workPlane.  See createRegion in class WorkPlane");
    EXPECT_EQ(prompts.messages()[0].title, "");
    EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Critical);
    EXPECT_EQ(prompts.messages()[0].buttons, MessageButtons::Ok);
}
