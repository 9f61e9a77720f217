#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

// Reads 4-byte little-endian values from a buffer, front to back. Values are put together
// from their bytes by shifting, so the result is the same on every host; a read that would
// pass the end of the buffer fails and leaves the buffer alone.
class LittleEndianReader {
public:
    explicit LittleEndianReader(std::span<const uint8_t> bytes) : bytes_(bytes) {}

    size_t remaining() const { return bytes_.size() - position_; }

    bool readInt32(int32_t& value) {
        uint32_t raw;
        if (!readUInt32(raw)) {
            return false;
        }
        value = static_cast<int32_t>(raw);
        return true;
    }

    bool readFloat32(float& value) {
        uint32_t raw;
        if (!readUInt32(raw)) {
            return false;
        }
        value = std::bit_cast<float>(raw);
        return true;
    }

private:
    bool readUInt32(uint32_t& value) {
        if (remaining() < 4) {
            return false;
        }
        const uint8_t* b = bytes_.data() + position_;
        value = static_cast<uint32_t>(b[0]) | static_cast<uint32_t>(b[1]) << 8 |
                static_cast<uint32_t>(b[2]) << 16 | static_cast<uint32_t>(b[3]) << 24;
        position_ += 4;
        return true;
    }

    std::span<const uint8_t> bytes_;
    size_t position_ = 0;
};
