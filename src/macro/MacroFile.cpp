#include "macro/MacroFile.h"

#include "io/FileBytes.h"
#include "macro/MessageText.h"
#include "platform/FileSystem.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <system_error>

namespace {

// How much is asked of the reader at a time.
constexpr size_t pieceBytes = 64 * 1024;

// An open macro file, closed when the last reader that holds it is gone.
class OpenFile {
public:
    OpenFile(FileSystem& files, FileSystem::Handle handle, uint64_t size)
        : files_(files), handle_(handle), size_(size) {}
    ~OpenFile() { files_.close(handle_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    size_t read(std::span<char> into) {
        const uint64_t left = size_ - offset_;
        into = into.first(static_cast<size_t>(std::min<uint64_t>(into.size(), left)));
        size_t count = 0;
        if (const std::error_code error = files_.read(
                handle_, offset_, {reinterpret_cast<uint8_t*>(into.data()), into.size()}, count)) {
            throw std::system_error(error);
        }
        offset_ += count;
        return count;
    }

private:
    FileSystem& files_;
    FileSystem::Handle handle_;
    uint64_t size_;
    uint64_t offset_ = 0;
};

} // namespace

MacroFile::MacroFile(std::string text)
    : MacroFile([text = std::move(text), at = size_t{0}](std::span<char> into) mutable {
          const size_t count = std::min(into.size(), text.size() - at);
          std::memcpy(into.data(), text.data() + at, count);
          at += count;
          return count;
      }) {}

MacroFile MacroFile::open(FileSystem& files, const std::string& path) {
    FileSystem::Handle handle = -1;
    FileSystem::Status status;
    if (const std::error_code error = FileBytes::openRegular(files, path, handle, status)) {
        throw std::system_error(error);
    }
    auto file = std::make_shared<OpenFile>(files, handle, status.size);
    return MacroFile([file](std::span<char> into) { return file->read(into); });
}

void MacroFile::unreadable(int line, const std::string& why) const {
    throw Unreadable{{"line " + std::to_string(line) + ": " + why}};
}

bool MacroFile::readLine(std::string& line) {
    size_t end = buffer_.find('\n', taken_);
    while (end == std::string::npos && !atEnd_) {
        if (buffer_.size() - taken_ > maxLineBytes) {
            unreadable(lineNumber_ + 1, "longer than " + std::to_string(maxLineBytes) + " bytes");
        }
        buffer_.erase(0, taken_);
        taken_ = 0;
        const size_t kept = buffer_.size();
        buffer_.resize(kept + pieceBytes);
        size_t count = 0;
        try {
            count = reader_(std::span(buffer_).subspan(kept));
        } catch (const std::system_error& error) {
            unreadable(lineNumber_ + 1, MessageText::reason(error.code()));
        }
        buffer_.resize(kept + count);
        atEnd_ = count == 0;
        end = buffer_.find('\n', kept);
    }
    if (taken_ == buffer_.size()) {
        return false;
    }
    ++lineNumber_;
    if (end == std::string::npos) {
        end = buffer_.size();
    }
    if (end - taken_ > maxLineBytes) {
        unreadable(lineNumber_, "longer than " + std::to_string(maxLineBytes) + " bytes");
    }
    line.assign(buffer_, taken_, end - taken_);
    taken_ = std::min(end + 1, buffer_.size());
    return true;
}

bool MacroFile::readAhead() {
    std::string line;
    while (!ahead_ && readLine(line)) {
        try {
            ahead_ = MacroSyntax::parse(line);
            aheadLine_ = lineNumber_;
        } catch (const MacroSyntax::Error& error) {
            unreadable(lineNumber_, error.what());
        }
    }
    return ahead_.has_value();
}

std::optional<MacroAction> MacroFile::next(const Waiting& waiting) {
    if (!readAhead()) {
        return std::nullopt;
    }
    if (waiting.kind == Waiting::Kind::Popup) {
        const auto* menu = std::get_if<macro::Menu>(&*ahead_);
        if (menu == nullptr || !menu->popup) {
            return std::nullopt;
        }
    }
    line_ = aheadLine_;
    MacroAction action = std::move(*ahead_);
    ahead_.reset();
    return action;
}

std::string MacroFile::where() const {
    return "line " + std::to_string(line_);
}
