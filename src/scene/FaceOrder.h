#pragma once

#include "scene/Face3d.h"
#include "scene/SolidProjection.h"

#include <cstdint>
#include <memory>
#include <vector>

// The painter's order of a solid's faces, back to front: culled faces lead (last first),
// then the others in list order, except that a face Q that must be painted before the face
// P about to be emitted is moved in front of P (at most as many moves in a row as there
// are faces, which breaks cycles).
//
// The waiting faces' canvas boxes sit in a uniform grid, so the search for the first face
// that must precede P tests only faces whose boxes meet P's, taken in their order in the
// waiting list. That order is kept as a key per face: faces only leave the list or move to
// its front, so a face moved to the front takes a key below all others. Cycles of faces that
// keep moving each other to the front are run only until their order repeats.
class FaceOrder {
public:
    using Faces = std::vector<std::shared_ptr<Face3d>>;
    static Faces sort(const Faces& faces);
    // The same order for the faces as one viewport sees them, as places in the list.
    static std::vector<uint32_t> order(const Faces& faces, const SolidProjection& seen);

    // The order Solid3d::SortFaces gives: this one. The benchmarks put the plain scan here
    // to time whole redraws with it; the program never changes it.
    using Sorter = Faces (*)(const Faces&);
    static Sorter sorterInUse;

private:
    struct Item {
        float xmin, xmax, ymin, ymax, zmin, zmax;
        uint32_t prev, next; // neighbours in the waiting list
        // The face's plane normal and transformed corners (in corners_), read once: the
        // relation tests meet every face many times.
        float nx = 0, ny = 0, nz = 0;
        uint32_t firstCorner = 0;
        int cornerCount = 0;
        uint32_t run = 0; // the last run of moves that moved this face
    };

    struct Corner {
        float x, y, z;
    };

    // One face's corners in corners_, as the relation tests read them.
    struct Corners {
        const Corner* first;
        int count;
        int size() const { return count; }
        const Corner& operator[](int corner) const { return first[corner]; }
    };

    // A face's place in a cell, with the part of its box the search tests.
    struct Entry {
        float xmin, xmax, ymin, ymax, zmin;
        uint32_t item;
    };

    // Reads each face's culling and transformed corners from seen, or from the face itself.
    FaceOrder(const Faces& faces, const SolidProjection* seen);
    static std::vector<uint32_t> placesInOrder(const Faces& faces, const SolidProjection* seen);
    Corners cornersOf(const Item& item) const;
    void addSeenCorners(const Face3d& face, const SolidProjection& seen, Item& item);
    // Q has to be painted before P: their canvas boxes overlap, Q reaches behind P's nearest
    // depth, and the plane and edge tests agree that P lies in front of Q.
    bool mustPaintBefore(const Item& q, const Item& p) const;
    Entry entryOf(uint32_t i) const;
    void buildGrid();
    int cellX(float x) const;
    int cellY(float y) const;
    // The first waiting face after P that must be painted before it, or none.
    uint32_t firstConflict(uint32_t p);
    uint32_t scanList(uint32_t p) const;
    uint32_t scanGrid(uint32_t p, int x0, int x1, int y0, int y1);
    // Adds the waiting faces of a cell that meet P's box to candidates_ (once per search) and
    // drops the emitted faces the search passes from the cell.
    void collect(uint32_t cell, const Item& p);
    // Moves after which the state repeats one already seen, period by period up to limit.
    size_t skipRepeats(uint32_t moved, size_t moves, size_t limit);
    bool leadMatchesSnapshot() const;
    void startRun(); // after each emission
    void unlink(uint32_t i);
    void pushFront(uint32_t i);

    static constexpr uint32_t none = UINT32_MAX;
    // The mark of a face no longer waiting; a waiting face's mark is the last search that met
    // it (64 bits, so that the count never wraps).
    static constexpr uint64_t emitted = UINT64_MAX;
    std::vector<Item> items_;
    std::vector<Corner> corners_;
    std::vector<uint32_t> listed_; // where each face stands in the list sorted
    // Per face, apart from the items so that a search touches only these: its position in
    // the waiting list (smallest first) and its mark.
    std::vector<int64_t> keys_;
    std::vector<uint64_t> marks_;
    uint32_t head_ = none;
    size_t waitingCount_ = 0;
    int64_t frontKey_ = 0;
    uint64_t search_ = 0;
    // Grid over the boxes: cell c holds entries_[cellStart_[c]] onwards, cellSize_[c] of
    // them. Faces spanning too many cells are kept apart, as the last cell.
    float x0_ = 0, y0_ = 0, cellW_ = 1, cellH_ = 1;
    int nx_ = 1, ny_ = 1;
    std::vector<Entry> entries_;
    std::vector<uint32_t> cellStart_;
    std::vector<uint32_t> cellSize_;
    uint32_t wideCell_ = 0;
    std::vector<uint32_t> candidates_;
    size_t candidateCount_ = 0;
    // What a face's last search through the grid learnt: the faces it passed before the one
    // it found (keys below that one's) need no testing again while the face keeps its place,
    // since the test depends on the two faces alone. A face that moves to the front gets
    // faces behind it that were ahead of it, so its key must still be ownKey.
    struct Passed {
        int64_t ownKey = INT64_MAX;
        int64_t below = 0;
    };
    std::vector<Passed> passed_;
    // The current run of moves: faces it moved, and a snapshot of their order.
    uint32_t run_ = 1;
    size_t runFaces_ = 0;
    std::vector<uint32_t> snapshot_;
    size_t snapshotMove_ = 0;
    size_t nextSnapshot_ = 1;
    bool skipped_ = false;
};
