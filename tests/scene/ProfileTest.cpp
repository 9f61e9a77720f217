#include "scene/Profile.h"

#include "geometry/CPoint3D.h"
#include "render/GDIRegion.h"
#include "scene/Orientation2D.h"
#include "support/RecordingCanvas.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <tuple>
#include <utility>

namespace {

using Kind = RecordingCanvas::Kind;

int32_t guess(std::initializer_list<std::pair<float, float>> clicks) {
    Orientation2D orientation;
    for (const auto& [x, y] : clicks) {
        orientation.addAngle(x, y);
    }
    return orientation.getOrientation();
}

PointRecord recordAt(float x, float y) {
    return {Point4{x, y, 0, 1}, {}, {}};
}

} // namespace

TEST(Orientation2D, SumsSegmentDirectionsWithCanvasYDown) {
    EXPECT_EQ(guess({{100, 100}, {200, 100}, {200, 200}}), Orientation2D::CounterClockWise);
    EXPECT_EQ(guess({{200, 200}, {200, 100}, {100, 100}}), Orientation2D::ClockWise);
    EXPECT_EQ(guess({{0, 0}, {50, 50}, {100, 0}}), Orientation2D::Unknown);
    EXPECT_EQ(guess({{100, 100}}), Orientation2D::Unknown);
    // Too steep for the arctangent: counted as straight up.
    EXPECT_EQ(guess({{100, 100}, {100.005f, 100}}), Orientation2D::ClockWise);
}

TEST(Profile, PointsAreSharedAndOnlyReportedOnceThereIsASegment) {
    Profile profile;
    profile.addPointRecord(recordAt(1, 2));
    EXPECT_EQ(profile.getCPoint(1), nullptr);
    EXPECT_EQ(profile.getPointRecord(1), PointRecord{});
    profile.addPointRecord(recordAt(3, 4));
    profile.addPointRecord(recordAt(5, 6));
    const auto a = profile.getCPoint(1), b = profile.getCPoint(2), c = profile.getCPoint(3);
    profile.addCPoint(a);
    EXPECT_EQ(profile.getCPoint(5), nullptr);

    profile.changeOrientation();
    EXPECT_EQ(profile.getPoints(), (CPointList{a, c, b, a}));
    EXPECT_EQ(profile.getPointCount(), 4);
}

TEST(Profile, ProjectsDrawsInTheSelectionColourAndHitTestsTheClosedPolyline) {
    const auto profile =
        makeProfile({{1, 1, 0, 1}, {2, 1, 0, 1}, {2, 2, 0, 1}, {1, 2, 0, 1}}, true);
    profile->ApplyFull(canvasLayout(10.25f, 0, 0));
    const auto region = profile->createRegion(canvasLayout(10.25f, 0, 0));
    EXPECT_TRUE(region->inRegion(15, 15));
    EXPECT_FALSE(region->inRegion(5, 5));

    RecordingCanvas canvas;
    canvas.setForeColor(1);
    // 10.25 and 20.5 round to even.
    const std::vector<std::pair<int, int>> corners{
        {10, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 10}};
    // Selected, the red goes to full; hidden, nothing is drawn.
    const std::tuple<bool, bool, int32_t> cases[] = {{true, true, 255 + 256 * 100 + 65536 * 255},
                                                     {false, true, 256 * 100 + 65536 * 255},
                                                     {false, false, 0}};
    for (const auto& [selected, visible, colour] : cases) {
        canvas.forget();
        profile->setSelected(selected);
        profile->setVisible(visible);
        profile->draw(canvas, 0, 100, 255);
        const auto& calls = canvas.calls();
        ASSERT_EQ(calls.size(), visible ? 5u : 0u);
        for (size_t i = 0; i < calls.size(); ++i) {
            EXPECT_EQ(calls[i].kind, i == 0 ? Kind::MoveTo : Kind::LineTo);
            EXPECT_EQ(std::pair(calls[i].points[0].x, calls[i].points[0].y), corners[i]);
            EXPECT_EQ(calls[i].foreColor, colour) << i;
        }
        EXPECT_EQ(canvas.foreColor(), 1);
    }
    // A hidden profile keeps its last projection.
    profile->ApplyFull(canvasLayout(1, 0, 0));
    EXPECT_EQ(profile->getPointRecord(3).trans, (Point4{20.5f, 20.5f, 0, 1}));
}
