#include "app/UndoHistory.h"

#include <algorithm>

namespace {
const std::string noName;
} // namespace

UndoHistory::UndoHistory(size_t byteBudget) : byteBudget_(byteBudget) {}

void UndoHistory::push(std::string name, std::unique_ptr<DocumentCommand> command) {
    std::vector<std::unique_ptr<DocumentCommand>> commands;
    commands.push_back(std::move(command));
    push(std::move(name), std::move(commands));
}

void UndoHistory::push(std::string name, std::vector<std::unique_ptr<DocumentCommand>> commands) {
    std::erase(commands, nullptr);
    if (commands.empty()) {
        return;
    }
    if (clean_ && *clean_ > done_) {
        clean_.reset();
    }
    while (steps_.size() > done_) {
        byteSize_ -= steps_.back().bytes;
        steps_.pop_back();
    }
    steps_.push_back(Step{std::move(name), std::move(commands)});
    Step& step = steps_.back();
    step.changesSavedFile = std::ranges::any_of(
        step.commands, [](const auto& command) { return command->changesSavedFile(); });
    recount(step);
    ++done_;
    while (byteSize_ > byteBudget_ && steps_.size() > 1) {
        byteSize_ -= steps_.front().bytes;
        steps_.pop_front();
        --done_;
        if (clean_) {
            clean_ = *clean_ == 0 ? std::nullopt : std::optional<size_t>(*clean_ - 1);
        }
    }
}

const std::string& UndoHistory::undoName() const {
    return canUndo() ? steps_[done_ - 1].name : noName;
}

const std::string& UndoHistory::redoName() const {
    return canRedo() ? steps_[done_].name : noName;
}

void UndoHistory::undo(SceneDocument& document) {
    if (!canUndo()) {
        return;
    }
    Step& step = steps_[--done_];
    for (auto command = step.commands.rbegin(); command != step.commands.rend(); ++command) {
        (*command)->undo(document);
    }
    recount(step);
}

void UndoHistory::redo(SceneDocument& document) {
    if (!canRedo()) {
        return;
    }
    Step& step = steps_[done_++];
    for (const auto& command : step.commands) {
        command->redo(document);
    }
    recount(step);
}

void UndoHistory::clear() {
    steps_.clear();
    done_ = 0;
    clean_ = 0;
    byteSize_ = 0;
}

bool UndoHistory::isModified() const {
    if (!clean_) {
        return true;
    }
    const auto first = steps_.begin() + static_cast<std::ptrdiff_t>(std::min(*clean_, done_));
    const auto last = steps_.begin() + static_cast<std::ptrdiff_t>(std::max(*clean_, done_));
    return std::any_of(first, last, [](const Step& step) { return step.changesSavedFile; });
}

void UndoHistory::recount(Step& step) {
    byteSize_ -= step.bytes;
    step.bytes = sizeof(Step) + step.name.size();
    for (const auto& command : step.commands) {
        step.bytes += command->byteSize();
    }
    byteSize_ += step.bytes;
}
