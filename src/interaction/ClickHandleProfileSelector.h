#pragma once

#include "interaction/ClickHandleNothing.h"

// Selects every profile whose outline encloses a left click and paints its tree node
// magenta. Unlike the other selectors it hands no view record back from any handler.
class ClickHandleProfileSelector : public ClickHandleNothing {
public:
    MousePointer getMouseIcon() const override { return MousePointer::Crosshair; }
    std::optional<viewInfo> handleLeftClick(MouseEventArgs& args) override;
};
