#pragma once

#include "platform/Prompts.h"
#include "support/AnswerQueue.h"

#include <optional>
#include <string>
#include <vector>

// Prompts that answer from queues the test fills and record every question asked.
// Unscripted message boxes give the answer that changes nothing (refusal); unscripted input
// boxes cancel.
// While one exists it is the program's active prompts.
class ScriptedPrompts : public Prompts {
public:
    struct Message {
        std::string text;
        std::string title;
        MessageIcon icon;
        MessageButtons buttons;
    };
    struct InputBox {
        std::string prompt;
        std::string title;
        std::string defaultText;
    };

    ScriptedPrompts() { installPrompts(this); }
    ~ScriptedPrompts() override { installPrompts(nullptr); }
    ScriptedPrompts(const ScriptedPrompts&) = delete;
    ScriptedPrompts& operator=(const ScriptedPrompts&) = delete;

    MessageAnswer messageBox(const std::string& text, const std::string& title, MessageIcon icon,
                             MessageButtons buttons) override {
        messages_.push_back(Message{text, title, icon, buttons});
        return answers_.take(refusal(buttons));
    }
    std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override {
        inputBoxes_.push_back(InputBox{prompt, title, defaultText});
        return inputs_.take(std::nullopt);
    }

    void queueAnswer(MessageAnswer answer) { answers_.push(answer); }
    // The answers of the next input boxes, in turn; std::nullopt cancels.
    template <class... Inputs> void queueInput(Inputs... inputs) {
        (inputs_.push(std::optional<std::string>(inputs)), ...);
    }

    const std::vector<Message>& messages() const { return messages_; }
    // Every input box asked, with its title and default text.
    const std::vector<InputBox>& inputBoxes() const { return inputBoxes_; }
    void forget() {
        messages_.clear();
        inputBoxes_.clear();
    }

private:
    AnswerQueue<MessageAnswer> answers_;
    AnswerQueue<std::optional<std::string>> inputs_;
    std::vector<Message> messages_;
    std::vector<InputBox> inputBoxes_;
};
