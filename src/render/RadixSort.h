#pragma once

#include "render/RadixObjNumEncap.h"
#include "scene/ADTQueue.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <vector>

// Orders objects ascending by a single-precision key with a decimal radix sort; equal
// keys keep the order in which they were added. The renderer uses it to paint scene
// objects back to front by their largest depth.
template <class T> class RadixSort {
public:
    void reset(int16_t precision) {
        maxDigitsNonNegative_ = 0;
        maxDigitsNegative_ = 0;
        precision_ = precision;
        nonNegative_.clear();
        negative_.clear();
    }

    void addObject(std::shared_ptr<T> obj, float value) {
        auto pair = std::make_shared<RadixObjNumEncap>();
        const int32_t digits = pair->initialize(std::move(obj), value, precision_);
        if (value >= 0.0f) {
            nonNegative_.push_back(std::move(pair));
            maxDigitsNonNegative_ = std::max(maxDigitsNonNegative_, digits);
        } else {
            negative_.push_back(std::move(pair));
            maxDigitsNegative_ = std::max(maxDigitsNegative_, digits);
        }
    }

    // Both lists are sorted by magnitude; the negative one descending, so that together
    // they run from the most negative key to the largest.
    std::vector<std::shared_ptr<T>> getSortedObjects() {
        nonNegative_ = sortList(std::move(nonNegative_), maxDigitsNonNegative_, true);
        negative_ = sortList(std::move(negative_), maxDigitsNegative_, false);
        std::vector<std::shared_ptr<T>> sorted;
        sorted.reserve(negative_.size() + nonNegative_.size());
        for (const auto* list : {&negative_, &nonNegative_}) {
            for (const auto& pair : *list) {
                // Only addObject puts objects in, always as a T.
                sorted.push_back(std::static_pointer_cast<T>(pair->getObject()));
            }
        }
        return sorted;
    }

private:
    using Pair = std::shared_ptr<RadixObjNumEncap>;
    using Buckets = std::array<ADTQueue<RadixObjNumEncap>, 10>;

    std::vector<Pair> sortList(std::vector<Pair> list, int32_t maxDigits, bool ascending) {
        if (list.size() < 2) {
            return list;
        }
        for (Buckets& set : buckets_) {
            for (auto& bucket : set) {
                bucket.emptyQueue();
            }
        }
        // The least significant digit is distributed straight from the list, which keeps
        // pairs with equal digits in the order they were added.
        int current = 0;
        for (Pair& pair : list) {
            pair->pushPrecision(maxDigits);
            const int32_t digit = pair->getRadixValue(0);
            buckets_[current][digit].enqueue(std::move(pair));
        }
        for (int32_t position = 1; position <= maxDigits; ++position) {
            for (auto& bucket : buckets_[current]) {
                while (!bucket.isEmpty()) {
                    Pair pair = bucket.dequeue();
                    const int32_t digit = pair->getRadixValue(position);
                    buckets_[1 - current][digit].enqueue(std::move(pair));
                }
            }
            current = 1 - current;
        }
        list.clear();
        for (auto& bucket : buckets_[current]) {
            while (!bucket.isEmpty()) {
                list.push_back(bucket.dequeue());
            }
        }
        if (!ascending) {
            std::reverse(list.begin(), list.end());
        }
        return list;
    }

    int32_t maxDigitsNonNegative_ = 0;
    int32_t maxDigitsNegative_ = 0;
    int16_t precision_ = 8;
    std::vector<Pair> nonNegative_;
    std::vector<Pair> negative_;
    // Kept from sort to sort, only emptied, so that a redraw allocates no buckets.
    std::array<Buckets, 2> buckets_;
};
