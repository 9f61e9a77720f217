#pragma once

#include "interaction/ClickHandleSelector.h"

// Selects every workplane under a left click and paints its tree node yellow.
class ClickHandleWorkPlaneSelector : public ClickHandleSelector {
public:
    std::optional<viewInfo> handleLeftClick(MouseEventArgs& args) override;
};
