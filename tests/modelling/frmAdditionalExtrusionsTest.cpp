#include "modelling/frmAdditionalExtrusions.h"

#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

// A cancelled box gives an empty value; the text typed is kept as it is.
TEST(frmAdditionalExtrusions, SelectAsksTheThreeValuesOfTheChosenKind) {
    ScriptedPrompts prompts;
    for (const auto& answer : {std::optional<std::string>("2"), std::optional<std::string>(),
                               std::optional<std::string>(" 0.5")}) {
        prompts.queueInput(answer);
    }
    frmAdditionalExtrusions picker;
    picker.pickListLine("List1", 2);
    picker.press("mnuSelect");
    EXPECT_EQ(picker.getFunction(), "Scale(2,, 0.5)");
    EXPECT_TRUE(picker.isClosed());
    ASSERT_EQ(prompts.inputBoxes().size(), 3u);
    const char* const axes[] = {"X Scale:", "Y Scale:", "Z Scale:"};
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(prompts.inputBoxes()[i].prompt, axes[i]);
        EXPECT_EQ(prompts.inputBoxes()[i].title, "Scale Setting");
        EXPECT_EQ(prompts.inputBoxes()[i].defaultText, "0");
    }
}

TEST(frmAdditionalExtrusions, CancelOrNoChoiceGivesNothing) {
    ScriptedPrompts prompts;
    frmAdditionalExtrusions none;
    none.press("mnuSelect");
    frmAdditionalExtrusions cancelled;
    cancelled.pickListLine("List1", 0);
    cancelled.press("mnuCancel");
    for (const frmAdditionalExtrusions* picker : {&none, &cancelled}) {
        EXPECT_EQ(picker->getFunction(), "");
        EXPECT_TRUE(picker->isClosed());
    }
    EXPECT_TRUE(prompts.inputBoxes().empty());
}
