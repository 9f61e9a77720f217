#include "io/ObjReader.h"

#include "io/MeshFormatError.h"
#include "io/StorableValue.h"
#include "scene/FaceCoefficients.h"
#include "scene/Solid3d.h"
#include "scene/Transformed3d.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <map>
#include <vector>

namespace {

// The line being read, for the messages.
class Line {
public:
    Line(std::string_view source, size_t number, std::string_view text)
        : source_(source), number_(number) {
        text = text.substr(0, text.find('#'));
        size_t i = 0;
        while (i < text.size()) {
            while (i < text.size() && isBlank(text[i])) {
                ++i;
            }
            const size_t start = i;
            while (i < text.size() && !isBlank(text[i])) {
                ++i;
            }
            if (i > start) {
                words_.push_back(text.substr(start, i - start));
            }
        }
        rest_ = words_.size() > 1 ? text.substr(static_cast<size_t>(words_[1].data() - text.data()))
                                  : std::string_view();
        while (!rest_.empty() && isBlank(rest_.back())) {
            rest_.remove_suffix(1);
        }
    }

    std::string_view keyword() const { return words_.empty() ? "" : words_[0]; }
    const std::vector<std::string_view>& words() const { return words_; }
    // Everything after the keyword, trimmed.
    std::string rest() const { return std::string(rest_); }

    [[noreturn]] void fail(const std::string& message) const {
        throw MeshFormatError(std::string(source_) + "line " + std::to_string(number_) + ": " +
                              message);
    }
    float number(size_t word) const {
        if (word >= words_.size()) {
            fail("a number is missing");
        }
        const std::string_view text = words_[word];
        float value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (error != std::errc() || end != text.data() + text.size() ||
            !StorableValue::value(value)) {
            fail("'" + std::string(text.substr(0, 20)) + "' is not a finite number");
        }
        return value;
    }

private:
    static bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

