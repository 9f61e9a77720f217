#pragma once

#include "macro/MacroAction.h"

#include <stdexcept>
#include <string>
#include <string_view>

// The text form of macro actions: one action a line, words separated by spaces, a word in
// double quotes when it is text the user typed or read (captions, texts, paths), with \"
// \\ \n \r and \t inside quotes. Blank lines and lines beginning with # are comments.
//
//     resize 1000 600
//     menu "&Workplane" "&New Workplane"
//     dialog "Workplane" type txtName "Ground"
//     dialog "Workplane" press cmdOK
//     mouse-press 3 1 0 412 230
//     message yes
//
// docs/MACROS.md lists every line.
namespace MacroSyntax {

// A line that is not an action; what() says why, without the line's number.
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// One line for the action, without the line break.
std::string format(const MacroAction& action);
// The action a line holds, or nothing for a blank or comment line; throws Error.
std::optional<MacroAction> parse(std::string_view line);

} // namespace MacroSyntax
