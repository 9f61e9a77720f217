#pragma once

#include "app/DocumentCommand.h"
#include "scene/FaceCoefficients.h"

#include <cstdint>
#include <memory>
#include <vector>

class Face3d;

// The surface coefficients and corner lists of faces before and after a dialog changed
// them. Only the faces that changed are kept, so an edit of one face of a large solid stays
// small.
//
// Usage: FaceEdit::Snapshot before = FaceEdit::capture(faces); then the dialog; then
// FaceEdit::since(before) gives the edit, or nothing when no face changed.
class FaceEdit : public DocumentCommand {
public:
    // What a dialog may change of one face: the ambient, diffuse and specular coefficients,
    // and the corners.
    struct State {
        FaceCoefficients::Values coefficients{};
        std::vector<int32_t> indices;
    };
    struct Captured {
        std::shared_ptr<Face3d> face;
        State state;
    };
    using Snapshot = std::vector<Captured>;

    // Null faces are left out.
    static Snapshot capture(const std::vector<std::shared_ptr<Face3d>>& faces);
    static std::unique_ptr<FaceEdit> since(const Snapshot& before);

    void undo(SceneDocument& document) override;
    void redo(SceneDocument& document) override;
    size_t byteSize() const override;
    bool changesSavedFile() const override { return true; }

private:
    struct Entry {
        std::shared_ptr<Face3d> face;
        State before;
        State after;
    };

    explicit FaceEdit(std::vector<Entry> changed) : changed_(std::move(changed)) {}

    std::vector<Entry> changed_;
};
