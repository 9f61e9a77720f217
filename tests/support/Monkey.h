#pragma once

#include "macro/UserSource.h"

#include <cstdint>
#include <deque>
#include <random>
#include <string>
#include <vector>

class MenuItem;
class frmTolvane;

// A user who does random but plausible things, the same things for the same seed: chooses
// enabled menu items (never Exit), clicks, drags and moves on the viewports shown, in them
// and outside, undoes and redoes runs of steps (every step, often), presses keys, clicks and
// deletes tree nodes, resizes the window, and inside dialogs types sensible and hostile texts,
// ticks boxes, picks lines, moves scroll bars and presses buttons, closing every dialog before
// long. It answers message and input boxes, and the file dialog with files it saved earlier in its
// folder, missing files and bad names.
class Monkey : public UserSource {
public:
    // actions: how many actions of the window it plays before it stops; folder: where the
    // files it saves go.
    Monkey(uint64_t seed, long actions, std::string folder);
    // The window it plays; before any action.
    void watch(frmTolvane& form) { form_ = &form; }

    std::optional<MacroAction> next(const Waiting& waiting) override;
    std::string where() const override { return "action " + std::to_string(count_); }

private:
    // A whole number from low to high, inclusive.
    int between(int low, int high);
    bool chance(int percent) { return between(1, 100) <= percent; }
    template <class T> const T& oneOf(const std::vector<T>& choices) {
        return choices[static_cast<size_t>(between(0, static_cast<int>(choices.size()) - 1))];
    }

    MacroAction windowAction();
    // Now and then a run of undos, then of redos, each as long as the history allows.
    std::optional<MacroAction> undoRun();
    // Sometimes the monkey means something: it plans a profile on a workplane, closed and
    // extruded, or a new workplane, as a user would go about it.
    void plan();
    // In a dialog it fills in, the next text box to fill or the button that accepts.
    MacroAction fillIn(const ModalDialog& dialog);
    MacroAction mouse();
    std::optional<MacroAction> treeClick();
    std::optional<MacroAction> menu(const MenuItem& root, bool popup);
    MacroAction dialogAction(const ModalDialog& dialog);
    std::string text(const std::string& control);
    float coordinate(int size);
    std::string path();

    std::mt19937_64 random_;
    long actionsLeft_;
    std::string folder_;
    frmTolvane* form_ = nullptr;
    long count_ = 0;
    const ModalDialog* dialog_ = nullptr;
    int dialogActions_ = 0;
    bool filling_ = false;
    std::deque<MacroAction> planned_;
    int heldButton_ = 0;
    int undosLeft_ = 0;
    int redosLeft_ = 0;
};
