#include "io/PlyReader.h"

#include "io/MeshFormatError.h"
#include "io/StorableValue.h"
#include "scene/FaceCoefficients.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace {

[[noreturn]] void fail(const std::string& message) {
    throw MeshFormatError(message);
}

enum class Type { Int8, UInt8, Int16, UInt16, Int32, UInt32, Float32, Float64 };
enum class Encoding { Ascii, LittleEndian, BigEndian };

struct Property {
    std::string name;
    Type type = Type::Float32;
    std::optional<Type> countType; // a list's length
};

struct Element {
    std::string name;
    uint64_t count = 0;
    std::vector<Property> properties;
};

Type typeNamed(const std::string& name) {
    static const std::pair<const char*, Type> names[] = {
        {"char", Type::Int8},      {"int8", Type::Int8},       {"uchar", Type::UInt8},
        {"uint8", Type::UInt8},    {"short", Type::Int16},     {"int16", Type::Int16},
        {"ushort", Type::UInt16},  {"uint16", Type::UInt16},   {"int", Type::Int32},
        {"int32", Type::Int32},    {"uint", Type::UInt32},     {"uint32", Type::UInt32},
        {"float", Type::Float32},  {"float32", Type::Float32}, {"double", Type::Float64},
        {"float64", Type::Float64}};
    for (const auto& [text, type] : names) {
        if (name == text) {
            return type;
        }
    }
    fail("the header names an unknown type '" + name + "'");
}

size_t sizeOf(Type type) {
    switch (type) {
    case Type::Int8:
    case Type::UInt8:
        return 1;
    case Type::Int16:
    case Type::UInt16:
        return 2;
    case Type::Int32:
    case Type::UInt32:
    case Type::Float32:
        return 4;
    case Type::Float64:
        return 8;
    }
    return 8;
}

bool isInteger(Type type) {
    return type != Type::Float32 && type != Type::Float64;
}

std::vector<std::string> words(std::string_view line) {
    std::vector<std::string> result;
    size_t i = 0;
    while (i < line.size()) {
        while (i < line.size() && (line[i] == ' ' || line[i] == '\t' || line[i] == '\r')) {
            ++i;
        }
        const size_t start = i;
        while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r') {
            ++i;
        }
        if (i > start) {
            result.emplace_back(line.substr(start, i - start));
        }
    }
    return result;
}

struct Header {
    Encoding encoding = Encoding::Ascii;
    std::vector<Element> elements;
    size_t bodyStart = 0;
};

Header readHeader(std::span<const uint8_t> bytes) {
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    Header header;
    bool formatSeen = false;
    size_t position = 0;
    for (size_t number = 1;; ++number) {
        const size_t end = text.find('\n', position);
        if (end == std::string_view::npos) {
            fail(number == 1 ? "not a PLY file" : "the header has no end_header line");
        }
        const std::vector<std::string> w = words(text.substr(position, end - position));
        position = end + 1;
        if (number == 1) {
            if (w.size() != 1 || w[0] != "ply") {
                fail("not a PLY file");
            }
            continue;
        }
        if (w.empty() || w[0] == "comment" || w[0] == "obj_info") {
            continue;
        }
        if (w[0] == "end_header" && w.size() == 1) {
            break;
        }
        if (w[0] == "format" && w.size() == 3 && w[2] == "1.0" && !formatSeen) {
            formatSeen = true;
            if (w[1] == "ascii") {
                header.encoding = Encoding::Ascii;
            } else if (w[1] == "binary_little_endian") {
                header.encoding = Encoding::LittleEndian;
            } else if (w[1] == "binary_big_endian") {
                header.encoding = Encoding::BigEndian;
            } else {
                fail("unknown format '" + w[1] + "'");
            }
        } else if (w[0] == "element" && w.size() == 3) {
            Element element{w[1], 0, {}};
            const auto [ptr, error] =
                std::from_chars(w[2].data(), w[2].data() + w[2].size(), element.count);
            if (error != std::errc() || ptr != w[2].data() + w[2].size()) {
                fail("element " + w[1] + " has no valid count");
            }
            header.elements.push_back(std::move(element));
        } else if (w[0] == "property" && !header.elements.empty() &&
                   (w.size() == 3 || (w.size() == 5 && w[1] == "list"))) {
            Property property;
            property.name = w.back();
            property.type = typeNamed(w[w.size() - 2]);
            if (w.size() == 5) {
                property.countType = typeNamed(w[2]);
            }
            header.elements.back().properties.push_back(std::move(property));
        } else {
            fail("header line " + std::to_string(number) + " is not understood");
        }
    }
    if (!formatSeen) {
        fail("the header has no format line");
    }
    header.bodyStart = position;
    return header;
}

