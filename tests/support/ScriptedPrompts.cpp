#include "support/ScriptedPrompts.h"

MessageAnswer ScriptedPrompts::messageBox(const std::string& text, const std::string& title,
                                          MessageIcon icon, MessageButtons buttons) {
    messages_.push_back(Message{text, title, icon, buttons});
    return answers_.take(buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::No);
}

std::optional<std::string> ScriptedPrompts::inputBox(const std::string& prompt,
                                                     const std::string& title,
                                                     const std::string& defaultText) {
    inputPrompts_.push_back(prompt);
    inputBoxes_.push_back(InputBox{prompt, title, defaultText});
    return inputs_.take(std::nullopt);
}
