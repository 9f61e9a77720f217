#include "modelling/Tokens.h"

#include <gtest/gtest.h>

TEST(Tokens, SplittingTrimmingAndRemoving) {
    std::string text = "Rotate( 1,2,3)";
    EXPECT_EQ(Tokens::getNextToken(text, "("), "Rotate");
    EXPECT_EQ(text, "1,2,3)");
    text = " a , b ";
    EXPECT_EQ(Tokens::getNextToken(text, ","), "a");
    EXPECT_EQ(Tokens::getNextToken(text, ","), "b");
    EXPECT_EQ(text, "");

    // Empty tokens count between delimiters only.
    const std::pair<const char*, std::vector<std::string>> tokenized[] = {
        {"a,,b", {"a", "", "b"}}, {"a,", {"a"}}, {"  ", {}}, {"0, 0.5 ,\t1", {"0", "0.5", "1"}}};
    for (const auto& [line, expected] : tokenized) {
        std::vector<std::string> tokens{"old"};
        Tokens::tokenize(line, ",", tokens);
        EXPECT_EQ(tokens, expected) << line;
    }
    EXPECT_EQ(Tokens::stripNonPrintable(std::string("a\tb") + '\0' + "c\x7f\xc3\xa9~"),
              "a b c   ~");
    EXPECT_EQ(Tokens::removeSubstring("1,2,3))", ")"), "1,2,3");
    EXPECT_EQ(Tokens::removeSubstring("abababX", "ab"), "X");
}
