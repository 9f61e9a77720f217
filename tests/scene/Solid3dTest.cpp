#include "scene/Solid3d.h"

#include "geometry/M3Ops.h"
#include "support/TestSolids.h"

#include <cstring>
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

// coord2 takes storage only once something other than zero is written to it: every record
// reads back as written, bit for bit (-0 included), before and after that and as the array
// grows, and a transformation through coord2 reaches the projected point.
TEST(Solid3d, PointRecordsReadBackAsWrittenWhetherCoord2IsStoredOrNot) {
    Solid3d solid;
    const PointRecord plain{{1, 2, 3, 1}, {}, {4, 5, 6, 1}};
    const PointRecord negativeZero{{7, 8, 9, 1}, {-0.0f, 0, 0, 0}, {}};
    const PointRecord full{{1, 1, 0, 1}, {2, 2, 2, 2}, {3, 3, 3, 3}};
    std::vector<PointRecord> expected{plain, plain, negativeZero, plain, full, plain};
    for (const auto& record : expected) {
        solid.appendPointRecord(record);
    }
    solid.setPointRecord(2, full);
    expected[1] = full;
    for (size_t i = 0; i < expected.size(); ++i) {
        const PointRecord read = solid.getPointRecord(static_cast<int32_t>(i + 1));
        EXPECT_EQ(std::memcmp(&read, &expected[i], sizeof read), 0) << "point " << i + 1;
    }

    addSquare(solid, 0, 0, 1, 0);
    Matrix4 up;
    M3Ops::setTranslation(up, 0, 5, 0);
    solid.ApplyFull(up, true);
    solid.resetTransformedPoints();
    solid.ApplyFullCoord2(up);
    EXPECT_EQ(solid.getPointRecord(9).trans, (Point4{1, 11, 0, 1}));
}
