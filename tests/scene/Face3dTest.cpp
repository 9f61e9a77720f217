#include "scene/Face3d.h"

#include "render/GDIRegion.h"
#include "scene/Solid3d.h"
#include "support/RecordingCanvas.h"
#include "support/TestSolids.h"

#include <gtest/gtest.h>

TEST(Face3d, CullingKeepsOnlyFacesTurnedTowardsTheEye) {
    Solid3d solid;
    solid.addPointsArray(std::vector<float>{0, 0, 0, 1, 0, 0, 0, 1, 0});
    auto face = solid.AddFace(std::vector<int32_t>{1, 2, 3}); // normal +z
    face->cull(0, 0, -10);
    EXPECT_TRUE(face->IsCulled);
    face->switchIndexOrientation();
    face->cull(0, 0, -10);
    EXPECT_FALSE(face->IsCulled);
    face->cull(5, 5, 0); // edge-on
    EXPECT_TRUE(face->IsCulled);

    // A corner at the eye distance is clipped; a culled face reports depth 0.
    face->IsCulled = false;
    solid.Apply(canvasLayout());
    PointRecord r = solid.getPointRecord(2);
    r.trans.z = 10;
    solid.setPointRecord(2, r);
    EXPECT_EQ(face->zmax(), 10.0f);
    face->clipEye(10);
    EXPECT_TRUE(face->IsCulled);
    EXPECT_EQ(face->zmax(), 0.0f);
}

TEST(Face3d, DeletingCornersKeepsATriangle) {
    Face3d face;
    for (int32_t index : {1, 7, 3, 7}) {
        face.addIndex(index);
    }
    EXPECT_FALSE(face.deletePointIndex(9));
    EXPECT_TRUE(face.deletePointIndex(7));
    EXPECT_EQ(face.getIndices(), (std::vector<int32_t>{1, 3, 7}));
    EXPECT_FALSE(face.deletePointIndex(7));
    EXPECT_EQ(face.NumPts, 3);
}

TEST(Face3d, PointInsideAndObscures) {
    Solid3d solid;
    solid.addPointsArray(std::vector<float>{10,  10,  0, 50,  10,  0, 50,  50,  0, 10,  50,  0,
                                            200, 200, 5, 240, 200, 5, 240, 240, 5, 200, 240, 5});
    auto square = solid.AddFace(std::vector<int32_t>{1, 2, 3, 4});
    auto far = solid.AddFace(std::vector<int32_t>{5, 6, 7, 8});
    solid.Apply(canvasLayout());
    EXPECT_TRUE(square->PointInside(30, 30));
    EXPECT_FALSE(square->PointInside(5, 30));
    EXPECT_FALSE(square->PointInside(300, 300));
    // Disjoint projections: neither obscures the other.
    EXPECT_FALSE(square->Obscures(*far));
    EXPECT_FALSE(far->Obscures(*square));
}

TEST(Face3d, PaintsOnlyWhenSomeCornerIsOnTheCanvas) {
    RecordingCanvas canvas(100, 100);
    Solid3d solid;
    solid.addPointsArray(std::vector<float>{-50, -50, 0, -10, -50, 0, -10, -10, 0, //
                                            -50, -50, 0, 50, 50, 0, -10, -10, 0});
    auto off = solid.AddFace(std::vector<int32_t>{1, 2, 3});
    auto partly = solid.AddFace(std::vector<int32_t>{4, 5, 6});
    partly->switchIndexOrientation();
    solid.Apply(canvasLayout(1, 0, 40));
    const LightList lights;
    off->DrawNoForceColor(canvas, lights, 0, 0, 0, 10, false, false);
    EXPECT_TRUE(canvas.polygons().empty());
    partly->DrawNoForceColor(canvas, lights, 0, 0, 0, 10, false, false);
    ASSERT_EQ(canvas.polygons().size(), 1u);
    EXPECT_EQ(canvas.polygons()[0].points.size(), 3u);
}

TEST(Face3d, RegionsRoundCornersHalfToEven) {
    Solid3d solid;
    solid.addPointsArray(std::vector<float>{0.5f, 0.5f, 0, 10.5f, 0.5f, 0, 10.5f, 1.5f, 0});
    auto face = solid.AddFace(std::vector<int32_t>{1, 2, 3});
    solid.Apply(canvasLayout());
    RecordingCanvas canvas(100, 100);
    face->switchIndexOrientation();
    face->DrawForceColor(canvas, LightList{}, 0, 0, 0, 10, false, 1, 2, 3, false);
    const auto polygons = canvas.polygons();
    ASSERT_EQ(polygons.size(), 1u);
    const auto& points = polygons[0].points;
    EXPECT_EQ(points[0].x, 10);
    EXPECT_EQ(points[0].y, 2);
    EXPECT_EQ(points[2].x, 0);
    EXPECT_EQ(points[2].y, 0);
}

TEST(Face3d, AFaceThatOutlivesItsSolidDoesNothingAndReadsAsEmpty) {
    Solid3d live;
    live.addPointsArray(std::vector<float>{0, 0, 0, 40, 0, 0, 0, 40, 0});
    auto other = live.AddFace(std::vector<int32_t>{1, 2, 3});
    live.Apply(canvasLayout());

    auto solid = std::make_shared<Solid3d>();
    solid->addPointsArray(std::vector<float>{0, 0, 1, 40, 0, 1, 0, 40, 1});
    std::shared_ptr<Face3d> face = solid->AddFace(std::vector<int32_t>{1, 2, 3});
    solid->Apply(canvasLayout());
    solid.reset(); // a selection still holds the face
    ASSERT_EQ(face->getSolidContainer(), nullptr);
    EXPECT_EQ(face->NumPts, 3);

    float x = 1, y = 1, z = 1;
    face->GetTransformedPoint(1, x, y, z);
    EXPECT_EQ(x, 0.0f);
    float xmin, xmax, ymin, ymax, zmin, zmax;
    face->GetExtent(xmin, xmax, ymin, ymax, zmin, zmax);
    EXPECT_EQ(xmax, 0.0f);
    face->UnitNormalVector(x, y, z);
    EXPECT_EQ(z, 0.0f);
    float Rmin, Rmax;
    face->getRMinRMax(0, 0, 10, Rmin, Rmax);
    EXPECT_EQ(Rmin, 1e30f);
    face->ApplyFull(canvasLayout(2), false);
    face->ApplyCoord(canvasLayout(2));
    face->clipEye(0);
    EXPECT_FALSE(face->IsCulled);
    EXPECT_EQ(face->zmax(), -1e30f);

    EXPECT_FALSE(face->PointInside(10, 10));
    EXPECT_FALSE(face->Obscures(*other));
    EXPECT_FALSE(other->Obscures(*face));
    EXPECT_TRUE(face->IsAbove(*other));
    EXPECT_TRUE(other->IsBelow(*face));

    RecordingCanvas canvas(100, 100);
    face->DrawNoForceColor(canvas, LightList{}, 0, 0, 0, 10, false, false);
    face->DrawForceColor(canvas, LightList{}, 0, 0, 0, 10, false, 1, 2, 3, false);
    EXPECT_TRUE(canvas.calls().empty());
    EXPECT_FALSE(face->createRegion(GDIRegion::WindingFill)->inRegion(10, 10));

    face->cull(0, 0, 10);
    EXPECT_TRUE(face->IsCulled);
}
