#pragma once

#include "app/EventGuard.h"
#include "macro/MacroAction.h"
#include "platform/Prompts.h"

#include <optional>
#include <string>

class ModalDialog;

// What the program waits for the user to do when the player asks for the next action.
struct Waiting {
    enum class Kind {
        Window,  // anything the main window hears
        Dialog,  // an action in the open dialog
        Message, // the answer to a message box
        Input,   // the answer to an input box
        File,    // the file dialog's choice
        Color,   // the colour dialog's choice
        Popup,   // an item of the pop-up menu, or none to dismiss it
    };
    Kind kind = Kind::Window;
    const ModalDialog* dialog = nullptr;         // Dialog
    MessageButtons buttons = MessageButtons::Ok; // Message
};

// Where the player's actions come from: a macro file, or a program that plays a user.
class UserSource {
public:
    // Thrown by next when the source cannot be read on (a line that is no action, a failed
    // read): the play stops, and the message says where ("line 4: bad viewport 7").
    struct Unreadable : EventGuard::Stop {};

    virtual ~UserSource() = default;
    // The next action. Nothing at the end of the actions, or, while a pop-up menu waits,
    // when the next action is not one of its items (the menu is dismissed and the action
    // waits for its turn).
    virtual std::optional<MacroAction> next(const Waiting& waiting) = 0;
    // Where the last action came from, for messages ("line 12").
    virtual std::string where() const = 0;
};