// The values of the body, front to back, each as a double (which holds every value of every
// type exactly).
class Body {
public:
    Body(std::span<const uint8_t> bytes, size_t start, Encoding encoding)
        : bytes_(bytes), position_(start), encoding_(encoding) {}

    // The fewest bytes that a value of the type takes.
    size_t leastBytes(Type type) const { return encoding_ == Encoding::Ascii ? 1 : sizeOf(type); }

    // Whether count records of recordBytes each (at least 1) can still follow.
    bool hasRoom(uint64_t count, uint64_t recordBytes) const {
        const uint64_t left = bytes_.size() - position_ + (encoding_ == Encoding::Ascii ? 1 : 0);
        return count <= left / recordBytes;
    }

    double read(Type type) {
        return encoding_ == Encoding::Ascii ? readText(type) : readBinary(type);
    }

private:
    double readBinary(Type type) {
        const size_t size = sizeOf(type);
        if (bytes_.size() - position_ < size) {
            fail("the file ends early");
        }
        uint64_t raw = 0;
        for (size_t i = 0; i < size; ++i) {
            const size_t at = encoding_ == Encoding::LittleEndian ? size - 1 - i : i;
            raw = raw << 8 | bytes_[position_ + at];
        }
        position_ += size;
        switch (type) {
        case Type::Int8:
            return static_cast<int8_t>(raw);
        case Type::UInt8:
            return static_cast<uint8_t>(raw);
        case Type::Int16:
            return static_cast<int16_t>(raw);
        case Type::UInt16:
            return static_cast<uint16_t>(raw);
        case Type::Int32:
            return static_cast<int32_t>(raw);
        case Type::UInt32:
            return static_cast<uint32_t>(raw);
        case Type::Float32:
            return std::bit_cast<float>(static_cast<uint32_t>(raw));
        case Type::Float64:
            return std::bit_cast<double>(raw);
        }
        return 0;
    }

    double readText(Type type) {
        const auto blank = [](uint8_t c) {
            return c == ' ' || c == '\t' || c == '\r' || c == '\n';
        };
        while (position_ < bytes_.size() && blank(bytes_[position_])) {
            ++position_;
        }
        const size_t start = position_;
        while (position_ < bytes_.size() && !blank(bytes_[position_])) {
            ++position_;
        }
        if (start == position_) {
            fail("the file ends early");
        }
        const char* first = reinterpret_cast<const char*>(bytes_.data()) + start;
        const char* last = reinterpret_cast<const char*>(bytes_.data()) + position_;
        const auto word = [&] {
            return std::string(first, std::min<size_t>(position_ - start, 20));
        };
        double value = 0;
        std::from_chars_result result{};
        if (type == Type::Float32) {
            float single = 0;
            result = std::from_chars(first, last, single);
            value = single;
        } else if (type == Type::Float64) {
            result = std::from_chars(first, last, value);
        } else {
            int64_t whole = 0;
            result = std::from_chars(first, last, whole);
            const size_t bits = 8 * sizeOf(type);
            const bool isSigned = type == Type::Int8 || type == Type::Int16 || type == Type::Int32;
            const int64_t low = isSigned ? -(int64_t{1} << (bits - 1)) : 0;
            const int64_t high = (int64_t{1} << (isSigned ? bits - 1 : bits)) - 1;
            if (whole < low || whole > high) {
                fail("'" + word() + "' is out of its type's range");
            }
            value = static_cast<double>(whole);
        }
        if (result.ec != std::errc() || result.ptr != last) {
            fail("'" + word() + "' is not a number of its type");
        }
        return value;
    }

    std::span<const uint8_t> bytes_;
    size_t position_;
    Encoding encoding_;
};

// The index of the property named name among the element's, if any; it must be a list when
// list is set, a single value otherwise.
std::optional<size_t> find(const Element& element, std::string_view name, bool list = false) {
    for (size_t i = 0; i < element.properties.size(); ++i) {
        if (element.properties[i].name == name) {
            if (element.properties[i].countType.has_value() != list) {
                fail(element.name + " property " + std::string(name) + " must be " +
                     (list ? "a list" : "a single value"));
            }
            return i;
        }
    }
    return std::nullopt;
}

