#include "scene/FaceOrder.h"

#include "scene/Solid3d.h"
#include "support/LiteralFaceOrder.h"
#include "support/TestScale.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace {

// Random face sets laid straight onto the canvas (x, y in pixels, z depth) on a coarse
// integer lattice, so that equal boxes, shared edges, collinear and zero-area faces are
// common rather than rare.
class FaceSets {
public:
    enum Kind { Scattered, WithWideFaces, AllOverlapping, Cycles, KindCount };

    explicit FaceSets(unsigned seed) : rng_(seed) {}

    std::unique_ptr<Solid3d> make(Kind kind) {
        auto solid = std::make_unique<Solid3d>();
        solid_ = solid.get();
        const int n = between(1, 90);
        const int span = 6 * static_cast<int>(std::sqrt(n)) + 8;
        for (int i = 0; i < n; ++i) {
            switch (kind) {
            case Cycles:
                addCycle(between(0, span), between(0, span), between(1, 3));
                i += 2;
                break;
            case AllOverlapping:
                addAround(0, 0, between(5, 20), between(3, 6));
                break;
            case WithWideFaces:
                if (between(0, 9) == 0) {
                    addAround(span / 2, span / 2, span, between(3, 5));
                    break;
                }
                [[fallthrough]];
            default:
                addNear(between(0, span), between(0, span));
            }
        }
        for (const auto& face : solid->faces) {
            face->IsCulled = between(0, 6) == 0;
        }
        return solid;
    }

private:
    int between(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng_); }

    int32_t point(float x, float y, float z) {
        solid_->appendPointRecord(PointRecord{{}, {}, {x, y, z, 1}});
        return solid_->getNextPointIndex() - 1;
    }

    // A face of 0 to 5 corners near (x, y), or a copy of an earlier face, or one sharing
    // an edge with it; depths on a tilted plane or, now and then, not planar at all.
    void addNear(int x, int y) {
        const auto& faces = solid_->faces;
        const int choice = faces.empty() ? 0 : between(0, 5);
        if (choice == 1) {
            std::vector<int32_t> same =
                faces[static_cast<size_t>(between(0, static_cast<int>(faces.size()) - 1))]
                    ->getIndices();
            if (between(0, 1) == 0) {
                std::reverse(same.begin(), same.end());
            }
            solid_->AddFace(same);
            return;
        }
        std::vector<int32_t> corners;
        if (choice == 2) {
            const auto& other =
                faces[static_cast<size_t>(between(0, static_cast<int>(faces.size()) - 1))]
                    ->getIndices();
            if (other.size() >= 2) {
                corners = {other[1], other[0]};
            }
        }
        const int a = between(-2, 2), b = between(-2, 2), c = between(-6, 6);
        const bool planar = between(0, 4) != 0;
        const int count = std::max(0, between(-1, 5) - static_cast<int>(corners.size()));
        for (int k = 0; k < count; ++k) {
            const int px = x + between(-4, 4), py = y + between(-4, 4);
            const int pz = planar ? (a * px + b * py) / 4 + c : between(-8, 8);
            corners.push_back(
                point(static_cast<float>(px), static_cast<float>(py), static_cast<float>(pz)));
        }
        solid_->AddFace(corners);
    }

    // A convex face around (x, y) of the given radius on a random tilted plane.
    void addAround(int x, int y, int radius, int count) {
        const int a = between(-3, 3), b = between(-3, 3), c = between(-10, 10);
        std::vector<int32_t> corners;
        for (int k = 0; k < count; ++k) {
            const double t = 6.283185307179586 * (k + between(0, 4) / 10.0) / count;
            const int px = x + static_cast<int>(radius * std::cos(t));
            const int py = y + static_cast<int>(radius * std::sin(t));
            corners.push_back(point(static_cast<float>(px), static_cast<float>(py),
                                    static_cast<float>((a * px + b * py) / 8 + c)));
        }
        solid_->AddFace(corners);
    }

    // Three strips, each over the next at one end and under it at the other.
    void addCycle(int x, int y, int scale) {
        static const float strips[12][3] = {{0, 0, 2},   {60, 0, -2}, {60, 10, -2}, {0, 10, 2},
                                            {50, 0, 2},  {60, 0, 2},  {30, 60, -2}, {20, 60, -2},
                                            {30, 60, 2}, {20, 60, 2}, {-5, 5, -2},  {5, -5, -2}};
        const float s = static_cast<float>(scale) / 4;
        const float depth = static_cast<float>(between(1, 4));
        for (int strip = 0; strip < 3; ++strip) {
            std::vector<int32_t> corners;
            for (int k = 0; k < 4; ++k) {
                const float* p = strips[strip * 4 + k];
                corners.push_back(
                    point(static_cast<float>(x) + p[0] * s + static_cast<float>(between(-1, 1)),
                          static_cast<float>(y) + p[1] * s, p[2] * depth));
            }
            solid_->AddFace(corners);
        }
    }

    std::mt19937 rng_;
    Solid3d* solid_ = nullptr;
};

std::vector<int32_t> orderNumbers(const FaceList& faces) {
    std::vector<int32_t> numbers;
    for (const auto& face : faces) {
        numbers.push_back(face->getOrderNum());
    }
    return numbers;
}

} // namespace

// The fast order must be the plain scan's, face for face, on every kind of set: the same
// first conflict, the same moves, the same cycle breaking.
TEST(FaceOrder, MatchesTheLiteralScanOnRandomFaceSets) {
    const long sets = TestScale::count(10000);
    FaceSets generator(20261123);
    long reordered = 0;
    for (long set = 0; set < sets; ++set) {
        const auto kind = static_cast<FaceSets::Kind>(set % FaceSets::KindCount);
        const auto solid = generator.make(kind);
        const auto expected = orderNumbers(literalSortFaces(*solid));
        ASSERT_EQ(orderNumbers(FaceOrder::sort(solid->faces)), expected)
            << "set " << set << ", kind " << kind;
        const auto painted = std::count_if(solid->faces.begin(), solid->faces.end(),
                                           [](const auto& face) { return !face->IsCulled; });
        reordered += std::is_sorted(expected.end() - painted, expected.end()) ? 0 : 1;
    }
    // The sets must exercise the moves, not just the list order.
    EXPECT_GT(reordered, sets / 4);
}
