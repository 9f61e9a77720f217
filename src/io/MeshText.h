#pragma once

#include <charconv>
#include <string>

// Numbers in the text of mesh files: the shortest text that reads back to the same float,
// bit for bit (std::from_chars reads it so).
namespace MeshText {

inline void append(std::string& text, float value) {
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    text.append(buffer, end);
}

} // namespace MeshText
