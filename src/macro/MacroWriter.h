#pragma once

#include "macro/MacroAction.h"

#include <functional>
#include <ostream>
#include <string>
#include <string_view>

class FileSystem;

// Writes actions as macro lines, each handed on as it is written, so that a program that
// stops abruptly leaves every action up to the one that stopped it. A line that cannot be
// written throws std::system_error.
class MacroWriter {
public:
    // Takes one line, its line break included, to where it stays; throws std::system_error.
    using Sink = std::function<void(std::string_view line)>;

    // Starts the macro with its heading comment.
    explicit MacroWriter(Sink sink);
    // Onto a stream, flushed after every line.
    explicit MacroWriter(std::ostream& out);
    // A macro file at path, made new or an existing regular file emptied; anything else (a
    // folder, a device, a pipe) is refused. Throws std::system_error.
    static MacroWriter create(FileSystem& files, const std::string& path);

    void write(const MacroAction& action);

private:
    Sink sink_;
};
