#pragma once

#include "interaction/ClickHandleSelector.h"

// Selects every solid with a visible face under a left click, once however many of its faces
// are hit, and paints its tree node red.
class ClickHandleSolidSelector : public ClickHandleSelector {
public:
    std::optional<viewInfo> handleLeftClick(MouseEventArgs& args) override;
};
