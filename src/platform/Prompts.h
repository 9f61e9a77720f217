#pragma once

#include <optional>
#include <string>

enum class MessageIcon : int { None = 0, Critical = 16, Exclamation = 48, Information = 64 };
// YesNoDefaultNo asks a question whose Yes loses work: Enter answers No. SaveDiscardCancel
// asks before unsaved work is replaced: Enter answers Save.
enum class MessageButtons { Ok, YesNo, YesNoDefaultNo, SaveDiscardCancel };
enum class MessageAnswer { Ok, Yes, No, Save, Discard, Cancel };

// Whether a box with these buttons can give this answer.
bool offers(MessageButtons buttons, MessageAnswer answer);
// The answer that changes nothing: OK, No, or Cancel.
MessageAnswer refusal(MessageButtons buttons);

// Modal questions to the user: message boxes and input boxes.
class Prompts {
public:
    virtual ~Prompts() = default;
    virtual MessageAnswer messageBox(const std::string& text, const std::string& title,
                                     MessageIcon icon, MessageButtons buttons) = 0;
    // The typed text, or nothing when the user cancelled.
    virtual std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                                const std::string& defaultText) = 0;
};

// The prompts in force for the whole program. The numeric helpers report failures from
// deep inside shading and vector arithmetic, where handing a Prompts through every call
// would burden every signature on the way; they reach it here instead. The front end
// installs its own at start; tests install scripted ones. Until then a silent fallback
// answers Ok and Cancel and writes the message to standard error.
Prompts& activePrompts();
void installPrompts(Prompts* prompts);

// Shorthand for the common case: a message with an OK button.
void showMessage(const std::string& text, const std::string& title, MessageIcon icon);
