#include "geometry/Vector3D.h"
#include "render/viewInfo.h"
#include "scene/AxesXYZ.h"
#include "scene/GridSolid3D.h"
#include "scene/Vector3DDrawer.h"
#include "support/RecordingCanvas.h"

#include <gtest/gtest.h>

namespace {

using Kind = RecordingCanvas::Kind;
using Points = std::vector<std::pair<int, int>>;

void expectCall(const RecordingCanvas::Call& call, Kind kind, const Points& points) {
    EXPECT_EQ(call.kind, kind);
    Points actual;
    for (const auto& p : call.points) {
        actual.emplace_back(p.x, p.y);
    }
    EXPECT_EQ(actual, points);
}

} // namespace

TEST(GridSolid3D, StartUpGridIsTwentyByTwentyPointsOfUpwardQuads) {
    GridSolid3D grid;
    ASSERT_TRUE(grid.initialize(10.0f, -1.0f, 20, 10.0f, -1.0f, 20));
    const Solid3d& solid = *grid.getSolid();
    ASSERT_EQ(solid.GetFaceNum(), 361);
    EXPECT_EQ(solid.getPointRecord(20).coord, (Point4{10, 0, -9, 1}));
    EXPECT_EQ(solid.getPointRecord(400).coord, (Point4{-9, 0, -9, 1}));
    // The second column of quads starts on the next column of points.
    EXPECT_EQ(solid.faces[19]->getIndices(), (std::vector<int32_t>{21, 22, 42, 41}));
}

// The corner glyph starts at the bottom left whatever the view, each axis labelled at its
// tip; the zero-axes glyph starts on the target, at the centre moved by half the shift.
TEST(AxesXYZ, CornerGlyphIgnoresTheViewAndZeroGlyphSitsOnTheOrigin) {
    RecordingCanvas canvas(480, 360);
    canvas.setForeColor(255);
    AxesXYZ axes;
    for (const float theta : {0.6f, -2.0f, 1.5707964f}) { // the last: front, in perspective
        canvas.forget();
        axes.draw(canvas, 10.0f, theta, theta == 0.6f ? 0.15f : 0, 1, true, 0, 0);
        const auto& c = canvas.calls();
        ASSERT_EQ(c.size(), 9u);
        for (size_t i = 0; i < 9; i += 3) {
            expectCall(c[i], Kind::MoveTo, {{40, 330}});
            expectCall(c[i + 2], Kind::Text, {{c[i + 1].points[0].x, c[i + 1].points[0].y}});
            EXPECT_EQ(c[i + 2].text, std::string(1, static_cast<char>('X' + i / 3)));
        }
        EXPECT_EQ(c[1].foreColor, 16777215);
        EXPECT_EQ(canvas.foreColor(), 255);
    }
    // x to the right, y up, z at the eye.
    expectCall(canvas.calls()[1], Kind::LineTo, {{80, 330}});
    expectCall(canvas.calls()[4], Kind::LineTo, {{40, 300}});
    expectCall(canvas.calls()[7], Kind::LineTo, {{40, 330}});
    canvas.forget();
    axes.draw(canvas, 10.0f, 0.6283185f, 0.15707963f, 1, false, 40, -20);
    expectCall(canvas.calls()[0], Kind::MoveTo, {{260, 170}});
}

TEST(Vector3DDrawer, DrawsALineAndStartSquareOnlyInFrontOfTheEye) {
    RecordingCanvas canvas(400, 300);
    canvas.setForeColor(7);
    // Front, parallel: x to the right and y up, 2 pixels a unit, moved right by 10.
    const ViewSpecs specs{.shiftx = 20, .zoom = 2, .EyeTheta = 1.5707964f, .ProjectionType = 0};
    viewInfo view;
    view.setSpecs(specs);
    Vector3D behind;
    behind.initializeXYZ(0, 0, 12); // the end lies beyond the eye at depth 10
    Vector3DDrawer().draw(canvas, &behind, view, 10, 20, 0, 255, 2);
    Vector3DDrawer().draw(canvas, nullptr, view, 10, 20, 0, 255, 2);
    EXPECT_TRUE(canvas.calls().empty());

    Vector3D v;
    v.initializeXYZ(30, 20, 0);
    Vector3DDrawer().draw(canvas, &v, view, 10, 20, 0, 255, 2);
    const auto& calls = canvas.calls();
    ASSERT_EQ(calls.size(), 3u);
    expectCall(calls[0], Kind::MoveTo, {{230, 110}});
    expectCall(calls[1], Kind::LineTo, {{290, 70}});
    EXPECT_EQ(calls[1].foreColor, 255);
    expectCall(calls[2], Kind::Polygon, {{225, 105}, {235, 105}, {235, 115}, {225, 115}});
    EXPECT_EQ(canvas.foreColor(), 7);
}
