#include "modelling/Tokens.h"

#include <gtest/gtest.h>

TEST(Tokens, GetNextTokenSplitsAtTheFirstDelimiterAndTrims) {
    std::string text = "Rotate(1,2,3)";
    EXPECT_EQ(Tokens::getNextToken(text, "("), "Rotate");
    EXPECT_EQ(text, "1,2,3)");

    text = " a , b ";
    EXPECT_EQ(Tokens::getNextToken(text, ","), "a");
    EXPECT_EQ(text, "b");
    EXPECT_EQ(Tokens::getNextToken(text, ","), "b");
    EXPECT_EQ(text, "");
}

TEST(Tokens, TokenizeKeepsEmptyTokensBetweenDelimitersOnly) {
    std::vector<std::string> tokens{"old"};
    Tokens::tokenize("a,,b", ",", tokens);
    EXPECT_EQ(tokens, (std::vector<std::string>{"a", "", "b"}));
    Tokens::tokenize("a,", ",", tokens);
    EXPECT_EQ(tokens, (std::vector<std::string>{"a"}));
    Tokens::tokenize("  ", ",", tokens);
    EXPECT_TRUE(tokens.empty());
    Tokens::tokenize("0, 0.5 ,\t1", ",", tokens);
    EXPECT_EQ(tokens, (std::vector<std::string>{"0", "0.5", "1"}));
}

TEST(Tokens, StripNonPrintableBlanksControlAndNonAsciiCharacters) {
    const std::string text = std::string("a\tb") + '\0' + "c\x7f\xc3\xa9~";
    EXPECT_EQ(Tokens::stripNonPrintable(text), "a b c   ~");
}

TEST(Tokens, RemoveSubstringRemovesEveryOccurrence) {
    EXPECT_EQ(Tokens::removeSubstring("1,2,3))", ")"), "1,2,3");
    EXPECT_EQ(Tokens::removeSubstring("abababX", "ab"), "X");
    EXPECT_EQ(Tokens::removeSubstring("aAa", "A"), "aa");
}
