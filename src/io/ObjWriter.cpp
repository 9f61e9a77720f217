#include "io/ObjWriter.h"

#include "io/MeshPoints.h"
#include "io/MeshText.h"
#include "scene/FaceCoefficients.h"

#include <bit>
#include <map>

namespace {

using Bits = std::array<uint32_t, 8>;

Bits bitsOf(const FaceCoefficients::Values& k) {
    Bits bits;
    for (size_t i = 0; i < k.size(); ++i) {
        bits[i] = std::bit_cast<uint32_t>(k[i]);
    }
    return bits;
}

void appendLine(std::string& text, const char* key, std::initializer_list<float> values) {
    text += key;
    for (const float value : values) {
        text += ' ';
        MeshText::append(text, value);
    }
    text += '\n';
}

} // namespace

ObjWriter::Text ObjWriter::encode(const ObjectList& objects, const std::string& mtlName) {
    Text text;
    text.obj = "# Written by Korvan\nmtllib " + mtlName + "\n";
    text.mtl = "# Written by Korvan. Each material is one set of a face's surface coefficients:\n"
               "# Ka the ambient triple, Kd the diffuse triple, Ks the specular coefficient in\n"
               "# all three channels and Ns the specular exponent, each exactly as the face holds "
               "it.\n";
    std::map<Bits, size_t> materials;
    int64_t firstPoint = 1; // the file's number of the object's point 1
    for (size_t n = 0; n < objects.size(); ++n) {
        const Transformed3d& object = *objects[n];
        text.obj += "o solid" + std::to_string(n + 1) + "\n";
        const int32_t points = MeshPoints::count(object);
        for (int32_t i = 1; i <= points; ++i) {
            const Point4& p = MeshPoints::at(object, i);
            appendLine(text.obj, "v", {p.x, p.y, p.z});
        }
        size_t current = 0; // no material named yet in this object
        for (const auto& face : object.getFaces()) {
            const FaceCoefficients::Values k = FaceCoefficients::of(*face);
            const auto [entry, added] = materials.try_emplace(bitsOf(k), materials.size() + 1);
            if (added) {
                text.mtl += "\nnewmtl korvan" + std::to_string(entry->second) + "\n";
                appendLine(text.mtl, "Ka", {k[0], k[1], k[2]});
                appendLine(text.mtl, "Kd", {k[3], k[4], k[5]});
                appendLine(text.mtl, "Ks", {k[6], k[6], k[6]});
                appendLine(text.mtl, "Ns", {k[7]});
            }
            if (entry->second != current) {
                current = entry->second;
                text.obj += "usemtl korvan" + std::to_string(current) + "\n";
            }
            text.obj += 'f';
            for (const int32_t index : face->getIndices()) {
                text.obj += ' ' + std::to_string(firstPoint - 1 + index);
            }
            text.obj += '\n';
        }
        firstPoint += points;
    }
    return text;
}
