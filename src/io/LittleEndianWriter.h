#pragma once

#include <bit>
#include <cstdint>
#include <vector>

// Appends 4-byte little-endian values to a growing buffer. Each value is taken apart by
// shifting, so the bytes are the same on every host.
class LittleEndianWriter {
public:
    void writeInt32(int32_t value) { writeUInt32(static_cast<uint32_t>(value)); }
    void writeFloat32(float value) { writeUInt32(std::bit_cast<uint32_t>(value)); }
    // The bytes written so far; the writer is left empty.
    std::vector<uint8_t> take() { return std::move(bytes_); }

private:
    void writeUInt32(uint32_t value) {
        const uint8_t b[4] = {static_cast<uint8_t>(value), static_cast<uint8_t>(value >> 8),
                              static_cast<uint8_t>(value >> 16), static_cast<uint8_t>(value >> 24)};
        bytes_.insert(bytes_.end(), b, b + 4);
    }

    std::vector<uint8_t> bytes_;
};
