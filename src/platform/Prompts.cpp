#include "platform/Prompts.h"

#include <iostream>

namespace {

class StderrPrompts : public Prompts {
public:
    MessageAnswer messageBox(const std::string& text, const std::string& title, MessageIcon,
                             MessageButtons buttons) override {
        std::cerr << title << ": " << text << '\n';
        return refusal(buttons);
    }
    std::optional<std::string> inputBox(const std::string&, const std::string&,
                                        const std::string&) override {
        return std::nullopt;
    }
};

StderrPrompts fallback;

} // namespace

bool offers(MessageButtons buttons, MessageAnswer answer) {
    switch (buttons) {
    case MessageButtons::Ok:
        return answer == MessageAnswer::Ok;
    case MessageButtons::YesNo:
    case MessageButtons::YesNoDefaultNo:
        return answer == MessageAnswer::Yes || answer == MessageAnswer::No;
    case MessageButtons::SaveDiscardCancel:
        break;
    }
    return answer == MessageAnswer::Save || answer == MessageAnswer::Discard ||
           answer == MessageAnswer::Cancel;
}

MessageAnswer refusal(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::Ok:
        return MessageAnswer::Ok;
    case MessageButtons::YesNo:
    case MessageButtons::YesNoDefaultNo:
        return MessageAnswer::No;
    case MessageButtons::SaveDiscardCancel:
        break;
    }
    return MessageAnswer::Cancel;
}

namespace {
Prompts* installed = nullptr;

} // namespace

Prompts& activePrompts() {
    return installed ? *installed : fallback;
}

void installPrompts(Prompts* prompts) {
    installed = prompts;
}

void showMessage(const std::string& text, const std::string& title, MessageIcon icon) {
    activePrompts().messageBox(text, title, icon, MessageButtons::Ok);
}
