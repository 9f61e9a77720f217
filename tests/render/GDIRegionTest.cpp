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
// left, top, right, bottom) is hit exactly when one of its pixels is covered. One region
// takes every polygon in turn: a new polygon replaces the old.
TEST(GDIRegion, AgreesWithExactReferenceOnRandomPolygons) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int32_t> coordinate(0, 16);
    GDIRegion r;
    for (int trial = 0; trial < 300; ++trial) {
        std::vector<CanvasPoint> polygon(3 + trial % 6);
        for (CanvasPoint& p : polygon) {
            p = {coordinate(random), coordinate(random)};
        }
        const int mode = trial % 2 ? GDIRegion::AlternateFill : GDIRegion::WindingFill;
        r.createPolygonRegion(polygon, mode);
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
    r.createPolygonRegion({{0, 0}, {9, 0}, {9, 9}}, 0); // no such fill mode: no region at all
    EXPECT_FALSE(r.inRegion(5, 1));
}
