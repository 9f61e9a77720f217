#include "scene/Solid3d.h"

#include "support/RecordingCanvas.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>

namespace {

// A square in the x-y plane at depth z, corners counter-clockwise seen from +z.
void addSquare(Solid3d& solid, float x, float y, float size, float z) {
    const int32_t first = solid.getNextPointIndex();
    solid.addPointsArray(
        std::vector<float>{x, y, z, x + size, y, z, x + size, y + size, z, x, y + size, z});
    solid.AddFace(std::vector<int32_t>{first, first + 1, first + 2, first + 3});
}

} // namespace

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
}

TEST(Solid3d, SortFacesPaintsTheRearOfOverlappingFacesFirst) {
    Solid3d solid;
    addSquare(solid, 0, 0, 20, 1);    // in front, listed first
    addSquare(solid, 10, 10, 20, -1); // behind, overlapping
    addSquare(solid, 100, 100, 5, 0); // apart from both
    solid.Apply(canvasLayout());
    EXPECT_EQ(solid.SortFaces(), (FaceList{solid.faces[1], solid.faces[0], solid.faces[2]}));

    // Culled faces lead, in reverse list order.
    solid.faces[0]->IsCulled = true;
    solid.faces[2]->IsCulled = true;
    EXPECT_EQ(solid.SortFaces(), (FaceList{solid.faces[2], solid.faces[0], solid.faces[1]}));
}

TEST(Solid3d, DrawPaintsSelectedFacesInTheirColourAndTheRestInTheForcedOne) {
    RecordingCanvas canvas(400, 300);
    Solid3d solid;
    addSquare(solid, 10, 10, 20, 0);
    addSquare(solid, 50, 10, 20, 0);
    solid.Apply(canvasLayout());
    solid.faces[1]->setSelected(true);
    solid.draw(canvas, LightList{}, 0, 0, 0, 100, false, false, false, 150, 0, 0, 0, 0, 200);
    ASSERT_EQ(canvas.polygons().size(), 2u);
    EXPECT_EQ(canvas.polygons()[0].fillColor, 150);
    EXPECT_EQ(canvas.polygons()[1].fillColor, 200 * 65536);
}
