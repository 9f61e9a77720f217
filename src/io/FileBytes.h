#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

// Whole files in memory.
namespace FileBytes {

// The bytes of a file from the given offset to its end (none when the file is shorter), or
// nothing when it cannot be opened or read (a folder, no permission, a read error).
std::optional<std::vector<uint8_t>> read(const std::filesystem::path& file, std::uintmax_t from);

} // namespace FileBytes
