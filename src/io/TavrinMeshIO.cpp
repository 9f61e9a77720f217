#include "io/TavrinMeshIO.h"

#include "geometry/CPoint3D.h"
#include "io/FileBytes.h"
#include "io/FileError.h"
#include "io/FileNames.h"
#include "io/FileOverwriter.h"
#include "io/LittleEndianReader.h"
#include "io/LittleEndianWriter.h"
#include "io/PosixFileSystem.h"
#include "io/StorableValue.h"
#include "scene/Face3d.h"
#include "scene/FaceCoefficients.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

#include <new>
#include <type_traits>

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
bool readStorable(LittleEndianReader& in, float& value) {
    return in.readFloat32(value) && StorableValue::value(value);
}

// Walks the records of the file, checking every one, and hands them to a builder, which
// makes of them what its caller needs: the objects themselves, or only their counts.
// False when the bytes are not a valid mesh file.
template <class Builder> bool readObjects(LittleEndianReader& in, Builder& builder) {
    int32_t objectCount;
    if (!in.readInt32(objectCount)) {
        return false;
    }
    if (objectCount <= 0) {
        return true;
    }
    if (!fits(in, objectCount, minObjectBytes)) {
        return false;
    }
    builder.reserveObjects(objectCount);
    std::vector<int32_t> indices;
    for (int32_t i = 0; i < objectCount; ++i) {
        int32_t pointCount;
        if (!in.readInt32(pointCount) || !fits(in, pointCount, pointBytes, valueBytes)) {
            return false;
        }
        builder.beginObject(pointCount);
        for (int32_t p = 0; p < pointCount; ++p) {
            float x;
            float y;
            float z;
            if (!readStorable(in, x) || !readStorable(in, y) || !readStorable(in, z)) {
                return false;
            }
            builder.point(x, y, z);
        }
        int32_t faceCount;
        if (!in.readInt32(faceCount) || !fits(in, faceCount, minFaceBytes)) {
            return false;
        }
        builder.beginFaces(faceCount);
        for (int32_t f = 0; f < faceCount; ++f) {
            int32_t orderNumber;
            int32_t indexCount;
            if (!in.readInt32(orderNumber) || !in.readInt32(indexCount) ||
                !fits(in, indexCount, valueBytes, coefficientBytes)) {
                return false;
            }
            indices.resize(static_cast<size_t>(indexCount));
            for (int32_t& index : indices) {
                if (!in.readInt32(index) || index < 1 || index > pointCount) {
                    return false;
                }
            }
            // In file order: the ambient triple, the diffuse triple, SpecularK, SpecularN.
            FaceCoefficients::Values coefficients;
            for (float& coefficient : coefficients) {
                if (!readStorable(in, coefficient)) {
                    return false;
                }
            }
            if (!StorableValue::exponent(coefficients[7])) {
                return false;
            }
            builder.face(orderNumber, indices, coefficients);
        }
    }
    return true;
}

// Builds the scene objects, each with a new solid; without keepFaceless, only those that
// have faces.
class ObjectBuilder {
public:
    explicit ObjectBuilder(bool keepFaceless) : keepFaceless_(keepFaceless) {}
    void reserveObjects(int32_t count) {
        if (keepFaceless_) {
            objects.reserve(static_cast<size_t>(count));
        }
    }
    void beginObject(int32_t pointCount) {
        solid_ = std::make_shared<Solid3d>();
        coordinates_.clear();
        coordinates_.reserve(3 * static_cast<size_t>(pointCount));
        auto object = std::make_shared<Transformed3d>();
        object->setSolid(solid_);
        objects.push_back(object);
    }
    void point(float x, float y, float z) { coordinates_.insert(coordinates_.end(), {x, y, z}); }
    void beginFaces(int32_t faceCount) {
        if (faceCount == 0 && !keepFaceless_) {
            objects.pop_back();
            return;
        }
        solid_->addPointsArray(coordinates_);
        solid_->faces.reserve(static_cast<size_t>(faceCount));
    }
    void face(int32_t orderNumber, std::span<const int32_t> indices,
              const FaceCoefficients::Values& k) {
        auto face = std::make_shared<Face3d>();
        face->setSolidContainer(solid_.get());
        face->setOrderNumber(orderNumber);
        face->SetPoints({indices.begin(), indices.end()});
        FaceCoefficients::set(*face, k);
        solid_->AddFace3D(face);
    }

    ObjectList objects;

private:
    bool keepFaceless_;
    std::shared_ptr<Solid3d> solid_;
    std::vector<float> coordinates_;
};

