#include "io/TavrinMeshIO.h"

#include "geometry/CPoint3D.h"
#include "io/FileBytes.h"
#include "io/FileError.h"
#include "io/FileOverwriter.h"
#include "io/LittleEndianReader.h"
#include "io/LittleEndianWriter.h"
#include "io/PosixFileSystem.h"
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

// The one rule for the values of the file, kept by the writer and checked by the reader.
bool storable(float value) {
    return std::isfinite(value);
}

bool storableExponent(float exponent) {
    return exponent >= std::numeric_limits<int16_t>::min() &&
           exponent <= std::numeric_limits<int16_t>::max();
}

bool readStorable(LittleEndianReader& in, float& value) {
    return in.readFloat32(value) && storable(value);
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
        if (!readStorable(in, *coefficient)) {
            return nullptr;
        }
    }
    return storableExponent(face->SpecularN) ? face : nullptr;
}

std::shared_ptr<Solid3d> readSolid(LittleEndianReader& in) {
    auto solid = std::make_shared<Solid3d>();
    int32_t pointCount;
    if (!in.readInt32(pointCount) || !fits(in, pointCount, pointBytes, valueBytes)) {
        return nullptr;
    }
    std::vector<float> coordinates(3 * static_cast<size_t>(pointCount));
    for (float& c : coordinates) {
        if (!readStorable(in, c)) {
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

// The file's bytes for the objects, or nothing when a value breaks the file's rule.
std::optional<std::vector<uint8_t>> encode(const ObjectList& objects) {
    LittleEndianWriter out;
    bool valid = true;
    const auto writeValue = [&](float value) {
        valid = valid && storable(value);
        out.writeFloat32(value);
    };
    out.writeInt32(countOf(objects.size()));
    for (const auto& object : objects) {
        const auto points = object->getPoints();
        out.writeInt32(countOf(points.size()));
        for (const auto& point : points) {
            const Point4 c = point->getRecord().coord;
            writeValue(c.x);
            writeValue(c.y);
            writeValue(c.z);
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
                writeValue(coefficient);
            }
            valid = valid && storableExponent(face->SpecularN);
        }
    }
    if (!valid) {
        return std::nullopt;
    }
    return out.take();
}

// The bytes of the old file behind the new content, which a save keeps; none when there is
// no old file or it is not one that keeps bytes.
std::error_code oldTail(FileSystem& system, const std::string& file, uint64_t from,
                        std::vector<uint8_t>& tail) {
    const std::error_code error = FileBytes::read(system, file, from, tail);
    if (error == std::errc::no_such_file_or_directory || error == std::errc::is_a_directory ||
        error == FileError::notRegularFile) {
        return {}; // writing reports what is wrong with it, if anything
    }
    return error;
}

} // namespace

TavrinMeshIO::TavrinMeshIO() : system_(PosixFileSystem::instance()) {}

bool TavrinMeshIO::saveFile(const ObjectList& solids, std::string filename) {
    filename = normalizeFileName(filename);
    try {
        std::optional<std::vector<uint8_t>> content = encode(solids);
        if (!content) {
            lastError_ = FileError::unstorableValue;
            return false;
        }
        std::vector<uint8_t> tail;
        lastError_ = oldTail(system_, filename, content->size(), tail);
        if (!lastError_) {
            content->insert(content->end(), tail.begin(), tail.end());
            lastError_ = FileOverwriter(system_).overwrite(filename, *content);
        }
    } catch (const std::bad_alloc&) {
        lastError_ = std::make_error_code(std::errc::not_enough_memory);
    }
    return !lastError_;
}

std::optional<ObjectList> TavrinMeshIO::OpenFile(std::string& filename) {
    filename = normalizeFileName(filename);
    std::optional<ObjectList> objects;
    try {
        std::vector<uint8_t> bytes;
        lastError_ = FileBytes::read(system_, filename, 0, bytes);
        if (!lastError_) {
            objects = parse(bytes);
            if (!objects) {
                lastError_ = FileError::corrupt;
            }
        }
    } catch (const std::bad_alloc&) {
        lastError_ = std::make_error_code(std::errc::not_enough_memory);
    }
    return objects;
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
