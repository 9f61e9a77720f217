#pragma once

#include "geometry/RootMod.h"
#include "scene/ADTQueue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <memory>
#include <vector>

// The first, queue-based depth sort, kept as the definition of the order the fast one must
// reproduce: one queue pair per key, one digit read per key and position.
template <class T> class ReferenceRadixSort {
public:
    explicit ReferenceRadixSort(int16_t precision) : precision_(precision) {}

    void addObject(std::shared_ptr<T> obj, float value) {
        auto pair = std::make_shared<Pair>();
        pair->obj = std::move(obj);
        pair->work = std::fabs(value);
        int32_t integerDigits = 0;
        while (pair->work >= 1.0f && std::isfinite(pair->work)) {
            pair->work = static_cast<float>(static_cast<double>(pair->work) * 0.1);
            ++integerDigits;
        }
        pair->digitCount = integerDigits + precision_;
        auto& [list, maxDigits] = value >= 0.0f ? nonNegative_ : negative_;
        maxDigits = std::max(maxDigits, pair->digitCount);
        list.push_back(std::move(pair));
    }

    std::vector<std::shared_ptr<T>> getSortedObjects() {
        std::vector<std::shared_ptr<T>> sorted;
        for (const auto& pair : sortList(negative_, false)) {
            sorted.push_back(pair->obj);
        }
        for (const auto& pair : sortList(nonNegative_, true)) {
            sorted.push_back(pair->obj);
        }
        return sorted;
    }

private:
    struct Pair {
        std::shared_ptr<T> obj;
        float work = 0.0f;
        int32_t digitCount = 0;

        int32_t digit(int32_t position) const {
            if (position > digitCount || position < 0) {
                return 0;
            }
            float w = work;
            for (int32_t i = position; i <= digitCount; ++i) {
                w = w * 10.0f;
            }
            if (!std::isfinite(w)) {
                return 0;
            }
            if (w < 9.0e18f) {
                return static_cast<int32_t>(static_cast<int64_t>(w) % 10);
            }
            return static_cast<int32_t>(std::fmod(std::trunc(w), 10.0f));
        }
    };
    using List = std::pair<std::vector<std::shared_ptr<Pair>>, int32_t>;

    static std::vector<std::shared_ptr<Pair>> sortList(List& entry, bool ascending) {
        auto& [list, maxDigits] = entry;
        if (list.size() < 2) {
            return list;
        }
        std::array<std::array<ADTQueue<Pair>, 10>, 2> buckets;
        int current = 0;
        for (auto& pair : list) {
            if (pair->digitCount < maxDigits) {
                pair->work =
                    pair->work *
                    RootMod::SngRoot(0.1f, static_cast<float>(maxDigits - pair->digitCount));
            }
            buckets[0][static_cast<size_t>(pair->digit(0))].enqueue(pair);
        }
        for (int32_t position = 1; position <= maxDigits; ++position) {
            for (auto& bucket : buckets[static_cast<size_t>(current)]) {
                while (!bucket.isEmpty()) {
                    auto pair = bucket.dequeue();
                    const auto digit = static_cast<size_t>(pair->digit(position));
                    buckets[static_cast<size_t>(1 - current)][digit].enqueue(std::move(pair));
                }
            }
            current = 1 - current;
        }
        std::vector<std::shared_ptr<Pair>> sorted;
        for (auto& bucket : buckets[static_cast<size_t>(current)]) {
            while (!bucket.isEmpty()) {
                sorted.push_back(bucket.dequeue());
            }
        }
        if (!ascending) {
            std::reverse(sorted.begin(), sorted.end());
        }
        return sorted;
    }

    int16_t precision_;
    List nonNegative_{{}, 0};
    List negative_{{}, 0};
};
