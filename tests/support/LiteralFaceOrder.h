#pragma once

#include "scene/Solid3d.h"

#include <algorithm>
#include <vector>

// The painter's face order written the plain way: for every face emitted, scan all waiting
// faces in list order for the first that must be painted before it. Quadratic, and the
// reference the fast order must match face for face.
inline FaceList literalSortFaces(const FaceList& faces) {
    struct Item {
        std::shared_ptr<Face3d> face;
        float xmin, xmax, ymin, ymax, zmin, zmax;
    };
    const auto mustPaintBefore = [](const Item& q, const Item& p) {
        return q.xmax > p.xmin && q.xmin < p.xmax && q.ymax > p.ymin && q.ymin < p.ymax &&
               q.zmin < p.zmax && !q.face->IsAbove(*p.face) && !p.face->IsBelow(*q.face) &&
               p.face->Obscures(*q.face);
    };
    FaceList result;
    for (auto it = faces.rbegin(); it != faces.rend(); ++it) {
        if ((*it)->IsCulled) {
            result.push_back(*it);
        }
    }
    std::vector<Item> work;
    for (const auto& face : faces) {
        if (!face->IsCulled) {
            Item item{face, 0, 0, 0, 0, 0, 0};
            face->GetExtent(item.xmin, item.xmax, item.ymin, item.ymax, item.zmin, item.zmax);
            work.push_back(item);
        }
    }
    size_t limit = work.size();
    size_t moves = 0;
    size_t head = 0;
    while (head < work.size()) {
        size_t conflict = 0;
        for (size_t q = head + 1; q < work.size(); ++q) {
            if (mustPaintBefore(work[q], work[head])) {
                conflict = q;
                break;
            }
        }
        if (conflict != 0 && moves < limit) {
            std::rotate(work.begin() + static_cast<std::ptrdiff_t>(head),
                        work.begin() + static_cast<std::ptrdiff_t>(conflict),
                        work.begin() + static_cast<std::ptrdiff_t>(conflict) + 1);
            ++moves;
            continue;
        }
        result.push_back(work[head].face);
        ++head;
        moves = 0;
        limit = faces.size();
    }
    return result;
}

inline FaceList literalSortFaces(const Solid3d& solid) {
    return literalSortFaces(solid.faces);
}
