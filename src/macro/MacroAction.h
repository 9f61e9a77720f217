#pragma once

#include "platform/ModalDialog.h"
#include "platform/Prompts.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

// What a user does, one action per macro line. The main window hears the first group;
// the rest answer what a command asked for while it ran (a dialog, a message or input
// box, a file or colour dialog, the pop-up menu).
namespace macro {

// The client area took this size.
struct Resize {
    int width = 0;
    int height = 0;
};
// A menu item chosen by the captions of its path: from the bar, or from the pop-up menu a
// right press opened.
struct Menu {
    bool popup = false;
    std::vector<std::string> path;
};
// A key pressed in the window (desktop key codes: 13 Enter, 67 C, 69 E).
struct Key {
    int code = 0;
};
// A press or a movement of the mouse on viewport 0 to 3 (buttons 1 left, 2 right, 4 middle
// and their sums; shift 1 Shift, 2 Ctrl, 4 Alt and their sums; canvas pixels).
struct Mouse {
    bool press = false;
    int viewport = 0;
    int button = 0;
    int shift = 0;
    float x = 0;
    float y = 0;
};
// A click on a node of the scene tree: by its key ("s1", "f3-s1"), or, for a node without
// one, by the texts of its path from the top ("Cube", "Points", "P1").
struct TreeClick {
    std::string key;
    std::vector<std::string> textPath;
};
// A key pressed in the scene tree (46 Delete).
struct TreeKey {
    int code = 0;
};
// An action in the open dialog, which is named by its caption.
struct Dialog {
    std::string caption;
    ControlAction action;
};
// The button that closed a message box.
struct Message {
    MessageAnswer answer = MessageAnswer::Ok;
};
// The text an input box was left with, or nothing when it was cancelled.
struct Input {
    std::optional<std::string> text;
};
// The file dialog's choice; an empty path is a cancel.
struct File {
    std::string path;
};
// The colour dialog's choice (red + 256 x green + 65536 x blue), -1 for a cancel.
struct Color {
    int32_t color = -1;
};
// What the macro's writer saw at this point, checked as the macro plays: the text of the next
// message box, a node of the scene tree by the texts of its path from the top, how many items
// of a kind the document holds, or how many of a kind are selected.
struct Expect {
    enum class Kind { Message, Tree, Count, Selected };
    Kind kind = Kind::Message;
    std::vector<std::string> texts; // the message's text, or the node's path
    std::string items;              // Count and Selected: "solids", "faces", ...
    int count = 0;
};

} // namespace macro

using MacroAction = std::variant<macro::Resize, macro::Menu, macro::Key, macro::Mouse,
                                 macro::TreeClick, macro::TreeKey, macro::Dialog, macro::Message,
                                 macro::Input, macro::File, macro::Color, macro::Expect>;
