#include "io/FileBytes.h"

#include "io/FileError.h"

#include <new>

namespace FileBytes {

std::error_code openRegular(FileSystem& system, const std::string& path, FileSystem::Handle& handle,
                            FileSystem::Status& status) {
    if (const std::error_code error = system.openToRead(path, handle)) {
        return error;
    }
    std::error_code error = system.statusOf(handle, status);
    if (!error && status.kind == FileSystem::Kind::Directory) {
        error = std::make_error_code(std::errc::is_a_directory);
    } else if (!error && status.kind != FileSystem::Kind::Regular) {
        error = FileError::notRegularFile;
    }
    if (error) {
        system.close(handle);
    }
    return error;
}

std::error_code read(FileSystem& system, const std::string& path, uint64_t from,
                     std::vector<uint8_t>& bytes) {
    bytes.clear();
    FileSystem::Handle handle = -1;
    FileSystem::Status status;
    if (const std::error_code error = openRegular(system, path, handle, status)) {
        return error;
    }
    std::error_code error;
    if (status.size > from) {
        try {
            bytes.resize(static_cast<size_t>(status.size - from));
        } catch (const std::bad_alloc&) {
            error = std::make_error_code(std::errc::not_enough_memory); // and the file is closed
        }
        size_t filled = 0;
        size_t count = 1;
        while (!error && count > 0 && filled < bytes.size()) {
            // A count of 0 before the size is reached: the file shrank meanwhile.
            error = system.read(handle, from + filled, std::span(bytes).subspan(filled), count);
            filled += count;
        }
        bytes.resize(filled);
    }
    const std::error_code closed = system.close(handle);
    if (error || closed) {
        bytes.clear();
    }
    return error ? error : closed;
}

} // namespace FileBytes
