#include "geometry/Arctan.h"
#include "geometry/NumberText.h"
#include "geometry/RootMod.h"
#include "support/ScriptedPrompts.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {
constexpr double pi = 3.14159265;
}

TEST(SngRoot, RaisesToTheRoundedWholePowerAndReportsOverflow) {
    ScriptedPrompts prompts;
    // exponent - 1 rounds halves to even: 2.5 -> 2 extra factors, 3.5 -> 2, 0.5 -> 0.
    // Exponents far outside the count's range still end.
    const std::tuple<float, float, float> powers[] = {
        {3, 2, 9},    {-2, 3, -8},  {5, 0, 1},      {5, 1, 5},     {5, -1, 5},     {2, 2.5f, 8},
        {2, 3.5f, 8}, {2, 0.5f, 2}, {3, -1e30f, 3}, {-1, 1e9f, 1}, {0.5f, 1e9f, 0}};
    for (const auto& [base, exponent, power] : powers) {
        EXPECT_EQ(RootMod::SngRoot(base, exponent), power) << base << " ^ " << exponent;
    }
    EXPECT_TRUE(prompts.messages().empty());
    // (-1e-30)^2 already underflows to +0; the third factor still makes it -0.
    EXPECT_TRUE(std::signbit(RootMod::SngRoot(-1e-30f, 3)));
    EXPECT_FALSE(std::signbit(RootMod::SngRoot(-1e-30f, 4)));

    EXPECT_EQ(RootMod::SngRoot(1e30f, 2), 0.0f);
    ASSERT_EQ(prompts.messages().size(), 1u);
    EXPECT_EQ(prompts.messages()[0].text, "Function SngRoot has failed because of an overflow "
                                          "error using base 1E+30 to the 2 power.");
    EXPECT_EQ(prompts.messages()[0].title, "Run-Time Error");
    EXPECT_EQ(prompts.messages()[0].icon, MessageIcon::Critical);
}

TEST(ArcTan, AngleOfTheQuotientOrAQuarterTurnBySignOfYForSmallDivisors) {
    const auto quarter = static_cast<float>(pi / 2);
    // The threshold 0.01 itself divides; it looks at x alone, not at the size of y.
    const std::tuple<float, float, bool, float> angles[] = {
        {1, 1, false, static_cast<float>(pi / 4)},
        {1, -1, false, static_cast<float>(-pi / 4)},
        {1, -1, true, static_cast<float>(3 * pi / 4)},
        {-1, 2, true, static_cast<float>(std::atan(-0.5))},
        {1, 0.01f, false, static_cast<float>(std::atan(100.0))},
        {-5, 0.009f, true, -quarter},
        {0, 0, false, quarter},
        {1, -0.005f, true, quarter},
        {1e-6f, 0.0099f, false, quarter}};
    for (const auto& [y, x, fullRange, angle] : angles) {
        EXPECT_FLOAT_EQ(Arctan::ArcTan(y, x, fullRange), angle) << y << " / " << x;
    }
}

TEST(NumberText, ShortFormOfASingleAndTheRuleForTypedNumbers) {
    const std::pair<float, const char*> texts[] = {{1.5f, "1.5"},
                                                   {-2.0f, "-2"},
                                                   {1.0f / 3.0f, "0.3333333"},
                                                   {1e30f, "1E+30"},
                                                   {-0.0f, "0"},
                                                   {1234567.0f, "1234567"},
                                                   {12345678.0f, "1.234568E+07"},
                                                   {0.0001f, "0.0001"},
                                                   {0.00001f, "1E-05"}};
    for (const auto& [value, text] : texts) {
        EXPECT_EQ(NumberText::single(value), text);
    }
    const std::pair<const char*, float> numbers[] = {{" -2 ", -2.0f},
                                                     {"1e3", 1000.0f},
                                                     {"+.5", 0.5f},
                                                     {"5.", 5.0f},
                                                     {"1.5E-2", 0.015f},
                                                     {"\t7", 7.0f},
                                                     {"3.4028235e38", 3.4028235e38f},
                                                     {"1e-50", 0.0f}};
    for (const auto& [text, value] : numbers) {
        EXPECT_EQ(NumberText::parseSingle(text), std::optional<float>(value)) << text;
    }
    for (const char* text : {"", "   ", "abc", "1,5", "1e", "1e+", "0x10", "inf", "-nan", ".", "-",
                             "+-1", "--1", "1 2", "2abc", "1e39", "3.5e38", "-1e400"}) {
        EXPECT_FALSE(NumberText::parseSingle(text).has_value()) << '"' << text << '"';
    }
}
