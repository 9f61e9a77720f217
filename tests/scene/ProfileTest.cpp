#include "scene/Profile.h"

#include "geometry/CPoint3D.h"
#include "render/GDIRegion.h"
#include "scene/Orientation2D.h"
#include "support/RecordingCanvas.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>

namespace {

int32_t guess(std::initializer_list<std::pair<float, float>> clicks) {
    Orientation2D orientation;
    for (const auto& [x, y] : clicks) {
        orientation.addAngle(x, y);
    }
    return orientation.getOrientation();
}

std::shared_ptr<CPoint3D> pointAt(float x, float y) {
    auto point = std::make_shared<CPoint3D>();
    point->setRecord(PointRecord{Point4{x, y, 0, 1}, {}, {}});
    return point;
}

} // namespace

TEST(Orientation2D, SumsSegmentDirectionsWithCanvasYDown) {
    EXPECT_EQ(guess({{100, 100}, {200, 100}, {200, 200}}), 2);
    EXPECT_EQ(guess({{100, 100}, {100, 200}, {200, 200}}), 2);
    EXPECT_EQ(guess({{0, 0}, {50, 50}, {100, 0}}), -1);
    EXPECT_EQ(guess({{100, 100}}), -1);
    // Too steep for the arctangent: counted as straight up.
    EXPECT_EQ(guess({{100, 100}, {100.005f, 100}}), 1);

    Orientation2D upwards;
    upwards.addAngle(100, 200);
    upwards.addAngle(100, 100);
    EXPECT_TRUE(upwards.isClockWise());
    EXPECT_FALSE(upwards.isUnknown());
}

TEST(Profile, PointsAreSharedAndOnlyReportedOnceThereIsASegment) {
    Profile profile;
    const auto a = pointAt(1, 2);
    profile.addCPoint(a);
    EXPECT_EQ(profile.getCPoint(1), nullptr);
    EXPECT_EQ(profile.getPointRecord(1), PointRecord{});

    const auto b = pointAt(3, 4);
    const auto c = pointAt(5, 6);
    profile.addCPoint(b);
    profile.addCPoint(c);
    profile.addCPoint(a);
    EXPECT_EQ(profile.getCPoint(1), a);
    EXPECT_EQ(profile.getCPoint(0), nullptr);
    EXPECT_EQ(profile.getCPoint(5), nullptr);
    EXPECT_EQ(profile.getPointRecord(2).coord, (Point4{3, 4, 0, 1}));

    profile.changeOrientation();
    EXPECT_EQ(profile.getPoints(), (CPointList{a, c, b, a}));

    profile.setSelected(true);
    profile.setVisible(false);
    const auto copy = profile.clone();
    EXPECT_EQ(copy->getPoints(), profile.getPoints());
    EXPECT_TRUE(copy->isSelected());
    EXPECT_FALSE(copy->isVisible());

    // A record appended is copied into a point of its own.
    PointRecord record{Point4{7, 8, 9, 1}, {}, {}};
    copy->addPointRecord(record);
    record.coord.x = 0;
    EXPECT_EQ(copy->getPointRecord(5).coord, (Point4{7, 8, 9, 1}));
    EXPECT_EQ(profile.getPointCount(), 4);
}

TEST(Profile, DrawsTheProjectedPolylineInTheSelectionColour) {
    Profile profile;
    for (const auto& [x, y] : {std::pair{1.0f, 1.0f}, {2.0f, 1.0f}, {2.0f, 2.0f}}) {
        profile.addCPoint(pointAt(x, y));
    }
    profile.addCPoint(profile.getCPoint(1));
    profile.ApplyFull(canvasLayout(10.25f, 0, 0));

    RecordingCanvas canvas;
    canvas.setFillStyle(FillDiagonalCross);
    canvas.setDrawStyle(DrawInvisible);
    canvas.setForeColor(1);
    canvas.setFillColor(2);
    profile.setSelected(true);
    profile.draw(canvas, 0, 100, 255);

    const auto& calls = canvas.calls();
    ASSERT_EQ(calls.size(), 4u);
    EXPECT_EQ(calls[0].kind, RecordingCanvas::Kind::MoveTo);
    // 10.25 and 20.5 round to even.
    const int expected[4][2] = {{10, 10}, {20, 10}, {20, 20}, {10, 10}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(calls[i].points[0].x, expected[i][0]);
        EXPECT_EQ(calls[i].points[0].y, expected[i][1]);
        EXPECT_EQ(calls[i].foreColor, 255 + 256 * 100 + 65536 * 255);
        EXPECT_EQ(calls[i].fillStyle, FillTransparent);
        EXPECT_EQ(calls[i].drawStyle, DrawSolid);
    }
    EXPECT_EQ(canvas.fillStyle(), FillDiagonalCross);
    EXPECT_EQ(canvas.drawStyle(), DrawInvisible);
    EXPECT_EQ(canvas.foreColor(), 1);
    EXPECT_EQ(canvas.fillColor(), 2);

    canvas.forget();
    profile.setSelected(false);
    profile.draw(canvas, 0, 100, 255);
    EXPECT_EQ(canvas.calls()[0].foreColor, 256 * 100 + 65536 * 255);

    canvas.forget();
    profile.setVisible(false);
    profile.draw(canvas, 0, 100, 255);
    EXPECT_TRUE(canvas.calls().empty());
}

TEST(Profile, ProjectsIntoTransAndHitTestsTheProjectedPolygon) {
    Profile profile;
    for (const auto& [x, y] : {std::pair{1.0f, 1.0f}, {5.0f, 1.0f}, {5.0f, 5.0f}, {1.0f, 5.0f}}) {
        profile.addCPoint(pointAt(x, y));
    }
    const Matrix4 M = canvasLayout(10, 0, 0);
    profile.ApplyFull(M);
    const PointRecord third = profile.getPointRecord(3);
    EXPECT_EQ(third.coord, (Point4{5, 5, 0, 1}));
    EXPECT_EQ(third.trans, (Point4{50, 50, 0, 1}));
    EXPECT_EQ(third.coord2, Point4{});

    const auto region = profile.createRegion(M);
    EXPECT_TRUE(region->inRegion(30, 30));
    EXPECT_FALSE(region->inRegion(5, 5));

    // Hidden profiles keep their last projection.
    profile.setVisible(false);
    profile.ApplyFull(canvasLayout(1, 0, 0));
    EXPECT_EQ(profile.getPointRecord(3).trans, (Point4{50, 50, 0, 1}));
}
