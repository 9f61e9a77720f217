#include "geometry/M3Ops.h"
#include "geometry/Vector3D.h"
#include "render/KorvanOpsConsts.h"
#include "render/viewInfo.h"
#include "scene/AxesXYZ.h"
#include "scene/GridSolid3D.h"
#include "scene/Vector3DDrawer.h"
#include "support/RecordingCanvas.h"

#include <gtest/gtest.h>

namespace {

using Kind = RecordingCanvas::Kind;

constexpr int32_t white = 16777215;

// The grid's steps of a viewport redraw, then its draw as the renderer calls it.
void renderGrid(GridSolid3D& grid, RecordingCanvas& canvas, const ViewSpecs& view,
                const LightList& lights) {
    float ex;
    float ey;
    float ez;
    KorvanOpsConsts::getEyePosition(view, ex, ey, ez);
    grid.resetTransformedPoints();
    grid.cull(ex, ey, ez);
    EXPECT_FALSE(grid.ApplyFull(KorvanOpsConsts::getFullViewMatrix(canvas, view)));
    grid.clipEye(view.EyeR);
    grid.draw(canvas, lights, 50, ex, ey, ez, false, true, 100, 100, 100);
}

void expectPoint(const RecordingCanvas::Call& call, Kind kind, int x, int y) {
    EXPECT_EQ(call.kind, kind);
    ASSERT_EQ(call.points.size(), 1u);
    EXPECT_EQ(call.points[0].x, x);
    EXPECT_EQ(call.points[0].y, y);
}

} // namespace

TEST(GridSolid3D, StartUpGridIsTwentyByTwentyPointsOfUpwardQuads) {
    GridSolid3D grid;
    ASSERT_TRUE(grid.initialize(10.0f, -1.0f, 20, 10.0f, -1.0f, 20));
    const Solid3d& solid = *grid.getSolid();
    EXPECT_EQ(solid.getNextPointIndex() - 1, 400);
    ASSERT_EQ(solid.GetFaceNum(), 361);
    EXPECT_EQ(solid.getPointRecord(1).coord, (Point4{10, 0, 10, 1}));
    EXPECT_EQ(solid.getPointRecord(20).coord, (Point4{10, 0, -9, 1}));
    EXPECT_EQ(solid.getPointRecord(400).coord, (Point4{-9, 0, -9, 1}));
    EXPECT_EQ(solid.faces[0]->getIndices(), (std::vector<int32_t>{1, 2, 22, 21}));
    // The second column of quads starts on the next column of points.
    EXPECT_EQ(solid.faces[19]->getIndices(), (std::vector<int32_t>{21, 22, 42, 41}));
    EXPECT_EQ(solid.faces[360]->getIndices(), (std::vector<int32_t>{379, 380, 400, 399}));
    for (const auto& face : solid.faces) {
        float nx;
        float ny;
        float nz;
        face->NormalVector(nx, ny, nz);
        EXPECT_EQ(nx, 0.0f);
        EXPECT_GT(ny, 0.0f);
        EXPECT_EQ(nz, 0.0f);
    }
}

TEST(GridSolid3D, SeenFromAboveOutlinesUnlitQuadsAndFromBelowNothing) {
    GridSolid3D grid;
    grid.initialize(10.0f, -1.0f, 20, 10.0f, -1.0f, 20);
    grid.getSolid()->faces[5]->setSelected(true);
    auto light = std::make_shared<LightSource>();
    light->initialize(0, 5, 0, 255, 255, 255);
    const LightList lights{light};
    RecordingCanvas canvas(400, 300);
    ViewSpecs view;
    view.zoom = 10.0f; // the whole grid on the canvas
    view.EyePhi = -1.2f;
    renderGrid(grid, canvas, view, lights);
    EXPECT_TRUE(canvas.polygons().empty());

    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewTop, view);
    renderGrid(grid, canvas, view, lights);
    const auto polygons = canvas.polygons();
    ASSERT_EQ(polygons.size(), 361u);
    for (size_t i = 0; i < polygons.size(); ++i) {
        EXPECT_EQ(polygons[i].fillStyle, FillTransparent);
        EXPECT_EQ(polygons[i].drawStyle, DrawSolid);
        EXPECT_EQ(polygons[i].foreColor, i == 5 ? 100 * 256 : 100 + 100 * 256 + 100 * 65536);
    }
    // List order: the first quad starts at point 1, (10, 0, 10); the top view shows +z to
    // the right and +x up.
    EXPECT_EQ(polygons.front().points[0].x, 300);
    EXPECT_EQ(polygons.front().points[0].y, 50);
}

