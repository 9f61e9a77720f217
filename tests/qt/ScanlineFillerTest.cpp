#include "support/QPainterCanvas.h"

#include <gtest/gtest.h>
#include <random>

TEST(ScanlineFiller, FillsThePixelsQPainterFillsUpToTheirEdges) {
    // Concave, self-intersecting, partly or wholly off the canvas, one corner far off, tiny,
    // degenerate (all in a line, repeated corners): 3 to 9 corners from a range reaching past
    // every side.
    std::mt19937 random(7);
    const int width = 64;
    const int height = 48;
    QtCanvas ours(width, height);
    QPainterCanvas reference(width, height);
    int filled = 0;
    int differences = 0;
    for (int n = 0; n < 2000; ++n) {
        const int size = n % 4 == 0 ? 3 : n % 4 == 1 ? 200 : 90;
        std::uniform_int_distribution<int> x(-size / 3, width + size / 3 - 1);
        std::uniform_int_distribution<int> y(-size / 3, height + size / 3 - 1);
        std::vector<CanvasPoint> points;
        const int corners = 3 + n % 7;
        for (int k = 0; k < corners; ++k) {
            if (size == 3 && k > 0) { // tiny: around the first corner
                points.push_back({points[0].x + k % 3 - 1, points[0].y + k % 2});
            } else if (n % 13 == 0 && k == 0) { // far off, as a corner near the eye lands
                points.push_back({-100000, 30000});
            } else if (n % 11 == 0 && k > 1) { // degenerate: on the line of the first two
                points.push_back(
                    {2 * points[k - 1].x - points[k - 2].x, 2 * points[k - 1].y - points[k - 2].y});
            } else {
                points.push_back({x(random), y(random)});
            }
        }
        for (QtCanvas* canvas : {&ours, static_cast<QtCanvas*>(&reference)}) {
            canvas->clear();
            canvas->setFillStyle(FillSolid);
            canvas->setDrawStyle(DrawInvisible);
            canvas->setFillColor(0xFFFFFF);
            canvas->polygon(points);
        }
        const QImage& picture = reference.image();
        for (int py = 0; py < height; ++py) {
            for (int px = 0; px < width; ++px) {
                filled += picture.pixel(px, py) != qRgb(0, 0, 0);
            }
        }
        differences += edgeDifferences(ours.image(), reference);
    }
    EXPECT_GT(filled, 500000);
    // Ties (a pixel centre on an edge) and slivers go either way: at most one pixel in 1,000.
    EXPECT_LE(differences, filled / 1000);
}
