#include "scene/Face3d.h"

#include "render/GDIRegion.h"
#include "scene/FaceRelations.h"
#include "scene/Solid3d.h"
#include "support/RecordingCanvas.h"
#include "support/TestSolids.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

// A face through the given points (x, y, z, x, y, z, ...), numbered on from the solid's
// last point. Laid out with canvasLayout(), the points are their own canvas coordinates.
std::shared_ptr<Face3d> addFace(Solid3d& solid, const std::vector<float>& xyz) {
    const int32_t first = solid.getNextPointIndex();
    solid.addPointsArray(xyz);
    std::vector<int32_t> indices;
    for (int32_t i = first; i < solid.getNextPointIndex(); ++i) {
        indices.push_back(i);
    }
    return solid.AddFace(indices);
}

} // namespace

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

    // Corners can be deleted down to a triangle, one occurrence at a time.
    face->SetPoints({1, 3, 2, 3});
    EXPECT_FALSE(face->deletePointIndex(9));
    EXPECT_TRUE(face->deletePointIndex(3));
    EXPECT_EQ(face->getIndices(), (std::vector<int32_t>{1, 2, 3}));
    EXPECT_FALSE(face->deletePointIndex(3));
    EXPECT_EQ(face->NumPts, 3);
}

// A face paints when some corner is on the canvas, its corners rounded half to even.
TEST(Face3d, PaintsOnlyWhenSomeCornerIsOnTheCanvasWithCornersRoundedHalfToEven) {
    RecordingCanvas canvas(100, 100);
    Solid3d solid;
    auto off = addFace(solid, {-50, -10, 0, -10, -10, 0, -10, -50, 0});
    auto partly = addFace(solid, {-50, -50, 0, 50.5f, 50.5f, 0, 1.5f, 11.5f, 0});
    solid.Apply(canvasLayout());
    off->DrawNoForceColor(canvas, LightList{}, 0, 0, 0, 10, false, false);
    EXPECT_TRUE(canvas.polygons().empty());
    partly->DrawForceColor(canvas, LightList{}, 0, 0, 0, 10, false, 1, 2, 3, false);
    const auto polygons = canvas.polygons();
    ASSERT_EQ(polygons.size(), 1u);
    const auto& points = polygons[0].points;
    ASSERT_EQ(points.size(), 3u);
    EXPECT_EQ(std::pair(points[1].x, points[1].y), std::pair(50, 50));
    EXPECT_EQ(std::pair(points[2].x, points[2].y), std::pair(2, 12));
}

TEST(Face3d, AFaceThatOutlivesItsSolidDoesNothingAndReadsAsEmpty) {
    Solid3d live;
    auto other = addFace(live, {0, 0, 0, 40, 0, 0, 0, 40, 0});
    live.Apply(canvasLayout());
    auto solid = std::make_shared<Solid3d>();
    std::shared_ptr<Face3d> face = addFace(*solid, {0, 0, 1, 40, 0, 1, 0, 40, 1});
    solid->Apply(canvasLayout());
    solid.reset(); // a selection still holds the face
    ASSERT_EQ(face->getSolidContainer(), nullptr);

    float x = 1, y = 1, z = 1;
    face->GetTransformedPoint(1, x, y, z);
    EXPECT_EQ(x, 0.0f);
    face->UnitNormalVector(x, y, z);
    EXPECT_EQ(z, 0.0f);
    float Rmin, Rmax;
    face->getRMinRMax(0, 0, 10, Rmin, Rmax);
    EXPECT_EQ(Rmin, 1e30f);
    face->ApplyFull(canvasLayout(2), false);
    face->clipEye(0);
    EXPECT_EQ(face->zmax(), -1e30f);
    EXPECT_FALSE(face->PointInside(10, 10));
    EXPECT_FALSE(face->Obscures(*other));
    EXPECT_FALSE(other->Obscures(*face));
    EXPECT_TRUE(other->IsBelow(*face));
    RecordingCanvas canvas(100, 100);
    face->DrawNoForceColor(canvas, LightList{}, 0, 0, 0, 10, false, false);
    EXPECT_TRUE(canvas.calls().empty());
    EXPECT_FALSE(face->createRegion(GDIRegion::WindingFill)->inRegion(10, 10));
}

