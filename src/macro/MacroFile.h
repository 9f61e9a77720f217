#pragma once

#include "macro/MacroSyntax.h"
#include "macro/UserSource.h"

#include <functional>
#include <span>
#include <string>

class FileSystem;

// The actions of a macro, read a line at a time as the player asks for them: however long
// the macro, memory holds one line of it (and no line may exceed maxLineBytes). A line that
// is no action, or a read that fails, throws UserSource::Unreadable ("line N: ...") when
// the play comes to it.
class MacroFile : public UserSource {
public:
    static constexpr size_t maxLineBytes = 1024 * 1024;

    // Fills into with the macro's next bytes and returns how many, 0 at its end; throws
    // std::system_error when the bytes cannot be read.
    using Reader = std::function<size_t(std::span<char> into)>;

    explicit MacroFile(Reader reader) : reader_(std::move(reader)) {}
    // A macro held in memory.
    explicit MacroFile(std::string text);
    // The macro file at path, opened now: a regular file only (no device, pipe or folder),
    // never read past the size it had when it was opened. Throws std::system_error when it
    // cannot be opened.
    static MacroFile open(FileSystem& files, const std::string& path);

    std::optional<MacroAction> next(const Waiting& waiting) override;
    std::string where() const override;

private:
    // The next action of the macro into ahead_; false at its end.
    bool readAhead();
    // The next line, without its line break, into line; false at the end of the macro.
    bool readLine(std::string& line);
    [[noreturn]] void unreadable(int line, const std::string& why) const;

    Reader reader_;
    std::string buffer_;               // bytes read but not yet taken
    size_t taken_ = 0;                 // how many bytes of buffer_ are taken
    bool atEnd_ = false;               // the reader has no more bytes
    int lineNumber_ = 0;               // the last line read
    std::optional<MacroAction> ahead_; // the next action, read but not handed out
    int aheadLine_ = 0;
    int line_ = 0; // the line of the last action handed out
};