    std::string_view source_;
    size_t number_;
    std::vector<std::string_view> words_;
    std::string_view rest_;
};

template <class Each> void forEachLine(std::string_view text, std::string_view source, Each each) {
    size_t number = 1;
    while (!text.empty()) {
        const size_t end = std::min(text.find('\n'), text.size());
        each(Line(source, number++, text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

using Materials = std::map<std::string, FaceCoefficients::Values, std::less<>>;

// One value, or three where one stands for all three.
std::array<float, 3> triple(const Line& line) {
    const float first = line.number(1);
    if (line.words().size() < 3) {
        return {first, first, first};
    }
    return {first, line.number(2), line.number(3)};
}

void readLibrary(std::string_view text, const std::string& name, Materials& materials) {
    FaceCoefficients::Values* current = nullptr;
    forEachLine(text, name + " ", [&](const Line& line) {
        const std::string_view key = line.keyword();
        if (key == "newmtl") {
            current = &(materials[line.rest()] = {});
            return;
        }
        if (current == nullptr || (key != "Ka" && key != "Kd" && key != "Ks" && key != "Ns")) {
            return;
        }
        FaceCoefficients::Values& k = *current;
        if (key == "Ns") {
            k[7] = line.number(1);
            if (!StorableValue::exponent(k[7])) {
                line.fail("the specular exponent is out of range");
            }
            return;
        }
        const std::array<float, 3> t = triple(line);
        if (key == "Ks") {
            k[6] = std::max({t[0], t[1], t[2]});
        } else {
            std::copy(t.begin(), t.end(), k.begin() + (key == "Ka" ? 0 : 3));
        }
    });
}

struct Object {
    size_t firstVertex = 0; // its own block of the vertex list
    size_t endVertex = 0;
    size_t firstFace = 0;
};

} // namespace

ObjectList ObjReader::parse(std::string_view text, const LibraryReader& libraries) {
    std::vector<float> coordinates;
    std::vector<size_t> corners; // 0-based vertex numbers
    std::vector<size_t> faceEnds;
    std::vector<size_t> faceMaterials; // into materialNames
    std::vector<std::string> materialNames{""};
    size_t material = 0;
    Materials materials;
    std::vector<Object> objects{Object{}};

    forEachLine(text, "", [&](const Line& line) {
        const std::string_view key = line.keyword();
        const size_t vertices = coordinates.size() / 3;
        if (key == "v") {
            for (size_t i = 1; i <= 3; ++i) {
                coordinates.push_back(line.number(i));
            }
            objects.back().endVertex = vertices + 1;
        } else if (key == "f") {
            for (size_t i = 1; i < line.words().size(); ++i) {
                const std::string_view word = line.words()[i];
                const std::string_view digits = word.substr(0, word.find('/'));
                int64_t index = 0;
                const auto [end, error] =
                    std::from_chars(digits.data(), digits.data() + digits.size(), index);
                if (error != std::errc() || end != digits.data() + digits.size() || index == 0 ||
                    index < -static_cast<int64_t>(vertices)) {
                    line.fail("'" + std::string(word.substr(0, 20)) + "' is no vertex number");
                }
                corners.push_back(index > 0 ? static_cast<size_t>(index - 1)
                                            : vertices - static_cast<size_t>(-index));
            }
            faceEnds.push_back(corners.size());
            faceMaterials.push_back(material);
        } else if (key == "o") {
            if (objects.back().endVertex > objects.back().firstVertex ||
                objects.back().firstFace < faceEnds.size()) {
                objects.push_back({vertices, vertices, faceEnds.size()});
            } else {
                objects.back() = {vertices, vertices, faceEnds.size()};
            }
        } else if (key == "usemtl") {
            const auto found = std::find(materialNames.begin(), materialNames.end(), line.rest());
            material = static_cast<size_t>(found - materialNames.begin());
            if (found == materialNames.end()) {
                materialNames.push_back(line.rest());
            }
        } else if (key == "mtllib") {
            if (const std::optional<std::string> library = libraries(line.rest())) {
                readLibrary(*library, line.rest(), materials);
            }
        }
    });

    const size_t vertices = coordinates.size() / 3;
    ObjectList result;
    size_t totalPoints = 0;
    if (vertices > static_cast<size_t>(std::numeric_limits<int32_t>::max())) {
        throw MeshFormatError("too many vertices");
    }
    size_t begin = 0; // the first corner of the next face
    for (size_t n = 0; n < objects.size(); ++n) {
        const Object& object = objects[n];
        const size_t endFace = n + 1 < objects.size() ? objects[n + 1].firstFace : faceEnds.size();
        const size_t endCorner = endFace == 0 ? 0 : faceEnds[endFace - 1];
        size_t low = object.firstVertex;
        size_t high = object.endVertex;
        for (size_t c = begin; c < endCorner; ++c) {
            if (corners[c] >= vertices) {
                throw MeshFormatError("a face uses vertex " + std::to_string(corners[c] + 1) +
                                      " of " + std::to_string(vertices));
            }
            low = std::min(low, corners[c]);
            high = std::max(high, corners[c] + 1);
        }
        if (low == high && object.firstFace == endFace) {
            continue; // an empty object before the first "o"
        }
        totalPoints += high - low;
        if (totalPoints > 16 * vertices) {
            throw MeshFormatError("the objects share too many vertices");
        }
        auto solid = std::make_shared<Solid3d>();
        solid->addPointsArray(std::span(coordinates).subspan(3 * low, 3 * (high - low)));
        std::vector<int32_t> local;
        for (size_t f = object.firstFace; f < endFace; ++f) {
            local.clear();
            for (size_t c = begin; c < faceEnds[f]; ++c) {
                local.push_back(static_cast<int32_t>(corners[c] - low + 1));
            }
            begin = faceEnds[f];
            const auto found = materials.find(materialNames[faceMaterials[f]]);
            FaceCoefficients::set(*solid->AddFaceArray(local), found != materials.end()
                                                                   ? found->second
                                                                   : FaceCoefficients::Values{});
        }
        auto made = std::make_shared<Transformed3d>();
        made->setSolid(solid);
        result.push_back(made);
    }
    return result;
}
