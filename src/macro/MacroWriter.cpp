#include "macro/MacroWriter.h"

#include "io/FileError.h"
#include "macro/MacroSyntax.h"
#include "platform/FileSystem.h"

#include <memory>
#include <system_error>

namespace {

// An open macro file, closed when the last writer that holds it is gone.
class OpenFile {
public:
    OpenFile(FileSystem& files, FileSystem::Handle handle) : files_(files), handle_(handle) {}
    ~OpenFile() { files_.close(handle_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    void write(std::string_view text) {
        while (!text.empty()) {
            size_t count = 0;
            std::error_code error = files_.write(
                handle_, {reinterpret_cast<const uint8_t*>(text.data()), text.size()}, count);
            if (!error && count == 0) {
                error = std::make_error_code(std::errc::io_error);
            }
            if (error) {
                throw std::system_error(error);
            }
            text.remove_prefix(count);
        }
    }

private:
    FileSystem& files_;
    FileSystem::Handle handle_;
};

} // namespace

MacroWriter::MacroWriter(Sink sink) : sink_(std::move(sink)) {
    sink_("# Korvan macro: one action a line (docs/MACROS.md)\n");
}

MacroWriter::MacroWriter(std::ostream& out)
    : MacroWriter([&out](std::string_view line) {
          if (!out.write(line.data(), static_cast<std::streamsize>(line.size())).flush()) {
              throw std::system_error(std::make_error_code(std::errc::io_error));
          }
      }) {}

MacroWriter MacroWriter::create(FileSystem& files, const std::string& path) {
    FileSystem::Status status;
    std::error_code error = files.status(path, status);
    FileSystem::Handle handle = -1;
    if (error == std::errc::no_such_file_or_directory) {
        error = files.createNew(path, handle);
    } else if (!error && status.kind == FileSystem::Kind::Directory) {
        error = std::make_error_code(std::errc::is_a_directory);
    } else if (!error && status.kind != FileSystem::Kind::Regular) {
        error = FileError::notRegularFile;
    } else if (!error) {
        error = files.openToWrite(path, handle);
        if (!error) {
            error = files.truncate(handle, 0);
            if (error) {
                files.close(handle);
            }
        }
    }
    if (error) {
        throw std::system_error(error);
    }
    auto file = std::make_shared<OpenFile>(files, handle);
    return MacroWriter([file](std::string_view line) { file->write(line); });
}

void MacroWriter::write(const MacroAction& action) {
    sink_(MacroSyntax::format(action) + "\n");
}
