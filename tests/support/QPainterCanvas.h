#pragma once

#include "qt/QtCanvas.h"

#include <QLineF>
#include <QPainter>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

// A canvas whose solid faces QPainter paints, as the reference for our own fill. It keeps
// the edges of those faces since the last clear.
class QPainterCanvas : public QtCanvas {
public:
    using QtCanvas::QtCanvas;

    void clear() override {
        edges_.clear();
        QtCanvas::clear();
    }

    void polygon(const std::vector<CanvasPoint>& points) override {
        if (fillStyle() != FillSolid || drawStyle() != DrawInvisible) {
            QtCanvas::polygon(points);
            return;
        }
        std::vector<QPoint> corners;
        for (const CanvasPoint& p : points) {
            corners.emplace_back(p.x, p.y);
        }
        for (size_t i = 0; i < corners.size(); ++i) {
            edges_.emplace_back(corners[i], corners[(i + 1) % corners.size()]);
        }
        // image() ends the canvas's own painter; the image itself is ours to paint on.
        QPainter painter(const_cast<QImage*>(&image()));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(fillColor() % 256, fillColor() / 256 % 256, fillColor() / 65536));
        painter.drawPolygon(corners.data(), static_cast<int>(corners.size()), Qt::OddEvenFill);
    }

    // Whether the point lies within one pixel of an edge of a solid face.
    bool nearAnEdge(double x, double y) const {
        for (const QLineF& edge : edges_) {
            const QPointF d = edge.p2() - edge.p1();
            const double length2 = QPointF::dotProduct(d, d);
            // A face's corners lie on whole pixels: an edge has no length, or at least 1.
            const double t = std::clamp(QPointF::dotProduct(QPointF(x, y) - edge.p1(), d) /
                                            std::max(length2, 0.5),
                                        0.0, 1.0);
            const QPointF nearest = edge.p1() + t * d;
            if (std::hypot(nearest.x() - x, nearest.y() - y) <= 1.0) {
                return true;
            }
        }
        return false;
    }

private:
    std::vector<QLineF> edges_;
};

// Counts the pixels where our picture differs from the reference's, and fails for any whose
// centre lies farther than one pixel from every edge of the reference's solid faces.
inline int edgeDifferences(const QImage& ours, const QPainterCanvas& reference) {
    const QImage& picture = reference.image();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (ours.pixel(x, y) != picture.pixel(x, y)) {
                ++count;
                EXPECT_TRUE(reference.nearAnEdge(x + 0.5, y + 0.5)) << x << "," << y;
            }
        }
    }
    return count;
}
