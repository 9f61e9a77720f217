#pragma once

#include "platform/FileSystem.h"

#include <cstdint>
#include <string>
#include <system_error>
#include <vector>

// Whole files in memory, and the one check of a file the program reads.
namespace FileBytes {

// Opens a regular file to read and tells its status; anything but a regular file (a device,
// a pipe, a folder) is refused with FileError::notRegularFile or the system's own error, and
// left closed.
std::error_code openRegular(FileSystem& system, const std::string& path, FileSystem::Handle& handle,
                            FileSystem::Status& status);

// The bytes of a regular file from the given offset (none when the file is shorter) up to the
// size it had when it was opened, never more: a file that grows meanwhile, or a link to a
// device that never ends, cannot make the program read without end. Anything but a regular
// file (a device, a pipe, a folder) is refused with FileError::notRegularFile or the
// system's own error.
std::error_code read(FileSystem& system, const std::string& path, uint64_t from,
                     std::vector<uint8_t>& bytes);

} // namespace FileBytes