TEST(AxesXYZ, BottomLeftGlyphSitsInTheCornerWhateverTheView) {
    RecordingCanvas canvas(480, 360);
    canvas.setDrawStyle(3);
    canvas.setForeColor(255);
    AxesXYZ axes;
    const float angles[][2] = {{0.0f, 0.0f}, {0.6f, 0.15f}, {-2.0f, 1.3f}, {1.5707964f, 0.0f}};
    for (int projection = 0; projection <= 1; ++projection) {
        for (const auto& angle : angles) {
            canvas.forget();
            axes.draw(canvas, 10.0f, angle[0], angle[1], projection, true, 0, 0);
            const auto& calls = canvas.calls();
            ASSERT_EQ(calls.size(), 9u);
            const char* labels[] = {"X", "Y", "Z"};
            for (size_t tip = 0; tip < 3; ++tip) {
                expectPoint(calls[3 * tip], Kind::MoveTo, 40, 330);
                EXPECT_EQ(calls[3 * tip + 1].kind, Kind::LineTo);
                EXPECT_EQ(calls[3 * tip + 2].kind, Kind::Text);
                EXPECT_EQ(calls[3 * tip + 2].text, labels[tip]);
                EXPECT_EQ(calls[3 * tip + 2].points[0].x, calls[3 * tip + 1].points[0].x);
                EXPECT_EQ(calls[3 * tip + 2].points[0].y, calls[3 * tip + 1].points[0].y);
                for (size_t k = 0; k < 3; ++k) {
                    EXPECT_EQ(calls[3 * tip + k].foreColor, white);
                    EXPECT_EQ(calls[3 * tip + k].drawStyle, DrawSolid);
                }
            }
            EXPECT_EQ(canvas.drawStyle(), 3);
            EXPECT_EQ(canvas.foreColor(), 255);
        }
    }
    // The last view was the front view in perspective: x to the right, y up, z at the eye.
    const auto& calls = canvas.calls();
    expectPoint(calls[1], Kind::LineTo, 80, 330);
    expectPoint(calls[4], Kind::LineTo, 40, 300);
    expectPoint(calls[7], Kind::LineTo, 40, 330);
    const Point4 origin = axes.getSolid().getPointRecord(1).trans;
    EXPECT_FLOAT_EQ(origin.x, 40.0f);
    EXPECT_FLOAT_EQ(origin.y, 330.0f);
}

TEST(AxesXYZ, ZeroAxesGlyphSitsAtTheTargetsCanvasPosition) {
    RecordingCanvas canvas(480, 360);
    ViewSpecs view;
    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
    view.shiftx = 40;
    view.shifty = -20;
    Point4 target;
    M3Ops::transformPoint(Point4{0, 0, 0, 1}, KorvanOpsConsts::getFullViewMatrix(canvas, view),
                          target);
    AxesXYZ axes;
    axes.draw(canvas, view.EyeR, view.EyeTheta, view.EyePhi, view.ProjectionType, false,
              view.shiftx, view.shifty);
    expectPoint(canvas.calls()[0], Kind::MoveTo, 260, 170);
    EXPECT_EQ(target.x, 260.0f);
    EXPECT_EQ(target.y, 170.0f);
}

TEST(Vector3DDrawer, DrawsALineAndStartSquareOnlyInFrontOfTheEye) {
    RecordingCanvas canvas(400, 300);
    canvas.setDrawStyle(DrawInvisible);
    canvas.setForeColor(7);
    canvas.setFillStyle(FillSolid);
    ViewSpecs specs;
    specs.ProjectionType = 0;
    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewFront, specs);
    viewInfo view;
    view.setSpecs(specs);
    const Vector3DDrawer drawer;

    Vector3D behind;
    behind.initializeXYZ(0, 0, 12); // the end lies beyond the eye at depth 10
    drawer.draw(canvas, &behind, view, 100, 80, 0, 255, 2);
    drawer.draw(canvas, nullptr, view, 100, 80, 0, 255, 2);
    EXPECT_TRUE(canvas.calls().empty());

    Vector3D v;
    v.initializeXYZ(30, 20, 0);
    drawer.draw(canvas, &v, view, 100, 80, 0, 255, 2);
    const auto& calls = canvas.calls();
    ASSERT_EQ(calls.size(), 3u);
    expectPoint(calls[0], Kind::MoveTo, 100, 80);
    expectPoint(calls[1], Kind::LineTo, 130, 100);
    EXPECT_EQ(calls[1].foreColor, 255);
    EXPECT_EQ(calls[1].drawStyle, 2);
    EXPECT_EQ(calls[2].kind, Kind::Polygon);
    EXPECT_EQ(calls[2].fillStyle, FillTransparent);
    const std::vector<std::pair<int, int>> square{{95, 75}, {105, 75}, {105, 85}, {95, 85}};
    ASSERT_EQ(calls[2].points.size(), 4u);
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(calls[2].points[i].x, square[i].first);
        EXPECT_EQ(calls[2].points[i].y, square[i].second);
    }
    EXPECT_EQ(canvas.drawStyle(), DrawInvisible);
    EXPECT_EQ(canvas.foreColor(), 7);
    EXPECT_EQ(canvas.fillStyle(), FillSolid);
}