// Keeps only how many points and faces each object has.
class CountBuilder {
public:
    void reserveObjects(int32_t count) { counts.reserve(static_cast<size_t>(count)); }
    void beginObject(int32_t pointCount) { counts.push_back({pointCount, 0}); }
    void point(float, float, float) {}
    void beginFaces(int32_t faceCount) { counts.back().faces = faceCount; }
    void face(int32_t, std::span<const int32_t>, const FaceCoefficients::Values&) {}

    std::vector<TavrinMeshIO::ObjectCounts> counts;
};

// Counts are written as int32: the model itself numbers points, faces and corners in 32 bits.
int32_t countOf(size_t size) {
    return static_cast<int32_t>(size);
}

// The file's bytes for the objects, or nothing when a value breaks the file's rule.
std::optional<std::vector<uint8_t>> encode(const ObjectList& objects) {
    LittleEndianWriter out;
    bool valid = true;
    const auto writeValue = [&](float value) {
        valid = valid && StorableValue::value(value);
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
            const CornerIndices& indices = face->getIndices();
            out.writeInt32(countOf(indices.size()));
            for (const int32_t index : indices) {
                out.writeInt32(index);
            }
            for (const float coefficient : FaceCoefficients::of(*face)) {
                writeValue(coefficient);
            }
            valid = valid && StorableValue::exponent(face->SpecularN);
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

std::optional<std::vector<uint8_t>> TavrinMeshIO::records(const ObjectList& objects) {
    return encode(objects);
}

std::optional<std::vector<uint8_t>> TavrinMeshIO::savedContent(const ObjectList& solids,
                                                               const std::string& filename) {
    std::optional<std::vector<uint8_t>> content;
    try {
        content = encode(solids);
        if (!content) {
            lastError_ = FileError::unstorableValue;
            return content;
        }
        std::vector<uint8_t> tail;
        lastError_ = oldTail(system_, filename, content->size(), tail);
        if (lastError_) {
            content.reset();
        } else {
            content->insert(content->end(), tail.begin(), tail.end());
        }
    } catch (const std::bad_alloc&) {
        lastError_ = std::make_error_code(std::errc::not_enough_memory);
        content.reset();
    }
    return content;
}

bool TavrinMeshIO::saveFile(const ObjectList& solids, std::string filename) {
    filename = normalizeFileName(filename);
    if (const std::optional<std::vector<uint8_t>> content = savedContent(solids, filename)) {
        try {
            lastError_ = FileOverwriter(system_).overwrite(filename, *content);
        } catch (const std::bad_alloc&) {
            lastError_ = std::make_error_code(std::errc::not_enough_memory);
        }
    }
    return !lastError_;
}

template <class Interpret>
std::invoke_result_t<Interpret, std::span<const uint8_t>>
TavrinMeshIO::readFile(std::string& filename, Interpret interpret) {
    filename = normalizeFileName(filename);
    std::invoke_result_t<Interpret, std::span<const uint8_t>> result;
    try {
        std::vector<uint8_t> bytes;
        lastError_ = FileBytes::read(system_, filename, 0, bytes);
        if (!lastError_) {
            result = interpret(bytes);
            if (!result) {
                lastError_ = FileError::corrupt;
            }
        }
    } catch (const std::bad_alloc&) {
        lastError_ = std::make_error_code(std::errc::not_enough_memory);
    }
    return result;
}

std::optional<ObjectList> TavrinMeshIO::OpenFile(std::string& filename) {
    return readFile(filename, &TavrinMeshIO::parse);
}

std::optional<ObjectList> TavrinMeshIO::openDrawable(std::string& filename) {
    return readFile(filename, [](std::span<const uint8_t> bytes) { return build(bytes, false); });
}

std::optional<std::vector<TavrinMeshIO::ObjectCounts>>
TavrinMeshIO::countFile(std::string& filename) {
    return readFile(filename, &TavrinMeshIO::count);
}

std::optional<ObjectList> TavrinMeshIO::parse(std::span<const uint8_t> bytes) {
    return build(bytes, true);
}

std::optional<ObjectList> TavrinMeshIO::build(std::span<const uint8_t> bytes, bool keepFaceless) {
    LittleEndianReader in(bytes);
    ObjectBuilder builder(keepFaceless);
    if (!readObjects(in, builder)) {
        return std::nullopt;
    }
    return std::move(builder.objects);
}

std::optional<std::vector<TavrinMeshIO::ObjectCounts>>
TavrinMeshIO::count(std::span<const uint8_t> bytes) {
    LittleEndianReader in(bytes);
    CountBuilder builder;
    if (!readObjects(in, builder)) {
        return std::nullopt;
    }
    return std::move(builder.counts);
}

std::string TavrinMeshIO::normalizeFileName(const std::string& name) {
    return FileNames::clean(name, ".tvm");
}
