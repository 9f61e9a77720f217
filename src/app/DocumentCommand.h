#pragma once

#include <cstddef>

struct SceneDocument;

// One change already made to a document, able to take the document back to the state before
// it and to make it once more. Commands hold the items they change by shared pointer and act
// on them directly.
class DocumentCommand {
public:
    virtual ~DocumentCommand() = default;
    // Back to the state before the change.
    virtual void undo(SceneDocument& document) = 0;
    // The change once more.
    virtual void redo(SceneDocument& document) = 0;
    // The memory this command alone keeps alive: itself, its copies of values and the items
    // that only it still holds.
    virtual size_t byteSize() const = 0;
    // Whether the change reaches what File > Save writes: the objects' points, faces and face
    // coefficients. Workplanes and profiles are not saved.
    virtual bool changesSavedFile() const = 0;
};
