#include "io/TavrinMeshIO.h"

#include "geometry/CPoint3D.h"
#include "io/FileBytes.h"
#include "io/LittleEndianReader.h"
#include "io/LittleEndianWriter.h"
#include "scene/Face3d.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

#include <cmath>
#include <limits>
#include <new>

namespace {

// Every value of the file is 4 bytes. The smallest record that a count can announce bounds
// that count by the bytes left, before anything is allocated for it.
constexpr uint64_t valueBytes = 4;
constexpr uint64_t minObjectBytes = 2 * valueBytes; // pointCount and faceCount
constexpr uint64_t pointBytes = 3 * valueBytes;
constexpr uint64_t coefficientBytes = 8 * valueBytes;
constexpr uint64_t minFaceBytes = 2 * valueBytes + coefficientBytes; // no indices

// Whether count records of recordBytes, followed by at least afterBytes, fit in what is left.
bool fits(const LittleEndianReader& in, int32_t count, uint64_t recordBytes,
          uint64_t afterBytes = 0) {
    return count >= 0 && static_cast<uint64_t>(count) * recordBytes + afterBytes <= in.remaining();
}

bool readFinite(LittleEndianReader& in, float& value) {
    return in.readFloat32(value) && std::isfinite(value);
}

std::shared_ptr<Face3d> readFace(LittleEndianReader& in, Solid3d& solid, int32_t pointCount) {
    auto face = std::make_shared<Face3d>();
    face->setSolidContainer(&solid);
    int32_t orderNumber;
    int32_t indexCount;
    if (!in.readInt32(orderNumber) || !in.readInt32(indexCount) ||
        !fits(in, indexCount, valueBytes, coefficientBytes)) {
        return nullptr;
    }
    face->setOrderNumber(orderNumber);
    for (int32_t i = 0; i < indexCount; ++i) {
        int32_t index;
        if (!in.readInt32(index) || index < 1 || index > pointCount) {
            return nullptr;
        }
        face->addIndex(index);
    }
    // The file keeps the ambient triple before the diffuse one.
    for (float* coefficient :
         {&face->AmbientKr, &face->AmbientKg, &face->AmbientKb, &face->DiffuseKr, &face->DiffuseKg,
          &face->DiffuseKb, &face->SpecularK, &face->SpecularN}) {
        if (!readFinite(in, *coefficient)) {
            return nullptr;
        }
    }
    // Shading multiplies once per unit of the exponent: a huge one stalls drawing for
    // seconds per face.
    if (face->SpecularN < std::numeric_limits<int16_t>::min() ||
        face->SpecularN > std::numeric_limits<int16_t>::max()) {
        return nullptr;
    }
    return face;
}

std::shared_ptr<Solid3d> readSolid(LittleEndianReader& in) {
    auto solid = std::make_shared<Solid3d>();
    int32_t pointCount;
    if (!in.readInt32(pointCount) || !fits(in, pointCount, pointBytes, valueBytes)) {
        return nullptr;
    }
    std::vector<float> coordinates(3 * static_cast<size_t>(pointCount));
    for (float& c : coordinates) {
        if (!readFinite(in, c)) {
            return nullptr;
        }
    }
    solid->addPointsArray(coordinates);
    int32_t faceCount;
    if (!in.readInt32(faceCount) || !fits(in, faceCount, minFaceBytes)) {
        return nullptr;
    }
    solid->faces.reserve(static_cast<size_t>(faceCount));
    for (int32_t i = 0; i < faceCount; ++i) {
        std::shared_ptr<Face3d> face = readFace(in, *solid, pointCount);
        if (!face) {
            return nullptr;
        }
        solid->AddFace3D(face);
    }
    return solid;
}

// Counts are written as int32: the model itself numbers points, faces and corners in 32 bits.
int32_t countOf(size_t size) {
    return static_cast<int32_t>(size);
}

std::vector<uint8_t> encode(const ObjectList& objects) {
    LittleEndianWriter out;
    out.writeInt32(countOf(objects.size()));
    for (const auto& object : objects) {
        const auto points = object->getPoints();
        out.writeInt32(countOf(points.size()));
        for (const auto& point : points) {
            const Point4 c = point->getRecord().coord;
            out.writeFloat32(c.x);
            out.writeFloat32(c.y);
            out.writeFloat32(c.z);
        }
        const FaceList faces = object->getFaces();
        out.writeInt32(countOf(faces.size()));
        for (const auto& face : faces) {
            out.writeInt32(face->getOrderNum());
            const std::vector<int32_t>& indices = face->getIndices();
            out.writeInt32(countOf(indices.size()));
            for (const int32_t index : indices) {
                out.writeInt32(index);
            }
            for (const float coefficient :
                 {face->AmbientKr, face->AmbientKg, face->AmbientKb, face->DiffuseKr,
                  face->DiffuseKg, face->DiffuseKb, face->SpecularK, face->SpecularN}) {
                out.writeFloat32(coefficient);
            }
        }
    }
    return out.take();
}

} // namespace

bool TavrinMeshIO::saveFile(const ObjectList& solids, std::string filename) {
    try {
        return overwriter_.overwrite(normalizeFileName(filename), encode(solids));
    } catch (const std::bad_alloc&) {
        return false;
    }
}

std::optional<ObjectList> TavrinMeshIO::OpenFile(std::string& filename) {
    filename = normalizeFileName(filename);
    try {
        const std::optional<std::vector<uint8_t>> bytes = FileBytes::read(filename, 0);
        return bytes ? parse(*bytes) : std::nullopt;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

std::optional<ObjectList> TavrinMeshIO::parse(std::span<const uint8_t> bytes) {
    LittleEndianReader in(bytes);
    int32_t objectCount;
    if (!in.readInt32(objectCount)) {
        return std::nullopt;
    }
    ObjectList objects;
    if (objectCount <= 0) {
        return objects;
    }
    if (!fits(in, objectCount, minObjectBytes)) {
        return std::nullopt;
    }
    objects.reserve(static_cast<size_t>(objectCount));
    for (int32_t i = 0; i < objectCount; ++i) {
        std::shared_ptr<Solid3d> solid = readSolid(in);
        if (!solid) {
            return std::nullopt;
        }
        auto object = std::make_shared<Transformed3d>();
        object->setSolid(solid);
        objects.push_back(object);
    }
    return objects;
}

std::string TavrinMeshIO::normalizeFileName(const std::string& name) {
    std::string result = name;
    for (char& c : result) {
        const auto code = static_cast<unsigned char>(c);
        if (code < ' ' || code > '~') {
            c = ' ';
        }
    }
    const size_t first = result.find_first_not_of(' ');
    result = first == std::string::npos
                 ? std::string()
                 : result.substr(first, result.find_last_not_of(' ') - first + 1);
    if (!result.ends_with(".tvm")) {
        result += ".tvm";
    }
    return result;
}
