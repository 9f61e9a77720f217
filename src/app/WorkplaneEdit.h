#pragma once

#include "app/DocumentCommand.h"

#include <cstdint>
#include <memory>

class WorkPlane;

// A workplane's size, rotations, offset, colour and visibility before and after its
// property dialog. Restoring rebuilds the plane from the values, as the dialog does.
//
// Usage: WorkplaneEdit::Snapshot before = WorkplaneEdit::capture(plane); then the dialog;
// then WorkplaneEdit::since(before) gives the edit, or nothing when no value changed.
class WorkplaneEdit : public DocumentCommand {
public:
    struct State {
        float size = 0;
        float xRotation = 0;
        float yRotation = 0;
        float offset = 0;
        int32_t color = 0;
        bool visible = true;
    };
    struct Snapshot {
        std::shared_ptr<WorkPlane> workPlane;
        State state;
    };

    static Snapshot capture(const std::shared_ptr<WorkPlane>& workPlane);
    static std::unique_ptr<WorkplaneEdit> since(const Snapshot& before);

    void undo(SceneDocument& document) override;
    void redo(SceneDocument& document) override;
    size_t byteSize() const override { return sizeof(*this); }
    bool changesSavedFile() const override { return false; }

private:
    WorkplaneEdit(const Snapshot& before, const State& after) : before_(before), after_(after) {}

    Snapshot before_;
    State after_;
};
