#include "io/PlyWriter.h"

#include "io/ColorChannel.h"
#include "io/MeshPoints.h"
#include "io/PlyReader.h"
#include "scene/FaceCoefficients.h"

#include <algorithm>
#include <bit>
#include <string>

namespace {

class Output {
public:
    void text(const std::string& text) { bytes.insert(bytes.end(), text.begin(), text.end()); }
    void uint8(uint8_t value) { bytes.push_back(value); }
    void uint32(uint32_t value) {
        for (int shift = 0; shift < 32; shift += 8) {
            bytes.push_back(static_cast<uint8_t>(value >> shift));
        }
    }
    void float32(float value) { uint32(std::bit_cast<uint32_t>(value)); }

    std::vector<uint8_t> bytes;
};

} // namespace

std::vector<uint8_t> PlyWriter::encode(const ObjectList& objects) {
    uint64_t vertices = 0;
    uint64_t faces = 0;
    size_t widest = 0;
    for (const auto& object : objects) {
        vertices += static_cast<uint64_t>(MeshPoints::count(*object));
        for (const auto& face : object->getFaces()) {
            ++faces;
            widest = std::max(widest, face->getIndices().size());
        }
    }
    const bool wide = widest > 255;

    Output out;
    out.text("ply\nformat binary_little_endian 1.0\ncomment Written by Korvan\n"
             "element vertex " +
             std::to_string(vertices) +
             "\nproperty float x\nproperty float y\nproperty float z\n"
             "property uint korvan_solid\nelement face " +
             std::to_string(faces) + "\nproperty list " + (wide ? "uint" : "uchar") +
             " int vertex_indices\nproperty uchar red\nproperty uchar green\n"
             "property uchar blue\n");
    for (const std::string_view name : PlyReader::coefficientNames) {
        out.text("property float " + std::string(name) + "\n");
    }
    out.text("property uint korvan_solid\nend_header\n");

    for (size_t n = 0; n < objects.size(); ++n) {
        const int32_t points = MeshPoints::count(*objects[n]);
        for (int32_t i = 1; i <= points; ++i) {
            const Point4& p = MeshPoints::at(*objects[n], i);
            out.float32(p.x);
            out.float32(p.y);
            out.float32(p.z);
            out.uint32(static_cast<uint32_t>(n));
        }
    }
    uint32_t firstPoint = 0; // the file's number of the object's point 1
    for (size_t n = 0; n < objects.size(); ++n) {
        for (const auto& face : objects[n]->getFaces()) {
            const CornerIndices& corners = face->getIndices();
            if (wide) {
                out.uint32(static_cast<uint32_t>(corners.size()));
            } else {
                out.uint8(static_cast<uint8_t>(corners.size()));
            }
            for (const int32_t index : corners) {
                out.uint32(firstPoint + static_cast<uint32_t>(index - 1));
            }
            const FaceCoefficients::Values k = FaceCoefficients::of(*face);
            out.uint8(colorChannel(k[3]));
            out.uint8(colorChannel(k[4]));
            out.uint8(colorChannel(k[5]));
            for (const float value : k) {
                out.float32(value);
            }
            out.uint32(static_cast<uint32_t>(n));
        }
        firstPoint += static_cast<uint32_t>(MeshPoints::count(*objects[n]));
    }
    return std::move(out.bytes);
}
