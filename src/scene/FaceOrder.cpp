#include "scene/FaceOrder.h"

#include "geometry/M3Ops.h"
#include "scene/FaceRelations.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

// A face whose box covers more cells than this is searched for by every face instead.
constexpr int maxCellsPerFace = 32;

template <class Q, class P> bool boxesOverlap(const Q& q, const P& p) {
    return q.xmax > p.xmin && q.xmin < p.xmax && q.ymax > p.ymin && q.ymin < p.ymax &&
           q.zmin < p.zmax;
}

// Cells per axis: about one box per cell, at most twice the square root of the count.
int cellsAlong(double extent, std::vector<double>& sizes, size_t count) {
    const int most = static_cast<int>(2 * std::sqrt(static_cast<double>(count))) + 1;
    if (!(extent > 0) || sizes.empty()) {
        return 1;
    }
    auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
    std::nth_element(sizes.begin(), middle, sizes.end());
    const double cells = *middle > 0 ? extent / (2 * *middle) : most;
    return static_cast<int>(std::clamp(cells, 1.0, static_cast<double>(most)));
}

} // namespace

FaceOrder::Sorter FaceOrder::sorterInUse = &FaceOrder::sort;

FaceOrder::Faces FaceOrder::sort(const Faces& faces) {
    Faces result;
    result.reserve(faces.size());
    for (const uint32_t place : placesInOrder(faces, nullptr)) {
        result.push_back(faces[place]);
    }
    return result;
}

std::vector<uint32_t> FaceOrder::order(const Faces& faces, const SolidProjection& seen) {
    return placesInOrder(faces, &seen);
}

std::vector<uint32_t> FaceOrder::placesInOrder(const Faces& faces, const SolidProjection* seen) {
    const auto culled = [&](size_t place) {
        return seen != nullptr ? seen->culled[place] != 0 : faces[place]->IsCulled;
    };
    std::vector<uint32_t> result;
    result.reserve(faces.size());
    for (size_t place = faces.size(); place-- > 0;) {
        if (culled(place)) {
            result.push_back(static_cast<uint32_t>(place));
        }
    }
    FaceOrder order(faces, seen);
    size_t limit = order.items_.size();
    size_t moves = 0;
    while (order.head_ != none) {
        const uint32_t p = order.head_;
        const uint32_t q = order.firstConflict(p);
        if (q != none && moves < limit) {
            order.unlink(q);
            order.pushFront(q);
            ++moves;
            moves = order.skipRepeats(q, moves, limit);
            continue;
        }
        // After limit moves without progress a cycle is broken by painting P anyway.
        result.push_back(order.listed_[p]);
        order.unlink(p);
        order.marks_[p] = emitted;
        --order.waitingCount_;
        order.startRun();
        moves = 0;
        limit = faces.size();
    }
    return result;
}

FaceOrder::Corners FaceOrder::cornersOf(const Item& item) const {
    return Corners{corners_.data() + item.firstCorner, item.cornerCount};
}

bool FaceOrder::mustPaintBefore(const Item& q, const Item& p) const {
    if (!boxesOverlap(q, p)) {
        return false;
    }
    const Corners qc = cornersOf(q);
    const Corners pc = cornersOf(p);
    return !FaceRelations::onSideOf(qc, pc, p.nx, p.ny, p.nz, true) &&
           !FaceRelations::onSideOf(pc, qc, q.nx, q.ny, q.nz, false) &&
           FaceRelations::obscures(pc, qc);
}

