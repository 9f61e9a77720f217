#include "render/DepthBuffer.h"

#include <gtest/gtest.h>
#include <random>

namespace {

// A face of constant depth: its corners rounded, and unrounded with the depth.
struct Flat {
    std::vector<CanvasPoint> points;
    std::vector<float> depths;
};

Flat flat(const std::vector<CanvasPoint>& points, float depth) {
    Flat face{points, {}};
    for (const CanvasPoint& p : points) {
        face.depths.insert(face.depths.end(),
                           {static_cast<float>(p.x), static_cast<float>(p.y), depth});
    }
    return face;
}

} // namespace

TEST(DepthBuffer, KeepsTheNearestFaceAndShadesOnlyTheFacesThatShow) {
    // Face 1 far, face 2 near over its middle, face 3 as near as 1 and wholly behind 2, face 4
    // as near as 2 over part of it: the larger number wins the tie. Only the box the faces
    // cover is painted.
    DepthBuffer buffer;
    buffer.reset(10, 4);
    ScanlineFiller filler;
    const std::vector<Flat> faces = {
        flat({{0, 0}, {8, 0}, {8, 4}, {0, 4}}, 1), flat({{2, 0}, {6, 0}, {6, 4}, {2, 4}}, 5),
        flat({{3, 1}, {5, 1}, {5, 3}, {3, 3}}, 1), flat({{5, 0}, {7, 0}, {7, 4}, {5, 4}}, 5)};
    for (uint32_t f = 0; f < faces.size(); ++f) {
        buffer.fill(filler, faces[f].points, faces[f].depths, f + 1);
    }
    std::vector<uint32_t> colors(5, 0);
    std::vector<uint32_t> asked;
    buffer.paint(colors, buffer.covered(), [&](uint32_t face) {
        asked.push_back(face);
        return face;
    });
    const std::vector<uint32_t> row = {1, 1, 2, 2, 2, 4, 4, 1, 0, 0};
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 10; ++x) {
            const uint32_t pixel = buffer.picture().pixels[static_cast<size_t>(y * 10 + x)];
            const uint32_t expected = row[static_cast<size_t>(x)];
            EXPECT_EQ(pixel, expected == 0 ? 0 : 0xFF000000u | expected) << x << ", " << y;
        }
    }
    EXPECT_EQ(asked, (std::vector<uint32_t>{1, 2, 4}));
}

TEST(DepthBuffer, TwoBuffersPaintedTogetherGiveThePictureOfOne) {
    // Random triangles, most of them flat at a few depths, every other one into a second
    // buffer painted from by bands of rows: the picture does not depend on the split.
    std::mt19937 random(3);
    std::uniform_int_distribution<int> coordinate(-10, 70);
    std::uniform_int_distribution<int> depth(0, 3);
    const int width = 61;
    const int height = 47;
    DepthBuffer one;
    DepthBuffer even;
    DepthBuffer odd;
    for (DepthBuffer* buffer : {&one, &even, &odd}) {
        buffer->reset(width, height);
    }
    ScanlineFiller filler;
    // A picture before, of the same size: its face must be gone.
    const Flat before = flat({{0, 0}, {width, 0}, {width, height}, {0, height}}, 100);
    one.fill(filler, before.points, before.depths, 400);
    one.reset(width, height);
    for (uint32_t face = 1; face <= 400; ++face) {
        // Flat at one of four depths, or sloping.
        const auto level = static_cast<float>(depth(random));
        std::vector<CanvasPoint> points;
        std::vector<float> depths;
        for (int k = 0; k < 3; ++k) {
            points.push_back({coordinate(random), coordinate(random)});
            depths.insert(depths.end(),
                          {static_cast<float>(points.back().x), static_cast<float>(points.back().y),
                           face % 3 == 0 ? static_cast<float>(depth(random)) : level});
        }
        one.fill(filler, points, depths, face);
        (face % 2 == 0 ? even : odd).fill(filler, points, depths, face);
    }
    std::vector<uint32_t> colors(401, 0);
    const auto colorOf = [](uint32_t face) { return face; };
    one.paint(colors, {0, 0, width, height}, colorOf);
    std::fill(colors.begin(), colors.end(), 0);
    even.paint(colors, {0, 0, width, 20}, colorOf, &odd);
    even.paint(colors, {0, 20, width, height}, colorOf, &odd);
    EXPECT_EQ(one.picture().pixels, even.picture().pixels);
}
