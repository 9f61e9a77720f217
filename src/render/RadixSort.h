#pragma once

#include "render/RadixObjNumEncap.h"

#include <algorithm>
#include <array>
#include <bit>
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
// first with counting passes over the bits some key uses, split into as few digits of at
// most maxDigitBits as they need (depths of -20..20 at precision 8 use 37 bits: four
// passes); a digit all keys share is skipped. Keys, words and the order are indexed by
// object, so that the hand-over reads each object once. All buffers are kept from sort to
// sort, so that a redraw allocates nothing once they have grown.
template <class T> class RadixSort {
public:
    void reset(int16_t precision) {
        precision_ = precision;
        objects_.clear();
        encaps_.clear();
        for (List& list : lists_) {
            list.members.clear();
            list.maxDigits = 0;
        }
    }

    void addObject(std::shared_ptr<T> obj, float value) {
        List& list = lists_[value >= 0.0f ? nonNegative : negative];
        RadixObjNumEncap encap;
        list.maxDigits = std::max(list.maxDigits, encap.initialize(value, precision_));
        list.members.push_back(static_cast<uint32_t>(objects_.size()));
        encaps_.push_back(encap);
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
            const auto append = [&](uint32_t object) {
                sorted.push_back(std::move(objects_[object]));
            };
            if (which == nonNegative) {
                std::for_each(order_.begin(), order_.end(), append);
            } else {
                std::for_each(order_.rbegin(), order_.rend(), append);
            }
            list.members.clear();
        }
        objects_.clear();
        encaps_.clear();
        return sorted;
    }

private:
    static constexpr int nonNegative = 0;
    static constexpr int negative = 1;
    // Wider digits take fewer passes, but every pass clears and sums all its buckets: with
    // 13 bits (three passes for depths) 100,000 keys sorted a little faster, 1,000 keys a
    // quarter slower.
    static constexpr int maxDigitBits = 11;
    struct List {
        std::vector<uint32_t> members; // object indices, in the order they were added
        int32_t maxDigits = 0;
    };

    // Leaves in order_ the list's objects by ascending magnitude.
    void sortList(const List& list) {
        order_.assign(list.members.begin(), list.members.end());
        if (order_.empty()) {
            return;
        }
        const auto wordCount =
            static_cast<size_t>(list.maxDigits / RadixObjNumEncap::digitsPerWord + 1);
        words_.resize(objects_.size() * wordCount);
        // The keys are read grouped by digit count, which decides how many steps pushing
        // and reading a key take: in the order added, about every other key would end its
        // loops at another step than the one before, each time mispredicted.
        const auto group = [&](uint32_t object) {
            return static_cast<size_t>(encaps_[object].digitCount() - precision_);
        };
        spare_.resize(list.members.size());
        counts_.assign(static_cast<size_t>(list.maxDigits - precision_) + 2, 0);
        for (const uint32_t object : list.members) {
            ++counts_[group(object) + 1];
        }
        std::partial_sum(counts_.begin(), counts_.end(), counts_.begin());
        for (const uint32_t object : list.members) {
            spare_[counts_[group(object)]++] = object;
        }
        for (const uint32_t object : spare_) {
            encaps_[object].pushPrecision(list.maxDigits);
            encaps_[object].getDigitWords(list.maxDigits, &words_[object * wordCount]);
        }
        for (size_t word = 0; word < wordCount; ++word) {
            const auto wordOf = [&](uint32_t object) { return words_[object * wordCount + word]; };
            uint64_t used = 0;
            for (const uint32_t object : list.members) {
                used |= wordOf(object);
            }
            const auto bits = static_cast<int>(std::bit_width(used));
            const int passes = (bits + maxDigitBits - 1) / maxDigitBits;
            if (passes == 0) {
                continue;
            }
            const int digitBits = (bits + passes - 1) / passes;
            const size_t buckets = size_t{1} << digitBits;
            const uint64_t mask = buckets - 1;
            counts_.assign(static_cast<size_t>(passes) * buckets, 0);
            for (const uint32_t object : list.members) {
                const uint64_t w = wordOf(object);
                for (int pass = 0; pass < passes; ++pass) {
                    ++counts_[static_cast<size_t>(pass) * buckets +
                              ((w >> (pass * digitBits)) & mask)];
                }
            }
            for (int pass = 0; pass < passes; ++pass) {
                const auto bucketStart = counts_.begin() + pass * static_cast<ptrdiff_t>(buckets);
                const auto bucketEnd = bucketStart + static_cast<ptrdiff_t>(buckets);
                // A digit all keys share leaves the order as it is.
                if (std::find(bucketStart, bucketEnd, order_.size()) != bucketEnd) {
                    continue;
                }
                std::exclusive_scan(bucketStart, bucketEnd, bucketStart, 0u);
                for (const uint32_t object : order_) {
                    spare_[bucketStart[static_cast<ptrdiff_t>(
                        (wordOf(object) >> (pass * digitBits)) & mask)]++] = object;
                }
                order_.swap(spare_);
            }
        }
    }

    int16_t precision_ = 8;
    std::vector<std::shared_ptr<T>> objects_;
    std::vector<RadixObjNumEncap> encaps_; // by object index
    std::array<List, 2> lists_;
    std::vector<uint64_t> words_; // wordCount words by object index
    std::vector<uint32_t> order_;
    std::vector<uint32_t> spare_;
    std::vector<uint32_t> counts_; // group sizes, then the bucket counts of each pass in turn
};
