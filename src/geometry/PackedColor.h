#pragma once

#include <algorithm>
#include <cstdint>

// A colour as the canvas and the colour chooser hold it: red + 256 * green + 65536 * blue,
// each channel 0..255.
struct PackedColor {
    int red = 0;
    int green = 0;
    int blue = 0;

    // Each channel is clamped to 0..255 first, so that sums of light terms or tints
    // saturate instead of spilling into the next channel.
    static int32_t pack(int r, int g, int b) {
        return std::clamp(r, 0, 255) + 256 * std::clamp(g, 0, 255) + 65536 * std::clamp(b, 0, 255);
    }

    // The three channels; a top byte (as in -1, "no colour") is ignored.
    static PackedColor split(int32_t color) {
        const auto bits = static_cast<uint32_t>(color);
        return {static_cast<int>(bits % 256), static_cast<int>((bits / 256) % 256),
                static_cast<int>((bits / 65536) % 256)};
    }
};
