#include "support/ScriptedPrompts.h"

MessageAnswer ScriptedPrompts::messageBox(const std::string& text, const std::string& title,
                                          MessageIcon icon, MessageButtons buttons) {
    messages_.push_back(Message{text, title, icon, buttons});
    if (!answers_.empty()) {
        const MessageAnswer answer = answers_.front();
        answers_.pop_front();
        return answer;
    }
    return buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::No;
}

std::optional<std::string> ScriptedPrompts::inputBox(const std::string& prompt,
                                                     const std::string& title,
                                                     const std::string& defaultText) {
    inputPrompts_.push_back(prompt);
    inputBoxes_.push_back(InputBox{prompt, title, defaultText});
    if (!inputs_.empty()) {
        auto input = inputs_.front();
        inputs_.pop_front();
        return input;
    }
    return std::nullopt;
}
