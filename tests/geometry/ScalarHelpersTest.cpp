#include "geometry/Arctan.h"
#include "geometry/ArithmeticError.h"
#include "geometry/NumberText.h"
#include "geometry/RootMod.h"
#include "geometry/TrigFunctions.h"
#include "support/ScriptedPrompts.h"

#include <cmath>
#include <gtest/gtest.h>

using RootMod::SngRoot;

namespace {
constexpr double pi = 3.14159265;
}

TEST(SngRoot, RaisesToTheRoundedWholePower) {
    ScriptedPrompts prompts;
    EXPECT_EQ(SngRoot(3, 2), 9.0f);
    EXPECT_EQ(SngRoot(-2, 3), -8.0f);
    EXPECT_EQ(SngRoot(5, 0), 1.0f);
    EXPECT_EQ(SngRoot(5, 1), 5.0f);
    EXPECT_EQ(SngRoot(5, -1), 5.0f);
    // exponent - 1 rounds halves to even: 1.5 -> 2 extra factors, 2.5 -> 2, -0.5 -> 0.
    EXPECT_EQ(SngRoot(2, 2.5f), 8.0f);
    EXPECT_EQ(SngRoot(2, 3.5f), 8.0f);
    EXPECT_EQ(SngRoot(2, 0.5f), 2.0f);
    // Exponents far outside the count's range still end.
    EXPECT_EQ(SngRoot(3, -1e30f), 3.0f);
    EXPECT_EQ(SngRoot(-1, 1e9f), 1.0f);
    EXPECT_EQ(SngRoot(0.5f, 1e9f), 0.0f);
    EXPECT_TRUE(prompts.messages().empty());
}

TEST(SngRoot, VanishingProductKeepsTheSignOfTheFullProduct) {
    // (-1e-30)^2 already underflows to +0; the third factor still makes it -0.
    EXPECT_TRUE(std::signbit(SngRoot(-1e-30f, 3)));
    EXPECT_FALSE(std::signbit(SngRoot(-1e-30f, 4)));
}

TEST(SngRoot, OverflowIsReportedAndGivesZero) {
    ScriptedPrompts prompts;
    EXPECT_EQ(SngRoot(1e30f, 2), 0.0f);
    ASSERT_EQ(prompts.messages().size(), 1u);
    const auto& message = prompts.messages()[0];
    EXPECT_EQ(message.text, "Function SngRoot has failed because of an overflow error using base "
                            "1E+30 to the 2 power.");
    EXPECT_EQ(message.title, "Run-Time Error");
    EXPECT_EQ(message.icon, MessageIcon::Critical);
    EXPECT_EQ(message.buttons, MessageButtons::Ok);
}

TEST(ArcTan, AngleOfTheQuotientWithOptionalHalfTurn) {
    EXPECT_FLOAT_EQ(Arctan::ArcTan(1, 1, false), static_cast<float>(pi / 4));
    EXPECT_FLOAT_EQ(Arctan::ArcTan(1, -1, false), static_cast<float>(-pi / 4));
    EXPECT_FLOAT_EQ(Arctan::ArcTan(1, -1, true), static_cast<float>(3 * pi / 4));
    EXPECT_FLOAT_EQ(Arctan::ArcTan(-1, 2, true), static_cast<float>(std::atan(-0.5)));
}

TEST(ArcTan, SmallDivisorGivesAQuarterTurnBySignOfY) {
    const auto quarter = static_cast<float>(pi / 2);
    for (const bool fullRange : {false, true}) {
        EXPECT_EQ(Arctan::ArcTan(-5, 0.009f, fullRange), -quarter);
        EXPECT_EQ(Arctan::ArcTan(0, 0, fullRange), quarter);
        EXPECT_EQ(Arctan::ArcTan(1, -0.005f, fullRange), quarter);
    }
    // The threshold itself divides, and it looks at x alone, not at the size of y.
    EXPECT_FLOAT_EQ(Arctan::ArcTan(1, 0.01f, false), static_cast<float>(std::atan(100.0)));
    EXPECT_EQ(Arctan::ArcTan(1e-6f, 0.0099f, false), quarter);
}

TEST(TrigFunctions, ArcSinAndArcCosInsideTheOpenRange) {
    EXPECT_FLOAT_EQ(TrigFunctions::ArcSin(0.5f), static_cast<float>(pi / 6));
    EXPECT_FLOAT_EQ(TrigFunctions::ArcSin(-0.5f), static_cast<float>(-pi / 6));
    EXPECT_FLOAT_EQ(TrigFunctions::ArcCos(0), static_cast<float>(pi / 2));
    EXPECT_FLOAT_EQ(TrigFunctions::ArcCos(-0.5f), static_cast<float>(2 * pi / 3));
}

TEST(TrigFunctions, UnitAndBeyondRaiseArithmeticError) {
    for (const float x : {1.0f, -1.0f, 1.5f, -2.0f}) {
        EXPECT_THROW(TrigFunctions::ArcSin(x), ArithmeticError) << x;
        EXPECT_THROW(TrigFunctions::ArcCos(x), ArithmeticError) << x;
    }
}

TEST(NumberText, ShortFormOfASingle) {
    EXPECT_EQ(NumberText::single(1.5f), "1.5");
    EXPECT_EQ(NumberText::single(-2.0f), "-2");
    EXPECT_EQ(NumberText::single(1.0f / 3.0f), "0.3333333");
    EXPECT_EQ(NumberText::single(1e30f), "1E+30");
    EXPECT_EQ(NumberText::single(0.0f), "0");
    EXPECT_EQ(NumberText::single(-0.0f), "0");
    EXPECT_EQ(NumberText::single(1234567.0f), "1234567");
    EXPECT_EQ(NumberText::single(12345678.0f), "1.234568E+07");
    EXPECT_EQ(NumberText::single(0.0001f), "0.0001");
    EXPECT_EQ(NumberText::single(0.00001f), "1E-05");
}

TEST(NumberText, ParseSingleReadsWholeNumbersOnly) {
    const std::pair<const char*, float> numbers[] = {{" -2 ", -2.0f},
                                                     {"1e3", 1000.0f},
                                                     {"+.5", 0.5f},
                                                     {"5.", 5.0f},
                                                     {"1.5E-2", 0.015f},
                                                     {"\t7", 7.0f},
                                                     {"3.4028235e38", 3.4028235e38f},
                                                     {"1e-50", 0.0f}};
    for (const auto& [text, value] : numbers) {
        const std::optional<float> parsed = NumberText::parseSingle(text);
        ASSERT_TRUE(parsed.has_value()) << text;
        EXPECT_EQ(*parsed, value) << text;
    }
    for (const char* text : {"", "   ", "abc", "1,5", "1e", "1e+", "0x10", "inf", "-nan", ".", "-",
                             "+-1", "--1", "1 2", "2abc", "1e39", "3.5e38", "-1e400"}) {
        EXPECT_FALSE(NumberText::parseSingle(text).has_value()) << '"' << text << '"';
    }
}
