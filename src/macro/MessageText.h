#pragma once

#include <cctype>
#include <string>
#include <system_error>

// The pieces of the one-line messages korvan and korvan-cli write to a terminal.
namespace MessageText {

// The system's description of an error as the end of a sentence: "no such file or directory".
inline std::string reason(const std::error_code& error) {
    std::string text = error.message();
    if (!text.empty()) {
        text[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(text[0])));
    }
    return text;
}

// A message as one line of plain text: a control character (a line break in a file name, say)
// would split it, and a byte from 0x7f up (DEL, or part of a character in an encoding the
// terminal may not share) could be taken for a terminal command; each becomes '?'.
inline std::string oneLine(std::string message) {
    for (char& c : message) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte >= 0x7f) {
            c = '?';
        }
    }
    return message;
}

} // namespace MessageText
