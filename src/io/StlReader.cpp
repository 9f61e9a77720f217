#include "io/StlReader.h"

#include "io/AssimpMeshImporter.h"
#include "io/MeshFormatError.h"
#include "scene/FaceCoefficients.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cctype>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace {

[[noreturn]] void fail(const std::string& message) {
    throw MeshFormatError(message);
}

constexpr size_t headerBytes = 80;
constexpr size_t countBytes = 4;
constexpr size_t facetBytes = 50;

using Corner = std::array<float, 3>;

// Corners joined into points by the bits of their coordinates: an open-addressing table of
// 1-based point numbers, sized up front to at least twice the corners so that it never grows.
class JoinedPoints {
public:
    explicit JoinedPoints(size_t corners)
        : slots_(std::bit_ceil(std::max<size_t>(2 * corners, 16))), mask_(slots_.size() - 1) {
        coordinates_.reserve(3 * corners);
    }

    // The point at the corner's place, added when no earlier corner was there; what() names
    // the corner for the message about a point that is not a finite number.
    template <class What> int32_t at(const Corner& corner, What what) {
        if (!std::isfinite(corner[0]) || !std::isfinite(corner[1]) || !std::isfinite(corner[2])) {
            fail(what() + ": a point is not a finite number");
        }
        // + 0 turns -0 into 0, so that the two join.
        const std::array<uint32_t, 3> bits{std::bit_cast<uint32_t>(corner[0] + 0.0f),
                                           std::bit_cast<uint32_t>(corner[1] + 0.0f),
                                           std::bit_cast<uint32_t>(corner[2] + 0.0f)};
        uint64_t hash = bits[0];
        hash = hash * 0x9E3779B97F4A7C15u ^ bits[1];
        hash = hash * 0x9E3779B97F4A7C15u ^ bits[2];
        hash *= 0x9E3779B97F4A7C15u;
        for (size_t slot = static_cast<size_t>(hash >> 32) & mask_;; slot = (slot + 1) & mask_) {
            const int32_t point = slots_[slot];
            if (point == 0) {
                for (const uint32_t b : bits) {
                    coordinates_.push_back(std::bit_cast<float>(b));
                }
                slots_[slot] = static_cast<int32_t>(coordinates_.size() / 3);
                return slots_[slot];
            }
            const float* p = coordinates_.data() + 3 * (point - 1);
            if (std::bit_cast<uint32_t>(p[0]) == bits[0] &&
                std::bit_cast<uint32_t>(p[1]) == bits[1] &&
                std::bit_cast<uint32_t>(p[2]) == bits[2]) {
                return point;
            }
        }
    }

    const std::vector<float>& coordinates() const { return coordinates_; }

private:
    std::vector<int32_t> slots_;
    size_t mask_;
    std::vector<float> coordinates_;
};

void checkFacetCount(uint64_t facets) {
    if (facets > AssimpMeshImporter::maxFaces) {
        fail("more than " + std::to_string(AssimpMeshImporter::maxFaces) + " faces");
    }
}

// The solid of facets triangles; cornerAt(i) is the i-th corner of the file, what(i) names
// its facet for a message.
template <class CornerAt, class What>
ObjectList build(size_t facets, CornerAt cornerAt, What what) {
    if (facets == 0) {
        fail("the file holds no facets");
    }
    JoinedPoints points(3 * facets);
    std::vector<int32_t> corners(3 * facets);
    for (size_t i = 0; i < corners.size(); ++i) {
        corners[i] = points.at(cornerAt(i), [&] { return what(i / 3); });
    }
    auto solid = std::make_shared<Solid3d>();
    solid->addPointsArray(points.coordinates());
    solid->faces.reserve(facets);
    for (size_t f = 0; f < facets; ++f) {
        FaceCoefficients::set(*solid->AddFaceArray(std::span(corners).subspan(3 * f, 3)),
                              FaceCoefficients::unsaid);
    }
    auto object = std::make_shared<Transformed3d>();
    object->setSolid(solid);
    return {object};
}

uint32_t littleEndian(const uint8_t* b) {
    return static_cast<uint32_t>(b[0]) | static_cast<uint32_t>(b[1]) << 8 |
           static_cast<uint32_t>(b[2]) << 16 | static_cast<uint32_t>(b[3]) << 24;
}

// Whether the file holds at least the facets its count says; a binary file's one check
// before anything is allocated.
bool holdsItsFacets(std::span<const uint8_t> bytes) {
    return bytes.size() >= headerBytes + countBytes &&
           (bytes.size() - headerBytes - countBytes) / facetBytes >=
               littleEndian(bytes.data() + headerBytes);
}

