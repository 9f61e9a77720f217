#include "scene/Solid3d.h"

#include "geometry/CPoint3D.h"
#include "render/FaceRegionEncap.h"
#include "render/GDIRegion.h"
#include "render/KorvanOpsConsts.h"
#include "support/RecordingCanvas.h"
#include "support/TestSolids.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

// Projects the solid into the canvas as a viewport redraw does.
void project(Solid3d& solid, const Canvas& canvas, const ViewSpecs& view) {
    float ex;
    float ey;
    float ez;
    KorvanOpsConsts::getEyePosition(view, ex, ey, ez);
    solid.Culled(false);
    solid.cull(ex, ey, ez);
    solid.ApplyFull(KorvanOpsConsts::getFullViewMatrix(canvas, view), false);
    solid.clipEye(view.EyeR);
}

// A square in the x-y plane at depth z, corners counter-clockwise seen from +z.
void addSquare(Solid3d& solid, float x, float y, float size, float z) {
    const int32_t first = solid.getNextPointIndex();
    solid.addPointsArray(
        std::vector<float>{x, y, z, x + size, y, z, x + size, y + size, z, x, y + size, z});
    solid.AddFace(std::vector<int32_t>{first, first + 1, first + 2, first + 3});
}

} // namespace

TEST(Solid3d, CubeSeenFromOutsidePaintsItsThreeNearFaces) {
    RecordingCanvas canvas(400, 300);
    ViewSpecs view;
    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
    auto cube = makeCube(0.5f);
    cube->HideSurfaces = true;
    cube->SetDiffuseCoefficients(1, 1, 1);
    project(*cube, canvas, view);

    const LightList lights;
    cube->draw(canvas, lights, 0, 0, 0, 0, false, true, false, -1, -1, -1, 0, 0, 0);
    const auto polygons = canvas.polygons();
    ASSERT_EQ(polygons.size(), 3u);
    for (const auto& call : polygons) {
        EXPECT_EQ(call.drawStyle, DrawInvisible);
        EXPECT_EQ(call.points.size(), 4u);
    }
    // The eye looks from +x, +y, +z: the culled faces are the far three.
    EXPECT_FALSE(cube->faces[0]->IsCulled);
    EXPECT_TRUE(cube->faces[1]->IsCulled);
    EXPECT_FALSE(cube->faces[2]->IsCulled);
    EXPECT_TRUE(cube->faces[3]->IsCulled);
    EXPECT_FALSE(cube->faces[4]->IsCulled);
    EXPECT_EQ(canvas.drawStyle(), DrawSolid);
}

TEST(Solid3d, SharedPointsAreTransformedOncePerReset) {
    auto cube = makeCube();
    const auto original = makeCube();
    Matrix4 shift;
    M3Ops::setTranslation(shift, 1, 0, 0);
    cube->ApplyCoord(shift);
    cube->ApplyCoord(shift); // cached: no second move
    for (int32_t i = 1; i <= 8; ++i) {
        EXPECT_EQ(cube->getPointRecord(i).coord.x, original->getPointRecord(i).coord.x + 1) << i;
    }
    cube->resetTransformedPoints();
    cube->faces[0]->IsCulled = true; // a culled face moves nothing of its own
    cube->faces[0]->ApplyCoord(shift);
    EXPECT_EQ(cube->getPointRecord(7).coord.x, 2.0f);

    // Culled(true) marks everything transformed until the next reset.
    cube->Culled(true);
    cube->Culled(false);
    cube->ApplyCoord(shift);
    EXPECT_EQ(cube->getPointRecord(7).coord.x, 3.0f);
}

TEST(Solid3d, SortFacesPaintsTheRearOfOverlappingFacesFirst) {
    Solid3d solid;
    addSquare(solid, 0, 0, 20, 1);    // in front, listed first
    addSquare(solid, 10, 10, 20, -1); // behind, overlapping
    addSquare(solid, 100, 100, 5, 0); // apart from both
    solid.Apply(canvasLayout());
    const FaceList order = solid.SortFaces();
    ASSERT_EQ(order.size(), 3u);
    EXPECT_EQ(order[0], solid.faces[1]);
    EXPECT_EQ(order[1], solid.faces[0]);
    EXPECT_EQ(order[2], solid.faces[2]);

    // Culled faces lead, in reverse list order.
    solid.faces[0]->IsCulled = true;
    solid.faces[2]->IsCulled = true;
    const FaceList culledFirst = solid.SortFaces();
    EXPECT_EQ(culledFirst[0], solid.faces[2]);
    EXPECT_EQ(culledFirst[1], solid.faces[0]);
    EXPECT_EQ(culledFirst[2], solid.faces[1]);
}

