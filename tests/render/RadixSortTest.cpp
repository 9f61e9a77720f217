#include "render/RadixSort.h"

#include "support/ReferenceRadixSort.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

TEST(RadixSort, OrdersExactlyAsTheQueueSortDid) {
    // Keys whose digits carry when scaled, ties, both zeros, neighbouring singles, magnitudes
    // from far below the precision to far beyond 19 digits, where a key spans several words,
    // and keys whose products overflow or that are not finite at all (all such digits are 0).
    std::mt19937 random(977);
    std::uniform_int_distribution<int> pick(0, 5);
    float previous = 1.0f;
    std::uniform_int_distribution<int> exponent(-12, 30);
    std::uniform_real_distribution<float> mantissa(-10.0f, 10.0f);
    std::uniform_int_distribution<int> tenths(-50, 50);
    const float inf = std::numeric_limits<float>::infinity();
    const std::vector<float> fixed{0.0f,  -0.0f,  1e-9f, -1e-9f, 1.3f,         12.999999f,
                                   3e38f, -3e38f, inf,   -inf,   std::nanf("")};
    RadixSort<int> sorter;
    for (int round = 0; round < 40; ++round) {
        ReferenceRadixSort<int> reference(round % 3 == 0 ? 4 : 8);
        sorter.reset(round % 3 == 0 ? 4 : 8);
        for (int i = 0; i < 300; ++i) {
            // Neighbours (kind 2) differ only in the last digits, where rounding decides.
            const int kind = pick(random);
            const float key =
                kind == 0   ? fixed[static_cast<size_t>(i) % fixed.size()]
                : kind == 1 ? static_cast<float>(tenths(random)) / 10.0f
                : kind == 2
                    ? std::nextafter(previous, pick(random) < 3 ? 1e38f : -1e38f)
                    : mantissa(random) * std::pow(10.0f, static_cast<float>(exponent(random)));
            previous = key;
            const auto object = std::make_shared<int>(i);
            reference.addObject(object, key);
            sorter.addObject(object, key);
        }
        ASSERT_EQ(sorter.getSortedObjects(), reference.getSortedObjects()) << "round " << round;
    }
}
