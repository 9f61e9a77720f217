#include "render/DepthBuffer.h"

#include "geometry/PackedColor.h"

#include <algorithm>
#include <cmath>
#include <limits>

void DepthBuffer::reset(int width, int height) {
    picture_.width = std::max(width, 0);
    picture_.height = std::max(height, 0);
    const auto size = static_cast<size_t>(picture_.width) * static_cast<size_t>(picture_.height);
    picture_.pixels.assign(size, 0);
    depth_.assign(size, -std::numeric_limits<float>::infinity());
}

void DepthBuffer::fill(const std::vector<CanvasPoint>& points, const std::vector<float>& depths,
                       int32_t color) {
    if (points.size() < 3 || depths.size() < 9) {
        return;
    }
    // The plane depth = a x + b y + c through the first three corners.
    const double x1 = depths[0], y1 = depths[1], z1 = depths[2];
    const double ux = depths[3] - x1, uy = depths[4] - y1, uz = depths[5] - z1;
    const double vx = depths[6] - x1, vy = depths[7] - y1, vz = depths[8] - z1;
    const double nz = ux * vy - uy * vx;
    double a = 0;
    double b = 0;
    double c = 0;
    if (std::fabs(nz) > 1e-9) {
        a = -(uy * vz - uz * vy) / nz;
        b = -(uz * vx - ux * vz) / nz;
        c = z1 - a * x1 - b * y1;
    } else {
        for (size_t k = 2; k < depths.size(); k += 3) {
            c = k == 2 ? depths[k] : std::max(c, static_cast<double>(depths[k]));
        }
    }
    const PackedColor rgb = PackedColor::split(color);
    const uint32_t pixel = 0xFF000000u | (static_cast<uint32_t>(rgb.red & 0xFF) << 16) |
                           (static_cast<uint32_t>(rgb.green & 0xFF) << 8) |
                           static_cast<uint32_t>(rgb.blue & 0xFF);
    const int width = picture_.width;
    filler_.forEachSpan(width, picture_.height, points, [&](int y, int32_t left, int32_t right) {
        const size_t row = static_cast<size_t>(y) * static_cast<size_t>(width);
        // In single precision along the row: the depths need only order the faces. Each
        // pixel's depth is found apart and without a branch, so that pixels do not wait for
        // each other: faces overlap many times over, and which is nearer changes often.
        const auto first = static_cast<float>(a * (left + 0.5) + b * (y + 0.5) + c);
        const auto step = static_cast<float>(a);
        float* kept = depth_.data() + row + left;
        uint32_t* pixels = picture_.pixels.data() + row + left;
        const int32_t count = right - left;
        for (int32_t i = 0; i < count; ++i) {
            const float depth = first + step * static_cast<float>(i);
            const uint32_t nearer = 0u - static_cast<uint32_t>(depth >= kept[i]);
            kept[i] = std::max(kept[i], depth);
            pixels[i] = (pixel & nearer) | (pixels[i] & ~nearer);
        }
    });
}

void DepthBuffer::takeNearer(const DepthBuffer& other) {
    const size_t size = std::min(depth_.size(), other.depth_.size());
    for (size_t i = 0; i < size; ++i) {
        const uint32_t nearer = 0u - static_cast<uint32_t>(other.depth_[i] >= depth_[i]);
        depth_[i] = std::max(depth_[i], other.depth_[i]);
        picture_.pixels[i] = (other.picture_.pixels[i] & nearer) | (picture_.pixels[i] & ~nearer);
    }
}
