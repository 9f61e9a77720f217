#pragma once

#include "interaction/ClickHandleNothing.h"

// Stands in for the workplane selector until it is written: the crosshair, nothing else.
class ClickHandleWorkPlaneSelector : public ClickHandleNothing {
public:
    MousePointer getMouseIcon() const override { return MousePointer::Crosshair; }
};
