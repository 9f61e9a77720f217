#include "platform/Prompts.h"

#include <iostream>

namespace {

class StderrPrompts : public Prompts {
public:
    MessageAnswer messageBox(const std::string& text, const std::string& title, MessageIcon,
                             MessageButtons buttons) override {
        std::cerr << title << ": " << text << '\n';
        return buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::No;
    }
    std::optional<std::string> inputBox(const std::string&, const std::string&,
                                        const std::string&) override {
        return std::nullopt;
    }
};

StderrPrompts fallback;
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
