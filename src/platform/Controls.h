#pragma once

#include <algorithm>
#include <string>
#include <vector>

// The state of the controls the windows' logic holds, one small value type per kind of
// control. The views show these and write user changes back into them.

struct TextBoxState {
    std::string Text;
    bool Enabled = true;
    bool Focused = false;
};

struct CheckBoxState {
    std::string Caption;
    bool Value = false;
    bool Enabled = true;
};

// One option button of a group; the dialog clears the others when one is chosen.
struct OptionState {
    std::string Caption;
    bool Value = false;
};

// A list box: its lines and the chosen one (-1: none).
struct ListState {
    std::vector<std::string> items;
    int ListIndex = -1;
};

// A scroll bar. Min may be larger than Max: the value then falls from left to right.
struct ScrollBarState {
    int Min = 0;
    int Max = 32767;
    int Value = 0;
    int SmallChange = 1; // arrows and arrow keys
    int LargeChange = 1; // trough clicks and page keys
    bool Enabled = true;

    // The value the bar can show that is nearest to the one asked for.
    int clamped(int value) const {
        return std::clamp(value, std::min(Min, Max), std::max(Min, Max));
    }
    // Distance of a value from the left end, counted in steps to the right. Arrows, trough
    // clicks and Home/End move a bar left or right, whichever way its values run.
    int positionOf(int value) const { return Min <= Max ? value - Min : Min - value; }
    int valueAt(int position) const { return Min <= Max ? Min + position : Min - position; }
    int span() const { return std::max(Min, Max) - std::min(Min, Max); }
};

// A colour shown as a filled box (red + 256 x green + 65536 x blue).
struct SwatchState {
    int BackColor = 0;
    bool Enabled = true;
};

struct LabelState {
    std::string Caption;
    bool Enabled = true;
};

// A command button or a menu item of a dialog.
struct ButtonState {
    std::string Caption;
    bool Enabled = true;
};