FaceOrder::FaceOrder(const Faces& faces, const SolidProjection* seen) {
    for (uint32_t listed = 0; listed < faces.size(); ++listed) {
        const Face3d& face = *faces[listed];
        if (seen != nullptr ? seen->culled[listed] != 0 : face.IsCulled) {
            continue;
        }
        const auto index = static_cast<uint32_t>(items_.size());
        Item item{0, 0, 0, 0, 0, 0, index - 1, index + 1};
        item.firstCorner = static_cast<uint32_t>(corners_.size());
        item.cornerCount = face.getSolidContainer() != nullptr ? std::max(face.NumPts, 0) : 0;
        if (seen != nullptr) {
            addSeenCorners(face, *seen, item);
        } else {
            face.GetExtent(item.xmin, item.xmax, item.ymin, item.ymax, item.zmin, item.zmax);
            face.TransformedNormalVector(item.nx, item.ny, item.nz);
            for (int corner = 1; corner <= item.cornerCount; ++corner) {
                Corner c{};
                face.GetTransformedPoint(corner, c.x, c.y, c.z);
                corners_.push_back(c);
            }
        }
        items_.push_back(item);
        listed_.push_back(listed);
        keys_.push_back(index);
    }
    waitingCount_ = items_.size();
    marks_.assign(items_.size(), 0);
    // Room for every face once, and one more: collect writes before it counts.
    candidates_.resize(items_.size() + 1);
    if (!items_.empty()) {
        head_ = 0;
        items_.front().prev = none;
        items_.back().next = none;
    }
    passed_.resize(items_.size());
    buildGrid();
}

void FaceOrder::buildGrid() {
    double xlo = 0, xhi = 0, ylo = 0, yhi = 0;
    bool any = false;
    std::vector<double> widths;
    std::vector<double> heights;
    for (const Item& item : items_) {
        if (!(std::isfinite(item.xmin) && std::isfinite(item.xmax) && std::isfinite(item.ymin) &&
              std::isfinite(item.ymax))) {
            continue; // placed by clamping; it meets no finite box anyway
        }
        xlo = any ? std::min(xlo, static_cast<double>(item.xmin)) : item.xmin;
        xhi = any ? std::max(xhi, static_cast<double>(item.xmax)) : item.xmax;
        ylo = any ? std::min(ylo, static_cast<double>(item.ymin)) : item.ymin;
        yhi = any ? std::max(yhi, static_cast<double>(item.ymax)) : item.ymax;
        any = true;
        widths.push_back(static_cast<double>(item.xmax) - item.xmin);
        heights.push_back(static_cast<double>(item.ymax) - item.ymin);
    }
    nx_ = cellsAlong(xhi - xlo, widths, items_.size());
    ny_ = cellsAlong(yhi - ylo, heights, items_.size());
    x0_ = static_cast<float>(xlo);
    y0_ = static_cast<float>(ylo);
    cellW_ = nx_ > 1 ? static_cast<float>((xhi - xlo) / nx_) : 1.0f;
    cellH_ = ny_ > 1 ? static_cast<float>((yhi - ylo) / ny_) : 1.0f;
    // Two passes: count each cell's entries, then place them, wide faces in the last cell.
    const auto cellCount = static_cast<size_t>(nx_) * static_cast<size_t>(ny_);
    wideCell_ = static_cast<uint32_t>(cellCount);
    cellSize_.assign(cellCount + 1, 0);
    const auto forEachCell = [&](uint32_t i, auto visit) {
        const Item& item = items_[i];
        const int x0 = cellX(item.xmin), x1 = cellX(item.xmax);
        const int y0 = cellY(item.ymin), y1 = cellY(item.ymax);
        if ((x1 - x0 + 1) * (y1 - y0 + 1) > maxCellsPerFace) {
            visit(wideCell_);
            return;
        }
        for (int y = y0; y <= y1; ++y) {
            for (int x = x0; x <= x1; ++x) {
                visit(static_cast<uint32_t>(y * nx_ + x));
            }
        }
    };
    for (uint32_t i = 0; i < items_.size(); ++i) {
        forEachCell(i, [&](uint32_t cell) { ++cellSize_[cell]; });
    }
    cellStart_.resize(cellCount + 1);
    std::exclusive_scan(cellSize_.begin(), cellSize_.end(), cellStart_.begin(), 0u);
    entries_.resize(cellStart_.back() + cellSize_.back());
    std::fill(cellSize_.begin(), cellSize_.end(), 0u);
    for (uint32_t i = 0; i < items_.size(); ++i) {
        forEachCell(
            i, [&](uint32_t cell) { entries_[cellStart_[cell] + cellSize_[cell]++] = entryOf(i); });
    }
    // By depth, so that a search stops at the first face too near to precede P (NaN last).
    const auto depthKey = [](const Entry& e) { return std::isnan(e.zmin) ? INFINITY : e.zmin; };
    const auto byDepth = [&](const Entry& a, const Entry& b) { return depthKey(a) < depthKey(b); };
    for (size_t cell = 0; cell <= cellCount; ++cell) {
        const auto first = entries_.begin() + cellStart_[cell];
        std::sort(first, first + cellSize_[cell], byDepth);
    }
}

