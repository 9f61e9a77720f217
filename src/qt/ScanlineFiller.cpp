#include "qt/ScanlineFiller.h"

#include <algorithm>
#include <cmath>

void ScanlineFiller::fill(QImage& image, const std::vector<CanvasPoint>& points, QRgb color) {
    const int width = image.width();
    const int height = image.height();
    edges_.clear();
    int top = height;
    int bottom = 0;
    for (size_t i = 0; i < points.size(); ++i) {
        CanvasPoint a = points[i];
        CanvasPoint b = points[(i + 1) % points.size()];
        if (a.y == b.y) {
            continue; // a level edge crosses no row centre
        }
        if (a.y > b.y) {
            std::swap(a, b);
        }
        // Row y is sampled at y + 0.5, so the edge crosses rows a.y to b.y - 1.
        const Edge edge{std::max(a.y, 0), std::min(b.y, height), double(a.x),
                        double(a.y),      double(b.x) - a.x,     double(b.y) - a.y};
        if (edge.top < edge.bottom) {
            edges_.push_back(edge);
            top = std::min(top, edge.top);
            bottom = std::max(bottom, edge.bottom);
        }
    }
    uchar* bits = image.bits();
    const qsizetype stride = image.bytesPerLine();
    for (int y = top; y < bottom; ++y) {
        crossings_.clear();
        for (const Edge& edge : edges_) {
            if (y >= edge.top && y < edge.bottom) {
                // One rounding only (the products are whole numbers held exactly), so
                // that a crossing exactly on a pixel centre stays exact.
                crossings_.push_back(edge.x + (2 * (y - edge.y) + 1) * edge.dx / (2 * edge.dy));
            }
        }
        std::sort(crossings_.begin(), crossings_.end());
        auto* row = reinterpret_cast<QRgb*>(bits + y * stride);
        for (size_t k = 0; k + 1 < crossings_.size(); k += 2) {
            // Pixels whose centre x + 0.5 lies in [left crossing, right crossing).
            const double left = std::max(std::floor(crossings_[k] - 0.5) + 1, 0.0);
            const double right = std::min(std::floor(crossings_[k + 1] - 0.5) + 1, double(width));
            if (left < right) {
                std::fill(row + static_cast<int>(left), row + static_cast<int>(right), color);
            }
        }
    }
}
