#pragma once

#include "render/RadixObjNumEncap.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <numeric>
#include <vector>

// Orders objects ascending by a single-precision key with a decimal radix sort; equal
// keys keep the order in which they were added. The renderer uses it to paint scene
// objects back to front by their largest depth.
//
// Distributing keys one decimal digit per pass is the same as a stable sort by the
// sequence of their digits, most significant first. So each key's digits are read once
// and packed into 64-bit words of 19 digits, and the words are sorted least significant
// first, a byte per counting pass; a byte all keys share is skipped. All buffers are kept
// from sort to sort, so that a redraw allocates nothing once they have grown.
template <class T> class RadixSort {
public:
    void reset(int16_t precision) {
        precision_ = precision;
        objects_.clear();
        for (List& list : lists_) {
            list.keys.clear();
            list.maxDigits = 0;
        }
    }

    void addObject(std::shared_ptr<T> obj, float value) {
        List& list = lists_[value >= 0.0f ? nonNegative : negative];
        Key key;
        key.object = static_cast<uint32_t>(objects_.size());
        list.maxDigits = std::max(list.maxDigits, key.encap.initialize(value, precision_));
        list.keys.push_back(key);
        objects_.push_back(std::move(obj));
    }

    // Both lists are sorted by magnitude; the negative one descending, so that together
    // they run from the most negative key to the largest. The objects are handed over, not
    // copied: a sort takes the objects added since the last reset.
    std::vector<std::shared_ptr<T>> getSortedObjects() {
        std::vector<std::shared_ptr<T>> sorted;
        sorted.reserve(objects_.size());
        for (const int which : {negative, nonNegative}) {
            List& list = lists_[which];
            sortList(list);
            const auto append = [&](uint32_t index) {
                sorted.push_back(std::move(objects_[list.keys[index].object]));
            };
            if (which == nonNegative) {
                std::for_each(order_.begin(), order_.end(), append);
            } else {
                std::for_each(order_.rbegin(), order_.rend(), append);
            }
            list.keys.clear();
        }
        objects_.clear();
        return sorted;
    }

private:
    static constexpr int nonNegative = 0;
    static constexpr int negative = 1;
    struct Key {
        RadixObjNumEncap encap;
        uint32_t object = 0;
    };
    struct List {
        std::vector<Key> keys;
        int32_t maxDigits = 0;
    };

    // Leaves in order_ the positions in list.keys by ascending magnitude.
    void sortList(List& list) {
        const size_t count = list.keys.size();
        const auto wordCount =
            static_cast<size_t>(list.maxDigits / RadixObjNumEncap::digitsPerWord + 1);
        words_.resize(count * wordCount);
        for (size_t i = 0; i < count; ++i) {
            list.keys[i].encap.pushPrecision(list.maxDigits);
            list.keys[i].encap.getDigitWords(list.maxDigits, &words_[i * wordCount]);
        }
        order_.resize(count);
        std::iota(order_.begin(), order_.end(), 0u);
        spare_.resize(count);
        for (size_t word = 0; word < wordCount; ++word) {
            // Bytes above the highest one any key uses are 0 for all and need no pass.
            uint64_t used = 0;
            for (size_t i = 0; i < count; ++i) {
                used |= words_[i * wordCount + word];
            }
            size_t byteCount = 0;
            for (; byteCount < 8 && (used >> (8 * byteCount)) != 0; ++byteCount) {
            }
            std::array<std::array<uint32_t, 256>, 8> counts{};
            for (size_t i = 0; i < count; ++i) {
                const uint64_t w = words_[i * wordCount + word];
                for (size_t b = 0; b < byteCount; ++b) {
                    ++counts[b][(w >> (8 * b)) & 0xFF];
                }
            }
            for (size_t b = 0; b < byteCount; ++b) {
                auto& bucketStart = counts[b];
                if (std::find(bucketStart.begin(), bucketStart.end(), count) != bucketStart.end()) {
                    continue;
                }
                std::exclusive_scan(bucketStart.begin(), bucketStart.end(), bucketStart.begin(),
                                    0u);
                for (const uint32_t index : order_) {
                    const uint64_t w = words_[index * wordCount + word];
                    spare_[bucketStart[(w >> (8 * b)) & 0xFF]++] = index;
                }
                order_.swap(spare_);
            }
        }
    }

    int16_t precision_ = 8;
    std::vector<std::shared_ptr<T>> objects_;
    std::array<List, 2> lists_;
    std::vector<uint64_t> words_;
    std::vector<uint32_t> order_;
    std::vector<uint32_t> spare_;
};