// The corners, box and normal as Face3d computes them from its transformed points.
void FaceOrder::addSeenCorners(const Face3d& face, const SolidProjection& seen, Item& item) {
    const auto& indices = face.getIndices();
    for (int corner = 0; corner < item.cornerCount; ++corner) {
        const Point4& t = seen.points[static_cast<size_t>(indices[static_cast<size_t>(corner)])];
        corners_.push_back(Corner{t.x, t.y, t.z});
        if (corner == 0) {
            item.xmin = item.xmax = t.x;
            item.ymin = item.ymax = t.y;
            item.zmin = item.zmax = t.z;
            continue;
        }
        item.xmin = std::min(item.xmin, t.x);
        item.xmax = std::max(item.xmax, t.x);
        item.ymin = std::min(item.ymin, t.y);
        item.ymax = std::max(item.ymax, t.y);
        item.zmin = std::min(item.zmin, t.z);
        item.zmax = std::max(item.zmax, t.z);
    }
    if (item.cornerCount >= 3) {
        const Corner* c = corners_.data() + item.firstCorner;
        M3Ops::crossProduct(item.nx, item.ny, item.nz, c[1].x - c[0].x, c[1].y - c[0].y,
                            c[1].z - c[0].z, c[2].x - c[1].x, c[2].y - c[1].y, c[2].z - c[1].z);
    }
}

FaceOrder::Entry FaceOrder::entryOf(uint32_t i) const {
    const Item& item = items_[i];
    return Entry{item.xmin, item.xmax, item.ymin, item.ymax, item.zmin, i};
}

// Monotone in the coordinate, so boxes that overlap share a cell; NaN lands in cell 0.
int FaceOrder::cellX(float x) const {
    const float t = (x - x0_) / cellW_;
    return !(t >= 0) ? 0 : t >= static_cast<float>(nx_ - 1) ? nx_ - 1 : static_cast<int>(t);
}

int FaceOrder::cellY(float y) const {
    const float t = (y - y0_) / cellH_;
    return !(t >= 0) ? 0 : t >= static_cast<float>(ny_ - 1) ? ny_ - 1 : static_cast<int>(t);
}

uint32_t FaceOrder::firstConflict(uint32_t p) {
    const Item& item = items_[p];
    const int x0 = cellX(item.xmin), x1 = cellX(item.xmax);
    const int y0 = cellY(item.ymin), y1 = cellY(item.ymax);
    if ((x1 - x0 + 1) * (y1 - y0 + 1) > maxCellsPerFace) {
        return scanList(p);
    }
    // When the cells hold as many entries as there are waiting faces, the list is cheaper.
    size_t entries = cellSize_[wideCell_];
    for (int y = y0; y <= y1; ++y) {
        for (int x = x0; x <= x1; ++x) {
            entries += cellSize_[static_cast<size_t>(y * nx_ + x)];
        }
    }
    return entries >= waitingCount_ ? scanList(p) : scanGrid(p, x0, x1, y0, y1);
}

uint32_t FaceOrder::scanList(uint32_t p) const {
    for (uint32_t q = items_[p].next; q != none; q = items_[q].next) {
        if (mustPaintBefore(items_[q], items_[p])) {
            return q;
        }
    }
    return none;
}

