#include "support/HistoryInvariants.h"

#include "app/frmTolvane.h"
#include "io/TavrinMeshIO.h"

#include <algorithm>
#include <functional>
#include <string_view>

HistoryInvariants::HistoryInvariants(frmTolvane& form) : form_(form) {
    restart(savedBytes());
}

HistoryInvariants::Bytes HistoryInvariants::savedBytes() {
    // A folder has no old tail to keep, so the content is the records alone.
    const auto content = TavrinMeshIO().savedContent(form_.getDocument().solids, "/");
    if (!content) {
        return std::nullopt;
    }
    return std::hash<std::string_view>{}(
        std::string_view(reinterpret_cast<const char*>(content->data()), content->size()));
}

void HistoryInvariants::restart(Bytes bytes) {
    states_.assign(1, bytes);
    done_ = 0;
    clean_ = 0;
}

bool HistoryInvariants::said(const std::string& start) const {
    return std::ranges::any_of(statuses_,
                               [&](const auto& status) { return status.starts_with(start); });
}

std::string HistoryInvariants::check() {
    const UndoHistory& history = form_.history();
    const Bytes bytes = savedBytes();
    std::string broken;
    if (history.stepCount() == 0) {
        restart(bytes);
    } else if (said("Undid ") || said("Redid ")) {
        done_ = said("Undid ") ? done_ - 1 : done_ + 1;
        if (states_[done_] && *states_[done_] != bytes) {
            broken = statuses_.back() + " gave other saved bytes than the document had there";
        }
        states_[done_] = bytes;
    } else {
        // A new step drops the steps that could be redone, so the history grows from done_.
        const bool redoLeft = done_ + 1 < states_.size() && history.canRedo();
        const size_t added =
            !redoLeft && history.stepCount() > done_ ? history.stepCount() - done_ : 0;
        if (added == 0 && states_[done_] && *states_[done_] != bytes) {
            broken = "the saved bytes changed without a step";
        }
        if (added > 0) {
            states_.resize(done_ + 1);
            if (clean_ && *clean_ > done_) {
                clean_.reset();
            }
            done_ += added;
            states_.resize(done_ + 1);
        }
        states_[done_] = bytes;
    }
    if (said("Saved ")) {
        clean_ = done_;
    }
    statuses_.clear();
    if (!broken.empty()) {
        return broken;
    }
    if (states_.size() != history.stepCount() + 1 || history.canUndo() != (done_ > 0) ||
        history.canRedo() != (done_ + 1 < states_.size())) {
        return "the history has " + std::to_string(history.stepCount()) + " steps, " +
               std::to_string(states_.size() - 1) + " made";
    }
    const bool atClean = clean_ && *clean_ == done_;
    const bool differs = !clean_ || (states_[*clean_] && *states_[*clean_] != bytes);
    if (atClean && history.isModified()) {
        return "modified at the clean point";
    }
    if (differs && !history.isModified()) {
        return "not modified, though the saved bytes differ from the clean point's";
    }
    return "";
}