TEST(Face3d, AboveAndBelowTellTheSideOfTheOthersPlaneFacingTheViewer) {
    Solid3d solid;
    // The plane z = x / 2 over 0..20, its normal towards the viewer (+z).
    auto plane = addFace(solid, {0, 0, 0, 20, 0, 10, 20, 20, 10, 0, 20, 0});
    auto above = addFace(solid, {5, 5, 4.5f, 10, 5, 7, 5, 10, 4.5f});   // 2 nearer the viewer
    auto below = addFace(solid, {5, 5, 0.5f, 10, 5, 3, 5, 10, 0.5f});   // 2 farther away
    auto across = addFace(solid, {5, 5, 4.5f, 10, 5, 3, 5, 10, 4.5f});  // one corner farther
    auto onPlane = addFace(solid, {5, 5, 2.5f, 10, 5, 5, 5, 10, 2.5f}); // within the tolerance
    solid.Apply(canvasLayout());

    const std::tuple<const char*, std::shared_ptr<Face3d>, bool, bool> cases[] = {
        {"above", above, true, false},
        {"below", below, false, true},
        {"across", across, false, false},
        {"on the plane", onPlane, true, true}};
    // The answers must not depend on which way the plane lists its corners.
    for (int turn = 0; turn < 2; ++turn) {
        for (const auto& [name, face, isAbove, isBelow] : cases) {
            EXPECT_EQ(face->IsAbove(*plane), isAbove) << name << ", turn " << turn;
            EXPECT_EQ(face->IsBelow(*plane), isBelow) << name << ", turn " << turn;
        }
        plane->switchIndexOrientation();
    }
}

TEST(Face3d, ObscuresComparesDepthWhereEdgesCrossElseLooksForContainment) {
    Solid3d solid;
    // Edges cross at (14, 0) and (14, 20): the tilted square (z = x / 2) is at depth 7
    // there, in front of the flat strip at depth 4.
    auto tilted = addFace(solid, {0, 0, 0, 20, 0, 10, 20, 20, 10, 0, 20, 0});
    auto strip = addFace(solid, {14, -5, 4, 40, -5, 4, 40, 25, 4, 14, 25, 4});
    // No edges cross: one square holds the other, whichever lies in front.
    auto big = addFace(solid, {100, 0, 5, 140, 0, 5, 140, 40, 5, 100, 40, 5});
    auto small = addFace(solid, {105, 5, 0, 110, 5, 0, 110, 10, 0, 105, 10, 0});
    // Disjoint, but so close that each square's edges, drawn on, would cut the other's.
    auto left = addFace(solid, {0, 100, 5, 100, 100, 5, 100, 200, 5, 0, 200, 5});
    auto right = addFace(solid, {100.01f, 100, 0, 200, 100, 0, 200, 200, 0, 100.01f, 200, 0});
    solid.Apply(canvasLayout());

    EXPECT_TRUE(tilted->Obscures(*strip));
    EXPECT_FALSE(strip->Obscures(*tilted));
    EXPECT_TRUE(small->Obscures(*big));
    EXPECT_TRUE(big->Obscures(*small));
    EXPECT_FALSE(left->Obscures(*right));
    EXPECT_FALSE(right->Obscures(*left));
}

namespace {

// The corners of a face in the plane z = 0 as the winding sum reads them.
struct Corners {
    const std::vector<float>& xyz;
    int size() const { return static_cast<int>(xyz.size() / 3); }
    Point4 operator[](int i) const { return {xyz[3 * i], xyz[3 * i + 1], 0, 1}; }
};

} // namespace

// The test skips the arc tangents for points far beside a face; it must answer as the full
// sum does everywhere: small faces, slivers, corners closer than 0.01 in x, points just
// outside the box and on the 45-degree boundary of the shortcut.
TEST(Face3d, PointInsideAnswersAsTheFullWindingSumForRandomFacesAndPoints) {
    std::mt19937 random(7);
    const auto uniform = [&](float low, float high) {
        return std::uniform_real_distribution<float>(low, high)(random);
    };
    int outside = 0;
    for (int round = 0; round < 20000; ++round) {
        Solid3d solid;
        const float scale = round % 3 == 0 ? 0.005f : round % 3 == 1 ? 1.0f : 300.0f;
        const float stretch = round % 5 == 0 ? 0.001f : 1.0f;
        std::vector<float> xyz;
        const int count = 3 + static_cast<int>(random() % 5);
        for (int i = 0; i < count; ++i) {
            xyz.insert(xyz.end(), {uniform(-1, 1) * scale, uniform(-1, 1) * scale * stretch, 0});
        }
        const Corners polygon{xyz};
        auto face = addFace(solid, xyz);
        solid.Apply(canvasLayout());
        for (int k = 0; k < 8; ++k) {
            const Point4 corner =
                polygon[static_cast<int>(random() % static_cast<unsigned>(count))];
            const float cx = corner.x, cy = corner.y;
            // Near a corner, or along a diagonal through it where the shortcut's bounds lie.
            const float dx = uniform(-3, 3) * scale;
            const float x = cx + dx;
            const float y = k % 2 == 0 ? cy + uniform(-3, 3) * scale : cy + (k % 4 == 1 ? dx : -dx);
            // The full sum of the angles the edges turn through, for every point.
            const bool expected = std::fabs(FaceRelations::windingAngle(polygon, x, y)) > 0.001;
            outside += expected ? 0 : 1;
            ASSERT_EQ(face->PointInside(x, y), expected)
                << "round " << round << " point " << x << ", " << y;
        }
    }
    EXPECT_GT(outside, 1000); // the shortcut had work to do
}
