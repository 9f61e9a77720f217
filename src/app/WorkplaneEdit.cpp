#include "app/WorkplaneEdit.h"

#include "app/SameBits.h"
#include "scene/WorkPlane.h"

#include <array>

namespace {

WorkplaneEdit::State stateOf(const WorkPlane& plane) {
    return WorkplaneEdit::State{plane.getSize(),   plane.getXRotation(), plane.getYRotation(),
                                plane.getOffset(), plane.getColor(),     plane.isVisible()};
}

void restore(WorkPlane& plane, const WorkplaneEdit::State& state) {
    plane.initialize(state.size, state.xRotation, state.yRotation, state.offset, state.color);
    plane.setVisibility(state.visible);
}

bool same(const WorkplaneEdit::State& a, const WorkplaneEdit::State& b) {
    const std::array<float, 4> floatsA{a.size, a.xRotation, a.yRotation, a.offset};
    const std::array<float, 4> floatsB{b.size, b.xRotation, b.yRotation, b.offset};
    return sameBits(floatsA, floatsB) && a.color == b.color && a.visible == b.visible;
}

} // namespace

WorkplaneEdit::Snapshot WorkplaneEdit::capture(const std::shared_ptr<WorkPlane>& workPlane) {
    return Snapshot{workPlane, workPlane ? stateOf(*workPlane) : State{}};
}

std::unique_ptr<WorkplaneEdit> WorkplaneEdit::since(const Snapshot& before) {
    if (!before.workPlane) {
        return nullptr;
    }
    const State now = stateOf(*before.workPlane);
    if (same(before.state, now)) {
        return nullptr;
    }
    return std::unique_ptr<WorkplaneEdit>(new WorkplaneEdit(before, now));
}

void WorkplaneEdit::undo(SceneDocument& /*document*/) {
    restore(*before_.workPlane, before_.state);
}

void WorkplaneEdit::redo(SceneDocument& /*document*/) {
    restore(*before_.workPlane, after_);
}
