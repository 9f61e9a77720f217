#include "app/SolidEdit.h"

#include "app/SameBits.h"
#include "scene/Face3d.h"
#include "scene/Transformed3d.h"

#include <algorithm>
#include <bit>
#include <unordered_map>

namespace {

using Bits = std::array<uint32_t, 8>;

struct BitsHash {
    size_t operator()(const Bits& bits) const {
        size_t hash = 0;
        for (const uint32_t word : bits) {
            hash = hash * 1000003u ^ word;
        }
        return hash;
    }
};

SolidEdit::Palette paletteOf(const Solid3d& solid) {
    SolidEdit::Palette palette;
    palette.faces.reserve(solid.faces.size());
    std::unordered_map<Bits, uint32_t, BitsHash> places;
    for (const auto& face : solid.faces) {
        const FaceCoefficients::Values set = FaceCoefficients::of(*face);
        // Neighbouring faces mostly share their set.
        if (!palette.faces.empty() && sameBits(palette.sets[palette.faces.back()], set)) {
            palette.faces.push_back(palette.faces.back());
            continue;
        }
        const auto [place, added] = places.try_emplace(std::bit_cast<Bits>(set),
                                                       static_cast<uint32_t>(palette.sets.size()));
        if (added) {
            palette.sets.push_back(set);
        }
        palette.faces.push_back(place->second);
    }
    return palette;
}

bool same(const SolidEdit::Palette& a, const SolidEdit::Palette& b) {
    return a.faces == b.faces &&
           std::equal(a.sets.begin(), a.sets.end(), b.sets.begin(), b.sets.end(),
                      [](const auto& x, const auto& y) { return sameBits(x, y); });
}

} // namespace

SolidEdit::Snapshot SolidEdit::capture(const Transformed3d& object) {
    Snapshot snapshot{object.getSolid(), {}};
    if (snapshot.solid) {
        snapshot.coefficients = paletteOf(*snapshot.solid);
    }
    return snapshot;
}

std::unique_ptr<SolidEdit> SolidEdit::since(const Snapshot& before, bool reversed) {
    if (!before.solid) {
        return nullptr;
    }
    Palette after = paletteOf(*before.solid);
    // Palettes are built in face order, so the same coefficients give the same palette.
    if (same(before.coefficients, after)) {
        if (!reversed) {
            return nullptr;
        }
        return std::unique_ptr<SolidEdit>(new SolidEdit(before.solid, {}, {}, true));
    }
    return std::unique_ptr<SolidEdit>(
        new SolidEdit(before.solid, before.coefficients, std::move(after), reversed));
}

SolidEdit::SolidEdit(std::shared_ptr<Solid3d> solid, Palette before, Palette after, bool reversed)
    : solid_(std::move(solid)), before_(std::move(before)), after_(std::move(after)),
      reversed_(reversed) {}

void SolidEdit::restore(const Palette& coefficients) const {
    const FaceList& faces = solid_->faces;
    const size_t count = std::min(faces.size(), coefficients.faces.size());
    for (size_t i = 0; i < count; ++i) {
        FaceCoefficients::set(*faces[i], coefficients.sets[coefficients.faces[i]]);
    }
    if (reversed_) {
        for (const auto& face : faces) {
            face->switchIndexOrientation();
        }
    }
}

void SolidEdit::undo(SceneDocument& /*document*/) {
    restore(before_);
}

void SolidEdit::redo(SceneDocument& /*document*/) {
    restore(after_);
}

size_t SolidEdit::byteSize() const {
    size_t bytes = sizeof(*this);
    for (const Palette* palette : {&before_, &after_}) {
        bytes += palette->sets.capacity() * sizeof(FaceCoefficients::Values) +
                 palette->faces.capacity() * sizeof(uint32_t);
    }
    return bytes;
}
