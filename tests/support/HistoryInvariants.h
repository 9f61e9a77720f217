#pragma once

#include "platform/WindowFrame.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class frmTolvane;

// What must hold of the main window's undo history as the user goes on, checked against a
// model of it: the saved bytes of the document (what Save would write) at every position of
// the history. Undo and redo give back the bytes of the position they reach, so undoing every
// step gives the document of the last New or Open (or the start) and redoing every step the
// one before the undos; an action that makes no step leaves the bytes alone; the document is
// modified whenever its bytes differ from those of the clean point (the last successful save,
// or the empty history), and is not at the clean point itself.
//
// It learns what each action did from the status line (it is the window frame the player
// shows to) and from the history: "Undid", "Redid" and "Saved" name themselves, an empty
// history is a new start, and steps added are the growth of the history. The monkey's
// documents stay far below the history's budget, so no step is dropped.
class HistoryInvariants : public WindowFrame {
public:
    // The document as it is now is the start.
    explicit HistoryInvariants(frmTolvane& form);

    // After every action of the window: the first invariant that does not hold, or "".
    std::string check();

    void setMousePointer(MousePointer) override {}
    void showPopupMenu(Canvas&, int, int) override {}
    void unload() override {}
    void setTitle(const std::string&, bool) override {}
    void showStatus(const std::string& text) override { statuses_.push_back(text); }
    void showModeHint(const std::string&) override {}
    void answerNextFileDialog(const std::string&) override {}

private:
    // A digest of the saved bytes; nothing when the document cannot be saved.
    using Bytes = std::optional<size_t>;
    Bytes savedBytes();
    void restart(Bytes bytes);
    bool said(const std::string& start) const;

    frmTolvane& form_;
    std::vector<std::string> statuses_;
    // The bytes at each position of the history, 0 to the step count; nothing for positions
    // passed within one action (two steps of one command).
    std::vector<std::optional<Bytes>> states_;
    size_t done_ = 0;
    // The clean position; nothing once out of reach.
    std::optional<size_t> clean_;
};
