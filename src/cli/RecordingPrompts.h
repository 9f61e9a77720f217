#pragma once

#include "platform/Prompts.h"

#include <string>
#include <vector>

// Prompts without a screen: every message box's text is kept for the tool to report, the
// answer is OK (or No), and an input box is cancelled, as no one is there to type.
class RecordingPrompts : public Prompts {
public:
    MessageAnswer messageBox(const std::string& text, const std::string&, MessageIcon,
                             MessageButtons buttons) override {
        messages_.push_back(text);
        return refusal(buttons);
    }
    std::optional<std::string> inputBox(const std::string&, const std::string&,
                                        const std::string&) override {
        return std::nullopt;
    }

    const std::vector<std::string>& messages() const { return messages_; }

private:
    std::vector<std::string> messages_;
};
