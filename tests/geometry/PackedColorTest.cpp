#include "geometry/PackedColor.h"

#include <gtest/gtest.h>

TEST(PackedColor, PackClampsEachChannelOnItsOwn) {
    EXPECT_EQ(PackedColor::pack(64, 128, 255), 16744512);
    // Out-of-range channels saturate instead of carrying into their neighbours.
    EXPECT_EQ(PackedColor::pack(256, 0, 0), 255);
    EXPECT_EQ(PackedColor::pack(10, -1, 0), 10);
    EXPECT_EQ(PackedColor::pack(0, 300, 0), 255 * 256);
    EXPECT_EQ(PackedColor::pack(0, 0, -300), 0);
}

TEST(PackedColor, SplitIgnoresTheTopByte) {
    const PackedColor orange = PackedColor::split(16744512);
    EXPECT_EQ(orange.red, 64);
    EXPECT_EQ(orange.green, 128);
    EXPECT_EQ(orange.blue, 255);
    const PackedColor flagged = PackedColor::split(0x7F0000FF);
    EXPECT_EQ(flagged.red, 255);
    EXPECT_EQ(flagged.blue, 0);
}
