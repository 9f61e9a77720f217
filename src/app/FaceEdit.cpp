#include "app/FaceEdit.h"

#include "app/SameBits.h"
#include "scene/Face3d.h"
#include "scene/FaceCoefficients.h"

namespace {

FaceEdit::State stateOf(const Face3d& face) {
    return FaceEdit::State{FaceCoefficients::of(face), face.getIndices()};
}

void restore(Face3d& face, const FaceEdit::State& state) {
    FaceCoefficients::set(face, state.coefficients);
    face.SetPoints(state.indices);
}

bool same(const FaceEdit::State& a, const FaceEdit::State& b) {
    return sameBits(a.coefficients, b.coefficients) && a.indices == b.indices;
}

} // namespace

FaceEdit::Snapshot FaceEdit::capture(const std::vector<std::shared_ptr<Face3d>>& faces) {
    Snapshot snapshot;
    snapshot.reserve(faces.size());
    for (const auto& face : faces) {
        if (face) {
            snapshot.push_back(Captured{face, stateOf(*face)});
        }
    }
    return snapshot;
}

std::unique_ptr<FaceEdit> FaceEdit::since(const Snapshot& before) {
    std::vector<Entry> changed;
    for (const Captured& captured : before) {
        State now = stateOf(*captured.face);
        if (!same(captured.state, now)) {
            changed.push_back(Entry{captured.face, captured.state, std::move(now)});
        }
    }
    if (changed.empty()) {
        return nullptr;
    }
    return std::unique_ptr<FaceEdit>(new FaceEdit(std::move(changed)));
}

void FaceEdit::undo(SceneDocument& /*document*/) {
    for (const Entry& entry : changed_) {
        restore(*entry.face, entry.before);
    }
}

void FaceEdit::redo(SceneDocument& /*document*/) {
    for (const Entry& entry : changed_) {
        restore(*entry.face, entry.after);
    }
}

size_t FaceEdit::byteSize() const {
    size_t bytes = sizeof(*this) + changed_.capacity() * sizeof(Entry);
    for (const Entry& entry : changed_) {
        bytes +=
            (entry.before.indices.capacity() + entry.after.indices.capacity()) * sizeof(int32_t);
    }
    return bytes;
}