TEST(Solid3d, SortFacesTerminatesOnCyclicOverlaps) {
    // Three strips, each lying over the next at one end and under it at the other.
    Solid3d solid;
    solid.addPointsArray(std::vector<float>{
        0,  0,  2, 60, 0,  -2, 60, 10, -2, 0,  10, 2,  // strip A, along x
        50, 0,  2, 60, 0,  2,  30, 60, -2, 20, 60, -2, // strip B, down-left
        30, 60, 2, 20, 60, 2,  -5, 5,  -2, 5,  -5, -2, // strip C, back to the start
    });
    solid.AddFace(std::vector<int32_t>{1, 2, 3, 4});
    solid.AddFace(std::vector<int32_t>{5, 6, 7, 8});
    solid.AddFace(std::vector<int32_t>{9, 10, 11, 12});
    solid.Apply(canvasLayout());
    FaceList order = solid.SortFaces();
    ASSERT_EQ(order.size(), 3u);
    std::sort(order.begin(), order.end());
    FaceList expected = solid.faces;
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(order, expected);
}

TEST(Solid3d, DrawPicksBaseColoursForSelectedAndForcedFaces) {
    RecordingCanvas canvas(400, 300);
    Solid3d solid;
    addSquare(solid, 10, 10, 20, 0);
    addSquare(solid, 50, 10, 20, 0);
    solid.Apply(canvasLayout());
    solid.faces[1]->setSelected(true);
    const LightList noLights;

    solid.draw(canvas, noLights, 0, 0, 0, 100, false, false, false, 150, 0, 0, 0, 0, 200);
    auto polygons = canvas.polygons();
    ASSERT_EQ(polygons.size(), 2u);
    EXPECT_EQ(polygons[0].fillColor, 150);
    EXPECT_EQ(polygons[1].fillColor, 200 * 65536);

    // Without a forced colour the unselected face is shaded: black with no light.
    canvas.forget();
    solid.draw(canvas, noLights, 0, 0, 0, 100, false, false, true, -1, -1, -1, 0, 0, 200);
    polygons = canvas.polygons();
    EXPECT_EQ(polygons[0].fillColor, 0);
    // Wireframe outlines in the shaded colour and leaves the inside unfilled.
    EXPECT_EQ(polygons[1].fillStyle, FillTransparent);
    EXPECT_EQ(polygons[1].drawStyle, DrawSolid);
    EXPECT_EQ(polygons[1].foreColor, 200 * 65536);
}

TEST(Solid3d, PointsFacesAndExtremes) {
    Solid3d empty;
    const auto origin = empty.getPoints();
    ASSERT_EQ(origin.size(), 1u);
    EXPECT_EQ(origin[0]->toString(), "X:0, Y:0,Z:0");
    empty.SetZMax();
    EXPECT_EQ(empty.zmax, -1e30f);

    Solid3d solid;
    solid.addPointsArray(std::vector<float>{1, 2, 3, 4, 5, 6, 7});
    EXPECT_EQ(solid.getNextPointIndex(), 3);
    EXPECT_EQ(solid.getPoints().size(), 2u);
    auto second = solid.AddFace(std::vector<int32_t>{1, 2, 1});
    EXPECT_EQ(second->getOrderNum(), 1);
    EXPECT_EQ(second->getSolidContainer(), &solid);

    solid.CheckVisibility(0, 0, 70, 500);
    EXPECT_TRUE(solid.isVisible());
    solid.CheckVisibility(0, 0, 71, 71);
    EXPECT_FALSE(solid.isVisible());
}

TEST(Solid3d, RegionsFollowPaintOrderAndCanSkipCulledFaces) {
    Solid3d solid;
    addSquare(solid, 10, 10, 40, 0);
    addSquare(solid, 100, 10, 40, 0);
    solid.Apply(canvasLayout());
    solid.faces[0]->IsCulled = true;

    const auto all = solid.createFaceRegionEncaps(false, false, 2);
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[0]->getFace(), solid.faces[0]);
    EXPECT_TRUE(all[0]->getRegion()->inRegion(30, 30));
    EXPECT_FALSE(all[0]->getRegion()->inRegion(5, 5));

    const auto visible = solid.createRegions(true, true, 2);
    ASSERT_EQ(visible.size(), 1u);
    EXPECT_TRUE(visible[0]->inRegion(120, 30));
}
