#include "io/StlWriter.h"

#include "io/MeshPoints.h"
#include "io/MeshText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>

namespace {

using Vertex = std::array<float, 3>;

Vertex vertexOf(const Transformed3d& object, int32_t index) {
    const Point4& p = MeshPoints::at(object, index);
    return {p.x, p.y, p.z};
}

Vertex unitNormal(const Vertex& a, const Vertex& b, const Vertex& c) {
    const Vertex u{b[0] - a[0], b[1] - a[1], b[2] - a[2]};
    const Vertex v{c[0] - a[0], c[1] - a[1], c[2] - a[2]};
    const Vertex n{u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]};
    const float length = std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]);
    if (!(length > 0) || !std::isfinite(length)) {
        return {0, 0, 0};
    }
    // Adding 0 turns -0 into 0, which reads better in ASCII.
    return {n[0] / length + 0.0f, n[1] / length + 0.0f, n[2] / length + 0.0f};
}

// Calls each(a, b, c) for every triangle of the fans, in object and face order.
template <class Each> void forEachTriangle(const ObjectList& objects, Each each) {
    for (const auto& object : objects) {
        const int32_t points = MeshPoints::count(*object);
        for (const auto& face : object->getFaces()) {
            const CornerIndices& corners = face->getIndices();
            for (size_t k = 1; k + 1 < corners.size(); ++k) {
                const int32_t i[3] = {corners[0], corners[k], corners[k + 1]};
                if (std::min({i[0], i[1], i[2]}) < 1 || std::max({i[0], i[1], i[2]}) > points) {
                    continue; // a corner without a point has no place in space
                }
                each(vertexOf(*object, i[0]), vertexOf(*object, i[1]), vertexOf(*object, i[2]));
            }
        }
    }
}

void appendFloat(std::vector<uint8_t>& out, float value) {
    uint32_t raw;
    std::memcpy(&raw, &value, 4);
    for (int shift = 0; shift < 32; shift += 8) {
        out.push_back(static_cast<uint8_t>(raw >> shift));
    }
}

void appendText(std::vector<uint8_t>& out, const std::string& text) {
    out.insert(out.end(), text.begin(), text.end());
}

std::string vectorText(const Vertex& v) {
    std::string text;
    for (const float value : v) {
        text += ' ';
        MeshText::append(text, value);
    }
    return text;
}

} // namespace

std::vector<uint8_t> StlWriter::encode(const ObjectList& objects, bool ascii) {
    std::vector<uint8_t> out;
    if (ascii) {
        appendText(out, "solid korvan\n");
        forEachTriangle(objects, [&](const Vertex& a, const Vertex& b, const Vertex& c) {
            appendText(out, " facet normal" + vectorText(unitNormal(a, b, c)) +
                                "\n  outer loop\n   vertex" + vectorText(a) + "\n   vertex" +
                                vectorText(b) + "\n   vertex" + vectorText(c) +
                                "\n  endloop\n endfacet\n");
        });
        appendText(out, "endsolid korvan\n");
        return out;
    }
    uint64_t count = 0;
    forEachTriangle(objects, [&](const Vertex&, const Vertex&, const Vertex&) { ++count; });
    if (count > std::numeric_limits<uint32_t>::max()) {
        return {};
    }
    out.reserve(84 + 50 * count);
    std::string header = "Korvan binary STL";
    header.resize(80, ' ');
    appendText(out, header);
    for (int shift = 0; shift < 32; shift += 8) {
        out.push_back(static_cast<uint8_t>(count >> shift));
    }
    forEachTriangle(objects, [&](const Vertex& a, const Vertex& b, const Vertex& c) {
        for (const Vertex& v : {unitNormal(a, b, c), a, b, c}) {
            for (const float value : v) {
                appendFloat(out, value);
            }
        }
        out.insert(out.end(), {0, 0}); // attribute byte count
    });
    return out;
}
