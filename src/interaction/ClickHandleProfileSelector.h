#pragma once

#include "interaction/ClickHandleNothing.h"

// Stands in for the profile selector until it is written: the crosshair, nothing else.
class ClickHandleProfileSelector : public ClickHandleNothing {
public:
    MousePointer getMouseIcon() const override { return MousePointer::Crosshair; }
};
