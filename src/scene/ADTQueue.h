#pragma once

#include "geometry/NumberedError.h"

#include <deque>
#include <memory>

// A first-in, first-out queue of shared objects. It holds references only: nothing is
// copied on the way in and the queue never looks inside what it holds. The depth sort
// moves every pair through these once per digit, so the deque keeps both ends O(1).
template <class T> class ADTQueue {
public:
    // Refuses nothing (a null reference) by its result rather than by an error.
    bool enqueue(std::shared_ptr<T> obj) {
        if (!obj) {
            return false;
        }
        items_.push_back(std::move(obj));
        return true;
    }

    std::shared_ptr<T> dequeue() {
        if (items_.empty()) {
            throw NumberedError(1, "Cannot dequeue from ADTQueue since there are no objects in "
                                   "queue.");
        }
        std::shared_ptr<T> front = std::move(items_.front());
        items_.pop_front();
        return front;
    }

    const std::shared_ptr<T>& peek() const {
        if (items_.empty()) {
            throw NumberedError(2,
                                "Cannot peek from ADTQueue since there are no objects in queue.");
        }
        return items_.front();
    }

    void emptyQueue() { items_.clear(); }

    bool isEmpty() const { return items_.empty(); }

    // A second queue over the same objects, in the same order; this one is left as it was.
    ADTQueue clone() const { return *this; }

private:
    std::deque<std::shared_ptr<T>> items_;
};
