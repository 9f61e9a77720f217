#pragma once

#include <algorithm>
#include <string>

// The state of the controls the windows' logic holds, one small value type per kind of
// control. The Qt views show these and write user changes back into them.

// A scroll bar. Min may be larger than Max: the value then falls from left to right.
struct ScrollBarState {
    int Min = 0;
    int Max = 32767;
    int Value = 0;

    // The value the bar can show that is nearest to the one asked for.
    int clamped(int value) const {
        return std::clamp(value, std::min(Min, Max), std::max(Min, Max));
    }
};

struct LabelState {
    std::string Caption;
};

struct MenuItemState {
    std::string Caption;
};
