#pragma once

#include "geometry/Arctan.h"
#include "geometry/Pi.h"

#include <algorithm>
#include <cmath>

// The depth relations of two projected faces, read from their transformed corners (canvas x
// and y in pixels, eye-space depth z). They are written once over any list of corners, so
// that a face reading its solid's point records and the face order reading its own compact
// copies of them get the same answers from the same arithmetic.
//
// Corners: size() gives the corner count as an int, and [i] (0-based) something with float
// members x, y and z.
namespace FaceRelations {

// Every corner of a lies on the viewer's side (towardsViewer) or on the far side of the plane
// of b, whose normal is (nx, ny, nz), within 0.01. True when b has no corners.
template <class CornersA, class CornersB>
bool onSideOf(const CornersA& a, const CornersB& b, float nx, float ny, float nz,
              bool towardsViewer) {
    if (towardsViewer ? nz < 0 : nz > 0) {
        nx = -nx;
        ny = -ny;
        nz = -nz;
    }
    if (b.size() < 1) {
        return true;
    }
    const auto& o = b[0];
    for (int corner = 0; corner < a.size(); ++corner) {
        const auto& v = a[corner];
        const auto s = static_cast<float>(static_cast<double>(v.x - o.x) * nx +
                                          static_cast<double>(v.y - o.y) * ny +
                                          static_cast<double>(v.z - o.z) * nz);
        if (s < -0.01f) {
            return false;
        }
    }
    return true;
}

// Where two canvas edges cross, and each edge's depth there.
template <class Point>
bool intersectEdges(const Point& a1, const Point& a2, const Point& b1, const Point& b2, float& zA,
                    float& zB) {
    const float dx1 = a2.x - a1.x;
    const float dy1 = a2.y - a1.y;
    const float dx2 = b2.x - b1.x;
    const float dy2 = b2.y - b1.y;
    const float det = dy1 * dx2 - dy2 * dx1;
    if (det > -0.01f && det < 0.01f) {
        return false; // parallel, or too nearly so to tell
    }
    const float u = (dy1 * (a1.x - b1.x) - dx1 * (a1.y - b1.y)) / det;
    if (!(u >= 0 && u <= 1)) {
        return false;
    }
    const float s = (dy2 * (a1.x - b1.x) - dx2 * (a1.y - b1.y)) / det;
    if (!(s >= 0 && s <= 1)) {
        return false;
    }
    zA = a1.z + s * (a2.z - a1.z);
    zB = b1.z + u * (b2.z - b1.z);
    return true;
}

// Whether the point lies so far beside the corners' box that it is surely outside.
template <class Corners> bool clearlyOutside(const Corners& c, float x, float y) {
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return false;
    }
    float xmin = 0;
    float xmax = 0;
    float ymin = 0;
    float ymax = 0;
    for (int corner = 0; corner < c.size(); ++corner) {
        const auto& t = c[corner];
        if (!std::isfinite(t.x) || !std::isfinite(t.y)) {
            return false;
        }
        xmin = corner == 0 ? t.x : std::min(xmin, t.x);
        xmax = corner == 0 ? t.x : std::max(xmax, t.x);
        ymin = corner == 0 ? t.y : std::min(ymin, t.y);
        ymax = corner == 0 ? t.y : std::max(ymax, t.y);
    }
    // Beside the box by at least its height seen from the point (and by the 0.01 below
    // which the arc tangent calls a direction vertical), every corner lies within 45 degrees
    // of one horizontal direction; above or below it by its width, of one vertical direction.
    const float high = std::max(ymax - y, y - ymin);
    const float wide = std::max(xmax - x, x - xmin);
    const float left = xmin - x;
    const float right = x - xmax;
    const float below = ymin - y;
    const float above = y - ymax;
    return (left >= 0.01f && left >= high) || (right >= 0.01f && right >= high) ||
           (below > 0 && below >= wide) || (above > 0 && above >= wide);
}

// The angle the polygon's edges turn through as seen from the point: a whole turn around a
// point inside, (almost exactly) zero outside.
template <class Corners> double windingAngle(const Corners& c, float x, float y) {
    const auto angleTo = [&](int corner) {
        const auto& t = c[corner];
        double a = Arctan::ArcTan(t.y - y, t.x - x, true);
        if (a < 0) {
            a = a + Pi::twoPi14;
        }
        return a;
    };
    double previous = angleTo(c.size() - 1);
    double sum = 0;
    for (int corner = 0; corner < c.size(); ++corner) {
        const double a = angleTo(corner);
        double d = a - previous;
        if (d > Pi::pi14) {
            d = d - Pi::twoPi14;
        }
        if (d < -Pi::pi14) {
            d = d + Pi::twoPi14;
        }
        sum = sum + d;
        previous = a;
    }
    return sum;
}

// Whether the point lies inside the polygon, by its winding angle. Far enough beside the
// corners' box, where no two corners are half a turn apart as seen from the point, the angle
// is zero without the arc tangents.
template <class Corners> bool pointInside(const Corners& c, float x, float y) {
    return c.size() >= 1 && !clearlyOutside(c, x, y) && std::fabs(windingAngle(c, x, y)) > 0.001;
}

// Whether a lies in front of b where they overlap on the canvas: at the first crossing of
// their edges whose depths differ by more than 0.01 a is nearer; with no such crossing, one
// contains the other's first corner.
template <class Corners> bool obscures(const Corners& a, const Corners& b) {
    const int n = a.size();
    const int m = b.size();
    if (n < 1 || m < 1) {
        return false;
    }
    for (int i = 0; i < n; ++i) {
        const auto& a1 = a[i == 0 ? n - 1 : i - 1];
        const auto& a2 = a[i];
        for (int j = 0; j < m; ++j) {
            float zA;
            float zB;
            if (!intersectEdges(a1, a2, b[j == 0 ? m - 1 : j - 1], b[j], zA, zB)) {
                continue;
            }
            if (zA - zB > 0.01f) {
                return true;
            }
            if (zB - zA > 0.01f) {
                return false;
            }
        }
    }
    if (pointInside(b, a[0].x, a[0].y)) {
        return true;
    }
    return pointInside(a, b[0].x, b[0].y);
}

} // namespace FaceRelations
