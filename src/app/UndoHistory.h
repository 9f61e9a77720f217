#pragma once

#include "app/DocumentCommand.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// One linear history of named steps, each one or more commands the document has already
// gone through. Undo takes a step's commands back in reverse order, redo makes them again in
// order. The only bound is the memory the steps keep alive: past the budget the oldest steps
// go, but the newest always stays, so the last change can always be undone.
//
// The history also knows whether the document differs from its clean point, the state last
// saved (or opened, or made new): it does when a step between that point and now changes
// what Save writes, and for good once the step of the clean point has been dropped.
class UndoHistory {
public:
    static constexpr size_t defaultByteBudget = size_t{256} << 20;

    explicit UndoHistory(size_t byteBudget = defaultByteBudget);

    // Records a step the document has already gone through, dropping the steps that could be
    // redone, then the oldest steps while the history is over its budget. Null commands are
    // left out; a step without commands is not recorded.
    void push(std::string name, std::vector<std::unique_ptr<DocumentCommand>> commands);
    // A step of one command.
    void push(std::string name, std::unique_ptr<DocumentCommand> command);

    bool canUndo() const { return done_ > 0; }
    bool canRedo() const { return done_ < steps_.size(); }
    // The name of the step undo or redo would take; "" when there is none.
    const std::string& undoName() const;
    const std::string& redoName() const;
    // Do nothing when there is no such step.
    void undo(SceneDocument& document);
    void redo(SceneDocument& document);

    // No steps; the document as it is now is clean.
    void clear();
    // The document as it is now is what was last saved.
    void markClean() { clean_ = done_; }
    bool isModified() const;

    // The memory the steps keep alive, as their commands report it.
    size_t byteSize() const { return byteSize_; }
    size_t stepCount() const { return steps_.size(); }

private:
    struct Step {
        std::string name;
        std::vector<std::unique_ptr<DocumentCommand>> commands;
        size_t bytes = 0;
        bool changesSavedFile = false;
    };
    // Sums the step's commands again after they changed state.
    void recount(Step& step);

    size_t byteBudget_;
    std::deque<Step> steps_;
    size_t done_ = 0; // steps 1 to done_ are in the document
    // The number of done steps at the clean point; nothing once that state is out of reach.
    std::optional<size_t> clean_ = 0;
    size_t byteSize_ = 0;
};
