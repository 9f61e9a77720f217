#include "render/GDIRegion.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>

namespace {

GDIRegion region(const std::vector<CanvasPoint>& points, int fillmode) {
    GDIRegion r;
    r.createPolygonRegion(points, fillmode);
    return r;
}

const std::vector<CanvasPoint> square{{10, 10}, {50, 10}, {50, 50}, {10, 50}};

// Winding number of pixel centre (x + 0.5, y + 0.5) in exact integer arithmetic on doubled
// coordinates; a centre on an edge counts with the side to its right.
int referenceWinding(const std::vector<CanvasPoint>& poly, int64_t x, int64_t y) {
    int winding = 0;
    for (size_t i = 0; i < poly.size(); ++i) {
        const CanvasPoint a = poly[i];
        const CanvasPoint b = poly[(i + 1) % poly.size()];
        if ((a.y <= y) == (b.y <= y)) {
            continue;
        }
        const int64_t d = int64_t{b.x - a.x} * (2 * y + 1 - 2 * a.y) -
                          (2 * x + 1 - 2 * int64_t{a.x}) * int64_t{b.y - a.y};
        if (b.y > a.y ? d > 0 : d < 0) {
            winding += b.y > a.y ? 1 : -1;
        }
    }
    return winding;
}

} // namespace

TEST(GDIRegion, FillRulesOnSelfIntersectingPolygons) {
    const std::vector<CanvasPoint> bowTie{{0, 0}, {40, 40}, {40, 0}, {0, 40}};
    // Corners of a regular pentagon around (100, 100), joined every second one.
    const std::vector<CanvasPoint> pentagram{{100, 20}, {147, 165}, {24, 75}, {176, 75}, {53, 165}};
    for (int mode : {GDIRegion::AlternateFill, GDIRegion::WindingFill}) {
        const GDIRegion tie = region(bowTie, mode);
        SCOPED_TRACE(mode);
        EXPECT_TRUE(tie.inRegion(35, 20));
        EXPECT_FALSE(tie.inRegion(20, 5));
        const GDIRegion star = region(pentagram, mode);
        EXPECT_TRUE(star.inRegion(100, 40)); // a point of the star
        EXPECT_FALSE(star.inRegion(30, 140));
        // The centre is wound twice: only the non-zero rule fills it.
        EXPECT_EQ(star.inRegion(100, 100), mode == GDIRegion::WindingFill);
        EXPECT_EQ(star.rectInRegion({90, 90, 111, 111}), mode == GDIRegion::WindingFill);
    }
}

TEST(GDIRegion, ReplacingThePolygonForgetsTheOldOneAndDegenerateOnesHitNothing) {
    GDIRegion r = region(square, GDIRegion::WindingFill);
    // No area, or a sliver with area that passes between the centres of its only row.
    const std::vector<std::vector<CanvasPoint>> polygons{{},
                                                         {{5, 5}},
                                                         {{0, 0}, {20, 20}},
                                                         {{0, 0}, {10, 10}, {20, 20}},
                                                         {{0, 5}, {20, 5}, {10, 5}},
                                                         {{5, 5}, {5, 5}, {5, 5}},
                                                         {{0, 0}, {3, 1}, {2, 1}}};
    for (const auto& polygon : polygons) {
        for (int mode : {GDIRegion::AlternateFill, GDIRegion::WindingFill}) {
            r.createPolygonRegion(polygon, mode);
            SCOPED_TRACE(::testing::Message() << polygon.size() << " corners, mode " << mode);
            EXPECT_FALSE(r.rectInRegion({-10, -10, 30, 30}));
            EXPECT_FALSE(r.inRegion(5, 5));
            EXPECT_FALSE(r.inRegion(1, 0));
        }
    }
    r.createPolygonRegion(square, 0); // no such fill mode: no region at all
    EXPECT_FALSE(r.inRegion(30, 30));
}

TEST(GDIRegion, CornersAtTheEndsOfTheIntegerRange) {
    constexpr int32_t lo = std::numeric_limits<int32_t>::min();
    constexpr int32_t hi = std::numeric_limits<int32_t>::max();
    const GDIRegion all = region({{lo, lo}, {hi, lo}, {hi, hi}, {lo, hi}}, GDIRegion::WindingFill);
    EXPECT_TRUE(all.inRegion(0, 0));
    EXPECT_TRUE(all.inRegion(lo, lo));
    EXPECT_TRUE(all.inRegion(hi - 1, hi - 1));
    EXPECT_FALSE(all.inRegion(hi, 0));
    EXPECT_TRUE(all.rectInRegion({lo, lo, hi, hi}));
    // A face with one corner far behind the eye still covers its visible part.
    const GDIRegion wedge = region({{0, 0}, {100, 0}, {50, hi}}, GDIRegion::WindingFill);
    EXPECT_TRUE(wedge.inRegion(50, 1000));
    EXPECT_FALSE(wedge.inRegion(-1, 5));
    EXPECT_TRUE(wedge.rectInRegion({40, 10000, 60, 10010}));
}

// Every covered pixel agrees with an exact integer reference, and a rectangle (given as
// left, top, right, bottom) is hit exactly when one of its pixels is covered.
TEST(GDIRegion, AgreesWithExactReferenceOnRandomPolygons) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int32_t> coordinate(0, 16);
    for (int trial = 0; trial < 300; ++trial) {
        std::vector<CanvasPoint> polygon(3 + trial % 6);
        for (CanvasPoint& p : polygon) {
            p = {coordinate(random), coordinate(random)};
        }
        const int mode = trial % 2 ? GDIRegion::AlternateFill : GDIRegion::WindingFill;
        const GDIRegion r = region(polygon, mode);
        std::vector<std::vector<bool>> covered(18, std::vector<bool>(18));
        for (int y = -1; y < 17; ++y) {
            for (int x = -1; x < 17; ++x) {
                const int w = referenceWinding(polygon, x, y);
                covered[y + 1][x + 1] = mode == GDIRegion::AlternateFill ? w % 2 != 0 : w != 0;
                ASSERT_EQ(r.inRegion(x, y), covered[y + 1][x + 1]) << trial << " " << x << "," << y;
            }
        }
        for (int k = 0; k < 20; ++k) {
            const int32_t left = coordinate(random) - 1;
            const int32_t top = coordinate(random) - 1;
            const int32_t right = std::min(left + coordinate(random) % 5, 17);
            const int32_t bottom = std::min(top + coordinate(random) % 5, 17);
            bool any = false;
            for (int y = top; y < bottom; ++y) {
                for (int x = left; x < right; ++x) {
                    any = any || covered[y + 1][x + 1];
                }
            }
            ASSERT_EQ(r.rectWithinRegionParameter(left, top, right, bottom), any)
                << trial << " " << k;
        }
    }
}
