#pragma once

#include "app/DocumentCommand.h"
#include "scene/FaceCoefficients.h"

#include <cstdint>
#include <memory>
#include <vector>

class Solid3d;
class Transformed3d;

// The surface coefficients of every face of one solid before and after a dialog that sets
// them for the whole solid, and whether it reversed every face's corners. Such a dialog
// leaves a solid with few distinct coefficient sets, so each set is kept once and each face
// holds the place of its set: a few bytes per face where a copy of every face would be
// about as large as the solid itself. Faces are addressed by their place in the solid's
// face list, which the dialog does not change.
//
// Usage: SolidEdit::Snapshot before = SolidEdit::capture(object); then the dialog; then
// SolidEdit::since(before, reversed) gives the edit, or nothing when nothing changed.
class SolidEdit : public DocumentCommand {
public:
    // The coefficients of every face in list order, each distinct set (compared bit for
    // bit) once.
    struct Palette {
        std::vector<FaceCoefficients::Values> sets;
        std::vector<uint32_t> faces; // the place in sets of each face's coefficients
    };
    struct Snapshot {
        std::shared_ptr<Solid3d> solid; // none for an object without a solid
        Palette coefficients;
    };

    static Snapshot capture(const Transformed3d& object);
    // reversed: whether the dialog reversed the corner order of every face.
    static std::unique_ptr<SolidEdit> since(const Snapshot& before, bool reversed);

    void undo(SceneDocument& document) override;
    void redo(SceneDocument& document) override;
    size_t byteSize() const override;
    bool changesSavedFile() const override { return true; }

private:
    SolidEdit(std::shared_ptr<Solid3d> solid, Palette before, Palette after, bool reversed);
    // Writes the coefficients, then reverses every face again if the dialog did, since a
    // reversal undoes itself.
    void restore(const Palette& coefficients) const;

    std::shared_ptr<Solid3d> solid_;
    // Both empty when only the corner order changed.
    Palette before_;
    Palette after_;
    bool reversed_;
};