// what() names the value for the message.
template <class What> float storable(double value, What what) {
    // Checked before the conversion, which a value beyond the floats' range would not survive.
    if (!(std::abs(value) <= std::numeric_limits<float>::max())) {
        fail(what() + " is not a finite number");
    }
    return static_cast<float>(value);
}

struct Mesh {
    std::vector<float> coordinates;     // x, y, z of each vertex
    bool solidsNumbered = false;        // whether vertices carry korvan_solid
    std::vector<uint32_t> vertexSolids; // empty without korvan_solid
    std::vector<uint32_t> corners;      // of every face, in order
    std::vector<size_t> faceEnds;       // where each face's corners end
    std::vector<FaceCoefficients::Values> coefficients;
    std::vector<uint32_t> faceSolids;
};

// Reads the element's records: each(record, property, value) takes every scalar value and every
// list entry, end(record) is called after each record.
template <class Each, class End>
void readElement(Body& body, const Element& element, Each each, End end) {
    uint64_t recordBytes = 0;
    for (const Property& property : element.properties) {
        recordBytes += body.leastBytes(property.countType.value_or(property.type));
    }
    if (recordBytes == 0 || !body.hasRoom(element.count, recordBytes)) {
        fail("element " + element.name + " cannot fit in the rest of the file");
    }
    for (uint64_t record = 0; record < element.count; ++record) {
        for (size_t p = 0; p < element.properties.size(); ++p) {
            const Property& property = element.properties[p];
            if (!property.countType) {
                each(record, p, body.read(property.type));
                continue;
            }
            const double length = body.read(*property.countType);
            if (length < 0 || std::floor(length) != length) {
                fail("a list of " + element.name + " " + std::to_string(record) +
                     " has no valid length");
            }
            // No file holds 2^32 entries of a list: the bound keeps the conversion defined.
            if (length > std::numeric_limits<uint32_t>::max() ||
                !body.hasRoom(static_cast<uint64_t>(length), body.leastBytes(property.type))) {
                fail("a list of " + element.name + " " + std::to_string(record) +
                     " cannot fit in the rest of the file");
            }
            for (uint64_t i = 0; i < static_cast<uint64_t>(length); ++i) {
                each(record, p, body.read(property.type));
            }
        }
        end(record);
    }
}

template <class What> uint32_t wholeNumber(double value, What what) {
    if (value < 0 || value > std::numeric_limits<int32_t>::max() || std::floor(value) != value) {
        fail(what() + " is not a valid number");
    }
    return static_cast<uint32_t>(value);
}

void readVertices(Body& body, const Element& element, Mesh& mesh) {
    const auto x = find(element, "x");
    const auto y = find(element, "y");
    const auto z = find(element, "z");
    const auto solid = find(element, "korvan_solid");
    if (!x || !y || !z) {
        fail("the vertices have no x, y and z");
    }
    if (element.count > static_cast<uint64_t>(std::numeric_limits<int32_t>::max())) {
        fail("too many vertices");
    }
    std::array<float, 3> point{};
    readElement(
        body, element,
        [&](uint64_t record, size_t p, double value) {
            const auto what = [&] { return "vertex " + std::to_string(record); };
            if (p == *x || p == *y || p == *z) {
                point[p == *x ? 0 : p == *y ? 1 : 2] = storable(value, what);
            } else if (p == solid) {
                const uint32_t number =
                    wholeNumber(value, [&] { return what() + "'s korvan_solid"; });
                const uint32_t previous = mesh.vertexSolids.empty() ? 0 : mesh.vertexSolids.back();
                if (number != previous && (mesh.vertexSolids.empty() || number != previous + 1)) {
                    fail(what() + " is out of its solid's order");
                }
                mesh.vertexSolids.push_back(number);
            }
        },
        [&](uint64_t) {
            mesh.coordinates.insert(mesh.coordinates.end(), point.begin(), point.end());
        });
    mesh.solidsNumbered = solid.has_value();
}

