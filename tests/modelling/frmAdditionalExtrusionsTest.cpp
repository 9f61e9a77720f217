#include "modelling/frmAdditionalExtrusions.h"

#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

// Without a chosen kind nothing is asked; a cancelled box gives an empty value; the text
// typed is kept as it is.
TEST(frmAdditionalExtrusions, SelectAsksTheThreeValuesOfTheChosenKindAndNothingWithoutOne) {
    ScriptedPrompts prompts;
    frmAdditionalExtrusions none;
    none.press("mnuSelect");
    EXPECT_EQ(none.getFunction(), "");
    EXPECT_TRUE(prompts.inputBoxes().empty());

    prompts.queueInput("2", std::nullopt, " 0.5");
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
