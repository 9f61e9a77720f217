#pragma once

#include "interaction/ClickHandleNothing.h"

// Stands in for the solid selector until it is written: the crosshair, nothing else.
class ClickHandleSolidSelector : public ClickHandleNothing {
public:
    MousePointer getMouseIcon() const override { return MousePointer::Crosshair; }
};