void readFaces(Body& body, const Element& element, Mesh& mesh) {
    auto corners = find(element, "vertex_indices", true);
    if (!corners) {
        corners = find(element, "vertex_index", true);
    }
    if (!corners) {
        fail("the faces have no vertex_indices list");
    }
    const auto red = find(element, "red");
    const auto green = find(element, "green");
    const auto blue = find(element, "blue");
    std::array<std::optional<size_t>, 8> korvan;
    for (size_t i = 0; i < korvan.size(); ++i) {
        korvan[i] = find(element, PlyReader::coefficientNames[i]);
    }
    const auto solid = find(element, "korvan_solid");
    FaceCoefficients::Values k{};
    uint32_t faceSolid = 0;
    readElement(
        body, element,
        [&](uint64_t record, size_t p, double value) {
            const auto what = [&] { return "face " + std::to_string(record); };
            if (p == *corners) {
                mesh.corners.push_back(wholeNumber(value, [&] { return what() + "'s corner"; }));
            } else if (p == red || p == green || p == blue) {
                const Type type = element.properties[p].type;
                k[p == red     ? 3
                  : p == green ? 4
                               : 5] = storable(isInteger(type) ? value / 255 : value,
                                               [&] { return what() + "'s colour"; });
            } else if (p == solid) {
                faceSolid = wholeNumber(value, [&] { return what() + "'s korvan_solid"; });
            }
            for (size_t i = 0; i < korvan.size(); ++i) {
                if (p == korvan[i]) {
                    k[i] = storable(value, [&] {
                        return what() + "'s " + std::string(PlyReader::coefficientNames[i]);
                    });
                }
            }
        },
        [&](uint64_t record) {
            if (!StorableValue::exponent(k[7])) {
                fail("face " + std::to_string(record) + "'s specular exponent is out of range");
            }
            mesh.faceEnds.push_back(mesh.corners.size());
            mesh.coefficients.push_back(k);
            mesh.faceSolids.push_back(faceSolid);
            k = {};
            faceSolid = 0;
        });
}

ObjectList build(const Mesh& mesh) {
    const size_t vertices = mesh.coordinates.size() / 3;
    // Where each solid's vertices start, and one past the last solid's.
    std::vector<size_t> starts{0};
    for (size_t v = 1; v < mesh.vertexSolids.size(); ++v) {
        if (mesh.vertexSolids[v] != mesh.vertexSolids[v - 1]) {
            starts.push_back(v);
        }
    }
    if (vertices > 0 || !mesh.solidsNumbered) {
        starts.push_back(vertices); // numbered solids without vertices are none at all
    }
    ObjectList objects;
    std::vector<std::shared_ptr<Solid3d>> solids;
    for (size_t s = 0; s + 1 < starts.size(); ++s) {
        auto solid = std::make_shared<Solid3d>();
        solid->addPointsArray(
            std::span(mesh.coordinates).subspan(3 * starts[s], 3 * (starts[s + 1] - starts[s])));
        auto object = std::make_shared<Transformed3d>();
        object->setSolid(solid);
        objects.push_back(object);
        solids.push_back(solid);
    }
    std::vector<int32_t> local;
    size_t begin = 0;
    for (size_t f = 0; f < mesh.faceEnds.size(); ++f) {
        const uint32_t s = mesh.faceSolids[f];
        if (s >= solids.size()) {
            fail("face " + std::to_string(f) + " names solid " + std::to_string(s) + " of " +
                 std::to_string(solids.size()));
        }
        local.clear();
        for (size_t c = begin; c < mesh.faceEnds[f]; ++c) {
            const uint32_t vertex = mesh.corners[c];
            if (vertex < starts[s] || vertex >= starts[s + 1]) {
                fail("face " + std::to_string(f) + " uses vertex " + std::to_string(vertex) +
                     ", which is not one of its solid's");
            }
            local.push_back(static_cast<int32_t>(vertex - starts[s] + 1));
        }
        begin = mesh.faceEnds[f];
        FaceCoefficients::set(*solids[s]->AddFaceArray(local), mesh.coefficients[f]);
    }
    return objects;
}

} // namespace

ObjectList PlyReader::parse(std::span<const uint8_t> bytes) {
    const Header header = readHeader(bytes);
    Body body(bytes, header.bodyStart, header.encoding);
    Mesh mesh;
    bool verticesSeen = false;
    bool facesSeen = false;
    for (const Element& element : header.elements) {
        if (element.properties.empty() && element.count > 0) {
            fail("element " + element.name + " has no properties");
        }
        if (element.name == "vertex" && !verticesSeen) {
            verticesSeen = true;
            readVertices(body, element, mesh);
        } else if (element.name == "face" && !facesSeen) {
            facesSeen = true;
            readFaces(body, element, mesh);
        } else {
            readElement(
                body, element, [](uint64_t, size_t, double) {}, [](uint64_t) {});
        }
    }
    if (!verticesSeen) {
        fail("the file has no vertices");
    }
    return build(mesh);
}
