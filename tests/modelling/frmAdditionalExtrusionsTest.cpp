#include "modelling/frmAdditionalExtrusions.h"

#include "platform/Prompts.h"

#include <gtest/gtest.h>

namespace {

// Records every input box in full and answers from a queue (the default when it runs dry).
class InputRecorder : public Prompts {
public:
    struct Input {
        std::string prompt;
        std::string title;
        std::string defaultText;
    };
    InputRecorder() { installPrompts(this); }
    ~InputRecorder() override { installPrompts(nullptr); }

    MessageAnswer messageBox(const std::string&, const std::string&, MessageIcon,
                             MessageButtons) override {
        return MessageAnswer::Ok;
    }
    std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override {
        inputs.push_back({prompt, title, defaultText});
        if (answers.empty()) {
            return defaultText;
        }
        auto answer = answers.front();
        answers.erase(answers.begin());
        return answer;
    }

    std::vector<std::optional<std::string>> answers;
    std::vector<Input> inputs;
};

} // namespace

TEST(frmAdditionalExtrusions, SelectAsksThreeValuesOfTheChosenKind) {
    InputRecorder prompts;
    prompts.answers = {"2", "2", "1"};
    frmAdditionalExtrusions picker;
    EXPECT_EQ(picker.List1.items, (std::vector<std::string>{"Translate", "Rotate", "Scale"}));
    picker.pickListLine("List1", 2);
    picker.press("mnuSelect");
    EXPECT_EQ(picker.getFunction(), "Scale(2,2,1)");
    EXPECT_TRUE(picker.isClosed());
    ASSERT_EQ(prompts.inputs.size(), 3u);
    EXPECT_EQ(prompts.inputs[0].prompt, "X Scale:");
    EXPECT_EQ(prompts.inputs[1].prompt, "Y Scale:");
    EXPECT_EQ(prompts.inputs[2].prompt, "Z Scale:");
    EXPECT_EQ(prompts.inputs[2].title, "Scale Setting");
    EXPECT_EQ(prompts.inputs[2].defaultText, "0");
}

TEST(frmAdditionalExtrusions, DefaultsCancelledBoxesAndOtherKinds) {
    InputRecorder prompts;
    frmAdditionalExtrusions translate;
    translate.pickListLine("List1", 0);
    translate.press("mnuSelect");
    EXPECT_EQ(translate.getFunction(), "Translate(0,0,0)");
    EXPECT_EQ(prompts.inputs[0].prompt, "X Translation:");
    EXPECT_EQ(prompts.inputs[0].title, "Translate Setting");

    // A cancelled box contributes an empty value; the text typed is kept as it is.
    prompts.inputs.clear();
    prompts.answers = {std::nullopt, " 0.5", "x"};
    frmAdditionalExtrusions rotate;
    rotate.pickListLine("List1", 1);
    rotate.press("mnuSelect");
    EXPECT_EQ(rotate.getFunction(), "Rotate(, 0.5,x)");
    EXPECT_EQ(prompts.inputs[1].prompt, "Y Rotation:");
    EXPECT_EQ(prompts.inputs[1].title, "Rotation Setting");
}

TEST(frmAdditionalExtrusions, CancelOrNoChoiceGivesNothing) {
    InputRecorder prompts;
    frmAdditionalExtrusions none;
    none.press("mnuSelect");
    EXPECT_EQ(none.getFunction(), "");
    EXPECT_TRUE(none.isClosed());
    EXPECT_TRUE(prompts.inputs.empty());

    frmAdditionalExtrusions cancelled;
    cancelled.pickListLine("List1", 0);
    cancelled.press("mnuCancel");
    EXPECT_EQ(cancelled.getFunction(), "");
    EXPECT_TRUE(cancelled.isClosed());
}