uint32_t FaceOrder::scanGrid(uint32_t p, int x0, int x1, int y0, int y1) {
    marks_[p] = ++search_; // P is not its own candidate
    candidateCount_ = 0;
    const Item& mine = items_[p];
    collect(wideCell_, mine);
    for (int y = y0; y <= y1; ++y) {
        for (int x = x0; x <= x1; ++x) {
            collect(static_cast<uint32_t>(y * nx_ + x), mine);
        }
    }
    // Taken by their place in the waiting list, nearest the front first, from the first
    // this face has not passed before.
    uint32_t* const first = candidates_.data();
    uint32_t* end = first + candidateCount_;
    Passed& passed = passed_[p];
    if (passed.ownKey == keys_[p]) {
        end = std::remove_if(first, end, [&](uint32_t q) { return keys_[q] < passed.below; });
    }
    std::sort(first, end, [this](uint32_t a, uint32_t b) { return keys_[a] < keys_[b]; });
    const auto found =
        std::find_if(first, end, [&](uint32_t q) { return mustPaintBefore(items_[q], mine); });
    if (found == end) {
        return none;
    }
    passed = Passed{keys_[p], keys_[*found]};
    return *found;
}

// Without branches on what the entries hold, which no predictor could learn: every entry is
// written back (kept when still waiting) and every one written as a candidate (counted when
// it is one).
void FaceOrder::collect(uint32_t cell, const Item& p) {
    Entry* const first = entries_.data() + cellStart_[cell];
    Entry* const end = first + cellSize_[cell];
    Entry* kept = first;
    Entry* e = first;
    uint32_t* const found = candidates_.data();
    size_t count = candidateCount_;
    for (; e != end && e->zmin < p.zmax; ++e) {
        const Entry entry = *e;
        uint64_t& mark = marks_[entry.item];
        const bool waiting = mark != emitted;
        const bool meets = waiting & (mark != search_) & (entry.xmax > p.xmin) &
                           (entry.xmin < p.xmax) & (entry.ymax > p.ymin) & (entry.ymin < p.ymax);
        mark = meets ? search_ : mark;
        found[count] = entry.item;
        count += meets;
        *kept = entry;
        kept += waiting;
    }
    // The rest lie no deeper than P reaches. The gap the emitted faces left is closed by
    // moving the faces kept up to the rest, which costs no more than the search did, and the
    // cell starts where they now start.
    if (kept != e) {
        std::copy_backward(first, kept, e);
        const auto gap = static_cast<uint32_t>(e - kept);
        cellStart_[cell] += gap;
        cellSize_[cell] -= gap;
    }
    candidateCount_ = count;
}

// The faces moved since the last emission lead the list, most recently moved first, and the
// rest keep their order; so once no new face joins them, their order is the whole state.
// The moves are a function of that state: when it repeats (Brent's cycle search on
// snapshots taken after 1, 2, 4, ... moves), whole periods up to the limit are skipped.
size_t FaceOrder::skipRepeats(uint32_t moved, size_t moves, size_t limit) {
    if (items_[moved].run != run_) {
        items_[moved].run = run_;
        ++runFaces_;
    }
    if (skipped_) {
        return moves;
    }
    if (snapshot_.size() == runFaces_ && head_ == snapshot_.front() && leadMatchesSnapshot()) {
        const size_t period = moves - snapshotMove_;
        skipped_ = true;
        return moves + (limit - moves) / period * period;
    }
    if (moves == nextSnapshot_) {
        snapshot_.clear();
        for (uint32_t i = head_; snapshot_.size() < runFaces_; i = items_[i].next) {
            snapshot_.push_back(i);
        }
        snapshotMove_ = moves;
        nextSnapshot_ *= 2;
    }
    return moves;
}

bool FaceOrder::leadMatchesSnapshot() const {
    uint32_t i = head_;
    for (const uint32_t expected : snapshot_) {
        if (i != expected) {
            return false;
        }
        i = items_[i].next;
    }
    return true;
}

void FaceOrder::startRun() {
    ++run_;
    runFaces_ = 0;
    snapshot_.clear();
    nextSnapshot_ = 1;
    skipped_ = false;
}

void FaceOrder::unlink(uint32_t i) {
    Item& item = items_[i];
    if (item.prev != none) {
        items_[item.prev].next = item.next;
    } else {
        head_ = item.next;
    }
    if (item.next != none) {
        items_[item.next].prev = item.prev;
    }
}

void FaceOrder::pushFront(uint32_t i) {
    Item& item = items_[i];
    keys_[i] = --frontKey_;
    item.prev = none;
    item.next = head_;
    if (head_ != none) {
        items_[head_].prev = i;
    }
    head_ = i;
}
