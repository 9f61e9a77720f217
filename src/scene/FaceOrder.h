#pragma once

#include "scene/Face3d.h"

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

    // The order Solid3d::SortFaces gives: this one. The benchmarks put the plain scan here
    // to time whole redraws with it; the program never changes it.
    using Sorter = Faces (*)(const Faces&);
    static Sorter sorterInUse;

private:
    struct Item {
        Face3d* face;
        float xmin, xmax, ymin, ymax, zmin, zmax;
        int64_t key;         // position in the waiting list, smallest first
        uint32_t prev, next; // neighbours in the waiting list
        // The face's plane normal and transformed corners (in corners_), read once: the
        // plane tests meet every face many times.
        float nx = 0, ny = 0, nz = 0;
        uint32_t firstCorner = 0, cornerCount = 0;
        uint32_t seen = 0; // the last search that met this face
        uint32_t run = 0;  // the last run of moves that moved this face
        bool waiting = true;
    };

    struct Corner {
        float x, y, z;
    };

    // A face's place in a cell, with the part of its box the search tests.
    struct Entry {
        float xmin, xmax, ymin, ymax, zmin;
        uint32_t item;
    };

    explicit FaceOrder(const Faces& faces);
    // Q has to be painted before P: their canvas boxes overlap, Q reaches behind P's nearest
    // depth, and the plane and edge tests agree that P lies in front of Q.
    bool mustPaintBefore(const Item& q, const Item& p) const;
    // Every corner of a lies on the viewer's side (or the far side) of b's plane, within
    // 0.01: Face3d::IsAbove and IsBelow on the values read once.
    bool onSideOf(const Item& a, const Item& b, bool towardsViewer) const;
    Entry entryOf(uint32_t i) const;
    void buildGrid();
    int cellX(float x) const;
    int cellY(float y) const;
    // The first waiting face after P that must be painted before it, or none.
    uint32_t firstConflict(uint32_t p);
    uint32_t scanList(uint32_t p) const;
    uint32_t scanGrid(uint32_t p, int x0, int x1, int y0, int y1);
    // Moves after which the state repeats one already seen, period by period up to limit.
    size_t skipRepeats(uint32_t moved, size_t moves, size_t limit);
    bool leadMatchesSnapshot() const;
    void startRun(); // after each emission
    void unlink(uint32_t i);
    void pushFront(uint32_t i);

    static constexpr uint32_t none = UINT32_MAX;
    std::vector<Item> items_;
    std::vector<Corner> corners_;
    std::vector<std::shared_ptr<Face3d>> owners_;
    uint32_t head_ = none;
    size_t waitingCount_ = 0;
    int64_t frontKey_ = 0;
    uint32_t search_ = 0;
    // Grid over the boxes; faces spanning too many cells are kept apart in wide_.
    float x0_ = 0, y0_ = 0, cellW_ = 1, cellH_ = 1;
    int nx_ = 1, ny_ = 1;
    std::vector<std::vector<Entry>> cells_;
    std::vector<Entry> wide_;
    std::vector<uint32_t> candidates_;
    // The current run of moves: faces it moved, and a snapshot of their order.
    uint32_t run_ = 1;
    size_t runFaces_ = 0;
    std::vector<uint32_t> snapshot_;
    size_t snapshotMove_ = 0;
    size_t nextSnapshot_ = 1;
    bool skipped_ = false;
};
