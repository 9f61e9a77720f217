#include "geometry/PackedColor.h"

#include <gtest/gtest.h>

TEST(PackedColor, PackClampsEachChannelOnItsOwnAndSplitIgnoresTheTopByte) {
    // Out-of-range channels saturate instead of carrying into their neighbours.
    const std::tuple<int, int, int, int32_t> packed[] = {{64, 128, 255, 16744512},
                                                         {256, 0, 0, 255},
                                                         {10, -1, 0, 10},
                                                         {0, 300, 0, 255 * 256},
                                                         {0, 0, -300, 0}};
    for (const auto& [r, g, b, color] : packed) {
        EXPECT_EQ(PackedColor::pack(r, g, b), color) << r << "," << g << "," << b;
    }
    const PackedColor flagged = PackedColor::split(0x7F80FF40);
    EXPECT_EQ(std::tuple(flagged.red, flagged.green, flagged.blue), std::tuple(64, 255, 128));
}
