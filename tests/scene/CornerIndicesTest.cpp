#include "scene/CornerIndices.h"

#include <gtest/gtest.h>
#include <random>

// Grown one index at a time past the three kept in place and past each array's size, then
// erased at random places back to none, the indices stay those of a plain list, and so do
// copies taken and assigned on the way (the sanitizers watch the arrays).
TEST(CornerIndices, FollowAPlainListThroughGrowthErasureAndCopies) {
    std::mt19937 rng(23);
    CornerIndices indices;
    CornerIndices assigned(std::vector<int32_t>{7, 8, 9, 10, 11});
    std::vector<int32_t> expected;
    for (int step = 0; step < 34; ++step) {
        if (step < 17) {
            const auto index = static_cast<int32_t>(rng() % 100);
            indices.push_back(index);
            expected.push_back(index);
        } else {
            const auto place = static_cast<std::ptrdiff_t>(rng() % expected.size());
            indices.erase(indices.begin() + place);
            expected.erase(expected.begin() + place);
        }
        ASSERT_EQ(indices, expected) << "step " << step;
        const CornerIndices copy = indices;
        assigned = copy;
        ASSERT_EQ(assigned, expected) << "step " << step;
        EXPECT_EQ(indices.heapBytes() == 0, expected.size() <= 3) << "step " << step;
    }
}
