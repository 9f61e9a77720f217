#include "render/DepthBuffer.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace {

// Four pixels at a time where the compiler offers vectors of them.
using Floats = float __attribute__((vector_size(16)));
using Words = uint32_t __attribute__((vector_size(16)));

// Whether the other buffer's face is nearer than the pixel's: the pixel has none, or the
// other's is deeper, or as deep with a larger number.
Words isNearer(Floats otherDepth, Words otherFace, Floats depth, Words face) {
    const Words nearer =
        std::bit_cast<Words>(face == 0u) | std::bit_cast<Words>(otherDepth > depth) |
        (std::bit_cast<Words>(otherDepth == depth) & std::bit_cast<Words>(otherFace > face));
    return nearer & std::bit_cast<Words>(otherFace != 0u);
}

} // namespace

void DepthBuffer::reset(int width, int height) {
    width = std::max(width, 0);
    height = std::max(height, 0);
    if (width == picture_.width && height == picture_.height) {
        // A pixel without a face has no depth to keep: only the faces are cleared, and only
        // where some face was filled.
        for (int y = covered_.top; y < covered_.bottom; ++y) {
            uint32_t* row = faces_.data() + static_cast<size_t>(y) * stride_;
            std::fill(row + covered_.left, row + covered_.right, 0u);
        }
        covered_ = {};
        return;
    }
    picture_.width = width;
    picture_.height = height;
    // Rows are longer than the picture by three pixels and a multiple of four, so that a span's
    // last four pixels can be read and written back whole without reaching into the next row,
    // and two buffers be painted from four pixels at a time.
    stride_ = (static_cast<size_t>(width) + 6) / 4 * 4;
    const size_t size = stride_ * static_cast<size_t>(height);
    picture_.pixels.resize(static_cast<size_t>(width) * height);
    faces_.assign(size, 0);
    depth_.resize(size);
    covered_ = {};
}

void DepthBuffer::fill(ScanlineFiller& filler, const std::vector<CanvasPoint>& points,
                       const std::vector<float>& depths, uint32_t face) {
    if (points.size() < 3 || depths.size() < 9) {
        return;
    }
    // A pixel is covered where its centre lies inside, so within the corners' box.
    const auto [low, high] = std::minmax_element(
        points.begin(), points.end(), [](const auto& p, const auto& q) { return p.y < q.y; });
    const auto [leftmost, rightmost] = std::minmax_element(
        points.begin(), points.end(), [](const auto& p, const auto& q) { return p.x < q.x; });
    const PixelBox box{std::max(leftmost->x, 0), std::max(low->y, 0),
                       std::min(rightmost->x, picture_.width), std::min(high->y, picture_.height)};
    if (box.empty()) {
        return;
    }
    covered_.include(box);
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
    const Floats lanes = {0, 1, 2, 3};
    const Words number = {face, face, face, face};
    filler.forEachSpan(
        picture_.width, picture_.height, points, [&](int y, int32_t left, int32_t right) {
            // In single precision along the row: the depths need only order the faces. Four pixels
            // at a time, the last four reaching past the span as far as they must, where the pixels
            // past it keep what they have: faces are narrow, and without a branch per pixel pixels
            // do not wait for each other where which face is nearer changes often.
            const auto first = static_cast<float>(a * (left + 0.5) + b * (y + 0.5) + c);
            const auto step = static_cast<float>(a);
            const size_t start = static_cast<size_t>(y) * stride_ + static_cast<size_t>(left);
            float* kept = depth_.data() + start;
            uint32_t* faces = faces_.data() + start;
            const auto count = static_cast<float>(right - left);
            for (int32_t i = 0; i < right - left; i += 4) {
                const Floats at = lanes + static_cast<float>(i);
                const Floats depth = first + step * at;
                Floats near;
                Words owner;
                std::memcpy(&near, kept + i, sizeof near);
                std::memcpy(&owner, faces + i, sizeof owner);
                const Words nearer =
                    (std::bit_cast<Words>(depth >= near) |
                     (std::bit_cast<Words>(owner == 0u) & std::bit_cast<Words>(depth == depth))) &
                    std::bit_cast<Words>(at < count);
                near = std::bit_cast<Floats>((std::bit_cast<Words>(depth) & nearer) |
                                             (std::bit_cast<Words>(near) & ~nearer));
                owner = (number & nearer) | (owner & ~nearer);
                std::memcpy(kept + i, &near, sizeof near);
                std::memcpy(faces + i, &owner, sizeof owner);
            }
        });
}

void DepthBuffer::nearest(const DepthBuffer& other, size_t at, int count, uint32_t* faces) const {
    for (int i = 0; i < count; i += 4, at += 4) {
        Floats near;
        Words owner;
        Floats otherNear;
        Words otherOwner;
        std::memcpy(&near, depth_.data() + at, sizeof near);
        std::memcpy(&owner, faces_.data() + at, sizeof owner);
        std::memcpy(&otherNear, other.depth_.data() + at, sizeof otherNear);
        std::memcpy(&otherOwner, other.faces_.data() + at, sizeof otherOwner);
        const Words taken = isNearer(otherNear, otherOwner, near, owner);
        owner = (otherOwner & taken) | (owner & ~taken);
        std::memcpy(faces + i, &owner, sizeof owner);
    }
}
