#include "geometry/NumericText.h"

#include <gtest/gtest.h>

TEST(NumericText, ReadsWholeNumbersWithBlanksSignPointAndExponent) {
    EXPECT_EQ(NumericText::parseSingle(" -2 "), -2.0f);
    EXPECT_EQ(NumericText::parseSingle("1e3"), 1000.0f);
    EXPECT_EQ(NumericText::parseSingle("+.5"), 0.5f);
    EXPECT_EQ(NumericText::parseSingle("2.5E-1"), 0.25f);
    EXPECT_EQ(NumericText::parseSingle("\t7."), 7.0f);
    // Too small for a single is zero, not an error.
    EXPECT_EQ(NumericText::parseSingle("1e-60"), 0.0f);
    EXPECT_EQ(NumericText::parseSingle("3.4028234e38"), 3.4028234e38f);
}

TEST(NumericText, RefusesTextThatIsNotOneNumber) {
    for (const char* text : {"", "   ", "abc", "1,5", "1e", "1e+", "0x10", "inf", "nan", "-", ".",
                             "1 2", "2a", "--1", "1e39", "-1e39", "3.5e38"}) {
        EXPECT_FALSE(NumericText::parseSingle(text).has_value()) << '"' << text << '"';
    }
}
