#include "render/GDIRegion.h"

#include <algorithm>
#include <cmath>
#include <utility>

double GDIRegion::Edge::crossingX(int64_t row) const {
    // Measured from the upper end whichever way the polygon runs, so that an edge walked
    // there and back crosses at the very same x both times and the two cancel exactly.
    const double t = static_cast<double>(row - yTop) + 0.5;
    return static_cast<double>(xTop) +
           t * static_cast<double>(xBottom - xTop) / static_cast<double>(yBottom - yTop);
}

void GDIRegion::createPolygonRegion(const std::vector<CanvasPoint>& points, int fillmode) {
    edges_.clear();
    fillMode_ = fillmode;
    if (fillmode != AlternateFill && fillmode != WindingFill) {
        return;
    }
    for (size_t i = 0; i < points.size(); ++i) {
        const CanvasPoint& a = points[i];
        const CanvasPoint& b = points[(i + 1) % points.size()];
        if (a.y < b.y) {
            edges_.push_back({a.x, a.y, b.x, b.y, 1});
        } else if (a.y > b.y) {
            edges_.push_back({b.x, b.y, a.x, a.y, -1});
        }
    }
    // rectInRegion takes the edges on as its rows reach them.
    std::sort(edges_.begin(), edges_.end(),
              [](const Edge& p, const Edge& q) { return p.yTop < q.yTop; });
}

bool GDIRegion::covers(int winding) const {
    return fillMode_ == AlternateFill ? winding % 2 != 0 : winding != 0;
}

bool GDIRegion::inRegion(int32_t x, int32_t y) const {
    // Count the edges crossing the row of centres to the right of this centre.
    const double centreX = static_cast<double>(x) + 0.5;
    int winding = 0;
    for (const Edge& e : edges_) {
        if (e.yTop <= y && y < e.yBottom && e.crossingX(y) > centreX) {
            winding += e.direction;
        }
    }
    return covers(winding);
}

bool GDIRegion::rectWithinRegionParameter(int32_t Left, int32_t top, int32_t Right,
                                          int32_t bottom) const {
    return rectInRegion(PixelBox{Left, top, Right, bottom});
}

bool GDIRegion::rectInRegion(const PixelBox& rect) const {
    if (rect.empty() || edges_.empty()) {
        return false;
    }
    int64_t polygonEnd = edges_.front().yBottom;
    for (const Edge& e : edges_) {
        polygonEnd = std::max(polygonEnd, e.yBottom);
    }
    const int64_t firstRow = std::max<int64_t>(rect.top, edges_.front().yTop);
    const int64_t endRow = std::min<int64_t>(rect.bottom, polygonEnd);

    // Walk the rows the rectangle shares with the polygon. In each row the crossings, sorted,
    // cut the line of centres into spans [c(i), c(i+1)) of constant winding; a covered span
    // that holds a centre between left + 0.5 and right - 0.5 is a covered pixel. Crossings
    // and their tie rule are the ones inRegion uses, so both agree pixel for pixel.
    const double left = rect.left;
    const double right = rect.right;
    std::vector<const Edge*> active;
    std::vector<std::pair<double, int>> crossings;
    size_t next = 0;
    for (int64_t row = firstRow; row < endRow; ++row) {
        for (; next < edges_.size() && edges_[next].yTop <= row; ++next) {
            active.push_back(&edges_[next]);
        }
        std::erase_if(active, [row](const Edge* e) { return e->yBottom <= row; });
        crossings.clear();
        for (const Edge* e : active) {
            crossings.emplace_back(e->crossingX(row), e->direction);
        }
        std::sort(crossings.begin(), crossings.end());
        // A closed polygon crosses every row as often downwards as upwards, so the winding
        // left of all crossings is 0 and the running sum gives each span's winding (with
        // the sign reversed, which neither fill rule minds).
        int winding = 0;
        for (size_t i = 0; i + 1 < crossings.size(); ++i) {
            winding += crossings[i].second;
            if (!covers(winding)) {
                continue;
            }
            const double from = std::max(crossings[i].first, left);
            const double to = std::min(crossings[i + 1].first, right);
            if (std::ceil(from - 0.5) + 0.5 < to) {
                return true;
            }
        }
    }
    return false;
}