ObjectList parseBinary(std::span<const uint8_t> bytes) {
    if (bytes.size() < headerBytes + countBytes) {
        fail("the file is too short for an STL header");
    }
    const uint32_t facets = littleEndian(bytes.data() + headerBytes);
    checkFacetCount(facets);
    if (!holdsItsFacets(bytes)) {
        fail("the file holds " + std::to_string(bytes.size()) + " bytes, too few for its " +
             std::to_string(facets) + " facets");
    }
    const uint8_t* first = bytes.data() + headerBytes + countBytes;
    return build(
        facets,
        [&](size_t i) {
            // After the facet's normal, its three corners of three floats each.
            const uint8_t* at = first + i / 3 * facetBytes + 12 + i % 3 * 12;
            return Corner{std::bit_cast<float>(littleEndian(at)),
                          std::bit_cast<float>(littleEndian(at + 4)),
                          std::bit_cast<float>(littleEndian(at + 8))};
        },
        [](size_t facet) { return "facet " + std::to_string(facet + 1); });
}

// The words of ASCII STL, front to back, with the line each is on.
class Words {
public:
    explicit Words(std::span<const uint8_t> bytes)
        : text_(reinterpret_cast<const char*>(bytes.data()), bytes.size()) {}

    size_t line() const { return line_; }

    bool atEnd() {
        skipBlanks();
        return position_ == text_.size();
    }

    std::string_view next() {
        skipBlanks();
        const size_t start = position_;
        while (position_ < text_.size() && !isBlank(text_[position_])) {
            ++position_;
        }
        return text_.substr(start, position_ - start);
    }

    // The rest of the line, read past (a solid's name).
    void skipLine() {
        const size_t end = text_.find('\n', position_);
        position_ = end == std::string_view::npos ? text_.size() : end;
    }

    static bool is(std::string_view word, std::string_view keyword) {
        return std::equal(
            word.begin(), word.end(), keyword.begin(), keyword.end(),
            [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; });
    }

    // The word just read must be the keyword (in any case).
    void require(std::string_view word, std::string_view keyword) const {
        if (!is(word, keyword)) {
            fail(at() + (word.empty() ? "the file ends" : quoted(word)) + " where '" +
                 std::string(keyword) + "' belongs");
        }
    }

    void expect(std::string_view keyword) { require(next(), keyword); }

    float number() {
        std::string_view word = next();
        const std::string_view text = word;
        if (word.starts_with('+')) {
            word.remove_prefix(1);
        }
        float value = 0;
        const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
        if (word.empty() || error != std::errc() || end != word.data() + word.size()) {
            fail(at() + quoted(text) + " is not a number");
        }
        return value;
    }

    std::string at() const { return "line " + std::to_string(line_) + ": "; }

    // The word in quotes for a message, cut to 20 characters, a control character as '?'.
    static std::string quoted(std::string_view word) {
        std::string text(word.substr(0, 20));
        std::replace_if(
            text.begin(), text.end(),
            [](char c) { return std::iscntrl(static_cast<unsigned char>(c)); }, '?');
        return "'" + text + "'";
    }

private:
    static bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

    void skipBlanks() {
        while (position_ < text_.size() && isBlank(text_[position_])) {
            line_ += text_[position_] == '\n' ? 1 : 0;
            ++position_;
        }
    }

    std::string_view text_;
    size_t position_ = 0;
    size_t line_ = 1;
};

ObjectList parseAscii(std::span<const uint8_t> bytes) {
    Words words(bytes);
    std::vector<Corner> corners;
    std::vector<size_t> lines; // of each facet, for a message about its points
    do {
        words.expect("solid");
        words.skipLine();
        for (;;) {
            const std::string_view word = words.next();
            const size_t line = words.line();
            if (Words::is(word, "endsolid")) {
                words.skipLine(); // the solid's name
                break;
            }
            words.require(word, "facet");
            checkFacetCount(lines.size() + 1);
            words.expect("normal");
            for (int i = 0; i < 3; ++i) {
                words.number();
            }
            words.expect("outer");
            words.expect("loop");
            for (int c = 0; c < 3; ++c) {
                words.expect("vertex");
                corners.push_back({words.number(), words.number(), words.number()});
            }
            words.expect("endloop");
            words.expect("endfacet");
            lines.push_back(line);
        }
    } while (!words.atEnd());
    return build(
        lines.size(), [&](size_t i) { return corners[i]; },
        [&](size_t facet) { return "the facet of line " + std::to_string(lines[facet]); });
}

} // namespace

ObjectList StlReader::parse(std::span<const uint8_t> bytes) {
    if (bytes.size() > AssimpMeshImporter::maxFileBytes) {
        fail("larger than the " + std::to_string(AssimpMeshImporter::maxFileBytes >> 20) +
             " MiB the importer reads");
    }
    constexpr std::string_view solid = "solid";
    if (bytes.size() < solid.size() || !std::equal(solid.begin(), solid.end(), bytes.begin())) {
        return parseBinary(bytes);
    }
    try {
        return parseAscii(bytes);
    } catch (const MeshFormatError&) {
        // A binary file's header may start with "solid" too.
        if (holdsItsFacets(bytes)) {
            return parseBinary(bytes);
        }
        throw;
    }
}
