#include "io/FileBytes.h"

#include <array>
#include <fstream>
#include <system_error>

namespace FileBytes {

std::optional<std::vector<uint8_t>> read(const std::filesystem::path& file, std::uintmax_t from) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        return std::nullopt;
    }
    std::vector<uint8_t> bytes;
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    if (!error && size > from) {
        bytes.reserve(static_cast<size_t>(size - from));
    }
    if (from > 0 && !in.seekg(static_cast<std::streamoff>(from))) {
        return std::nullopt;
    }
    // Read to the end rather than trusting the size: the file may change meanwhile.
    std::array<char, 64 * 1024> block;
    while (in) {
        in.read(block.data(), block.size());
        const auto* data = reinterpret_cast<const uint8_t*>(block.data());
        bytes.insert(bytes.end(), data, data + in.gcount());
    }
    if (in.bad()) {
        return std::nullopt;
    }
    return bytes;
}

} // namespace FileBytes
